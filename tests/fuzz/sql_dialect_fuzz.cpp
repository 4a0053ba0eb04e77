// Any bytes as SQL: they are cut into tokens, put into SQLite's form, cut into statements and prepared. No
// text may crash or hang the program, and none may lose a byte of its quoted texts on the way.

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "sql/select_shape.h"
#include "sql/split_statements.h"
#include "sql/sqlite_dialect.h"
#include "sql/tokens.h"

namespace {

sqlite3* openMemory() {
  sqlite3* database = nullptr;
  sqlite3_open(":memory:", &database);
  sqlite3_exec(database,
               "CREATE TABLE T(JobId TEXT, 路線番号 TEXT, 標高 REAL); CREATE TABLE U(JobId TEXT, 標高 REAL)",
               nullptr, nullptr, nullptr);
  return database;
}

void require(bool holds) {
  if (!holds) std::abort();
}

bool holdsZero(std::string_view text) { return text.find('\0') != std::string_view::npos; }

/// The quoted texts of an SQL text in their order, but for those that hold a character of code 0.
std::vector<std::string> quotedTexts(std::string_view sql) {
  std::vector<std::string> result;
  for (const db::Token& token : db::tokens(sql))
    if (token.kind == db::TokenKind::Text && !holdsZero(token.text)) result.emplace_back(token.text);
  return result;
}

/// What a quoted text stands for: without its quotes, each doubled quote once.
std::string unquoted(std::string_view literal) {
  std::string result;
  for (std::size_t n = 1; n + 1 < literal.size(); ++n) {
    result += literal[n];
    if (literal[n] == '\'') ++n;
  }
  return result;
}

/// A quoted text with characters of code 0 is written as a call: SQLite must make the same bytes of it.
void requireSameBytes(sqlite3* database, std::string_view literal) {
  const std::string sql = db::sqliteText("SELECT " + std::string(literal));
  sqlite3_stmt* statement = nullptr;
  require(sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, nullptr) ==
          SQLITE_OK);
  require(sqlite3_step(statement) == SQLITE_ROW);
  const void* const bytes = sqlite3_column_blob(statement, 0);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, 0));
  require(std::string(static_cast<const char*>(bytes), size) == unquoted(literal));
  sqlite3_finalize(statement);
}

void prepare(sqlite3* database, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  sqlite3_finalize(statement);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static sqlite3* const database = openMemory();
  const std::string sql(data, data + size);

  std::string together;
  for (const db::Token& token : db::tokens(sql)) together += token.text;
  require(together == sql);

  const std::string translated = db::sqliteText(sql);
  if (!holdsZero(sql)) require(quotedTexts(translated) == quotedTexts(sql));
  for (const std::string& text : quotedTexts(sql)) require(translated.find(text) != std::string::npos);
  for (const db::Token& token : db::tokens(sql))
    if (token.kind == db::TokenKind::Text && token.text.front() == '\'' && holdsZero(token.text))
      requireSameBytes(database, token.text);
  prepare(database, translated);

  if (db::selectShape(sql))
    if (const auto rowids = db::withStarReplaced(translated, "_rowid_")) prepare(database, *rowids);
  for (const std::string& statement : db::splitStatements(sql)) require(!statement.empty());
  return 0;
}
