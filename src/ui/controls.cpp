#include "ui/controls.h"

#include <utility>

#include "text/error.h"

namespace ui {

void TextControl::setText(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  notify();
}

void Pressable::press() {
  if (!enabled()) return;
  const History::Act act(history(), actName_);
  onClick();
}

void OptionButton::group(std::initializer_list<OptionButton*> buttons) {
  for (OptionButton* button : buttons)
    for (OptionButton* other : buttons)
      if (other != button) button->others_.push_back(other);
}

void OptionButton::setOn(bool on) {
  if (on_ == on) return;
  on_ = on;
  notify();
  if (!on) return;
  for (OptionButton* other : others_) other->setOn(false);
}

void OptionButton::press() {
  if (!enabled()) return;
  const History::Act act(history(), actName());
  setOn(true);
  onClick();
}

void TextBox::setText(std::string_view text) {
  if (TextControl::text() == text) return;
  TextControl::setText(text);
  onChange();
}

void TextBox::edit(std::string_view text) {
  if (enabled()) setText(text);
}

void TextBox::setValid(std::function<bool(std::string_view)> valid, std::string complaint) {
  valid_ = std::move(valid);
  complaint_ = std::move(complaint);
  notify();
}

bool TextBox::looksValid() const { return !valid_ || valid_(text()); }

std::string TextBox::complaint() const { return looksValid() ? std::string() : complaint_; }

void ItemControl::addItem(std::string_view item) {
  items_.emplace_back(item);
  notify();
}

void ItemControl::removeItem(int index) {
  if (index < 0 || index >= count()) throw text::RuntimeError(text::ErrorCode::Subscript);
  items_.erase(items_.begin() + index);
  if (index == listIndex_)
    listIndex_ = -1;
  else if (index < listIndex_)
    --listIndex_;
  notify();
}

void ItemControl::clear() {
  items_.clear();
  listIndex_ = -1;
  notify();
}

void ItemControl::setListIndex(int index) {
  if (index < -1 || index >= count()) throw text::RuntimeError(text::ErrorCode::Subscript);
  if (listIndex_ == index) return;
  listIndex_ = index;
  notify();
}

std::string ItemControl::text() const {
  return listIndex_ < 0 ? std::string() : items_[static_cast<std::size_t>(listIndex_)];
}

void ItemControl::choose(int index) {
  if (index < 0 || index >= count()) throw text::RuntimeError(text::ErrorCode::Subscript);
  if (!enabled()) return;
  setListIndex(index);
  onClick();
}

void TabControl::setCurrent(int page) {
  if (page < 0 || page >= pages_) throw text::RuntimeError(text::ErrorCode::Subscript);
  if (current_ == page) return;
  current_ = page;
  notify();
  onChange();
}

void TabControl::put(int page, std::initializer_list<Control*> controls) {
  for (Control* control : controls) {
    control->tab_ = this;
    control->page_ = page;
  }
}

}  // namespace ui
