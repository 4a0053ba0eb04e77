#include "odbc/editor.h"

#include <utility>

#include "sql/select_shape.h"

namespace db {
namespace {

/// Other writers are kept out before the first record is looked at.
std::shared_ptr<OdbcConnection> gathering(std::shared_ptr<OdbcConnection> connection,
                                          const std::string& table) {
  connection->gather(table);
  return connection;
}

std::vector<std::string> namesOf(const std::vector<ColumnDefinition>& columns) {
  std::vector<std::string> names;
  for (const ColumnDefinition& column : columns) names.push_back(column.name);
  return names;
}

}  // namespace

OdbcEditor::OdbcEditor(std::shared_ptr<OdbcConnection> connection, const std::string& sql,
                       const std::string& table)
    : connection_(gathering(std::move(connection), table)),
      writer_(connection_, table),
      columns_(namesOf(writer_.columns()), sql) {
  readKeys(sql);
}

/// The engine's keys, or whole records where it has none.
void OdbcEditor::readKeys(const std::string& sql) {
  const std::string key = connection_->product().keyColumn();
  const auto statement =
      key.empty() ? connection_->prepareSelect(sql) : connection_->prepare(*withStarReplaced(sql, key));
  if (!key.empty()) statement->readTexts();
  statement->run();
  while (statement->next()) {
    OdbcWriter::Key one;
    for (std::size_t i = 0; i < statement->names().size(); ++i) one.push_back(statement->value(i));
    keys_.push_back(std::move(one));
  }
}

void OdbcEditor::moveNext() {
  connection_->requireOpen();
  if (eof()) throw connection_->error("に現在のレコードがありません。");
  ++at_;
  deleted_ = false;
  pending_ = Pending::None;
  fields_.clear();
}

Value OdbcEditor::value(Column column) const {
  requireRecord();
  const auto index = static_cast<std::size_t>(column);
  if (index >= columns_.count()) throw connection_->error("の検索結果にない列です。");
  if (fields_.empty()) load();
  return fields_.at(index);
}

void OdbcEditor::load() const {
  OdbcStatement& statement = writer_.reading(keys_[at_]);
  statement.run();
  if (!statement.next())
    throw connection_->error("のテーブル「" + writer_.table() + "」のレコードはすでに削除されています。");
  for (std::size_t i = 0; i < statement.names().size(); ++i) fields_.push_back(statement.value(i));
}

void OdbcEditor::addNew() {
  connection_->requireOpen();
  begin(Pending::Added);
}

void OdbcEditor::edit() {
  requireRecord();
  begin(Pending::Changed);
}

void OdbcEditor::begin(Pending what) {
  writer_.clear();
  pending_ = what;
}

void OdbcEditor::set(std::string_view name, const Value& value) {
  if (pending_ == Pending::None) throw connection_->error("のレコードの追加も変更も始まっていません。");
  writer_.set(name, value);
}

void OdbcEditor::update() {
  connection_->requireOpen();
  const Pending what = std::exchange(pending_, Pending::None);
  if (what == Pending::None) throw connection_->error("のレコードの追加も変更も始まっていません。");
  if (what == Pending::Added) return writer_.insert();
  fields_.clear();
  keys_[at_] = writer_.change(keys_[at_]);
}

void OdbcEditor::remove() {
  requireRecord();
  fields_.clear();
  pending_ = Pending::None;
  writer_.remove(keys_[at_]);
  deleted_ = true;
}

void OdbcEditor::close() {
  fields_.clear();
  pending_ = Pending::None;
  keys_.clear();
}

void OdbcEditor::requireRecord() const {
  connection_->requireOpen();
  if (eof()) throw connection_->error("に現在のレコードがありません。");
  if (deleted_) throw connection_->error("の現在のレコードは削除されています。");
}

}  // namespace db
