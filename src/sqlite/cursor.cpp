#include "sqlite/cursor.h"

#include <utility>

namespace db {
namespace {

SqliteStatement prepareSelect(SqliteConnection& connection, std::string_view sql) {
  SqliteStatement statement = connection.prepare(sql);
  if (sqlite3_column_count(statement.get()) == 0 || sqlite3_stmt_readonly(statement.get()) == 0)
    throw connection.error("からレコードを読む SQL 文ではありません。");
  return statement;
}

class SqliteCursor final : public Cursor {
 public:
  SqliteCursor(SqliteConnection& connection, SqliteStatement statement)
      : connection_(connection), statement_(std::move(statement)) {}

  bool next() override { return connection_.step(statement_.get()); }
  Value value(std::size_t column) override { return columnValue(statement_.get(), static_cast<int>(column)); }

 private:
  SqliteConnection& connection_;  // the reader holds it
  SqliteStatement statement_;
};

}  // namespace

std::unique_ptr<Recordset> sqliteReader(const std::shared_ptr<SqliteConnection>& connection,
                                        const std::string& sql) {
  SqliteStatement statement = prepareSelect(*connection, sql);
  ResultColumns columns(columnNames(statement.get()), sql);
  return std::make_unique<Reader>(
      connection, std::make_unique<SqliteCursor>(*connection, std::move(statement)), std::move(columns));
}

}  // namespace db
