#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>

#include "hands/reading.h"
#include "qt/grid_desk.h"

namespace {

class GridViewTest : public GridDesk {
 protected:
  /// The colour of a cell's ground, beside its text.
  QColor ground(int row, int col) {
    const QRect place = view_.visualRect(view_.indexOf(row, col));
    return view_.viewport()->grab().toImage().pixelColor(place.center().x(), place.top() + 3);
  }
};

TEST_F(GridViewTest, HidesColumnsOfNoWidthAndStretchesTheLast) {
  EXPECT_TRUE(view_.isColumnHidden(2));
  EXPECT_EQ(view_.columnWidth(0), 60);  // 900 twips
  grid_.setSize(7500, 3000);
  settle();
  EXPECT_EQ(view_.columnWidth(4), view_.viewport()->width() - 3 * 60);
  grid_.setSize(2250, 3000);
  settle();
  EXPECT_EQ(view_.columnWidth(4), 60) << "never less than its own width";
}

TEST_F(GridViewTest, AWiderColumnIsStretchedInsteadOfTheLast) {
  grid_.setColWidth(1, 1200);
  grid_.setSize(7500, 3000);
  settle();
  EXPECT_EQ(view_.columnWidth(4), 60);
  EXPECT_EQ(view_.columnWidth(1), view_.viewport()->width() - 3 * 60);
}

TEST_F(GridViewTest, AHiddenLastColumnLeavesTheRoomToTheOneBefore) {
  grid_.setColWidth(4, 0);
  grid_.setSize(7500, 3000);
  settle();
  EXPECT_TRUE(view_.isColumnHidden(4));
  EXPECT_EQ(view_.columnWidth(3), view_.viewport()->width() - 2 * 60);
}

// Columns 0, 1, 3 and 4 of 60 pixels each make 240: as wide as the grid, they make room for its frame and its
// scroll bar.
TEST_F(GridViewTest, AGridAsWideAsItsColumnsShowsThemAll) {
  grid_.setSize(3600, 1500);
  settle();
  EXPECT_LT(view_.viewport()->width(), 240);
  EXPECT_EQ(view_.horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(view_.columnWidth(4), view_.viewport()->width() - 3 * 60);
}

TEST_F(GridViewTest, HeaderIsTheFirstRowAndStaysInView) {
  EXPECT_EQ(view_.model()->headerData(1, Qt::Horizontal).toString(), "見出1");
  view_.scrollToBottom();
  EXPECT_TRUE(view_.horizontalHeader()->isVisible());
  EXPECT_EQ(view_.indexOf(1, 0).row(), 0);
}

TEST_F(GridViewTest, FilledAnewItShowsItsTop) {
  view_.scrollToBottom();
  EXPECT_GT(view_.verticalScrollBar()->value(), 0);
  grid_.setRows(2);
  grid_.setRows(30);
  settle();
  EXPECT_EQ(view_.verticalScrollBar()->value(), 0);
}

TEST_F(GridViewTest, RowsThatAreAddedLeaveThePlaceAlone) {
  view_.verticalScrollBar()->setValue(3);
  grid_.addItem("新");
  settle();
  EXPECT_EQ(view_.verticalScrollBar()->value(), 3);
}

TEST_F(GridViewTest, RowHeightIsTheFontsOrTheGrids) {
  EXPECT_GT(view_.rowHeight(0), view_.fontMetrics().height());
  grid_.setRowHeight(450);
  settle();
  EXPECT_EQ(view_.rowHeight(0), 30);
}

TEST_F(GridViewTest, CellsToTypeIntoAreWhiteTheOthersGrey) {
  grid_.setCurrent(5, 0);
  settle();
  EXPECT_EQ(ground(1, 1), QColor(Qt::white));
  EXPECT_LT(ground(1, 0).lightness(), 255);
  EXPECT_GT(ground(1, 0).lightness(), 220) << "slightly";
}

// The view keeps what it painted until it is told; so the model must tell.
TEST_F(GridViewTest, CellsThatBecomeTypeableAreShownSoAtOnce) {
  bool known = false;
  grid_.setCellUse(
      [&](int, int col) { return known && col == 3 ? ui::CellUse::Number : ui::CellUse::Shown; });
  grid_.setCurrent(5, 0);
  settle();
  EXPECT_LT(ground(1, 3).lightness(), 255);
  const QSignalSpy told(view_.model(), &QAbstractItemModel::dataChanged);
  known = true;
  settle();
  EXPECT_EQ(told.count(), 0);
  grid_.usesChanged();
  settle();
  EXPECT_GE(told.count(), 1);
  EXPECT_EQ(ground(1, 3), QColor(Qt::white));
}

TEST_F(GridViewTest, ASelectedRowIsTintedAndTheKeyCellFramed) {
  grid_.setSize(7500, 3000);
  grid_.setCurrent(2, 1);
  grid_.selectWholeRow();
  settle();
  EXPECT_NE(ground(2, 0), ground(1, 0));
  EXPECT_NE(ground(2, 4), ground(1, 4));
  const QImage picture = view_.viewport()->grab().toImage();
  const QRect key = view_.visualRect(view_.indexOf(2, 1));
  EXPECT_NE(picture.pixelColor(key.left() + 1, key.center().y()), ground(2, 1));
}

TEST_F(GridViewTest, ReadsTheSelectionFromTheView) {
  grid_.setCurrent(4, 3);
  grid_.selectTo(2, 0);
  settle();
  const script::Reading seen = hands::readShown(grid_, view_);
  EXPECT_EQ(seen.rows, 13);
  EXPECT_EQ(seen.cols, 5);
  EXPECT_EQ(seen.row, 4);
  EXPECT_EQ(seen.col, 3);
  EXPECT_EQ(seen.rowSel, 2);
  EXPECT_EQ(seen.colSel, 0);
  EXPECT_EQ(seen.cell(0, 4), "見出4");
  EXPECT_EQ(seen.cell(12, 2), "12-2");
}

}  // namespace
