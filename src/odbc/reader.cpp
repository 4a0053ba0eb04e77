#include "odbc/reader.h"

namespace db {
namespace {

std::unique_ptr<OdbcStatement> runSelect(OdbcConnection& connection, const std::string& sql) {
  auto statement = connection.prepareSelect(sql);
  statement->run();
  if (statement->names().empty()) throw connection.error("からレコードを読む SQL 文ではありません。");
  return statement;
}

}  // namespace

OdbcReader::OdbcReader(std::shared_ptr<OdbcConnection> connection, const std::string& sql)
    : connection_(std::move(connection)),
      statement_(runSelect(*connection_, sql)),
      columns_(statement_->names(), sql) {
  eof_ = !statement_->next();
}

void OdbcReader::moveNext() {
  requireRecord();
  eof_ = !statement_->next();
}

Value OdbcReader::value(Column column) const {
  requireRecord();
  const auto index = static_cast<std::size_t>(column);
  if (index >= columns_.count()) throw connection_->error("の検索結果にない列です。");
  return statement_->value(index);
}

void OdbcReader::close() {
  statement_.reset();
  eof_ = true;
}

void OdbcReader::refuse() const { throw connection_->error("のレコードは読み取り用に開かれています。"); }

void OdbcReader::requireRecord() const {
  connection_->requireOpen();
  if (eof_) throw connection_->error("に現在のレコードがありません。");
}

}  // namespace db
