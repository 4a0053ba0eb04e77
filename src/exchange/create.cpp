#include "exchange/create.h"

#include <algorithm>
#include <filesystem>

#include "db/sql_tokens.h"
#include "exchange/tables.h"
#include "platform/files.h"
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

/// What is executed from here on reaches the disk in one piece.
void gather(db::Database& database, const std::string& table) {
  database.openRecordset("SELECT * FROM " + table, db::Access::Edit)->close();
}

}  // namespace

bool isThere(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(platform::nativePath(path), ignored);
}

void createFile(const std::string& path) {
  const std::string extension = platform::pathText(platform::nativePath(path).extension());
  for (const char* other : {".mdb", ".accdb", ".dsn"})
    if (text::equalIgnoringCase(extension, other))
      throw db::Error("「" + path + "」は作れません。新しく作れるのは SQLite のファイルだけです。");
  db::createDatabase(path)->close();
}

void createJob(const std::string& path) {
  createFile(path);
  try {
    const auto database = db::openDatabase(path);
    bool gathering = false;
    for (const std::string& statement : db::splitStatements(job::schemaSql())) {
      database->execute(statement);
      if (!gathering) gather(*database, job::schemaTables().front().name);
      gathering = true;
    }
    database->close();
  } catch (const db::Error&) {
    platform::removeFile(path);
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
