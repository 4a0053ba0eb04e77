#include "tanrosen/tables.h"

#include <gtest/gtest.h>

#include "report/check.h"
#include "tanrosen/calculation.h"
#include "tanrosen/columns.h"

namespace {

/// A 100 known, B, C known: distances 1 and 2 km, differences +1.2345 and −0.5, in first grade. Observed
/// heights 101.2345 and 100.7345; C known at `known`.
class PrintedClosures : public testing::Test {
 protected:
  void lay(const char* known) {
    grid.setCols(tanrosen::columnCount);
    grid.setRows(7);
    const auto benchMark = [this](int row, const char* name, const char* distance, const char* height) {
      grid.setText(row, tanrosen::colBenchMark, name);
      grid.setText(row, tanrosen::colDistance, distance);
      grid.setText(row, tanrosen::colHeight, height);
    };
    benchMark(1, "A", "1", "100.0000");
    benchMark(3, "B", "2", "101.2345");
    benchMark(5, "C", "", "100.7345");
    grid.setText(2, tanrosen::colHeight, "1.2345");
    grid.setText(4, tanrosen::colHeight, "-0.5000");
    grid.setText(1, tanrosen::colResult, "100.0000");
    grid.setText(5, tanrosen::colResult, known);
    grid.setText(5, tanrosen::colFlag, "-1");
    tanrosen::FcCalcTanrosen(grid, input.knownPoints, input.grade, input.dataKubun);
  }

  report::Table closures() const {
    const report::Document document = tanrosen::tables(grid, input);
    return std::get<report::Table>(document.parts.back().items.back());
  }

  ui::Grid grid;
  tanrosen::TableInput input{job::Grade(1), "R1", "0", {"A", "C"}};
};

TEST_F(PrintedClosures, ShowsEachSegmentWithItsTolerance) {
  // 100.7369 − 100.7345 = 2.4 mm over 3 km; 15 × √3 = 25.98.
  lay("100.7369");
  EXPECT_EQ(closures().rows.at(0).cells, (std::vector<std::string>{"A ～ C", "3.000", "2.4", "26.0", "良"}));
}

TEST_F(PrintedClosures, SaysWhereTheToleranceIsNotKept) {
  lay("100.7085");  // −26.0 mm, more than 25.98
  EXPECT_EQ(closures().rows.at(0).cells.at(2), "-26.0");
  EXPECT_EQ(closures().rows.at(0).cells.at(4), "超過");
}

TEST_F(PrintedClosures, IsEmptyWithoutKnownPoints) {
  input.knownPoints.clear();
  lay("100.7369");
  EXPECT_TRUE(closures().rows.empty());
}

TEST_F(PrintedClosures, ReckonsWhatTheDistributionHasWritten) {
  lay("100.7369");
  EXPECT_EQ(grid.text(3, tanrosen::colCorrection), "8");  // 24 × 1 / 3
  const auto differences = [this] {
    std::vector<double> found;
    const report::Document document = tanrosen::tables(grid, input);
    for (const report::Checked& cell : report::checked(gathered(document), document.check))
      if (cell.difference != 0) found.push_back(cell.difference);
    return found;
  };
  EXPECT_TRUE(differences().empty());
  grid.setText(3, tanrosen::colResult, "101.2363");  // typed over: 101.2345 + 0.0008 = 101.2353
  EXPECT_EQ(differences(), std::vector<double>{0.001});
}

}  // namespace
