#include "engine/reader.h"

#include <utility>

#include "db/reading.h"

namespace db {

Reader::Reader(std::shared_ptr<Link> link, std::unique_ptr<Cursor> cursor, ResultColumns columns)
    : link_(std::move(link)),
      cursor_(std::move(cursor)),
      columns_(std::move(columns)),
      eof_(!cursor_->next()) {}

void Reader::moveNext() {
  requireRecord();
  eof_ = !cursor_->next();
  ReadingWatch::tell();
}

Value Reader::value(Column column) const {
  requireRecord();
  const auto index = static_cast<std::size_t>(column);
  if (index >= columns_.count()) throw link_->error("の検索結果にない列です。");
  return cursor_->value(index);
}

void Reader::close() {
  cursor_.reset();
  eof_ = true;
}

void Reader::refuse() const { throw link_->error("のレコードは読み取り用に開かれています。"); }

void Reader::requireRecord() const {
  link_->requireOpen();
  if (eof_) throw link_->error("に現在のレコードがありません。");
}

}  // namespace db
