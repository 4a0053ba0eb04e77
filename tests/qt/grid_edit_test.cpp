#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>

#include "qt/cell_editor.h"
#include "qt/find_bar.h"
#include "qt/grid_desk.h"

namespace {

class GridEdit : public GridDesk {
 protected:
  qt::CellEditor& open(int row, int col) {
    grid_.setCurrent(row, col);
    settle();
    key(Qt::Key_F2);
    return *view_.editor();
  }
  void keyInLine(int code, Qt::KeyboardModifiers held = Qt::NoModifier, const QString& text = {}) {
    hands::key(*view_.editor(), code, text, held);
    settle();
  }
};

TEST_F(GridEdit, F2OpensTheKeyCellWithItsTextSelected) {
  const qt::CellEditor& line = open(2, 1);
  EXPECT_EQ(line.selectedText(), "2-1");
  EXPECT_TRUE(line.hasFocus());
  EXPECT_EQ(line.geometry().topLeft(), view_.visualRect(view_.indexOf(2, 1)).topLeft());
  EXPECT_FALSE(line.testAttribute(Qt::WA_InputMethodEnabled)) << "figures need none";
  EXPECT_TRUE(open(2, 4).testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(GridEdit, EnterTakesTheTextAndIsPressedInTheCell) {
  open(2, 1).setText("１２");
  keyInLine(Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_EQ(view_.editor(), nullptr);
  EXPECT_EQ(grid_.text(2, 1), "12");
  EXPECT_EQ(keys_, U"\r");
  EXPECT_TRUE(view_.hasFocus());
}

TEST_F(GridEdit, EscLeavesTheCellAsItWas) {
  hands::enter(open(2, 1), "99");
  keyInLine(Qt::Key_Escape);
  EXPECT_EQ(grid_.text(2, 1), "2-1");
  EXPECT_EQ(view_.undoName(), "");
  EXPECT_TRUE(view_.hasFocus());
}

TEST_F(GridEdit, TabAndArrowsTakeTheTextAndGoOn) {
  hands::enter(open(2, 1), "7");
  keyInLine(Qt::Key_Tab);
  EXPECT_EQ(grid_.text(2, 1), "7");
  EXPECT_EQ(where(), "2,4 to 2,4");
  hands::enter(open(2, 1), "8");
  keyInLine(Qt::Key_Down);
  EXPECT_EQ(grid_.text(2, 1), "8");
  EXPECT_EQ(where(), "3,1 to 3,1");
  EXPECT_EQ(keys_, U"") << "none of them is Enter";
}

TEST_F(GridEdit, GoingElsewhereTakesTheText) {
  hands::enter(open(2, 1), "7");
  hands::clickCell(view_, 5, 3);
  EXPECT_EQ(view_.editor(), nullptr);
  EXPECT_EQ(grid_.text(2, 1), "7");
  EXPECT_EQ(where(), "5,3 to 5,3");
}

TEST_F(GridEdit, KeysThatTheLineHasNoUseForDoNotReachTheTable) {
  open(2, 1);
  keyInLine(Qt::Key_PageDown);
  keyInLine(Qt::Key_F2);
  ASSERT_NE(view_.editor(), nullptr);
  EXPECT_EQ(where(), "2,1 to 2,1");
}

TEST_F(GridEdit, HandsEditACell) {
  hands::editCell(view_, {3, 4}, "橋の上");
  EXPECT_EQ(grid_.text(3, 4), "橋の上");
  hands::editCell(view_, {3, 4}, "");
  EXPECT_EQ(grid_.text(3, 4), "");
}

class GridFind : public GridDesk {
 protected:
  QString result() { return view_.findBar().findChild<QLabel*>("findResult")->text(); }
  QLineEdit& line() { return *view_.findBar().findChild<QLineEdit*>("findText"); }
};

TEST_F(GridFind, CtrlFOpensABarUnderTheTableThatTakesNoRowAway) {
  EXPECT_FALSE(view_.findBar().isVisible());
  key(Qt::Key_F, Qt::ControlModifier);
  settle();
  EXPECT_TRUE(view_.findBar().isVisible());
  EXPECT_TRUE(line().hasFocus());
  view_.scrollToBottom();
  const int lastRow =
      view_.viewport()->mapTo(&view_, view_.visualRect(view_.indexOf(12, 1)).bottomLeft()).y();
  EXPECT_LT(lastRow, view_.findBar().geometry().top());
}

TEST_F(GridFind, EnterAndF3GoToTheNextCellAndEscBackToTheTable) {
  key(Qt::Key_F, Qt::ControlModifier);
  hands::enter(line(), "１-４");
  hands::key(line(), Qt::Key_Return, "\r");
  EXPECT_EQ(where(), "1,4 to 1,4");
  hands::key(line(), Qt::Key_F3);
  EXPECT_EQ(where(), "11,4 to 11,4");
  hands::key(line(), Qt::Key_F3, {}, Qt::ShiftModifier);
  EXPECT_EQ(where(), "1,4 to 1,4");
  hands::key(line(), Qt::Key_Escape);
  EXPECT_FALSE(view_.findBar().isVisible());
  EXPECT_TRUE(view_.hasFocus());
  key(Qt::Key_F3);
  EXPECT_EQ(where(), "11,4 to 11,4") << "also when the bar is closed";
}

TEST_F(GridFind, SaysWhenThereIsNone) {
  key(Qt::Key_F, Qt::ControlModifier);
  hands::enter(line(), "無い");
  hands::key(line(), Qt::Key_Return, "\r");
  EXPECT_EQ(result(), "見つかりません");
  hands::enter(line(), "1-0");
  EXPECT_EQ(result(), "");
}

TEST_F(GridDesk, AWrongTextIsShownWithItsReason) {
  grid_.setContent(1, ui::Content::Number);
  const QModelIndex cell = view_.indexOf(2, 1);
  EXPECT_EQ(cell.data(Qt::ToolTipRole).toString(), "数値ではありません");
  grid_.setText(2, 1, "2.1");
  EXPECT_EQ(cell.data(Qt::ToolTipRole).toString(), "");
}

TEST_F(GridDesk, TheMenuNamesTheActThatItTakesBack) {
  auto& item = *open_.window().findChild<QAction*>("editUndo");
  EXPECT_EQ(hands::pressNamed(item), "");
  grid_.setCurrent(2, 1);
  key(Qt::Key_5, Qt::NoModifier, "5");
  EXPECT_EQ(hands::pressNamed(item), "入力");
  EXPECT_EQ(grid_.text(2, 1), "2-1");
  EXPECT_EQ(hands::pressNamed(*open_.window().findChild<QAction*>("editRedo")), "入力");
  EXPECT_EQ(grid_.text(2, 1), "2-15");
}

TEST_F(GridDesk, TheMenuStandsBehindTheFirstOne) {
  const QList<QAction*> menus = open_.window().menuBar()->actions();
  ASSERT_GE(menus.size(), 2);
  EXPECT_EQ(menus[1]->text(), "編集(&E)");
}

}  // namespace
