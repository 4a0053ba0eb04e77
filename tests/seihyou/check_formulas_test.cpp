#include "seihyou/check_formulas.h"

#include <gtest/gtest.h>

#include <map>

#include "report/check.h"
#include "seihyou/calculation.h"
#include "seihyou/grid_maker.h"
#include "seihyou/tables.h"
#include "seihyou/through_means.h"

namespace {

const job::Grade first(1);

/// What the check shows beside each row of the grid.
std::map<int, double> differences(const ui::Grid& grid) {
  const report::Document document = seihyou::tables(grid, first, "01A00101");
  const auto results = report::checked(gathered(document), document.check);
  std::map<int, double> byRow;
  for (std::size_t i = 0; i < results.size(); ++i)
    byRow[document.check.cells[i].row + 1] = results[i].difference;
  return byRow;
}

void expectNone(const ui::Grid& grid) {
  for (const auto& [row, difference] : differences(grid)) EXPECT_EQ(difference, 0) << row;
}

/// A to B there and back and there again; the route ends at B.
void layPair(ui::Grid& grid) {
  test::GridMaker(grid)
      .benchMark("A", "20.0000")
      .section("2.0000", "8")
      .benchMark("B", "22.0000", "-2")
      .section("")
      .benchMark("A", "20.0000")
      .section("2.0020", "")
      .benchMark("B", "22.0020", "-2")
      .section("")
      .benchMark("B", "22.0010", "-1");
}

constexpr int endRow = 9;

// Calculated, the end is 22.0020 + 2.0020 = 24.0040; through the means of 22.0008 and 22.0020, 22.0014.
TEST(CheckFormulas, TheEndBehindAPairIsReckonedTheWayItWasCalculated) {
  ui::Grid grid;
  layPair(grid);
  seihyou::FcCalcSeihyou(grid, 2, first);
  EXPECT_EQ(grid.text(endRow, seihyou::colResult), "24.0040");
  expectNone(grid);
  seihyou::calcThroughMeans(grid, first);
  EXPECT_EQ(grid.text(endRow, seihyou::colResult), "22.0014");
  expectNone(grid);
  grid.setText(endRow, seihyou::colResult, "22.0015");  // typed over: 22.0015 − 24.0040
  EXPECT_EQ(differences(grid)[endRow], -2.0025);
}

// Two sections of 1.00005: calculated, the end is 10 + 2.0001 = 12.0001. Only 11.0001 has been saved, so
// reopened it is 11.0001 + 1.00005 = 12.00015, shown as 12.0002.
TEST(CheckFormulas, TheEndOfAReopenedRouteFollowsFromTheHeightShownBefore) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "10.0000")
      .section("1.0000", "0.5")
      .benchMark("B")
      .section("1.0000", "0.5")
      .benchMark("C", "", "-1");
  seihyou::FcCalcSeihyou(grid, 2, first);
  EXPECT_EQ(grid.text(3, seihyou::colResult), "11.0001");
  EXPECT_EQ(grid.text(5, seihyou::colResult), "12.0001");
  expectNone(grid);
  grid.setText(5, seihyou::colResult, "12.0002");
  expectNone(grid);
  grid.setText(5, seihyou::colResult, "12.0003");
  EXPECT_EQ(differences(grid)[5], 0.0002);
}

}  // namespace
