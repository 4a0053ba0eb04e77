#include "ui/grid_helpers.h"

#include <array>

#include "text/padding.h"
#include "ui/error_trap.h"

namespace ui {
namespace {

constexpr std::array<std::string_view, 5> dataCategories = {
    "0:1往復 本作業、検測、取付", "1:2往復 基準水準点取付", "2:1往復 電子基準点取付", "3: 片道 検測",
    "4:1往復 履歴ﾃﾞｰﾀ",
};

/// The text after the key; false for a key that changes nothing by rule (Enter).
bool typeInto(std::string& text, char32_t code) {
  if (code == key::enter) return false;
  if (code == key::backspace) {
    const std::size_t characters = text::length(text);
    if (characters > 0) text.resize(text::left(text, characters - 1).size());
  } else {
    text::appendCharacter(text, code);
  }
  return true;
}

}  // namespace

bool FcGridMoveRow(Grid& grid, int row) {
  if (row < 1) return false;
  return trapped(grid.desktop(), "FcGridMoveRow", [&] {
    if (row >= grid.rows()) grid.setRows(row + 1);
    grid.setRow(row);
  });
}

bool FcGridSetData(Grid& grid, int row, int col, std::string_view text) {
  return trapped(grid.desktop(), "FcGridSetData", [&] { grid.setText(row, col, text); });
}

bool FcGridGetData(const Grid& grid, int row, int col, std::string& text) {
  trapped(grid.desktop(), "FcGridGetData", [&] { text = grid.text(row, col); });
  return false;
}

bool FcGridSelectRow(Grid& grid) {
  return trapped(grid.desktop(), "FcGridSelectRow", [&] { grid.selectWholeRow(); });
}

bool FcGridKeyEdit(Grid& grid, char32_t code) {
  bool typed = false;
  trapped(grid.desktop(), "FcGridKeyEdit", [&] {
    std::string text = grid.text(grid.keyRow(), grid.keyCol());
    typed = typeInto(text, code);
    if (typed) grid.setText(grid.keyRow(), grid.keyCol(), text);
  });
  return typed;
}

bool FcGridKeyEdit(TextBox& box, char32_t code) {
  std::string text = box.text();
  const bool typed = typeInto(text, code);
  if (typed) box.setText(text);
  return typed;
}

bool FcEditSetLstDataKubun(ListBox& LstDataKubun) {
  LstDataKubun.clear();
  for (const std::string_view category : dataCategories) LstDataKubun.addItem(category);
  return true;
}

bool FcEditSetLstDataKubun(ListBox& LstDataKubun, ListBox& LstDataKubun1) {
  return FcEditSetLstDataKubun(LstDataKubun) && FcEditSetLstDataKubun(LstDataKubun1);
}

void goToFirstEntry(Grid& grid) {
  int textRow = 1;
  int textCol = 0;
  bool foundText = false;
  for (int row = grid.fixedRows(); row < grid.rows(); ++row)
    for (int col = grid.fixedCols(); col < grid.cols(); ++col) {
      if (!grid.isEntry(row, col)) continue;
      if (grid.cellUse(row, col) == CellUse::Number) return grid.setCurrent(row, col);
      if (foundText) continue;
      foundText = true;
      textRow = row;
      textCol = col;
    }
  grid.setCurrent(textRow, textCol);
}

}  // namespace ui
