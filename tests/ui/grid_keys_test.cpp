#include <gtest/gtest.h>

#include "bench_screen.h"
#include "ui/find.h"

namespace {

class GridKeys : public testing::Test {
 protected:
  void press(std::u32string_view keys) {
    for (const char32_t code : keys) grid.pressKey(code);
  }

  test::PlainDesktop desktop;
  test::BenchScreen screen{desktop};
  ui::Grid& grid = screen.Grid1;
};

TEST_F(GridKeys, FiguresArriveHalfWidthInNumbersAlone) {
  screen.type(2, 1, U"－１２．５");
  EXPECT_EQ(grid.text(2, 1), "-12.5");
  screen.type(2, 3, U"５号");
  EXPECT_EQ(grid.text(2, 3), "５号");
}

TEST_F(GridKeys, EscTakesBackWhatWasTypedSinceTheCellWasReached) {
  screen.type(2, 1, U"1\r");
  screen.type(2, 1, U"23\b");
  grid.takeBackTyping();
  EXPECT_EQ(grid.text(2, 1), "1");
  EXPECT_EQ(screen.history().undoName(), "計算") << "as if nothing had been typed";
  grid.takeBackTyping();
  EXPECT_EQ(grid.text(2, 1), "1");
}

TEST_F(GridKeys, EscTakesNothingBackThatEnterHasTaken) {
  screen.type(2, 1, U"1\r");
  grid.takeBackTyping();
  EXPECT_EQ(grid.text(2, 1), "1");
}

TEST_F(GridKeys, TypedCharactersFollowTheText) {
  screen.type(2, 1, U"1");
  screen.type(2, 1, U"2");
  EXPECT_EQ(grid.text(2, 1), "12");
}

TEST_F(GridKeys, OrReplaceItWhereTheOperatorWantsThat) {
  grid.setReplacesTyped(true);
  screen.type(2, 1, U"12");
  EXPECT_EQ(grid.text(2, 1), "12");
  screen.type(2, 1, U"34");
  EXPECT_EQ(grid.text(2, 1), "34");
  grid.takeBackTyping();
  EXPECT_EQ(grid.text(2, 1), "12");
  screen.type(2, 1, U"\b");
  EXPECT_EQ(grid.text(2, 1), "1") << "Backspace takes the last character";
  press(U"5");
  EXPECT_EQ(grid.text(2, 1), "15");
}

TEST_F(GridKeys, ReplacingLeavesACellAloneThatTakesNoKeys) {
  grid.setReplacesTyped(true);
  screen.type(1, 0, U"5");
  EXPECT_EQ(grid.text(1, 0), "BM1");
}

TEST_F(GridKeys, AnEditInPlaceIsOneActWithEnter) {
  screen.type(2, 1, U"1\r");
  grid.moveTo(2, 1);
  grid.takeEdit("２０", true);
  EXPECT_EQ(grid.text(2, 1), "20");
  EXPECT_EQ(grid.text(8, 4), "20");
  EXPECT_EQ(screen.history().undo(), "入力");
  EXPECT_EQ(grid.text(2, 1), "1");
  EXPECT_EQ(grid.text(8, 4), "1");
}

TEST_F(GridKeys, AnEditThatIsLeftDoesNotPressEnter) {
  grid.moveTo(2, 1);
  grid.takeEdit("20", false);
  EXPECT_EQ(grid.text(2, 1), "20");
  EXPECT_EQ(grid.text(2, 4), "");
}

TEST_F(GridKeys, ACellThatTakesNoKeysIsNotEdited) {
  grid.moveTo(1, 0);
  grid.takeEdit("x", true);
  EXPECT_EQ(grid.text(1, 0), "BM1");
}

TEST_F(GridKeys, GoesFromEntryToEntryAndEnds) {
  grid.moveTo(1, 0);
  std::string way;
  for (auto entry = ui::nextEntry(grid, ui::Way::Forward); entry && entry->row < 4;
       entry = ui::nextEntry(grid, ui::Way::Forward)) {
    way += std::to_string(entry->row) + "," + std::to_string(entry->col) + " ";
    grid.moveTo(entry->row, entry->col);
  }
  EXPECT_EQ(way, "1,3 2,1 2,3 3,3 ");
  EXPECT_EQ(*ui::nextEntry(grid, ui::Way::Back), (ui::CellPlace{2, 3}));
  grid.moveTo(8, 3);
  EXPECT_FALSE(ui::nextEntry(grid, ui::Way::Forward));
  grid.moveTo(1, 3);
  EXPECT_FALSE(ui::nextEntry(grid, ui::Way::Back));
}

TEST_F(GridKeys, FindsInReadingOrderAndRound) {
  grid.moveTo(1, 0);
  EXPECT_EQ(*ui::find(grid, "bm"), (ui::CellPlace{3, 0}));
  EXPECT_EQ(*ui::find(grid, "ＢＭ７"), (ui::CellPlace{7, 0}));
  EXPECT_EQ(*ui::find(grid, "BM"), (ui::CellPlace{1, 0}));
  EXPECT_EQ(*ui::find(grid, "BM", ui::Way::Back), (ui::CellPlace{7, 0}));
  EXPECT_EQ(grid.row(), 7);
  EXPECT_FALSE(ui::find(grid, "BM2"));
  EXPECT_FALSE(ui::find(grid, ""));
  EXPECT_EQ(grid.row(), 7);
}

TEST_F(GridKeys, FindsTheOnlyCellAgainAndNothingHiddenOrInTheHeader) {
  screen.type(4, 3, U"ｶﾞｹ下");
  grid.setText(5, 2, "隠れ");
  EXPECT_EQ(*ui::find(grid, "ガケ"), (ui::CellPlace{4, 3}));
  EXPECT_EQ(*ui::find(grid, "ガケ"), (ui::CellPlace{4, 3}));
  EXPECT_FALSE(ui::find(grid, "隠れ"));
  EXPECT_FALSE(ui::find(grid, "見出"));
}

TEST_F(GridKeys, TellsWhatAColumnDoesNotTake) {
  grid.setContent(1, ui::Content::Number);
  grid.setContent(3, ui::Content::Date);
  grid.setContent(4, ui::Content::Latitude);
  const auto problem = [&](int col, std::string_view text) {
    grid.setText(2, col, text);
    return grid.problem(2, col);
  };
  EXPECT_EQ(problem(1, "-12.5"), "");
  EXPECT_EQ(problem(1, " 5. "), "");
  EXPECT_EQ(problem(1, "  "), "");
  EXPECT_EQ(problem(1, "1,234"), "数値ではありません");
  EXPECT_EQ(problem(1, "不明"), "数値ではありません");
  EXPECT_EQ(problem(3, "2024/02/29"), "");
  EXPECT_EQ(problem(3, "2023/02/29"), "日付ではありません");
  EXPECT_EQ(problem(4, "35°59.9"), "");
  EXPECT_EQ(problem(4, "-35°-30"), "");
  EXPECT_EQ(problem(4, "90°0"), "");
  EXPECT_EQ(problem(4, "35°60"), "緯度ではありません");
  EXPECT_EQ(problem(4, "90°0.1"), "緯度ではありません");
  EXPECT_EQ(problem(4, "35.5"), "緯度ではありません");
  EXPECT_EQ(grid.problem(0, 1), "") << "headings are no numbers";
}

}  // namespace
