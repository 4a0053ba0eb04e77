#include "route/filler.h"

#include <gtest/gtest.h>

#include "text/error.h"

namespace {

TEST(RowPairs, StandBelowEachOtherWithOrWithoutASection) {
  ui::Grid grid;
  grid.setCols(1);
  grid.setRows(2);
  route::RowPairs rows(grid);
  ASSERT_TRUE(rows.addPair());
  rows.benchMark(0, "A");
  rows.section(0, "A-B");
  ASSERT_TRUE(rows.addBenchMark());  // a route end
  rows.benchMark(0, "B");
  ASSERT_TRUE(rows.addBenchMark());
  rows.benchMark(0, "C");
  EXPECT_EQ(grid.rows(), 5);
  EXPECT_EQ(grid.text(1, 0) + "|" + grid.text(2, 0) + "|" + grid.text(3, 0) + "|" + grid.text(4, 0),
            "A|A-B|B|C");
  EXPECT_EQ(rows.shownAtBenchMark(0), "C");
  EXPECT_EQ(rows.shownAtSection(0), "A-B");
  EXPECT_EQ(grid.row(), 4);
}

// 32,766 rows below the header are 16,383 pairs.
TEST(RowPairs, FindNoRoomInAFullGrid) {
  ui::Grid grid;
  route::RowPairs rows(grid);
  for (int pair = 1; pair <= 16383; ++pair) ASSERT_TRUE(rows.addPair());
  EXPECT_THROW(rows.addBenchMark(), text::RuntimeError);  // no desktop to report to
  EXPECT_EQ(grid.rows(), 32767);
}

}  // namespace
