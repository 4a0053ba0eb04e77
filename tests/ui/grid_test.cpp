#include "ui/grid.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "text/error.h"
#include "text/number.h"

namespace {

void expectError(text::ErrorCode code, const std::function<void()>& action) {
  try {
    action();
  } catch (const text::RuntimeError& error) {
    EXPECT_EQ(error.code(), code);
    return;
  }
  ADD_FAILURE() << "no error was raised";
}

void expectSubscript(const std::function<void()>& action) { expectError(text::ErrorCode::Subscript, action); }

/// A header and four rows of three columns; every cell says where it stands.
class GridOfFive : public testing::Test {
 protected:
  GridOfFive() {
    grid.setRows(5);
    grid.setCols(3);
    for (int row = 0; row < 5; ++row)
      for (int col = 0; col < 3; ++col)
        grid.setText(row, col, std::to_string(row) + "/" + std::to_string(col));
  }

  std::string column(int col) const {
    std::string all;
    for (int row = 0; row < grid.rows(); ++row) all += grid.text(row, col) + ";";
    return all;
  }

  void expectCurrent(int row, int col, int rowSel, int colSel) const {
    EXPECT_EQ(grid.row(), row);
    EXPECT_EQ(grid.col(), col);
    EXPECT_EQ(grid.rowSel(), rowSel);
    EXPECT_EQ(grid.colSel(), colSel);
  }

  void expectKeyCell(int row, int col) const {
    EXPECT_EQ(grid.keyRow(), row);
    EXPECT_EQ(grid.keyCol(), col);
  }

