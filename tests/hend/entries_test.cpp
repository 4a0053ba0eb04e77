#include "hend/entries.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hend/grid_maker.h"

namespace {

using Columns = std::vector<int>;
using test::VariationGrid;

/// E1 with its section, the repeated point E2, the route end E3.
VariationGrid route() {
  VariationGrid made;
  made.add("E1", "2022/05/11", "1.5000", "2019/08/15", "1.4900");
  made.add("E2", "2022/05/11", "", "2019/08/15", "", "-2");
  made.end("E3");
  return made;
}

Columns entries(const VariationGrid& made, int row) {
  Columns cols;
  for (int col = hend::colNewDate; col <= hend::colRemark; ++col)
    if (hend::isEntry(made.grid, row, col)) cols.push_back(col);
  return cols;
}

const Columns ofBenchMarks = {hend::colNewDate, hend::colOldDate, hend::colDaysNewOld, hend::colDaysReference,
                              hend::colRemark};
const Columns ofSections = {hend::colNewHeight,  hend::colOldHeight, hend::colDifference, hend::colRate,
                            hend::colCorrection, hend::colResult,    hend::colRemark};

TEST(VariationEntries, EveryValueIsEnteredInItsOwnRow) {
  const VariationGrid made = route();
  EXPECT_EQ(entries(made, 1), ofBenchMarks);
  EXPECT_EQ(entries(made, 2), ofSections);
  EXPECT_EQ(entries(made, 3), ofBenchMarks);
  EXPECT_EQ(entries(made, 4), ofSections);
}

TEST(VariationEntries, ARouteEndTakesItsRemarkAlone) {
  const VariationGrid made = route();
  EXPECT_EQ(entries(made, 5), Columns{hend::colRemark});
  EXPECT_EQ(entries(made, 6), Columns{});
}

TEST(VariationEntries, CorrectionLeadsToCorrectionAcrossRouteEnds) {
  VariationGrid made = route();
  made.add("F1", "", "", "", "");
  EXPECT_EQ(hend::nextCorrectionRow(made.grid, 1), 2);
  EXPECT_EQ(hend::nextCorrectionRow(made.grid, 2), 4);
  EXPECT_EQ(hend::nextCorrectionRow(made.grid, 4), 8) << "past the route end on rows 5 and 6";
  EXPECT_EQ(hend::nextCorrectionRow(made.grid, 8), 8);
}

}  // namespace
