#include "engine/editor.h"

#include <utility>

namespace db {

Editor::Editor(std::shared_ptr<Link> link, std::unique_ptr<ChosenRecords> records)
    : link_(std::move(link)), records_(std::move(records)), count_(records_->count()) {}

void Editor::moveNext() {
  link_->requireOpen();
  if (eof()) throw link_->error("に現在のレコードがありません。");
  leaveRecord();
  ++at_;
  deleted_ = false;
}

Value Editor::value(Column column) const {
  requireRecord();
  const auto index = static_cast<std::size_t>(column);
  if (index >= records_->columns().count()) throw link_->error("の検索結果にない列です。");
  return records_->value(at_, index);
}

void Editor::addNew() {
  link_->requireOpen();
  begin(Pending::Added);
}

void Editor::edit() {
  requireRecord();
  begin(Pending::Changed);
}

void Editor::begin(Pending what) {
  records_->clearFields();
  pending_ = what;
}

void Editor::set(std::string_view name, const Value& value) {
  if (pending_ == Pending::None) raiseNothingBegun();
  records_->setField(name, value);
}

void Editor::update() {
  link_->requireOpen();
  const Pending what = std::exchange(pending_, Pending::None);
  if (what == Pending::None) raiseNothingBegun();
  if (what == Pending::Added) return records_->insert();
  records_->forgetRecord();
  records_->change(at_);
}

void Editor::remove() {
  requireRecord();
  leaveRecord();
  records_->remove(at_);
  deleted_ = true;
}

void Editor::close() {
  leaveRecord();
  count_ = 0;
}

void Editor::leaveRecord() {
  records_->forgetRecord();
  pending_ = Pending::None;
}

void Editor::requireRecord() const {
  link_->requireOpen();
  if (eof()) throw link_->error("に現在のレコードがありません。");
  if (deleted_) throw link_->error("の現在のレコードは削除されています。");
}

void Editor::raiseNothingBegun() const { throw link_->error("のレコードの追加も変更も始まっていません。"); }

}  // namespace db
