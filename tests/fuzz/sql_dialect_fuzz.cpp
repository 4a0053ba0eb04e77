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

/// The quoted texts of an SQL text in their order.
std::vector<std::string> quotedTexts(std::string_view sql) {
  std::vector<std::string> result;
  for (const db::Token& token : db::tokens(sql))
    if (token.kind == db::TokenKind::Text) result.emplace_back(token.text);
  return result;
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
  require(quotedTexts(translated) == quotedTexts(sql));
  prepare(database, translated);

  if (db::selectShape(sql))
    if (const auto rowids = db::withStarReplaced(translated, "_rowid_")) prepare(database, *rowids);
  for (const std::string& statement : db::splitStatements(sql)) require(!statement.empty());
  return 0;
}
