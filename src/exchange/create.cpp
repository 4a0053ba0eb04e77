#include "exchange/create.h"

#include <algorithm>
#include <filesystem>

#include "exchange/tables.h"
#include "open/open.h"
#include "platform/files.h"
#include "sql/split_statements.h"
#include "sql/tokens.h"
#include "text/padding.h"
#include "text/reason.h"

namespace exchange {
namespace {

/// A name as every engine reads it, whatever it holds. Engines that know no double quotes have no brackets in
/// their names.
std::string nameInSql(const std::string& name) {
  return name.find_first_of("[]") == std::string::npos ? "[" + name + "]" : db::quotedName(name);
}

/// A declared type in the words that the schema uses.
std::string schemaType(const std::string& type) {
  switch (kindOf(type)) {
    case Kind::Text:
      return type.starts_with("TEXT") ? type : "TEXT";
    case Kind::Number:
      if (!isWholeType(type)) return "REAL";
      return type.find('8') == std::string::npos && type.find("BIG") == std::string::npos ? "INTEGER"
                                                                                          : "BIGINT";
    case Kind::Other:
      break;
  }
  return type.empty() ? type : "TEXT";
}

bool isKnown(const job::TableSchema& table, const std::string& column) {
  return std::any_of(table.columns.begin(), table.columns.end(), [&column](const job::ColumnSchema& one) {
    return text::equalIgnoringCase(one.name, column);
  });
}

std::string declaration(const job::ColumnSchema& column, const std::vector<db::ColumnDefinition>& like) {
  const db::ColumnDefinition* const there = findColumn(like, column.name);
  const bool same = there == nullptr || kindOf(there->type) == kindOf(column.declaration);
  return column.name + " " + (same ? column.declaration : schemaType(there->type));
}

void createTables(db::Database& database, const std::function<void(db::Database&)>& fill) {
  for (const std::string& statement : db::splitStatements(job::schemaSql())) database.execute(statement);
  if (fill) fill(database);
}

/// A data source may lead to a job that is there already.
void requireNoJob(db::Database& database, const std::string& path) {
  for (const job::TableSchema& table : job::schemaTables())
    if (definitionOf(database, table.name))
      throw db::Error("「" + path + "」にはすでにジョブのテーブル「" + table.name + "」があります。");
}

bool hasExtension(const std::string& path, const char* extension) {
  return text::equalIgnoringCase(platform::pathText(platform::nativePath(path).extension()), extension);
}

void requireNewFile(const std::string& path) {
  if (hasExtension(path, ".dsn") && !isThere(path))
    throw db::Error("「" + path +
                    "」が見つかりません。サーバーのデータベースに書くには、それを示すファイルデータソースを"
                    "先に用意してください。");
  for (const char* other : {".mdb", ".accdb", ".dsn"})
    if (hasExtension(path, other))
      throw db::Error("「" + path + "」は作れません。新しく作れるのは SQLite のファイルだけです。");
  if (platform::standingAt(path) != platform::Standing::Nothing)
    throw db::Error("「" + path + "」はすでにあるため、データベースを作れません。");
}

void fillFile(const std::string& path, const std::function<void(db::Database&)>& fill) {
  const auto database = db::createDatabase(path);
  database->gather();
  try {
    fill(*database);
  } catch (...) {
    database->discard();
    throw;
  }
  database->close();
}

/// `words` with `path` wherever they name the file that grew for it.
std::string replaced(std::string words, const std::string& grown, const std::string& path) {
  for (std::size_t at = words.find(grown); at != std::string::npos; at = words.find(grown, at + path.size()))
    words.replace(at, grown.size(), path);
  return words;
}

}  // namespace

bool isThere(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(platform::nativePath(path), ignored);
}

void makeFile(const std::string& path, const std::function<void(db::Database&)>& fill) {
  requireNewFile(path);
  platform::GrowingFile growing(path);
  try {
    fillFile(growing.path(), fill);
    if (growing.finishNew()) return;
  } catch (const std::exception& error) {
    throw db::Error(replaced(text::reasonOf(error), growing.path(), path));
  }
  throw db::Error("「" + path + "」はすでにあるため、データベースを作れません。");
}

void createJob(const std::string& path, const std::function<void(db::Database&)>& fill) {
  const auto make = [&fill](db::Database& database) { createTables(database, fill); };
  if (!hasExtension(path, ".dsn") || !isThere(path)) return makeFile(path, make);
  const auto database = db::openDatabase(path);
  requireNoJob(*database, path);
  database->gather();
  try {
    make(*database);
  } catch (...) {
    database->discard();
    throw;
  }
  database->close();
}

void createTable(db::Database& database, const job::TableSchema& table,
                 const std::vector<db::ColumnDefinition>& like) {
  std::string columns;
  for (const job::ColumnSchema& column : table.columns)
    columns += (columns.empty() ? "" : ", ") + declaration(column, like);
  for (const db::ColumnDefinition& column : like)
    if (!isKnown(table, column.name))
      columns += ", " + nameInSql(column.name) + " " + schemaType(column.type);
  database.execute("CREATE TABLE " + table.name + " (" + columns + ")");
  for (const std::string& index : table.indexes) database.execute(index);
}

void addMissingColumns(db::Database& database, const std::string& table,
                       const std::vector<db::ColumnDefinition>& like) {
  const std::vector<db::ColumnDefinition> present = database.tableDefinition(table);
  for (const db::ColumnDefinition& column : like)
    if (findColumn(present, column.name) == nullptr)
      database.execute("ALTER TABLE " + table + " ADD COLUMN " + nameInSql(column.name) + " " +
                       schemaType(column.type));
}

}  // namespace exchange