  ui::Grid grid;
};

TEST(Grid, BeginsWithAHeaderAndOneEmptyRow) {
  const ui::Grid grid;
  EXPECT_EQ(grid.rows(), 2);
  EXPECT_EQ(grid.cols(), 2);
  EXPECT_EQ(grid.fixedRows(), 1);
  EXPECT_EQ(grid.row(), 1);
  EXPECT_EQ(grid.col(), 0);
  EXPECT_EQ(grid.text(1, 1), "");
}

TEST_F(GridOfFive, RefusesCellsOutside) {
  for (const auto& [row, col] : std::vector<std::pair<int, int>>{{-1, 0}, {5, 0}, {0, -1}, {0, 3}}) {
    expectSubscript([&] { grid.text(row, col); });
    expectSubscript([&] { grid.setText(row, col, "x"); });
    expectSubscript([&] { grid.setCurrent(row, col); });
    expectSubscript([&] { grid.click(row, col); });
    expectSubscript([&] { grid.moveTo(row, col); });
    expectSubscript([&] { grid.selectTo(row, col); });
    EXPECT_FALSE(grid.clickable(row, col));
  }
  expectSubscript([&] { grid.setRow(5); });
  expectSubscript([&] { grid.setCol(-1); });
  expectSubscript([&] { grid.colWidth(3); });
  expectSubscript([&] { grid.setColWidth(-1, 100); });
  expectSubscript([&] { grid.setAlign(3, ui::Align::Right); });
  expectSubscript([&] { grid.fixedAlign(3); });
  expectSubscript([&] { grid.addItem("x", 6); });
  expectSubscript([&] { grid.addItem("x", -1); });
  expectSubscript([&] { grid.setFixed(6, 0); });
  expectSubscript([&] { grid.setFixed(1, -1); });
  expectSubscript([&] { grid.setRows(0); });
  expectSubscript([&] { grid.setCols(0); });
  expectCurrent(1, 0, 1, 0);
  EXPECT_EQ(column(0), "0/0;1/0;2/0;3/0;4/0;");
}

TEST_F(GridOfFive, KeepsItsCellsWhenItsShapeChanges) {
  grid.setCols(4);
  EXPECT_EQ(column(2), "0/2;1/2;2/2;3/2;4/2;");
  EXPECT_EQ(column(3), ";;;;;");
  grid.setCols(2);
  EXPECT_EQ(column(1), "0/1;1/1;2/1;3/1;4/1;");
  grid.setRows(6);
  EXPECT_EQ(column(0), "0/0;1/0;2/0;3/0;4/0;;");
  grid.setRows(2);
  EXPECT_EQ(column(0), "0/0;1/0;");
  grid.setCols(3);
  EXPECT_EQ(column(2), ";;");  // what was cut off is gone
}

TEST(Grid, HoldsAsManyRowsAs16BitsCount) {
  ui::Grid grid;
  grid.setRows(32767);
  EXPECT_EQ(grid.rows(), 32767);
  expectError(text::ErrorCode::Overflow, [&] { grid.setRows(32768); });
  expectError(text::ErrorCode::Overflow, [&] { grid.addItem("x"); });
  EXPECT_EQ(grid.rows(), 32767);
}

TEST_F(GridOfFive, AddsRows) {
  grid.addItem("last");
  grid.addItem("between", 2);
  EXPECT_EQ(column(0), "0/0;1/0;between;2/0;3/0;4/0;last;");
  EXPECT_EQ(column(1), "0/1;1/1;;2/1;3/1;4/1;;");
}

TEST_F(GridOfFive, AddsARowWithTheTextOfOneOfItsCells) {
  grid.setText(1, 0, "a text too long to be kept in place by any string");
  for (int i = 0; i < 50; ++i) grid.addItem(grid.text(1, 0), 1);
  EXPECT_EQ(grid.text(1, 0), "a text too long to be kept in place by any string");
  EXPECT_EQ(grid.text(51, 0), "a text too long to be kept in place by any string");
}

TEST_F(GridOfFive, RemovesRowsBelowTheHeader) {
  grid.removeItem(2);
  EXPECT_EQ(column(2), "0/2;1/2;3/2;4/2;");
  expectSubscript([&] { grid.removeItem(0); });
  expectSubscript([&] { grid.removeItem(4); });
  grid.removeItem(3);
  grid.removeItem(1);
  EXPECT_EQ(column(0), "0/0;3/0;");
  expectSubscript([&] { grid.removeItem(1); });  // the last one below the header stays
}

TEST_F(GridOfFive, KeepsTheCurrentCellInsideWhenItShrinks) {
  grid.setCurrent(4, 2);
  grid.removeItem(4);
  expectCurrent(3, 2, 3, 2);
  expectKeyCell(3, 2);
  grid.setCols(2);
  expectCurrent(3, 1, 3, 1);
  grid.setRows(1);
  expectCurrent(0, 1, 0, 1);
  grid.setRows(3);
  expectCurrent(1, 1, 1, 1);
}

TEST_F(GridOfFive, ClearsItsTextsAndKeepsItsShape) {
  grid.setCurrent(3, 1);
  grid.clearText();
  EXPECT_EQ(column(0), ";;;;;");
  EXPECT_EQ(grid.cols(), 3);
  expectCurrent(3, 1, 3, 1);
}

TEST_F(GridOfFive, ShrinksTheSelectionWhenTheCurrentCellMoves) {
  grid.setCurrent(2, 1);
  grid.selectTo(4, 2);
  expectCurrent(2, 1, 4, 2);
  expectKeyCell(2, 1);
  grid.setRow(3);
  expectCurrent(3, 1, 3, 1);
  expectKeyCell(3, 1);
  grid.setCol(0);
  expectCurrent(3, 0, 3, 0);
  grid.selectTo(1, 2);  // upwards too
  expectCurrent(3, 0, 1, 2);
}

TEST_F(GridOfFive, LeavesTheKeysToTheClickedCellWhenTheWholeRowIsHighlighted) {
  grid.click(2, 1);
  grid.selectWholeRow();
  expectCurrent(2, 0, 2, 2);
  expectKeyCell(2, 1);
  grid.click(3, 2);
  expectCurrent(3, 2, 3, 2);
  expectKeyCell(3, 2);
}

TEST_F(GridOfFive, IsClickedBelowTheHeadersAndInVisibleColumnsOnly) {
  int clicks = 0;
  grid.onClick.handle([&] { ++clicks; });
  grid.setColWidth(2, 0);
  expectSubscript([&] { grid.click(0, 1); });
  expectSubscript([&] { grid.click(1, 2); });
  expectSubscript([&] { grid.moveTo(0, 1); });
  expectSubscript([&] { grid.selectTo(1, 2); });
  grid.setFixed(2, 1);
  expectSubscript([&] { grid.click(1, 1); });
  expectSubscript([&] { grid.click(2, 0); });
  EXPECT_EQ(clicks, 0);
  grid.click(2, 1);
  EXPECT_EQ(clicks, 1);
  expectCurrent(2, 1, 2, 1);
}

TEST_F(GridOfFive, RaisesNoEventWhenTheKeyboardMovesTheCurrentCell) {
  int clicks = 0;
  grid.onClick.handle([&] { ++clicks; });
  grid.moveTo(4, 2);
  expectCurrent(4, 2, 4, 2);
  EXPECT_EQ(clicks, 0);
}

TEST_F(GridOfFive, PassesCharactersEnterAndBackspaceOn) {
  std::u32string keys;
  grid.onKeyPress = [&](char32_t code) { keys += code; };
  for (const char32_t code : U"1.-Ee \r\b水\x03\t\n\x1B\x7F") grid.pressKey(code);  // and a final 0
  EXPECT_EQ(keys, U"1.-Ee \r\b水");
}

TEST_F(GridOfFive, TakesNoActsWhileDisabled) {
  int acts = 0;
  grid.onClick.handle([&] { ++acts; });
  grid.onKeyPress = [&](char32_t) { ++acts; };
  grid.setEnabled(false);
  grid.click(2, 2);
  grid.pressKey(U'1');
  EXPECT_EQ(acts, 0);
  expectCurrent(1, 0, 1, 0);
}

TEST_F(GridOfFive, AsksTheScreenWhatMayBeDoneInACell) {
  EXPECT_EQ(grid.cellUse(2, 1), ui::CellUse::Shown);
  grid.setCellUse([](int, int col) { return col == 2 ? ui::CellUse::Text : ui::CellUse::Number; });
  EXPECT_EQ(grid.cellUse(2, 1), ui::CellUse::Number);
  EXPECT_EQ(grid.cellUse(2, 2), ui::CellUse::Text);
  EXPECT_EQ(grid.cellUse(0, 2), ui::CellUse::Shown);  // headers never
  EXPECT_EQ(grid.cellUse(5, 2), ui::CellUse::Shown);
}

TEST_F(GridOfFive, RemembersHowItsColumnsLook) {
  grid.setColWidth(1, 1200);
  grid.setAlign(1, ui::Align::Right);
  grid.setFixedAlign(1, ui::Align::Center);
  grid.setRowHeight(300);
  EXPECT_EQ(grid.colWidth(1), 1200);
  EXPECT_EQ(grid.align(1), ui::Align::Right);
  EXPECT_EQ(grid.fixedAlign(1), ui::Align::Center);
  EXPECT_EQ(grid.align(0), ui::Align::Left);
  EXPECT_EQ(grid.rowHeight(), 300);
  grid.setCols(4);
  EXPECT_EQ(grid.colWidth(1), 1200);
}

class Watcher : public ui::GridObserver {
 public:
  void changed(ui::Control&) override { ++whole; }
  void cellChanged(int row, int col) override { cells.emplace_back(row, col); }
  int whole = 0;
  std::vector<std::pair<int, int>> cells;
};

TEST_F(GridOfFive, TellsItsObserverOfCellsAndOfItself) {
  Watcher watcher;
  grid.observeGrid(&watcher);
  grid.setText(1, 2, "new");
  grid.setText(1, 2, "new");
  EXPECT_EQ(watcher.cells, (std::vector<std::pair<int, int>>{{1, 2}}));
  EXPECT_EQ(watcher.whole, 0);
  grid.setRows(5);
  EXPECT_EQ(watcher.whole, 0);
  grid.setRows(6);
  grid.setCurrent(2, 2);
  EXPECT_EQ(watcher.whole, 2);
  grid.usesChanged();
  EXPECT_EQ(watcher.whole, 3);
  grid.observeGrid(nullptr);
  grid.setText(1, 2, "newer");
  grid.setRows(7);
  EXPECT_EQ(watcher.cells.size(), 1U);
  EXPECT_EQ(watcher.whole, 3);
}

TEST(GridNumbers, AreThoseOfTheTextsWhateverHappensToThem) {
  ui::Grid grid("Grid1", nullptr);
  grid.setRows(4);
  grid.setText(1, 0, "12.5");
  grid.setText(2, 0, "-3m");
  EXPECT_EQ(grid.number(1, 0), 12.5);
  EXPECT_EQ(grid.number(2, 0), -3);
  EXPECT_EQ(grid.number(3, 0), 0);
  grid.setText(1, 0, "13");
  EXPECT_EQ(grid.number(1, 0), 13) << "the text is another";
  grid.insertRows(1, 2);
  EXPECT_EQ(grid.number(1, 0), 0);
  EXPECT_EQ(grid.number(3, 0), 13) << "its row has moved";
  grid.eraseRows(1, 1);
  EXPECT_EQ(grid.number(2, 0), 13);
  grid.setCols(3);
  EXPECT_EQ(grid.number(2, 0), 13);
  EXPECT_EQ(grid.number(2, 2), 0);
  grid.clearText();
  EXPECT_EQ(grid.number(2, 0), 0);
  grid.setText(2, 0, "1e999");
  EXPECT_THROW(grid.number(2, 0), text::RuntimeError);
  EXPECT_THROW(grid.number(2, 0), text::RuntimeError) << "an overflow is not remembered";
  EXPECT_THROW(grid.number(99, 0), text::RuntimeError);
}

// Random acts on a grid that is read now and then: it must always give what its texts give.
TEST(GridNumbers, FollowEveryActOnTheGrid) {
  ui::Grid grid("Grid1", nullptr);
  std::mt19937 random(5);
  const auto below = [&random](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  const std::vector<std::string> texts = {"", "1.5", "-0.0012", "abc", " 7", "1e3", "12345678901234567"};
  for (int act = 0; act < 3000; ++act) {
    const int row = below(grid.rows());
    const int col = below(grid.cols());
    switch (below(9)) {
      case 0:
        if (grid.rows() < 40) grid.insertRows(row, 1 + below(3));
        break;
      case 1:
        if (grid.rows() > 4) grid.eraseRows(row, 1);
        break;
      case 2:
        grid.setCols(2 + below(4));
        break;
      case 3:
        if (below(10) == 0) grid.clearText();
        break;
      default:
        grid.setText(row, col, texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))]);
    }
    for (int r = below(4); r < grid.rows(); ++r)
      for (int c = 0; c < grid.cols(); ++c) {
        const std::string& held = grid.text(r, c);
        ASSERT_EQ(grid.number(r, c), text::readNumber(held)) << held;
        ASSERT_EQ(grid.isPlain(r, c), held.empty() || text::plainNumber(held).has_value()) << held;
      }
  }
}

