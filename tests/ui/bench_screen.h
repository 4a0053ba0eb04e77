#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text/number.h"
#include "ui/controls.h"
#include "ui/desktop.h"
#include "ui/grid.h"
#include "ui/grid_helpers.h"
#include "ui/screen.h"

namespace test {

/// A desk on which nothing happens but messages, which are counted.
class PlainDesktop : public ui::Desktop {
 public:
  void message(const ui::Message&) override { ++messages; }
  void setMousePointer(ui::Pointer) override {}
  void breathe() override {}
  void show(ui::Screen&) override {}
  void hide(ui::Screen&) override {}

  int messages = 0;
};

/// A screen with a grid of a header and eight rows: column 0 names, column 1 takes numbers on even rows,
/// column 2 is hidden, column 3 takes remarks. Column 4 is the sum of column 1 up to its row; Enter in column
/// 1 and a block make it anew, as the button does.
class BenchScreen : public ui::Screen {
 public:
  explicit BenchScreen(ui::Desktop& desktop) : Screen("bench", "", desktop, 1000, 1000) {
    Grid1.setRows(9);
    Grid1.setCols(5);
    Grid1.setColWidth(2, 0);
    for (int col = 0; col < 5; ++col) Grid1.setText(0, col, "見出" + std::to_string(col));
    for (int row = 1; row < 9; row += 2) Grid1.setText(row, 0, "BM" + std::to_string(row));
    Grid1.setCellUse([](int row, int col) {
      if (col == 3) return ui::CellUse::Text;
      return col == 1 && row % 2 == 0 ? ui::CellUse::Number : ui::CellUse::Shown;
    });
    onKeys(Grid1, [this](char32_t code) { typeOrSum(code); });
    onBlock(Grid1, [this](const std::vector<ui::CellPlace>& cells) {
      blocks.push_back(cells.size());
      sum();
    });
    calculate.onClick.handle([this] { sum(); });
    addRow.onClick.handle([this] { Grid2.addItem("行", 1); });
    dropRow.onClick.handle([this] { Grid2.removeItem(1); });
    open.onClick.handle([this] {
      history().restart();
      Grid1.setText(2, 1, "1");
    });
    history().keep<std::string>([this] { return total.text(); },
                                [this](const std::string& text) { total.setText(text); });
  }

  ui::Grid Grid1{"Grid1", this};
  ui::Grid Grid2{"Grid2", this};
  ui::Label total{"total", this};
  ui::Button calculate{"calculate", this, "計算"};
  ui::Button addRow{"addRow", this, "行を足す"};
  ui::Button dropRow{"dropRow", this, "行を除く"};
  ui::Button open{"open", this, "読込"};
  std::vector<std::size_t> blocks;  ///< the cells of each block

  /// Presses the keys of `text` in a cell; "\r" is Enter, "\b" Backspace.
  void type(int row, int col, std::u32string_view text) {
    Grid1.moveTo(row, col);
    for (const char32_t code : text) Grid1.pressKey(code);
  }
  void undoAll() {
    while (!history().undo().empty()) {
    }
  }
  void redoAll() {
    while (!history().redo().empty()) {
    }
  }
  /// Every text of both grids, row by row.
  std::string state() const {
    std::string all;
    for (const ui::Grid* grid : {&Grid1, &Grid2})
      for (int row = 0; row < grid->rows(); ++row) {
        for (int col = 0; col < grid->cols(); ++col) all += grid->text(row, col) + "|";
        all += "\n";
      }
    return all + total.text();
  }

 private:
  void typeOrSum(char32_t code) {
    if (Grid1.cellUse(Grid1.keyRow(), Grid1.keyCol()) == ui::CellUse::Shown) return;
    if (code == ui::key::enter && Grid1.keyCol() == 1)
      sum();
    else
      ui::FcGridKeyEdit(Grid1, code);
  }

  void sum() {
    double sum = 0;
    for (int row = 2; row < Grid1.rows(); row += 2) {
      sum += text::readNumber(Grid1.text(row, 1));
      Grid1.setText(row, 4, text::numberText(sum));
    }
    total.setText(text::numberText(sum));
  }
};

}  // namespace test
