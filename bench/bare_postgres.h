#pragma once

#include <libpq-fe.h>

#include <memory>
#include <string>

#include "bare.h"

namespace bench {

/// PostgreSQL through its own client library, with the settings it comes with. Names in mixed letters are put
/// in quotes, as the server needs it.
class BarePostgres final : public Bare {
 public:
  /// `source`: the text of a file data source with SERVER, DATABASE and UID.
  explicit BarePostgres(const std::string& source);

  std::size_t readAll(const std::string& sql) override;
  Records records(const std::string& sql) override;
  void replace(const std::string& table, const std::string& conditions, const Records& records) override;

 private:
  using Connection = std::unique_ptr<PGconn, decltype(&PQfinish)>;
  using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

  Result execute(const std::string& sql);
  Result checked(PGresult* result) const;
  void insert(const std::vector<std::string>& record);

  Connection connection_;
};

}  // namespace bench
