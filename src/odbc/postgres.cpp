#include "odbc/postgres.h"

#include <algorithm>
#include <cstdint>

#include "odbc/connection.h"
#include "odbc/postgres_dialect.h"

namespace db {
namespace {

constexpr const char* tablesSql =
    "SELECT c.relname, a.attname, format_type(a.atttypid, a.atttypmod), "
    "CASE WHEN c.relkind IN ('r','p','m') THEN 1 ELSE 0 END "
    "FROM pg_class c JOIN pg_namespace s ON s.oid = c.relnamespace JOIN pg_attribute a ON a.attrelid = c.oid "
    "WHERE c.relkind IN ('r','p','v','m','f') AND s.nspname <> 'information_schema' AND s.nspname !~ '^pg_' "
    "AND pg_table_is_visible(c.oid) AND a.attnum > 0 AND NOT a.attisdropped ORDER BY c.oid, a.attnum";

/// How many records are written before the next savepoint: each costs a way to the server and back.
constexpr std::size_t mostSteps = 500;

/// What is taken for a wait: a lock that is free comes at once.
constexpr std::chrono::milliseconds shortestWait(100);

std::string smallLetters(std::string_view name) {
  std::string result(name);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

/// A type of the server as job databases declare it.
std::string declaredType(const std::string& type) {
  constexpr std::string_view varying = "character varying";
  if (type.starts_with(varying)) return "TEXT" + type.substr(varying.size());
  if (type == "text") return "TEXT";
  if (type == "double precision" || type == "real") return "REAL";
  if (type == "integer" || type == "bigint" || type == "smallint") return "INTEGER";
  return type;
}

}  // namespace

void OdbcPostgres::prepare(OdbcConnection& connection) {
  setPatience(connection);
  connection.control("SET standard_conforming_strings=on");
  // The server takes a comparison of two texts for so rare that it would walk through one table for each
  // record of the other; there are no joins here that a sorted or a hashed table does not serve better.
  connection.control("SET enable_nestloop=off");
  connection.control("SET jit=off");
}

/// The server counts for each statement; 0 would be for ever.
void OdbcPostgres::setPatience(OdbcConnection& connection) const {
  connection.control("SET lock_timeout=" + std::to_string(std::max<std::int64_t>(1, patience_.count())));
}

std::string OdbcPostgres::statement(OdbcConnection& connection, std::string_view sql) {
  return postgresText(sql, [this, &connection](std::string_view name) { return find(connection, name); });
}

std::vector<ColumnDefinition> OdbcPostgres::columns(OdbcConnection& connection, std::string_view table) {
  const PostgresTable* found = find(connection, table);
  return found == nullptr ? std::vector<ColumnDefinition>() : found->columns;
}

std::string OdbcPostgres::tableName(OdbcConnection& connection, std::string_view table) {
  const PostgresTable* found = find(connection, table);
  return found == nullptr ? std::string(table) : found->name;
}

const PostgresTable* OdbcPostgres::find(OdbcConnection& connection, std::string_view name) {
  if (!known_) readTables(connection);
  const auto found = tables_.find(smallLetters(name));
  return found == tables_.end() ? nullptr : &found->second;
}

void OdbcPostgres::readTables(OdbcConnection& connection) {
  tables_.clear();
  const auto statement = connection.prepare(tablesSql);
  statement->run();
  while (statement->next()) {
    const std::string name = statement->value(0).text();
    PostgresTable& table = tables_[smallLetters(name)];
    table.name = name;
    table.stored = statement->value(3).number() == 1;
    table.columns.push_back({statement->value(1).text(), declaredType(statement->value(2).text())});
  }
  known_ = true;
}

void OdbcPostgres::begin(OdbcConnection& connection) {
  connection.setAutocommit(false);
  protected_ = false;
  unlisted_ = false;
  steps_.clear();
  locked_.clear();
}

/// Readers come and go meanwhile; a second writer of the table waits.
void OdbcPostgres::lock(OdbcConnection& connection, const std::string& table) {
  if (locked_.count(table) != 0) return;
  const std::string sql =
      "LOCK TABLE " + quoted(tableName(connection, table)) + " IN SHARE ROW EXCLUSIVE MODE";
  const auto start = std::chrono::steady_clock::now();
  try {
    connection.run(sql);
  } catch (const Error&) {
    countWait(connection, start);
    throw;
  }
  locked_.insert(table);
  countWait(connection, start);
}

/// An act has one connection and waits once, however many tables it writes.
void OdbcPostgres::countWait(OdbcConnection& connection, std::chrono::steady_clock::time_point start) {
  const auto waited =
      std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
  if (waited < shortestWait) return;
  patience_ -= waited;
  try {
    setPatience(connection);
  } catch (const Error&) {
    // The transaction is gone, and what made it go has been told.
  }
}

/// The driver takes the end of a transaction that is gone for a success; releasing the savepoint tells.
void OdbcPostgres::commit(OdbcConnection& connection) {
  if (protected_) connection.control("RELEASE SAVEPOINT step");
  OdbcProduct::commit(connection);
}

/// A failure is undone back to the savepoint, and the records written since are written again.
void OdbcPostgres::protect(OdbcConnection& connection) {
  if (protected_ && !unlisted_ && steps_.size() < mostSteps) return;
  connection.control(protected_ ? "RELEASE SAVEPOINT step; SAVEPOINT step" : "SAVEPOINT step");
  protected_ = true;
  unlisted_ = false;
  steps_.clear();
}

void OdbcPostgres::done(const OdbcStatement* repeatable) {
  if (repeatable == nullptr)
    unlisted_ = true;
  else
    steps_.push_back({repeatable->sql(), repeatable->bound()});
}

bool OdbcPostgres::restore(OdbcConnection& connection) {
  try {
    connection.control("ROLLBACK TO SAVEPOINT step");
    for (const Step& step : steps_) {
      const auto statement = connection.prepare(step.sql);
      for (std::size_t i = 0; i < step.values.size(); ++i) statement->bind(i + 1, step.values[i]);
      statement->repeat();
    }
  } catch (const Error&) {
    return false;
  }
  return true;
}

}  // namespace db
