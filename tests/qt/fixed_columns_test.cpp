#include "qt/fixed_columns.h"

#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QTest>

#include "qt/grid_desk.h"

namespace {

/// Column 0 is fixed; the columns need 240 pixels and have 150.
class FixedColumnsTest : public GridDesk {
 protected:
  FixedColumnsTest() {
    grid_.setFixed(1, 1);
    grid_.setSize(2250, 2250);
    settle();
  }

  qt::FixedColumns* fixed() { return view_.findChild<qt::FixedColumns*>(); }
  void scrollSideways(int pixels) {
    view_.horizontalScrollBar()->setValue(pixels);
    settle();
  }

  /// What stands at the left of the view, header and cells.
  QImage leftEdge() {
    const QRect cells = view_.viewport()->geometry();
    return view_.grab(QRect(cells.left(), 0, 55, cells.bottom())).toImage();
  }
};

TEST_F(FixedColumnsTest, TheFirstColumnLooksTheSameHoweverFarTheViewIsScrolled) {
  ASSERT_GT(view_.horizontalScrollBar()->maximum(), 60);
  const QImage before = leftEdge();
  scrollSideways(70);
  EXPECT_TRUE(fixed()->isVisible());
  EXPECT_EQ(leftEdge(), before);
  scrollSideways(0);
  EXPECT_FALSE(fixed()->isVisible()) << "then it stands in its place anyway";
}

TEST_F(FixedColumnsTest, ItsRowsAreThoseOfTheView) {
  scrollSideways(70);
  view_.verticalScrollBar()->setValue(4);
  EXPECT_EQ(fixed()->rowAt(0), view_.rowAt(0));
  EXPECT_EQ(fixed()->verticalScrollBar()->value(), 4);
  fixed()->verticalScrollBar()->setValue(2);
  EXPECT_EQ(view_.verticalScrollBar()->value(), 2) << "a wheel above it scrolls both";
}

TEST_F(FixedColumnsTest, AChangedCellAndAChangedWidthAreSeen) {
  scrollSideways(70);
  const QImage before = leftEdge();
  grid_.setText(1, 0, "新");
  settle();
  EXPECT_NE(leftEdge(), before);
  view_.setColumnWidth(0, 80);
  EXPECT_EQ(fixed()->width(), 80);
}

// Going back to column 1 with the keyboard, it comes out from under the fixed one.
TEST_F(FixedColumnsTest, TheKeyCellNeverHidesUnderIt) {
  grid_.moveTo(2, 1);
  key(Qt::Key_End);
  EXPECT_GT(view_.horizontalScrollBar()->value(), 0);
  key(Qt::Key_Left);
  key(Qt::Key_Left);
  EXPECT_EQ(where(), "2,1 to 2,1");
  EXPECT_GE(view_.visualRect(view_.indexOf(2, 1)).left(), 60);
}

TEST_F(FixedColumnsTest, AClickOnItIsNoneOnTheCellBelow) {
  grid_.moveTo(5, 4);
  scrollSideways(70);
  QTest::mouseClick(fixed()->viewport(), Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_EQ(where(), "5,4 to 5,4");
  QTest::mouseClick(view_.viewport(), Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_EQ(where(), "5,4 to 5,4");
  EXPECT_EQ(clicks_, 0);
}

TEST_F(FixedColumnsTest, AViewTooNarrowForAnythingElseScrollsWhole) {
  grid_.setSize(900, 2250);
  scrollSideways(70);
  EXPECT_FALSE(fixed()->isVisible());
}

TEST_F(FixedColumnsTest, WithoutFixedColumnsThereIsNothingOverTheView) {
  grid_.setFixed(1, 0);
  settle();
  scrollSideways(70);
  EXPECT_FALSE(fixed()->isVisible());
}

}  // namespace
