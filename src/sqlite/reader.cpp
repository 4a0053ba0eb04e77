#include "sqlite/reader.h"

namespace db {
namespace {

SqliteStatement prepareSelect(SqliteConnection& connection, std::string_view sql) {
  SqliteStatement statement = connection.prepare(sql);
  if (sqlite3_column_count(statement.get()) == 0 || sqlite3_stmt_readonly(statement.get()) == 0)
    throw connection.error("からレコードを読む SQL 文ではありません。");
  return statement;
}

}  // namespace

SqliteReader::SqliteReader(std::shared_ptr<SqliteConnection> connection, std::string sql)
    : connection_(std::move(connection)),
      statement_(prepareSelect(*connection_, sql)),
      columns_(columnNames(statement_.get()), std::move(sql)) {
  eof_ = !connection_->step(statement_.get());
}

void SqliteReader::moveNext() {
  requireRecord();
  eof_ = !connection_->step(statement_.get());
}

Column SqliteReader::column(std::string_view name) const { return connection_->find(columns_, name); }

Value SqliteReader::value(Column column) const {
  requireRecord();
  const auto index = static_cast<std::size_t>(column);
  if (index >= columns_.count()) throw connection_->error("の検索結果にない列です。");
  return columnValue(statement_.get(), static_cast<int>(index));
}

void SqliteReader::close() {
  statement_.reset();
  eof_ = true;
}

void SqliteReader::refuse() const { throw connection_->error("のレコードは読み取り用に開かれています。"); }

void SqliteReader::requireRecord() const {
  connection_->requireOpen();
  if (eof_) throw connection_->error("に現在のレコードがありません。");
}

}  // namespace db
