#include "ui/grid_block.h"

#include <gtest/gtest.h>

#include "bench_screen.h"

namespace {

using ui::BlockCount;

/// Entries: column 1 on rows 2, 4, 6, 8; column 3 on every row; column 2 is hidden.
class GridBlock : public testing::Test {
 protected:
  BlockCount paste(int row, int col, std::string_view text) {
    grid.moveTo(row, col);
    return ui::paste(grid, text);
  }
  std::string copy(int top, int left, int bottom, int right) {
    grid.moveTo(top, left);
    grid.selectTo(bottom, right);
    return ui::copiedText(grid);
  }
  std::string column(int col) const {
    std::string all;
    for (int row = 1; row < grid.rows(); ++row) all += grid.text(row, col) + ";";
    return all;
  }

  test::PlainDesktop desktop;
  test::BenchScreen screen{desktop};
  ui::Grid& grid = screen.Grid1;
};

TEST_F(GridBlock, AListGoesToTheEntriesOneAfterAnother) {
  EXPECT_EQ(paste(2, 1, "1\n2\n3"), (BlockCount{3, 0}));
  EXPECT_EQ(column(1), ";1;;2;;3;;;");
  EXPECT_EQ(column(4), ";1;;3;;6;;6;") << "summed up";
  EXPECT_EQ(screen.blocks, std::vector<std::size_t>{3}) << "once";
}

TEST_F(GridBlock, AListBeginsAtTheFirstEntryBelow) {
  EXPECT_EQ(paste(1, 1, "1\n2"), (BlockCount{2, 0}));
  EXPECT_EQ(column(1), ";1;;2;;;;;");
}

TEST_F(GridBlock, WhatIsLeftOfAListBehindTheLastEntryIsPassedOver) {
  EXPECT_EQ(paste(6, 1, "1\n2\n3\n4"), (BlockCount{2, 2}));
  EXPECT_EQ(column(1), ";;;;;1;;2;");
  EXPECT_EQ(grid.rows(), 9);
}

TEST_F(GridBlock, RowsWithoutAnEntryAreRowsOfTheText) {
  EXPECT_EQ(paste(2, 1, "1\n\n3"), (BlockCount{2, 1}));
  EXPECT_EQ(column(1), ";1;;3;;;;;");
}

TEST_F(GridBlock, ARangeThatIsPastedWhereItWasCopiedFromGivesTheSameCells) {
  paste(2, 1, "1\n2\n3\n4");
  screen.type(3, 3, U" 橋　");
  const std::string before = screen.state();
  for (const int left : {0, 1, 3}) {
    const std::string text = copy(1, left, 8, 3);
    ui::emptyBlock(grid);
    EXPECT_NE(screen.state(), before);
    ui::paste(grid, text);
    EXPECT_EQ(screen.state(), before) << "from column " << left;
  }
}

TEST_F(GridBlock, AnEmptyEndOfARangeIsPastedToo) {
  const std::string text = copy(4, 1, 8, 1);
  EXPECT_EQ(text, "\n\n\n\n\n") << "five rows";
  paste(2, 1, "1\n2\n3\n4");
  EXPECT_EQ(paste(4, 1, text), (BlockCount{3, 2}));
  EXPECT_EQ(column(1), ";1;;;;;;;");
}

TEST_F(GridBlock, ColumnsGoToColumnsAndHiddenOnesAreNone) {
  EXPECT_EQ(paste(2, 0, "x\t7\t橋\ny\t8\t坂"), (BlockCount{3, 3}));
  EXPECT_EQ(grid.text(2, 0) + grid.text(2, 1) + grid.text(2, 2) + grid.text(2, 3), "7橋");
  EXPECT_EQ(grid.text(3, 1), "");
  EXPECT_EQ(grid.text(3, 3), "坂");
}

TEST_F(GridBlock, ColumnsBeyondTheLastOneArePassedOver) {
  EXPECT_EQ(paste(2, 3, "橋\t1\t2\t3"), (BlockCount{1, 3}));
}

TEST_F(GridBlock, LinesOfOtherProgramsEndAsTheyLike) {
  EXPECT_EQ(paste(2, 1, "1\r\n2\r\n"), (BlockCount{2, 0}));
  EXPECT_EQ(paste(2, 1, "3\r4"), (BlockCount{2, 0}));
  EXPECT_EQ(column(1), ";3;;4;;;;;");
}

TEST_F(GridBlock, FiguresArriveHalfWidthAndWithoutBlanksInNumbersAlone) {
  paste(2, 1, " －１２．５　\t ５号 ");
  EXPECT_EQ(grid.text(2, 1), "-12.5");
  EXPECT_EQ(grid.text(2, 3), " ５号 ");
}

TEST_F(GridBlock, NothingComesFromAnEmptyText) {
  EXPECT_EQ(paste(2, 1, ""), BlockCount{});
  EXPECT_EQ(screen.history().undoName(), "");
}

TEST_F(GridBlock, NothingIsPastedIntoAGridThatIsOff) {
  grid.setEnabled(false);
  EXPECT_EQ(paste(2, 1, "1"), BlockCount{});
}

TEST_F(GridBlock, ThePastedCellsAreSelected) {
  paste(2, 1, "1\t橋\n\n3");
  EXPECT_EQ(grid.selection(), (ui::CellRange{2, 1, 4, 3}));
  EXPECT_EQ(grid.keyRow(), 2);
}

TEST_F(GridBlock, APasteBeginsAtTheTopLeftCellOfARangeHoweverItWasDrawn) {
  grid.moveTo(4, 3);
  grid.selectTo(2, 1);
  ui::paste(grid, "5");
  EXPECT_EQ(grid.text(2, 1), "5");
}

TEST_F(GridBlock, InAHighlightedRowACellIsPastedAtTheKeyCellAndARowAtItsBeginning) {
  grid.click(2, 3);
  grid.selectWholeRow();
  ui::paste(grid, "橋");
  EXPECT_EQ(grid.text(2, 3), "橋");
  grid.click(4, 3);
  grid.selectWholeRow();
  EXPECT_EQ(ui::paste(grid, "x\t6\t坂\t0"), (BlockCount{2, 2}));
  EXPECT_EQ(grid.text(4, 1) + grid.text(4, 3), "6坂");
}

TEST_F(GridBlock, IsTakenBackAsOneAct) {
  const std::string before = screen.state();
  paste(2, 1, "1\n2\n3\n4");
  EXPECT_EQ(screen.history().undo(), "貼り付け");
  EXPECT_EQ(screen.state(), before);
}

TEST_F(GridBlock, ComesToWhatTypingEachWithEnterComesTo) {
  test::BenchScreen typed(desktop);
  paste(2, 1, "1\n-2.5\n\n4");
  typed.type(2, 1, U"1\r");
  typed.type(4, 1, U"-2.5\r");
  typed.type(6, 1, U"\r");
  typed.type(8, 1, U"4\r");
  EXPECT_EQ(screen.state(), typed.state());
}

TEST_F(GridBlock, DeleteEmptiesTheEntriesOfTheSelection) {
  paste(2, 1, "1\t橋\n\t坂\n3\t川");
  grid.moveTo(1, 0);
  grid.selectTo(3, 4);
  screen.blocks.clear();
  EXPECT_EQ(ui::emptyBlock(grid), (BlockCount{4, 8}));  // of 3 x 4 cells: (2,1) and (1,3) to (3,3)
  EXPECT_EQ(column(1), ";;;3;;;;;");
  EXPECT_EQ(column(3), ";;;川;;;;;");
  EXPECT_EQ(grid.text(1, 0), "BM1");
  EXPECT_EQ(screen.blocks, std::vector<std::size_t>{3}) << "the one that was empty needs no Enter";
  EXPECT_EQ(screen.history().undo(), "削除");
  EXPECT_EQ(column(3), ";橋;坂;川;;;;;");
}

TEST_F(GridBlock, DeleteInAHighlightedRowEmptiesTheClickedCellAlone) {
  paste(2, 1, "1\t橋");
  grid.click(2, 1);
  grid.selectWholeRow();
  ui::emptyBlock(grid);
  EXPECT_EQ(grid.text(2, 1), "");
  EXPECT_EQ(grid.text(2, 3), "橋");
}

TEST_F(GridBlock, FillsTheFirstEntryDownwards) {
  paste(2, 1, "1\n2\n3\n4");
  grid.moveTo(3, 1);
  grid.selectTo(8, 1);
  screen.blocks.clear();
  EXPECT_EQ(ui::fillDown(grid), (BlockCount{2, 3}));
  EXPECT_EQ(column(1), ";1;;2;;2;;2;");
  EXPECT_EQ(column(4), ";1;;3;;5;;7;");
  EXPECT_EQ(screen.blocks, std::vector<std::size_t>{2});
  EXPECT_EQ(screen.history().undo(), "フィル");
}

TEST_F(GridBlock, ASingleRowIsFilledFromTheEntryAbove) {
  paste(2, 1, "9");
  grid.moveTo(6, 1);
  EXPECT_EQ(ui::fillDown(grid), (BlockCount{1, 0})) << "row 4 is empty and the next above";
  EXPECT_EQ(grid.text(6, 1), "");
  grid.moveTo(4, 1);
  ui::fillDown(grid);
  EXPECT_EQ(grid.text(4, 1), "9");
  grid.moveTo(2, 1);
  EXPECT_EQ(ui::fillDown(grid), BlockCount{}) << "nothing above the first";
  EXPECT_EQ(grid.text(2, 1), "9");
}

TEST_F(GridBlock, CopiesTheHeadingsWhereTheyAreSelected) {
  paste(2, 1, "1");
  grid.selectColumn(1);
  EXPECT_EQ(ui::copiedText(grid), "見出1\n\n1\n\n\n\n\n\n\n");
  grid.selectColumnsTo(3);
  EXPECT_EQ(ui::copiedText(grid).substr(0, 15), "見出1\t見出3");
  grid.moveTo(2, 1);
  grid.selectAll();
  EXPECT_EQ(ui::copiedText(grid).substr(0, 4), "BM1\t");
  EXPECT_EQ(grid.keyRow(), 2) << "keys go where they went";
  grid.selectAll();
  EXPECT_EQ(ui::copiedText(grid).substr(0, 8), "見出0\t");
  grid.moveTo(1, 0);
  EXPECT_EQ(ui::copiedText(grid), "BM1");
}

}  // namespace