TEST(GridNumbers, FollowContentsThatAreBroughtBack) {
  ui::Grid grid("Grid1", nullptr);
  grid.setText(1, 0, "12.5");
  EXPECT_EQ(grid.number(1, 0), 12.5);
  const ui::Grid::Contents kept = grid.contents();
  const auto version = grid.columnVersion(0);
  grid.setCols(7);
  grid.setRows(300);
  grid.setText(1, 0, "13");
  grid.setText(299, 6, "14");
  EXPECT_EQ(grid.number(1, 0) + grid.number(299, 6), 27);
  grid.setContents(kept);
  EXPECT_EQ(grid.number(1, 0), 12.5);
  EXPECT_GT(grid.columnVersion(0), version);
  grid.setCols(8);
  grid.insertRows(1, 200);
  EXPECT_EQ(grid.number(201, 0), 12.5);
  EXPECT_EQ(grid.number(201, 7), 0);
}

TEST(GridNumbers, TellWhetherAColumnHasChanged) {
  ui::Grid grid("Grid1", nullptr);
  grid.setText(1, 0, "1");
  const auto first = grid.columnVersion(0);
  const auto second = grid.columnVersion(1);
  grid.setText(1, 0, "1");
  EXPECT_EQ(grid.columnVersion(0), first) << "the same text is no change";
  grid.setText(1, 0, "2");
  EXPECT_NE(grid.columnVersion(0), first);
  EXPECT_EQ(grid.columnVersion(1), second);
  grid.setRows(3);
  EXPECT_NE(grid.columnVersion(1), second);
}

}  // namespace
