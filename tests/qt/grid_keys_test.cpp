#include <QHeaderView>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include "qt/grid_desk.h"

namespace {

using GridKeys = GridDesk;

TEST_F(GridKeys, ArrowsSkipHiddenColumnsAndHeaders) {
  grid_.setCurrent(1, 1);
  key(Qt::Key_Right);
  EXPECT_EQ(where(), "1,3 to 1,3");
  key(Qt::Key_Up);
  EXPECT_EQ(where(), "1,3 to 1,3") << "the header is no place to go";
  key(Qt::Key_Left);
  key(Qt::Key_Down);
  EXPECT_EQ(where(), "2,1 to 2,1");
  EXPECT_EQ(clicks_, 0);
}

TEST_F(GridKeys, HomeAndEndGoAlongTheRowAndWithCtrlThroughTheGrid) {
  grid_.setCurrent(5, 1);
  key(Qt::Key_End);
  EXPECT_EQ(where(), "5,4 to 5,4");
  key(Qt::Key_Home);
  EXPECT_EQ(where(), "5,0 to 5,0");
  key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(where(), "12,4 to 12,4");
  key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(where(), "1,0 to 1,0");
}

TEST_F(GridKeys, PagesStayWithinTheGridAndBringTheCellIntoView) {
  grid_.setCurrent(2, 1);
  key(Qt::Key_PageDown);
  EXPECT_GT(grid_.row(), 2);
  EXPECT_LT(grid_.row(), 12);
  for (int i = 0; i < 12; ++i) key(Qt::Key_PageDown);
  EXPECT_EQ(grid_.row(), 12);
  EXPECT_TRUE(view_.viewport()->rect().contains(view_.visualRect(view_.indexOf(12, 1))));
  for (int i = 0; i < 12; ++i) key(Qt::Key_PageUp);
  EXPECT_EQ(grid_.row(), 1);
}

TEST_F(GridKeys, ShiftStretchesTheSelection) {
  grid_.setCurrent(3, 1);
  key(Qt::Key_Down, Qt::ShiftModifier);
  key(Qt::Key_Right, Qt::ShiftModifier);
  key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(where(), "3,1 to 5,3");
  key(Qt::Key_Down);
  EXPECT_EQ(where(), "4,1 to 4,1") << "goes on from the cell that has the keys";
}

TEST_F(GridKeys, CharactersEnterAndBackspaceReachTheGrid) {
  grid_.setCurrent(1, 1);
  key(Qt::Key_5, Qt::NoModifier, "5");
  key(Qt::Key_Minus, Qt::KeypadModifier, "-");
  key(Qt::Key_Backspace, Qt::NoModifier, "\b");
  key(Qt::Key_Return, Qt::NoModifier, "\r");
  key(Qt::Key_Enter, Qt::KeypadModifier, "\r");
  EXPECT_EQ(keys_, U"5-\b\r\r");
  EXPECT_EQ(grid_.text(1, 1), "1-15");
}

TEST_F(GridKeys, ShortcutsAreNoText) {
  key(Qt::Key_S, Qt::ControlModifier, "\x13");
  key(Qt::Key_F, Qt::AltModifier, "f");
  key(Qt::Key_Escape, Qt::NoModifier, "\x1b");
  EXPECT_EQ(keys_, U"");
  key(Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@");
  EXPECT_EQ(keys_, U"@") << "AltGr writes";
}

TEST_F(GridKeys, DeleteEmptiesTheEntriesOfTheSelectionAtOnce) {
  grid_.setCurrent(2, 1);
  grid_.selectTo(3, 4);
  key(Qt::Key_Delete);
  EXPECT_EQ(grid_.text(2, 1) + grid_.text(3, 1) + grid_.text(2, 4) + grid_.text(3, 4), "");
  EXPECT_EQ(grid_.text(2, 3), "2-3");
  EXPECT_EQ(keys_, U"") << "no keys are typed for it";
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(grid_.text(2, 1), "2-1");
  key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(grid_.text(2, 1), "");
}

TEST_F(GridKeys, EscTakesBackWhatWasTyped) {
  grid_.setCurrent(2, 1);
  key(Qt::Key_5, Qt::NoModifier, "5");
  key(Qt::Key_6, Qt::NoModifier, "6");
  key(Qt::Key_Escape);
  EXPECT_EQ(grid_.text(2, 1), "2-1");
}

TEST_F(GridKeys, CtrlDFillsDownwards) {
  grid_.setCurrent(2, 1);
  grid_.selectTo(4, 1);
  key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(grid_.text(3, 1) + grid_.text(4, 1), "2-12-1");
}

TEST_F(GridKeys, InputMethodsComeInWhereTextMayBeTyped) {
  grid_.setCurrent(1, 4);
  settle();
  EXPECT_TRUE(view_.inputMethodQuery(Qt::ImEnabled).toBool());
  compose("びこう", {});
  EXPECT_EQ(view_.preedit(), "びこう");
  EXPECT_EQ(keys_, U"") << "nothing before it is given";
  compose({}, "備考𠮷");
  EXPECT_EQ(keys_, U"備考𠮷");
  EXPECT_EQ(grid_.text(1, 4), "1-4備考𠮷");
  EXPECT_EQ(view_.preedit(), "");
}

TEST_F(GridKeys, InputMethodsStayOutOfFigures) {
  grid_.setCurrent(1, 1);
  settle();
  EXPECT_FALSE(view_.inputMethodQuery(Qt::ImEnabled).toBool());
  EXPECT_FALSE(view_.testAttribute(Qt::WA_InputMethodEnabled));
  compose({}, "５");
  EXPECT_EQ(grid_.text(1, 1), "1-1");
}

TEST_F(GridKeys, TabGoesFromEntryToEntryAndOutBehindTheLast) {
  open_.window().findingsPane()->hide();
  QLineEdit elsewhere(open_.window().centralWidget());
  elsewhere.show();
  grid_.setCurrent(11, 1);
  key(Qt::Key_Tab, Qt::NoModifier, "\t");
  EXPECT_EQ(where(), "11,4 to 11,4");
  key(Qt::Key_Tab, Qt::NoModifier, "\t");
  EXPECT_EQ(where(), "12,1 to 12,1");
  EXPECT_TRUE(view_.viewport()->rect().contains(view_.visualRect(view_.indexOf(12, 1))));
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(where(), "11,4 to 11,4");
  grid_.setCurrent(12, 4);
  key(Qt::Key_Tab, Qt::NoModifier, "\t");
  EXPECT_EQ(open_.window().focusWidget(), &elsewhere);
  EXPECT_EQ(where(), "12,4 to 12,4");
  EXPECT_EQ(keys_, U"");
}

TEST_F(GridKeys, TabLeavesATableWithoutEntriesAndPassesTheHeadersOfPagesBy) {
  open_.window().findingsPane()->hide();
  grid_.setCellUse([](int, int) { return ui::CellUse::Shown; });
  QLineEdit elsewhere(open_.window().centralWidget());
  elsewhere.show();
  key(Qt::Key_Tab, Qt::NoModifier, "\t");
  EXPECT_EQ(open_.window().focusWidget(), &elsewhere);
  hands::key(elsewhere, Qt::Key_Tab, "\t");
  EXPECT_EQ(open_.window().focusWidget(), &view_) << "and not a header in between";
}

TEST_F(GridKeys, CtrlTabTurnsThePage) {
  auto& pages = open_.widget<QTabWidget>(open_.screen.SSTab1);
  QApplication::setActiveWindow(&open_.window());
  QTest::keyClick(&view_, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(pages.currentIndex(), 1);
  QTest::keyClick(open_.window().focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(pages.currentIndex(), 0);
}

TEST_F(GridKeys, AfterAClickThatMarksTheRowKeysGoToTheClickedCell) {
  grid_.onClick.handle([this] {
    ui::Grid& grid = grid_;
    grid.selectWholeRow();
  });
  hands::clickCell(view_, 3, 1);
  EXPECT_EQ(where(), "3,0 to 3,4");
  EXPECT_TRUE(view_.isKeyCell(view_.indexOf(3, 1)));
  key(Qt::Key_7, Qt::NoModifier, "7");
  EXPECT_EQ(grid_.text(3, 1), "3-17");
  key(Qt::Key_Right);
  EXPECT_EQ(where(), "3,3 to 3,3");
}

}  // namespace
