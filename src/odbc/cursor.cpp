#include "odbc/cursor.h"

#include <utility>

namespace db {
namespace {

std::unique_ptr<OdbcStatement> runSelect(OdbcConnection& connection, const std::string& sql) {
  auto statement = connection.prepareSelect(sql);
  statement->run();
  if (statement->names().empty()) throw connection.error("からレコードを読む SQL 文ではありません。");
  return statement;
}

class OdbcCursor final : public Cursor {
 public:
  explicit OdbcCursor(std::unique_ptr<OdbcStatement> statement) : statement_(std::move(statement)) {}

  bool next() override { return statement_->next(); }
  Value value(std::size_t column) override { return statement_->value(column); }

 private:
  std::unique_ptr<OdbcStatement> statement_;
};

}  // namespace

std::unique_ptr<Recordset> odbcReader(const std::shared_ptr<OdbcConnection>& connection,
                                      const std::string& sql) {
  auto statement = runSelect(*connection, sql);
  ResultColumns columns(statement->names(), sql);
  return std::make_unique<Reader>(connection, std::make_unique<OdbcCursor>(std::move(statement)),
                                  std::move(columns));
}

}  // namespace db
