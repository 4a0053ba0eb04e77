#include "exchange/create.h"

#include <algorithm>
#include <filesystem>

#include "exchange/tables.h"
#include "open/open.h"
#include "platform/files.h"
#include "sql/split_statements.h"
#include "sql/tokens.h"
#include "text/padding.h"

namespace exchange {
namespace {

/// A name as it stands in SQL; one that is no plain word is put in brackets.
std::string sqlName(const std::string& name) {
  const std::vector<db::Token> words = db::tokens(name);
  return words.size() == 1 && words[0].kind == db::TokenKind::Name ? name : "[" + name + "]";
}

/// A declared type in the words that the schema uses.
std::string schemaType(const std::string& type) {
  switch (kindOf(type)) {
    case Kind::Text:
      return type.starts_with("TEXT") ? type : "TEXT";
    case Kind::Number:
      return type == "INTEGER" ? type : "REAL";
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
  database.gather();
  for (const std::string& statement : db::splitStatements(job::schemaSql())) database.execute(statement);
  if (fill) fill(database);
  database.close();
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

}  // namespace

bool isThere(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(platform::nativePath(path), ignored);
}

void createFile(const std::string& path) {
  if (hasExtension(path, ".dsn") && !isThere(path))
    throw db::Error("「" + path +
                    "」が見つかりません。サーバーのデータベースに書くには、それを示すファイルデータソースを"
                    "先に用意してください。");
  for (const char* other : {".mdb", ".accdb", ".dsn"})
    if (hasExtension(path, other))
      throw db::Error("「" + path + "」は作れません。新しく作れるのは SQLite のファイルだけです。");
  db::createDatabase(path)->close();
}

void createJob(const std::string& path, const std::function<void(db::Database&)>& fill) {
  const bool making = !(hasExtension(path, ".dsn") && isThere(path));
  if (making) createFile(path);
  std::unique_ptr<db::Database> database;
  try {
    database = db::openDatabase(path);
    if (!making) requireNoJob(*database, path);
    createTables(*database, fill);
  } catch (...) {
    if (database) database->discard();
    if (making) platform::removeFile(path);
    throw;
  }
}

void createTable(db::Database& database, const job::TableSchema& table,
                 const std::vector<db::ColumnDefinition>& like) {
  std::string columns;
  for (const job::ColumnSchema& column : table.columns)
    columns += (columns.empty() ? "" : ", ") + declaration(column, like);
  for (const db::ColumnDefinition& column : like)
    if (!isKnown(table, column.name)) columns += ", " + sqlName(column.name) + " " + schemaType(column.type);
  database.execute("CREATE TABLE " + table.name + " (" + columns + ")");
  for (const std::string& index : table.indexes) database.execute(index);
}

void addMissingColumns(db::Database& database, const std::string& table,
                       const std::vector<db::ColumnDefinition>& like) {
  const std::vector<db::ColumnDefinition> present = database.tableDefinition(table);
  for (const db::ColumnDefinition& column : like)
    if (findColumn(present, column.name) == nullptr)
      database.execute("ALTER TABLE " + table + " ADD COLUMN " + sqlName(column.name) + " " +
                       schemaType(column.type));
}

}  // namespace exchange
