#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tanrosen/calculation.h"
#include "tanrosen/route_maker.h"

namespace {

// Rows: A 1, B 3, (nameless) 5, C 7 (end), D 9, E 11 (end).
class SingleRouteCells : public testing::Test {
 protected:
  void SetUp() override {
    test::RouteMaker(grid)
        .benchMark("A", "1", "10.0000", "10.0000")
        .benchMark("B", "1", "11.0000")
        .benchMark("", "1", "11.5000")
        .benchMark("C", "", "12.0000", "12.0006", "-1")
        .benchMark("D", "1", "20.0000")
        .benchMark("E", "", "21.0000", "", "-1");
  }

  ui::Grid grid;
  const std::vector<std::string> known{"A", "C"};
};

TEST_F(SingleRouteCells, CorrectionsStandOnBenchMarks) {
  using tanrosen::isCorrectionCell;
  EXPECT_TRUE(isCorrectionCell(grid, 1, 3));
  EXPECT_TRUE(isCorrectionCell(grid, 7, 3)) << "a route end";
  EXPECT_FALSE(isCorrectionCell(grid, 2, 3)) << "a section row";
  EXPECT_FALSE(isCorrectionCell(grid, 5, 3)) << "no number";
  EXPECT_FALSE(isCorrectionCell(grid, 0, 3)) << "the header";
  EXPECT_FALSE(isCorrectionCell(grid, 1, 2)) << "another column";
}

TEST_F(SingleRouteCells, KnownHeightsStandOnKnownPoints) {
  EXPECT_TRUE(tanrosen::isKnownHeightCell(grid, 1, 4, known));
  EXPECT_TRUE(tanrosen::isKnownHeightCell(grid, 7, 4, known));
  EXPECT_FALSE(tanrosen::isKnownHeightCell(grid, 3, 4, known)) << "not known";
  EXPECT_FALSE(tanrosen::isKnownHeightCell(grid, 2, 4, known)) << "a section row";
  EXPECT_FALSE(tanrosen::isKnownHeightCell(grid, 5, 4, {""})) << "no number";
  EXPECT_FALSE(tanrosen::isKnownHeightCell(grid, 1, 2, known)) << "another column";
}

TEST_F(SingleRouteCells, RemarksStandWhereTheyAreSaved) {
  EXPECT_TRUE(tanrosen::isRemarkCell(grid, 1, 5));
  EXPECT_TRUE(tanrosen::isRemarkCell(grid, 2, 5));
  EXPECT_TRUE(tanrosen::isRemarkCell(grid, 7, 5));
  EXPECT_FALSE(tanrosen::isRemarkCell(grid, 8, 5)) << "below a route end";
  EXPECT_FALSE(tanrosen::isRemarkCell(grid, 0, 5)) << "the header";
  EXPECT_FALSE(tanrosen::isRemarkCell(grid, 1, 3)) << "another column";
}

TEST_F(SingleRouteCells, CorrectionsFollowOneAnotherWithinTheRoute) {
  EXPECT_EQ(tanrosen::nextCorrectionRow(grid, 1), 3);
  EXPECT_EQ(tanrosen::nextCorrectionRow(grid, 3), 7) << "over the nameless one";
  EXPECT_EQ(tanrosen::nextCorrectionRow(grid, 7), 7) << "the last of its route";
  EXPECT_EQ(tanrosen::nextCorrectionRow(grid, 9), 11);
  EXPECT_EQ(tanrosen::nextCorrectionRow(grid, 11), 11);
}

// 0.1 mm: 11.0000 − 0.0013 = 10.9987; mm: 11.000 + 0.013 = 11.013; blank and text count as 0.
TEST_F(SingleRouteCells, ACorrectedHeightIsTheObservedHeightPlusTheCorrection) {
  grid.setText(3, tanrosen::colCorrection, "-13");
  tanrosen::heightFromCorrection(grid, 3, job::Grade(1));
  EXPECT_EQ(grid.text(3, tanrosen::colResult), "10.9987");
  grid.setText(3, tanrosen::colCorrection, "13");
  tanrosen::heightFromCorrection(grid, 3, job::Grade(2));
  EXPECT_EQ(grid.text(3, tanrosen::colResult), "11.013");
  for (const char* nothing : {"", "abc"}) {
    grid.setText(3, tanrosen::colCorrection, nothing);
    tanrosen::heightFromCorrection(grid, 3, job::Grade(1));
    EXPECT_EQ(grid.text(3, tanrosen::colResult), "11.0000") << nothing;
  }
}

}  // namespace
