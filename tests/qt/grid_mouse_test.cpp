#include <QHeaderView>
#include <QMouseEvent>

#include "qt/cell_editor.h"
#include "qt/grid_desk.h"

namespace {

class GridMouse : public GridDesk {
 protected:
  QPoint middle(int row, int col) { return view_.visualRect(view_.indexOf(row, col)).center(); }
  void mouse(QEvent::Type type, const QPoint& at, Qt::MouseButtons held = Qt::LeftButton) {
    QMouseEvent event(type, at, view_.viewport()->mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(view_.viewport(), &event);
  }
};

TEST_F(GridMouse, AClickIsOneClick) {
  hands::clickCell(view_, 2, 3);
  EXPECT_EQ(where(), "2,3 to 2,3");
  EXPECT_EQ(clicks_, 1);
}

TEST_F(GridMouse, ADragMarksARangeAndIsNoClick) {
  mouse(QEvent::MouseButtonPress, middle(1, 0));
  mouse(QEvent::MouseMove, middle(2, 1));
  mouse(QEvent::MouseMove, middle(3, 3));
  mouse(QEvent::MouseButtonRelease, middle(3, 3), Qt::NoButton);
  EXPECT_EQ(where(), "1,0 to 3,3");
  EXPECT_EQ(clicks_, 0);
}

TEST_F(GridMouse, LettingGoElsewhereIsNoClick) {
  mouse(QEvent::MouseButtonPress, middle(1, 0));
  mouse(QEvent::MouseButtonRelease, middle(2, 0), Qt::NoButton);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(GridMouse, ADoubleClickOpensTheCell) {
  hands::clickCell(view_, 1, 1);
  mouse(QEvent::MouseButtonDblClick, middle(1, 1));
  mouse(QEvent::MouseButtonRelease, middle(1, 1), Qt::NoButton);
  EXPECT_EQ(clicks_, 1);
  ASSERT_NE(view_.editor(), nullptr);
  EXPECT_EQ(view_.editor()->selectedText(), "1-1");
}

TEST_F(GridMouse, ADoubleClickOnACellThatTakesNoKeysOpensNothing) {
  hands::clickCell(view_, 1, 0);
  mouse(QEvent::MouseButtonDblClick, middle(1, 0));
  mouse(QEvent::MouseButtonRelease, middle(1, 0), Qt::NoButton);
  EXPECT_EQ(view_.editor(), nullptr);
}

TEST_F(GridMouse, APressOnAHeadingMarksItsColumnWithIt) {
  QHeaderView& header = *view_.horizontalHeader();
  const QPoint on(header.sectionViewportPosition(1) + 10, header.height() / 2);
  hands::click(*header.viewport(), on);
  EXPECT_EQ(where(), "1,1 to 12,1");
  EXPECT_TRUE(view_.selectedText().startsWith("見出1\n1-1\n"));
  hands::clickCell(view_, 2, 1);
  EXPECT_EQ(view_.selectedText(), "2-1");
}

TEST_F(GridMouse, HandsSelectARangeWithoutAClick) {
  hands::selectCells(view_, {2, 1}, {12, 4});
  EXPECT_EQ(where(), "2,1 to 12,4");
  hands::selectCells(view_, {3, 1}, {3, 1});
  EXPECT_EQ(where(), "3,1 to 3,1");
  EXPECT_EQ(clicks_, 0);
}

TEST_F(GridMouse, ReachesCellsOutOfView) {
  hands::clickCell(view_, 12, 4);
  EXPECT_EQ(where(), "12,4 to 12,4");
  EXPECT_EQ(clicks_, 1);
}

}  // namespace
