#include <utility>

#include "text/padding.h"
#include "text/width.h"
#include "ui/grid.h"

// What the operator types into a grid.

namespace ui {
namespace {

bool writes(char32_t code) { return code >= U' ' && code != 0x7F; }

}  // namespace

/// The first key of a typing notes what the cell held.
void Grid::pressKey(char32_t code) {
  if (!enabled() || !onKeyPress || !(writes(code) || code == key::enter || code == key::backspace)) return;
  if (code == key::enter) {
    const History::Act act(history(), act::calculation);
    endTyping();
    return onKeyPress(code);
  }
  const auto act = History::Act::typed(history(), *this);
  const CellUse use = cellUse(keyRow(), keyCol());
  const bool begins = !typedOver_ && use != CellUse::Shown;
  std::string held = text(keyRow(), keyCol());
  if (begins && replacesTyped_ && writes(code)) setText(keyRow(), keyCol(), {});
  const CellPlace cell{keyRow(), keyCol()};
  onKeyPress(use == CellUse::Number ? text::halfWidth(code) : code);
  if (begins && cell == CellPlace{keyRow(), keyCol()}) typedOver_ = std::move(held);
}

void Grid::takeBackTyping() {
  if (!enabled() || !typedOver_) return;
  const auto act = History::Act::typed(history(), *this);
  setText(keyRow(), keyCol(), *std::exchange(typedOver_, std::nullopt));
}

void Grid::takeEdit(std::string_view text, bool enter) {
  if (!enabled() || cellUse(keyRow(), keyCol()) == CellUse::Shown) return;
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
