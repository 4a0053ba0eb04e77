#include "ui/history.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "bench_screen.h"
#include "ui/grid_block.h"

namespace {

class HistoryTest : public testing::Test {
 protected:
  test::PlainDesktop desktop;
  test::BenchScreen screen{desktop};
  ui::Grid& grid = screen.Grid1;
  ui::History& history = screen.history();
};

TEST_F(HistoryTest, BeginsWithNothing) {
  EXPECT_EQ(history.undoName(), "");
  EXPECT_EQ(history.undo(), "");
  EXPECT_EQ(history.redo(), "");
}

TEST_F(HistoryTest, KeysTypedIntoOneCellAreOneStepAndWhatEnterChangesIsAnother) {
  screen.type(2, 1, U"12\r");
  EXPECT_EQ(grid.text(2, 4), "12");
  EXPECT_EQ(history.undo(), "計算");
  EXPECT_EQ(grid.text(2, 4), "");
  EXPECT_EQ(grid.text(2, 1), "12");
  EXPECT_EQ(history.undo(), "入力");
  EXPECT_EQ(grid.text(2, 1), "");
  EXPECT_EQ(history.undo(), "");
  EXPECT_EQ(history.redo(), "入力");
  EXPECT_EQ(history.redo(), "計算");
  EXPECT_EQ(grid.text(2, 4), "12");
}

TEST_F(HistoryTest, AnotherCellOrComingBackBeginsAnotherStep) {
  screen.type(2, 1, U"1");
  screen.type(4, 1, U"2");
  screen.type(2, 1, U"3");
  EXPECT_EQ(grid.text(2, 1), "13");
  history.undo();
  EXPECT_EQ(grid.text(2, 1), "1");
  history.undo();
  EXPECT_EQ(grid.text(4, 1), "");
  EXPECT_EQ(grid.text(2, 1), "1");
}

TEST_F(HistoryTest, WhatIsTypedAndTakenBackByBackspaceIsNoStep) {
  screen.type(2, 1, U"1\b");
  EXPECT_EQ(history.undoName(), "");
  screen.type(4, 1, U"5");
  screen.type(2, 1, U"1\b");
  screen.type(2, 1, U"\b");
  EXPECT_EQ(history.undo(), "入力");
  EXPECT_EQ(grid.text(4, 1), "");
}

TEST_F(HistoryTest, AButtonIsOneStepWithTheStateKeptBesideTheGrid) {
  screen.type(2, 1, U"1");
  screen.type(4, 1, U"2");
  screen.calculate.press();
  EXPECT_EQ(screen.total.text(), "3");
  EXPECT_EQ(history.undo(), "計算");
  EXPECT_EQ(grid.text(4, 4) + screen.total.text(), "");
  EXPECT_EQ(history.redo(), "計算");
  EXPECT_EQ(grid.text(4, 4), "3");
  EXPECT_EQ(screen.total.text(), "3");
}

TEST_F(HistoryTest, AButtonThatChangesNothingInTheEndIsNoStep) {
  screen.calculate.press();
  EXPECT_EQ(history.undoName(), "計算");
  screen.type(2, 1, U"7");
  screen.calculate.press();
  screen.calculate.press();
  EXPECT_EQ(history.undo(), "計算");
  EXPECT_EQ(history.undo(), "入力");
}

TEST_F(HistoryTest, AnActAfterStepsBackForgetsWhatCouldBeDoneAgain) {
  screen.type(2, 1, U"1");
  screen.type(4, 1, U"2");
  history.undo();
  screen.type(6, 1, U"3");
  EXPECT_EQ(history.redoName(), "");
  EXPECT_EQ(history.redo(), "");
  EXPECT_EQ(grid.text(4, 1), "");
}

TEST_F(HistoryTest, RowsThatCameAndWentComeBack) {
  screen.addRow.press();
  screen.addRow.press();
  screen.Grid2.setCurrent(2, 0);
  const std::string before = screen.state();
  screen.dropRow.press();
  EXPECT_EQ(screen.Grid2.rows(), 3);
  history.undo();
  EXPECT_EQ(screen.state(), before);
  EXPECT_EQ(screen.Grid2.row(), 2);
  screen.undoAll();
  EXPECT_EQ(screen.Grid2.rows(), 2);
  screen.redoAll();
  EXPECT_EQ(screen.Grid2.rows(), 3);
  EXPECT_EQ(screen.Grid2.text(1, 0), "行");
}

TEST_F(HistoryTest, GoesBackToTheOpeningAndNoFurther) {
  screen.type(2, 1, U"9");
  const unsigned before = history.beginnings();
  screen.open.press();
  EXPECT_EQ(history.undoName(), "");
  EXPECT_EQ(history.beginnings(), before + 1);
  screen.type(2, 1, U"5");
  EXPECT_EQ(history.undo(), "入力");
  EXPECT_EQ(grid.text(2, 1), "1");
  EXPECT_EQ(history.undo(), "");
}

TEST_F(HistoryTest, AChangeThatIsNoActStartsAnew) {
  screen.type(2, 1, U"9");
  grid.setText(4, 1, "8");
  EXPECT_EQ(history.undoName(), "");
  EXPECT_EQ(grid.text(2, 1), "9");
}

TEST_F(HistoryTest, AStepBackLeadsToTheCellItWasAbout) {
  screen.type(4, 1, U"9");
  grid.moveTo(8, 3);
  history.undo();
  EXPECT_EQ(grid.row(), 4);
  EXPECT_EQ(grid.col(), 1);
  EXPECT_EQ(screen.Grid2.row(), 1) << "another grid stays where it is";
}

TEST_F(HistoryTest, EndsTheTypingThatItTakesBack) {
  screen.type(2, 1, U"12");
  history.undo();
  grid.pressKey(U'3');
  EXPECT_EQ(grid.text(2, 1), "3");
  EXPECT_EQ(history.undo(), "入力");
  EXPECT_EQ(history.undo(), "") << "the step that was taken back is forgotten";
}

TEST_F(HistoryTest, TheOldestStepsGoBeyondTheLimit) {
  ui::History small(4000);
  const std::string step(900, 'x');  // more than 1000 bytes with what holds it, less than 2000
  ui::Grid alone;
  for (int i = 0; i < 10; ++i) {
    const ui::History::Act act(&small, "試し");
    small.textChanged(alone, 1, 0, step, std::to_string(i));
  }
  EXPECT_LE(small.bytes(), 4000U);
  EXPECT_GT(small.bytes(), 2000U);
  int steps = 0;
  while (!small.undo().empty()) ++steps;
  EXPECT_GE(steps, 2);
  EXPECT_LE(steps, 3);
  EXPECT_EQ(alone.text(1, 0), step);
}

TEST_F(HistoryTest, AStepThatIsTooLargeByItselfIsNotKept) {
  ui::History small(1000);
  ui::Grid alone;
  {
    const ui::History::Act act(&small, "試し");
    small.textChanged(alone, 1, 0, std::string(5000, 'x'), "");
  }
  EXPECT_EQ(small.undoName(), "");
  EXPECT_EQ(small.bytes(), 0U);
}

/// Acts at random: undo to the beginning is the state at the opening, redo to the end the state before.
TEST_F(HistoryTest, UndoToTheBeginningAndRedoToTheEnd) {
  std::uint32_t seed = 7;
  const auto below = [&seed](int limit) {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<int>((seed >> 8U) % static_cast<std::uint32_t>(limit));
  };
  const std::string opened = screen.state();
  for (int i = 0; i < 2000; ++i) {
    const int row = 1 + below(8);
    const int col = below(2) == 0 ? 1 : 3;
    switch (below(9)) {
      case 0:
        screen.calculate.press();
        break;
      case 1:
        screen.addRow.press();
        break;
      case 2:
        if (screen.Grid2.rows() > 2) screen.dropRow.press();
        break;
      case 3:
        grid.moveTo(row, col);
        ui::paste(grid, "1\t2\t3\n\n4\t5");
        break;
      case 4:
        grid.moveTo(row, 1);
        grid.selectTo(1 + below(8), 3);
        ui::emptyBlock(grid);
        break;
      case 5:
        ui::fillDown(grid);
        break;
      case 6:
        history.undo();
        break;
      case 7:
        history.redo();
        break;
      default:
        screen.type(row, col, below(2) == 0 ? U"5\b4\r" : U"橋8");
    }
    if (i % 50 != 0) continue;
    screen.redoAll();
    const std::string now = screen.state();
    screen.undoAll();
    ASSERT_EQ(screen.state(), opened) << "after act " << i;
    screen.redoAll();
    ASSERT_EQ(screen.state(), now) << "after act " << i;
  }
}

// Two cells typed: 2. One of them taken back: 1. Saved: 0. Undone past the save: the other one, 1.
TEST_F(HistoryTest, CountsTheCellsThatAreNotSaved) {
  EXPECT_EQ(history.unsavedCells(), 0);
  screen.type(2, 1, U"1");
  screen.type(4, 1, U"2");
  EXPECT_EQ(history.unsavedCells(), 2);
  screen.type(2, 1, U"\b");
  EXPECT_EQ(history.unsavedCells(), 1) << "what is typed and emptied again is as it was";
  history.markSaved();
  EXPECT_EQ(history.unsavedCells(), 0);
  history.undo();
  EXPECT_EQ(history.unsavedCells(), 1);
  history.redo();
  EXPECT_EQ(history.unsavedCells(), 0);
  history.restart();
  EXPECT_EQ(history.unsavedCells(), 0);
}

TEST_F(HistoryTest, TypingOnAfterASaveIsUnsaved) {
  screen.type(2, 1, U"1");
  history.markSaved();
  screen.type(2, 1, U"2");
  EXPECT_EQ(history.unsavedCells(), 1);
  history.undo();
  EXPECT_EQ(grid.text(2, 1), "1");
  EXPECT_EQ(history.unsavedCells(), 0);
}

// Saved with two steps done; one is undone and another typed in its place: no step leads to what was saved.
TEST_F(HistoryTest, KnowsThatWhatWasSavedIsGone) {
  screen.type(2, 1, U"1");
  screen.type(4, 1, U"2");
  history.markSaved();
  history.undo();
  screen.type(4, 1, U"3");
  EXPECT_GE(history.unsavedCells(), 1);
  history.undo();
  EXPECT_GE(history.unsavedCells(), 1);
}

// A save that calculates first: the whole act is what was saved.
TEST_F(HistoryTest, AnActMaySaveWhatItLeaves) {
  {
    const ui::History::Act act(&history, "計算");
    grid.setText(2, 1, "5");
    history.markSaved();
  }
  EXPECT_EQ(history.unsavedCells(), 0);
  EXPECT_EQ(history.undo(), "計算");
  EXPECT_EQ(history.unsavedCells(), 1);
}

// A calculation that comes to no end leaves nothing of itself, and is no step.
TEST_F(HistoryTest, AnActMayTakeItselfBack) {
  screen.type(2, 1, U"1");
  {
    const ui::History::Act act(&history, "計算");
    grid.setText(2, 1, "5");
    grid.setText(4, 1, "6");
    grid.setText(2, 1, "7");
    history.takeBackAct();
    EXPECT_EQ(grid.text(2, 1), "1");
    EXPECT_EQ(grid.text(4, 1), "");
  }
  EXPECT_EQ(history.unsavedCells(), 1);
  EXPECT_EQ(history.undo(), "入力");
}

}  // namespace
