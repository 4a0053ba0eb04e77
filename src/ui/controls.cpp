#include "ui/controls.h"

#include <utility>

#include "text/error.h"
#include "text/padding.h"
#include "ui/act_witness.h"

namespace ui {
namespace {

/// A change of a text as the operator has done it: a character typed at its end, or another text at once.
OperatorAct editing(const std::string& name, const std::string& before, std::string_view after) {
  if (after.size() > before.size() && after.starts_with(before)) {
    std::size_t at = before.size();
    const char32_t code = text::nextCharacter(after, at);
    if (at == after.size() && code >= U' ' && code != 0x7F)
      return {"type", name, {std::string(after.substr(before.size()))}};
  }
  return {"enter", name, {std::string(after)}};
}

/// An item is called by its text where that is the first of its kind, else by its position.
OperatorAct choice(const ItemControl& control, int index) {
  const std::string& item = control.items()[static_cast<std::size_t>(index)];
  for (int before = 0; before < index; ++before)
    if (text::trimmedRight(control.items()[static_cast<std::size_t>(before)]) == text::trimmedRight(item))
      return {"select #", control.name(), {std::to_string(index)}};
  return {"select", control.name(), {item}};
}

}  // namespace

void TextControl::setText(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  notify();
}

void Pressable::press() {
  if (!enabled()) return;
  const Witnessed seen(desktop(), [this] { return OperatorAct{"click", name()}; });
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
  const Witnessed seen(desktop(), [this] { return OperatorAct{"click", name()}; });
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
  if (!enabled()) return;
  const Witnessed seen(desktop(), [&] { return editing(name(), TextControl::text(), text); });
  setText(text);
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
  const Witnessed seen(desktop(), [&] { return choice(*this, index); });
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

void TabControl::turnTo(int page) {
  const Witnessed seen(desktop(), [&] { return OperatorAct{"tab", name(), {std::to_string(page)}}; });
  setCurrent(page);
}

void TabControl::put(int page, std::initializer_list<Control*> controls) {
  for (Control* control : controls) {
    control->tab_ = this;
    control->page_ = page;
  }
}

}  // namespace ui
