#include "sqlite/editor.h"

#include "sql/select_shape.h"
#include "sql/tokens.h"

namespace db {
namespace {

/// A record to be written is found by its rowid, which views and some tables have none of. A missing table is
/// told by the engine.
void requireRowids(SqliteConnection& connection, const std::string& table) {
  constexpr int typeColumn = 0;
  constexpr int withoutColumn = 1;
  const SqliteStatement asked =
      connection.prepare("SELECT type, wr FROM pragma_table_list WHERE name=?1 COLLATE NOCASE");
  sqlite3_bind_text64(asked.get(), 1, table.data(), table.size(), SQLITE_STATIC, SQLITE_UTF8);
  if (!connection.step(asked.get())) return;
  if (columnValue(asked.get(), typeColumn).text() == "view")
    throw connection.error("の「" + table + "」はビューのため、読み込みだけで書き込めません。");
  if (columnValue(asked.get(), withoutColumn).number() != 0)
    throw connection.error("のテーブル「" + table +
                           "」は行の番号がない表（WITHOUT ROWID）のため、読み込みだけで書き込めません。");
}

/// The table of a SELECT whose records can be written.
std::string editableTable(SqliteConnection& connection, const std::string& sql) {
  const auto shape = selectShape(sql);
  const bool editable = shape && shape->recordForRecord && shape->sources.size() == 1 &&
                        shape->items.size() == 1 && shape->items[0].all &&
                        shape->items[0].qualifier.empty() && !shape->sources[0].table.empty();
  if (!editable) {
    connection.prepare(sql);  // a text that the engine cannot read either is described by the engine
    throw connection.error("で書き込み用に開けるのは一つのテーブルの SELECT * だけです。");
  }
  requireRowids(connection, shape->sources[0].table);
  return shape->sources[0].table;
}

std::string recordSql(const std::string& table) {
  return "SELECT * FROM " + quotedName(table) + " WHERE _rowid_=?1";
}

std::vector<std::int64_t> selectRowids(SqliteConnection& connection, const std::string& sql) {
  std::vector<std::int64_t> rowids;
  const SqliteStatement statement = connection.prepare(*withStarReplaced(sql, "_rowid_"));
  while (connection.step(statement.get())) rowids.push_back(sqlite3_column_int64(statement.get(), 0));
  return rowids;
}

/// Other writers are kept out before the first record is looked at.
std::shared_ptr<SqliteConnection> gathering(std::shared_ptr<SqliteConnection> connection) {
  connection->gather();
  return connection;
}

}  // namespace

SqliteEditor::SqliteEditor(std::shared_ptr<SqliteConnection> connection, const std::string& sql)
    : connection_(gathering(std::move(connection))),
      writer_(connection_, editableTable(*connection_, sql)),
      record_(connection_->prepare(recordSql(writer_.table()))),
      columns_(columnNames(record_.get()), sql),
      rowids_(selectRowids(*connection_, sql)) {}

void SqliteEditor::moveNext() {
  connection_->requireOpen();
  if (eof()) throw connection_->error("に現在のレコードがありません。");
  ++at_;
  deleted_ = false;
  pending_ = Pending::None;
  forgetRecord();
}

Value SqliteEditor::value(Column column) const {
  requireRecord();
  const auto index = static_cast<std::size_t>(column);
  if (index >= columns_.count()) throw connection_->error("の検索結果にない列です。");
  if (!loaded_) {
    sqlite3_bind_int64(record_.get(), 1, rowids_[at_]);
    loaded_ = connection_->step(record_.get());
    if (!loaded_) sqlite3_reset(record_.get());
  }
  if (!loaded_)
    throw connection_->error("のテーブル「" + writer_.table() + "」のレコードはすでに削除されています。");
  return columnValue(record_.get(), static_cast<int>(index));
}

void SqliteEditor::addNew() {
  connection_->requireOpen();
  begin(Pending::Added);
}

void SqliteEditor::edit() {
  requireRecord();
  begin(Pending::Changed);
}

void SqliteEditor::begin(Pending what) {
  writer_.clear();
  pending_ = what;
}

void SqliteEditor::set(std::string_view name, const Value& value) {
  if (pending_ == Pending::None) throw connection_->error("のレコードの追加も変更も始まっていません。");
  writer_.set(name, value);
}

void SqliteEditor::update() {
  connection_->requireOpen();
  const Pending what = pending_;
  pending_ = Pending::None;
  if (what == Pending::None) throw connection_->error("のレコードの追加も変更も始まっていません。");
  if (what == Pending::Added) return writer_.insert();
  forgetRecord();
  writer_.change(rowids_[at_]);
}

void SqliteEditor::remove() {
  requireRecord();
  forgetRecord();
  pending_ = Pending::None;
  writer_.remove(rowids_[at_]);
  deleted_ = true;
}

void SqliteEditor::close() {
  forgetRecord();
  pending_ = Pending::None;
  rowids_.clear();
}

void SqliteEditor::requireRecord() const {
  connection_->requireOpen();
  if (eof()) throw connection_->error("に現在のレコードがありません。");
  if (deleted_) throw connection_->error("の現在のレコードは削除されています。");
}

void SqliteEditor::forgetRecord() {
  if (loaded_) sqlite3_reset(record_.get());
  loaded_ = false;
}

}  // namespace db
