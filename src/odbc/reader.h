#pragma once

#include <memory>
#include <string>

#include "odbc/connection.h"

namespace db {

/// The records of a SELECT, read from the driver as one goes forward.
class OdbcReader final : public Recordset {
 public:
  /// `sql` is a SELECT in the engine's own form. Stands on the first record.
  OdbcReader(std::shared_ptr<OdbcConnection> connection, const std::string& sql);

  bool eof() const override { return eof_; }
  void moveNext() override;
  Column column(std::string_view name) const override { return connection_->find(columns_, name); }
  Value value(Column column) const override;
  void close() override;

  void addNew() override { refuse(); }
  void edit() override { refuse(); }
  void set(std::string_view, const Value&) override { refuse(); }
  void update() override { refuse(); }
  void remove() override { refuse(); }

 private:
  [[noreturn]] void refuse() const;
  void requireRecord() const;

  std::shared_ptr<OdbcConnection> connection_;
  std::unique_ptr<OdbcStatement> statement_;
  ResultColumns columns_;
  bool eof_ = false;
};

}  // namespace db
