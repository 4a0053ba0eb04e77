#include <utility>

#include "text/padding.h"
#include "text/width.h"
#include "ui/act_witness.h"
#include "ui/grid.h"

// What the operator types into a grid.

namespace ui {
namespace {

bool writes(char32_t code) { return code >= U' ' && code != 0x7F; }

/// A key as an operation script writes it.
std::string keyName(char32_t code) {
  if (code == key::enter) return "{Enter}";
  if (code == key::backspace) return "{BackSpace}";
  if (code == U'{') return "{{";
  std::string name;
  text::appendCharacter(name, code);
  return name;
}

/// The keys that put `after` in the place of `before` in a cell.
std::string keysTo(std::string_view before, std::string_view after) {
  const std::size_t characters = text::length(before);
  std::string keys = characters == 0 ? "" : "{BackSpace " + std::to_string(characters) + "}";
  for (std::size_t at = 0; at < after.size();) keys += keyName(text::nextCharacter(after, at));
  return keys;
}

}  // namespace

/// True where a character that is typed now replaces what the key cell holds.
bool Grid::beginsAnew() const {
  return replacesTyped_ && !typedOver_ && cellUse(keyRow(), keyCol()) != CellUse::Shown;
}

/// The first key of a typing notes what the cell held.
void Grid::pressKey(char32_t code) {
  if (!enabled() || !onKeyPress || !(writes(code) || code == key::enter || code == key::backspace)) return;
  const bool replaces = writes(code) && beginsAnew();
  const Witnessed seen(desktop(), [&] {
    return OperatorAct{
        "key", name(), {(replaces ? keysTo(text(keyRow(), keyCol()), "") : std::string()) + keyName(code)}};
  });
  if (code == key::enter) {
    const History::Act act(history(), act::calculation);
    endTyping();
    return onKeyPress(code);
  }
  const auto act = History::Act::typed(history(), *this);
  const CellUse use = cellUse(keyRow(), keyCol());
  const bool begins = !typedOver_ && use != CellUse::Shown;
  std::string held = text(keyRow(), keyCol());
  if (replaces) setText(keyRow(), keyCol(), {});
  const CellPlace cell{keyRow(), keyCol()};
  onKeyPress(use == CellUse::Number ? text::halfWidth(code) : code);
  if (begins && cell == CellPlace{keyRow(), keyCol()}) typedOver_ = std::move(held);
}

void Grid::takeBackTyping() {
  if (!enabled() || !typedOver_) return;
  const Witnessed seen(desktop(), [this] {
    return OperatorAct{"key", name(), {keysTo(text(keyRow(), keyCol()), *typedOver_)}};
  });
  const auto act = History::Act::typed(history(), *this);
  setText(keyRow(), keyCol(), *std::exchange(typedOver_, std::nullopt));
}

void Grid::takeEdit(std::string_view text, bool enter) {
  if (!enabled() || cellUse(keyRow(), keyCol()) == CellUse::Shown) return;
  const Witnessed seen(desktop(), [&] {
    if (!enter)
      return OperatorAct{
          "key", name(), {keysTo(Grid::text(keyRow(), keyCol()), asTyped(keyRow(), keyCol(), text))}};
    return OperatorAct{
        "edit", name(), {std::to_string(keyRow()), std::to_string(keyCol()), std::string(text)}};
  });
  const History::Act act(history(), act::typing);
  setText(keyRow(), keyCol(), asTyped(keyRow(), keyCol(), text));
  if (enter && onKeyPress) onKeyPress(key::enter);
}

std::string Grid::asTyped(int row, int col, std::string_view text) const {
  const bool number = cellUse(row, col) == CellUse::Number;
  std::string typed;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char32_t code = text::nextCharacter(text, at);
    if (writes(code)) typed += text.substr(start, at - start);
  }
  return number ? std::string(text::trimmed(text::halfWidth(typed))) : typed;
}

}  // namespace ui
