#include "sqlite/writer.h"

#include <algorithm>
#include <cmath>

#include "sql/column_type.h"
#include "sql/tokens.h"
#include "text/padding.h"

namespace db {
namespace {

/// How many statements are kept: a save uses two lists of fields, route ends having fewer.
constexpr std::size_t mostKept = 8;

int bindNumber(sqlite3_stmt* statement, int parameter, double number) {
  constexpr double exactWhole = 9007199254740992.0;  // 2^53
  if (std::trunc(number) == number && std::abs(number) <= exactWhole)
    return sqlite3_bind_int64(statement, parameter, static_cast<sqlite3_int64>(number));
  return sqlite3_bind_double(statement, parameter, number);
}

}  // namespace

SqliteWriter::SqliteWriter(std::shared_ptr<SqliteConnection> connection, std::string table)
    : connection_(std::move(connection)), table_(std::move(table)), columns_(connection_->columns(table_)) {
  for (const ColumnDefinition& column : columns_) holdsTexts_.push_back(isTextType(column.type));
  values_.resize(columns_.size());
  isSet_.resize(columns_.size());
  remove_ = connection_->prepare("DELETE FROM " + quotedName(table_) + " WHERE _rowid_=?1");
}

void SqliteWriter::clear() {
  for (const std::size_t column : fields_) isSet_[column] = false;
  std::swap(fields_, earlier_);
  fields_.clear();
}

void SqliteWriter::set(std::string_view name, const Value& value) {
  const std::size_t column = find(name);
  values_[column] = value;
  if (isSet_[column]) return;
  isSet_[column] = true;
  fields_.push_back(column);
}

std::size_t SqliteWriter::find(std::string_view name) const {
  if (fields_.size() < earlier_.size()) {
    const std::size_t likely = earlier_[fields_.size()];
    if (columns_[likely].name == name) return likely;
  }
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (text::equalIgnoringCase(columns_[i].name, name)) return i;
  throw connection_->error("のテーブル「" + table_ + "」に列「" + std::string(name) + "」がありません。");
}

void SqliteWriter::insert() {
  connection_->gather();
  sqlite3_stmt* statement = prepared(inserts_, &SqliteWriter::insertSql);
  bindFields(statement);
  connection_->run(statement, table_);
}

void SqliteWriter::change(std::int64_t rowid) {
  connection_->gather();
  if (fields_.empty()) return;
  sqlite3_stmt* statement = prepared(changes_, &SqliteWriter::changeSql);
  bindFields(statement);
  sqlite3_bind_int64(statement, static_cast<int>(fields_.size()) + 1, rowid);
  connection_->run(statement, table_);
  requireChanged();
}

void SqliteWriter::remove(std::int64_t rowid) {
  connection_->gather();
  sqlite3_bind_int64(remove_.get(), 1, rowid);
  connection_->run(remove_.get(), table_);
  requireChanged();
}

void SqliteWriter::requireChanged() const {
  if (connection_->changes() == 0)
    throw connection_->error("のテーブル「" + table_ + "」のレコードはすでに削除されています。");
}

sqlite3_stmt* SqliteWriter::prepared(std::vector<Prepared>& kept, std::string (SqliteWriter::*sql)() const) {
  const auto same = [this](const Prepared& one) { return one.columns == fields_; };
  const auto found = std::find_if(kept.begin(), kept.end(), same);
  if (found != kept.end()) return found->statement.get();
  if (kept.size() == mostKept) kept.clear();
  kept.push_back({fields_, connection_->prepare((this->*sql)())});
  return kept.back().statement.get();
}

std::string SqliteWriter::insertSql() const {
  std::string names;
  std::string marks;
  for (const std::size_t column : fields_) {
    names += (names.empty() ? "" : ",") + quotedName(columns_[column].name);
    marks += marks.empty() ? "?" : ",?";
  }
  const std::string into = "INSERT INTO " + quotedName(table_);
  return fields_.empty() ? into + " DEFAULT VALUES" : into + "(" + names + ") VALUES(" + marks + ")";
}

std::string SqliteWriter::changeSql() const {
  std::string fields;
  for (const std::size_t column : fields_)
    fields += (fields.empty() ? "" : ",") + quotedName(columns_[column].name) + "=?";
  return "UPDATE " + quotedName(table_) + " SET " + fields + " WHERE _rowid_=?";
}

void SqliteWriter::bindFields(sqlite3_stmt* statement) const {
  int parameter = 0;
  for (const std::size_t column : fields_)
    connection_->requireDone(bind(statement, ++parameter, column), table_);
}

/// SQLite's result code.
int SqliteWriter::bind(sqlite3_stmt* statement, int parameter, std::size_t column) const {
  const Value& value = values_[column];
  if (value.isNull()) return sqlite3_bind_null(statement, parameter);
  if (value.isNumber() && !holdsTexts_[column]) return bindNumber(statement, parameter, value.number());
  if (const std::string* words = value.textIfAny())  // it stays where it is until the statement has run
    return sqlite3_bind_text64(statement, parameter, words->data(), words->size(), SQLITE_STATIC,
                               SQLITE_UTF8);
  const std::string figures = value.text();
  if (value.isBytes())
    return sqlite3_bind_blob64(statement, parameter, figures.data(), figures.size(), SQLITE_TRANSIENT);
  return sqlite3_bind_text64(statement, parameter, figures.data(), figures.size(), SQLITE_TRANSIENT,
                             SQLITE_UTF8);
}

}  // namespace db
