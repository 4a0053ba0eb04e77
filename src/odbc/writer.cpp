#include "odbc/writer.h"

#include <algorithm>
#include <utility>

#include "sql/column_type.h"
#include "text/number.h"
#include "text/padding.h"

namespace db {
namespace {

/// How many statements are kept: a save uses a few lists of fields, route ends having fewer.
constexpr std::size_t mostKept = 8;

/// The number that a text is as a whole, blanks at its ends apart.
Value asNumber(const Value& value) {
  const std::string words = value.text();
  return text::isNumeric(words) && !isLongWhole(words) ? Value(text::readNumber(words)) : value;
}

}  // namespace

OdbcWriter::OdbcWriter(std::shared_ptr<OdbcConnection> connection, std::string table)
    : connection_(std::move(connection)),
      table_(std::move(table)),
      quotedTable_(connection_->product().quoted(connection_->product().tableName(*connection_, table_))),
      hasKeyColumn_(!connection_->product().keyColumn().empty()),
      columns_(connection_->columns(table_)) {
  for (const ColumnDefinition& column : columns_)
    kinds_.push_back({connection_->product().quoted(column.name), isTextType(column.type),
                      isNumberType(column.type) || isDecimalType(column.type)});
}

void OdbcWriter::set(std::string_view name, const Value& value) {
  const std::size_t column = find(name);
  for (Field& field : fields_)
    if (field.column == column) {
      field.value = value;
      return;
    }
  fields_.push_back({column, value});
}

std::size_t OdbcWriter::find(std::string_view name) const {
  if (fields_.size() < insertColumns_.size() && columns_[insertColumns_[fields_.size()]].name == name)
    return insertColumns_[fields_.size()];
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (text::equalIgnoringCase(columns_[i].name, name)) return i;
  throw connection_->error("のテーブル「" + table_ + "」に列「" + std::string(name) + "」がありません。");
}

void OdbcWriter::insert() {
  connection_->gather(table_);
  OdbcStatement& statement = inserting();
  bindFields(statement);
  statement.runRepeatable(table_);
}

OdbcWriter::Key OdbcWriter::change(const Key& key) {
  connection_->gather(table_);
  if (fields_.empty()) return key;
  if (!hasKeyColumn_) requireOnlyRecord(key);
  OdbcStatement& statement = prepared(
      changeSql() + condition(key) +
      (connection_->product().keyChanges() ? " RETURNING " + connection_->product().keyColumn() : ""));
  bindFields(statement);
  bindKey(statement, fields_.size(), key);
  statement.run(table_);
  if (connection_->product().keyChanges()) {
    if (!statement.next()) throw gone();
    return {statement.value(0)};
  }
  if (statement.changes() == 0) throw gone();
  Key changed = key;
  if (!hasKeyColumn_)
    for (const Field& field : fields_) changed[field.column] = stored(field);
  return changed;
}

void OdbcWriter::remove(const Key& key) {
  connection_->gather(table_);
  OdbcStatement& statement = prepared("DELETE FROM " + quotedTable_ + condition(key));
  bindKey(statement, 0, key);
  statement.runRepeatable(table_);
  if (statement.changes() == 0) throw gone();
  if (!hasKeyColumn_) insertCopies(key, statement.changes() - 1);
}

OdbcStatement& OdbcWriter::reading(const Key& key) {
  OdbcStatement& statement = prepared("SELECT * FROM " + quotedTable_ + condition(key), true);
  bindKey(statement, 0, key);
  return statement;
}

/// Records alike in all columns cannot be told apart, so a change would reach all of them.
void OdbcWriter::requireOnlyRecord(const Key& key) {
  OdbcStatement& statement = reading(key);
  statement.run();
  if (statement.next() && statement.next())
    throw connection_->error("のテーブル「" + table_ +
                             "」に同じ内容のレコードが複数あり、一つだけを変更できません。");
}

/// Records alike in all columns went together; the others are put back.
void OdbcWriter::insertCopies(const Key& key, SQLLEN count) {
  if (count <= 0) return;
  const std::vector<Field> kept = std::exchange(fields_, {});
  for (std::size_t i = 0; i < key.size(); ++i) fields_.push_back({i, key[i]});
  for (; count > 0; --count) insert();
  fields_ = kept;
}

Error OdbcWriter::gone() const {
  return connection_->error("のテーブル「" + table_ + "」のレコードはすでに削除されています。");
}

OdbcStatement& OdbcWriter::prepared(const std::string& sql, bool reads) {
  const auto found = std::find_if(prepared_.begin(), prepared_.end(),
                                  [&sql](const Prepared& one) { return one.sql == sql; });
  if (found != prepared_.end()) return *found->statement;
  if (prepared_.size() == mostKept) {
    prepared_.clear();
    insert_ = nullptr;
  }
  prepared_.push_back({sql, reads ? connection_->prepareSelect(sql) : connection_->prepare(sql)});
  return *prepared_.back().statement;
}

/// The statement that inserts the fields taken.
OdbcStatement& OdbcWriter::inserting() {
  const bool same = insert_ != nullptr &&
                    std::equal(fields_.begin(), fields_.end(), insertColumns_.begin(), insertColumns_.end(),
                               [](const Field& field, std::size_t column) { return field.column == column; });
  if (same) return *insert_;
  insertColumns_.clear();
  for (const Field& field : fields_) insertColumns_.push_back(field.column);
  insert_ = &prepared(insertSql());
  return *insert_;
}

std::string OdbcWriter::insertSql() const {
  const std::string into = "INSERT INTO " + quotedTable_;
  if (fields_.empty()) return into + " " + connection_->product().defaultRecord(columns_);
  std::string names;
  std::string marks;
  for (const Field& field : fields_) {
    names += (names.empty() ? "" : ",") + kinds_[field.column].quotedName;
    marks += marks.empty() ? "?" : ",?";
  }
  return into + "(" + names + ") VALUES(" + marks + ")";
}

std::string OdbcWriter::changeSql() const {
  std::string fields;
  for (const Field& field : fields_)
    fields += (fields.empty() ? "" : ",") + kinds_[field.column].quotedName + "=?";
  return "UPDATE " + quotedTable_ + " SET " + fields;
}

std::string OdbcWriter::condition(const Key& key) const {
  if (hasKeyColumn_) return " WHERE " + connection_->product().keyCondition();
  std::string result;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    result += result.empty() ? " WHERE " : " AND ";
    result += key[i].isNull() ? kinds_[i].quotedName + " IS NULL"
                              : connection_->product().fieldCondition(columns_[i]);
  }
  return result;
}

void OdbcWriter::bindKey(OdbcStatement& statement, std::size_t place, const Key& key) const {
  for (const Value& value : key)
    if (!value.isNull()) statement.bind(++place, value);
}

void OdbcWriter::bindFields(OdbcStatement& statement) const {
  std::size_t place = 0;
  for (const Field& field : fields_) statement.bind(++place, stored(field));
}

/// A field as its column keeps it: a number in a text's column as its text, the text of a number in a
/// number's column as that number.
Value OdbcWriter::stored(const Field& field) const {
  const ColumnKind& kind = kinds_[field.column];
  if (field.value.isNumber() && kind.texts) return Value(field.value.text());
  if (field.value.isText() && kind.numbers && !connection_->product().convertsTexts())
    return asNumber(field.value);
  return field.value;
}

}  // namespace db
