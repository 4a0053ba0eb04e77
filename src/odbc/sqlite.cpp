#include "odbc/sqlite.h"

#include <algorithm>
#include <utility>

#include "engine/sqlite_error.h"
#include "odbc/connection.h"
#include "sql/select_columns.h"
#include "sql/sqlite_dialect.h"
#include "sql/sqlite_join.h"

namespace db {
namespace {

/// The driver puts SQLite's result code in parentheses behind its words.
std::string withoutCode(const std::string& words) {
  const std::size_t at = words.rfind(" (");
  return at != std::string::npos && words.ends_with(")") ? words.substr(0, at) : words;
}

}  // namespace

void OdbcSqlite::prepare(OdbcConnection& connection) {
  connection.control("PRAGMA synchronous=EXTRA");
  // The index that SQLite makes up for a join comes with a filter which misses texts that differ in trailing
  // blanks; the driver gives no way to turn the filter off alone. beginReading allows the index where no such
  // texts are.
  connection.control("PRAGMA automatic_index=OFF");
}

std::string OdbcSqlite::statement(OdbcConnection& connection, std::string_view sql) {
  SelectColumns columns(
      sql, [this, &connection](std::string_view table) { return this->columns(connection, table); });
  return sqliteText(sql, [&columns](std::string_view qualifier, std::string_view name) {
    return columns.holdsNumbers(qualifier, name);
  });
}

void OdbcSqlite::beginReading(OdbcConnection& connection, std::string_view sql) {
  const JoinedTexts texts =
      joinedTexts(sql, [this, &connection](std::string_view table) { return columns(connection, table); });
  if (!texts.joins) return;
  if (!connection.isGathering()) {
    connection.control("BEGIN");
    steady_ = true;
  }
  if (!wantsIndex(connection, sql)) return;
  const bool allowed = texts.blanksSql && joinsByIndex(connection, *texts.blanksSql);
  if (allowed == automaticIndexes_) return;
  connection.control(allowed ? "PRAGMA automatic_index=ON" : "PRAGMA automatic_index=OFF");
  automaticIndexes_ = allowed;
}

/// SQLite lets a transaction end while records are still being read.
void OdbcSqlite::endReading(OdbcConnection& connection) {
  if (std::exchange(steady_, false)) connection.control("COMMIT");
}

/// True where SQLite makes up an index for the SELECT, or would walk through one table for each record of
/// another.
bool OdbcSqlite::wantsIndex(OdbcConnection& connection, std::string_view sql) {
  constexpr std::size_t detailColumn = 3;
  const auto plan = connection.prepare("EXPLAIN QUERY PLAN " + statement(connection, sql));
  plan->run();
  int walks = 0;
  while (plan->next()) {
    const std::string detail = plan->value(detailColumn).text();
    if (detail.find("AUTOMATIC") != std::string::npos) return true;
    if (detail.starts_with("SCAN")) ++walks;
  }
  return walks > 1;
}

/// True where none of these finds a record.
bool OdbcSqlite::joinsByIndex(OdbcConnection& connection, const std::vector<std::string>& blanksSql) const {
  return std::none_of(blanksSql.begin(), blanksSql.end(), [&connection](const std::string& sql) {
    const auto statement = connection.prepare(sql);
    statement->run();
    return statement->next();
  });
}

std::vector<ColumnDefinition> OdbcSqlite::columns(OdbcConnection& connection, std::string_view table) {
  constexpr std::size_t nameColumn = 1;
  constexpr std::size_t typeColumn = 2;
  constexpr std::size_t hiddenColumn = 6;
  const auto statement = connection.prepare("PRAGMA table_xinfo(" + quoted(table) + ")");
  statement->run();
  std::vector<ColumnDefinition> result;
  while (statement->next()) {
    if (statement->value(hiddenColumn).number() == 1) continue;
    result.push_back({statement->value(nameColumn).text(), statement->value(typeColumn).text()});
  }
  return result;
}

/// The driver gives real numbers with 15 digits.
std::string OdbcSqlite::exactSql(const std::string& sql, const std::vector<bool>& numbers) const {
  if (std::find(numbers.begin(), numbers.end(), true) == numbers.end()) return {};
  std::string names;
  std::string columns;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::string name = "c" + std::to_string(i);
    names += (i == 0 ? "" : ",") + name;
    columns +=
        (i == 0 ? "" : ",") + (numbers[i] ? "CASE typeof(" + name + ") WHEN 'real' THEN printf('%!.20g'," +
                                                name + ") ELSE " + name + " END"
                                          : name);
  }
  // A name that no table of a job has.
  return "SELECT * FROM (WITH \"exact records\"(" + names + ") AS (" + sql + ") SELECT " + columns +
         " FROM \"exact records\")";
}

std::vector<std::string> OdbcSqlite::damage(OdbcConnection& connection) {
  std::vector<std::string> found;
  const auto statement = connection.prepare("PRAGMA integrity_check");
  statement->run();
  while (statement->next())
    if (const std::string words = statement->value(0).text(); words != "ok") found.push_back(words);
  return found;
}

/// The driver's own manual mode begins with a lock that lets other writers in.
void OdbcSqlite::begin(OdbcConnection& connection) { connection.control("BEGIN IMMEDIATE"); }
void OdbcSqlite::commit(OdbcConnection& connection) { connection.control("COMMIT"); }
void OdbcSqlite::rollBack(OdbcConnection& connection) { connection.control("ROLLBACK"); }

/// A second transaction cannot begin while the first is there; where it can, SQLite has rolled the first
/// back.
bool OdbcSqlite::restore(OdbcConnection& connection) {
  try {
    connection.control("BEGIN");
  } catch (const Error&) {
    return true;
  }
  return false;
}

Error OdbcSqlite::describe(const OdbcDiagnosis& diagnosis, std::string_view file,
                           std::string_view table) const {
  return sqliteError(diagnosis.native, withoutCode(diagnosis.words), file, table);
}

bool OdbcSqlite::isMediumFailure(const OdbcDiagnosis& diagnosis) const {
  return db::isMediumFailure(static_cast<int>(diagnosis.native));
}

}  // namespace db
