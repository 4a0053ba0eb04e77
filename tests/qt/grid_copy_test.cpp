#include <QClipboard>
#include <QLabel>
#include <algorithm>

#include "qt/grid_desk.h"

namespace {

class GridCopy : public GridDesk {
 protected:
  std::string copied() {
    key(Qt::Key_C, Qt::ControlModifier, "\x03");
    return QApplication::clipboard()->text().toStdString();
  }
};

TEST_F(GridCopy, OneCell) {
  grid_.setCurrent(4, 1);
  EXPECT_EQ(copied(), "4-1");
  EXPECT_EQ(keys_, U"");
}

TEST_F(GridCopy, RowsWithTabsBetweenTheVisibleColumns) {
  grid_.setCurrent(2, 0);
  grid_.selectWholeRow();
  grid_.selectTo(3, 4);
  EXPECT_EQ(copied(), "2-0\t2-1\t2-3\t2-4\n3-0\t3-1\t3-3\t3-4");
}

TEST_F(GridCopy, ARangeDrawnUpwardsIsCopiedDownwards) {
  grid_.setCurrent(3, 1);
  grid_.selectTo(2, 0);
  EXPECT_EQ(copied(), "2-0\t2-1\n3-0\t3-1");
}

TEST_F(GridCopy, BreaksWithinACellDoNotBreakTheTable) {
  grid_.setText(1, 4, "上\t下\n左");
  grid_.setCurrent(1, 4);
  EXPECT_EQ(copied(), "上 下 左");
}

TEST_F(GridCopy, CtrlAMarksEverything) {
  key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(where(), "1,0 to 12,4");
}

TEST_F(GridCopy, CtrlATwiceTakesTheHeadingsToo) {
  key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(copied().starts_with("1-0\t1-1\t1-3"));
  key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(copied().starts_with("見出0\t見出1\t見出3\t見出4\n1-0"));
}

class GridPaste : public GridDesk {
 protected:
  void paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    key(Qt::Key_V, Qt::ControlModifier, "\x16");
  }
};

TEST_F(GridPaste, LinesGoDownTheColumnAsOneAct) {
  grid_.setCurrent(2, 1);
  paste("12\r\n-3\r\n\r\n7\r\n");
  EXPECT_EQ(grid_.text(2, 1), "12");
  EXPECT_EQ(grid_.text(3, 1), "-3");
  EXPECT_EQ(grid_.text(4, 1), "") << "an empty line empties its entry";
  EXPECT_EQ(grid_.text(5, 1), "7");
  EXPECT_EQ(grid_.text(6, 1), "6-1");
  EXPECT_EQ(view_.undoName(), "貼り付け");
  EXPECT_EQ(keys_, U"");
}

TEST_F(GridPaste, CellsThatTakeNoKeysArePassedOver) {
  grid_.setCellUse(
      [](int row, int col) { return col == 1 && row % 2 == 0 ? ui::CellUse::Number : ui::CellUse::Shown; });
  grid_.setCurrent(2, 1);
  paste("5\n6");
  EXPECT_EQ(grid_.text(3, 1), "3-1");
  EXPECT_EQ(grid_.text(4, 1), "6");
}

TEST_F(GridPaste, StopsAtTheLastEntry) {
  grid_.setCurrent(12, 1);
  paste("1\n2\n3");
  EXPECT_EQ(grid_.text(12, 1), "1");
  EXPECT_EQ(grid_.rows(), 13);
}

TEST_F(GridPaste, SaysWhatWasTakenAndWhatWasPassedOver) {
  const auto& note = *view_.findChild<QLabel*>("gridNote");
  EXPECT_FALSE(note.isVisible());
  grid_.setCurrent(2, 0);
  paste("9\t8");
  EXPECT_EQ(grid_.text(2, 0), "2-0");
  EXPECT_EQ(grid_.text(2, 1), "8");
  EXPECT_TRUE(note.isVisible());
  EXPECT_EQ(note.text(), "1 個のセルに入力しました。 1 個は飛ばしました。");
}

}  // namespace
