#include "sqlite/database.h"

#include <utility>

#include "sql/select_columns.h"
#include "sql/sqlite_dialect.h"
#include "sql/tokens.h"
#include "sqlite/cursor.h"
#include "sqlite/records.h"

namespace db {
namespace {

/// True for a statement that only yields records. PRAGMA may answer with records and still be a setting.
bool onlyReads(std::string_view sql, sqlite3_stmt* statement) {
  if (sqlite3_column_count(statement) == 0 || sqlite3_stmt_readonly(statement) == 0) return false;
  const std::vector<Token> words = significantTokens(sql);
  return words.empty() || !isWord(words.front(), "PRAGMA");
}

}  // namespace

SqliteDatabase::SqliteDatabase(std::shared_ptr<SqliteConnection> connection)
    : connection_(std::move(connection)) {}

SqliteDatabase::~SqliteDatabase() {
  try {
    connection_->keepsWhole() ? connection_->discard() : connection_->close();
  } catch (const Error&) {
    // Nobody is left to be told; close has already rolled back what could not be committed.
  }
}

std::unique_ptr<Recordset> SqliteDatabase::openRecordset(std::string_view sql, Access access) {
  SelectColumns columns(sql, [this](std::string_view table) { return connection_->columns(table); });
  const std::string text = sqliteText(sql, [&columns](std::string_view qualifier, std::string_view name) {
    return columns.holdsNumbers(qualifier, name);
  });
  if (access == Access::Edit) return sqliteEditor(connection_, text);
  return sqliteReader(connection_, text);
}

void SqliteDatabase::execute(std::string_view sql) {
  connection_->requireOpen();
  connection_->requireNothingLost();
  const SqliteStatement statement = connection_->prepare(sqliteText(sql));
  if (onlyReads(sql, statement.get())) throw connection_->error("でレコードを返す SQL 文は実行できません。");
  connection_->run(statement.get());
}

std::vector<ColumnDefinition> SqliteDatabase::tableDefinition(std::string_view table) {
  std::vector<ColumnDefinition> columns = connection_->columns(table);
  if (columns.empty()) throw connection_->error("にテーブル「" + std::string(table) + "」がありません。");
  return columns;
}

std::vector<std::string> SqliteDatabase::damage() {
  std::vector<std::string> found;
  const SqliteStatement statement = connection_->prepare("PRAGMA integrity_check");
  while (connection_->step(statement.get())) {
    const std::string words = columnValue(statement.get(), 0).text();
    if (words != "ok") found.push_back(words);
  }
  return found;
}

std::unique_ptr<Database> openSqliteDatabase(std::string_view path) {
  auto connection = std::make_shared<SqliteConnection>(path);
  connection->run("SELECT count(*) FROM sqlite_master");  // a damaged or locked file shows here
  return std::make_unique<SqliteDatabase>(std::move(connection));
}

std::unique_ptr<Database> createSqliteDatabase(std::string_view path) {
  auto connection = std::make_shared<SqliteConnection>(path, true);
  connection->run("PRAGMA user_version=0");  // writes the file's first page
  return std::make_unique<SqliteDatabase>(std::move(connection));
}

}  // namespace db
