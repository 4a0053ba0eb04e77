#include "tanrosen/closure_formula.h"

#include <gtest/gtest.h>

namespace {

const job::Grade first(1);
const job::Grade second(2);

// 11.0064 − 11 = 0.0064: 0.006 in mm, 0.0064 in 0.1 mm.
TEST(ClosureFormula, AClosureErrorHasTheDecimalsOfTheGrade) {
  EXPECT_DOUBLE_EQ(tanrosen::closureError(11.0064, 11, first), 0.0064);
  EXPECT_DOUBLE_EQ(tanrosen::closureError(11.0064, 11, second), 0.006);
  EXPECT_DOUBLE_EQ(tanrosen::closureError(9.997, 10, second), -0.003);
}

// 12 (0.1 mm) × 1/2 = 6; ±5 mm × 1/2 = ±2.5 → ±3; 15 mm × 0.7/3 = 3.5 → 4, in doubles 3.4999999999999996.
TEST(ClosureFormula, SharesAreWholeUnitsHalvesAwayFromZero) {
  EXPECT_EQ(tanrosen::shareInUnits(0.0012, 1, 2, first), 6);
  EXPECT_EQ(tanrosen::shareInUnits(0.005, 1, 2, second), 3);
  EXPECT_EQ(tanrosen::shareInUnits(-0.005, 1, 2, second), -3);
  EXPECT_EQ(tanrosen::shareInUnits(0.015, 0.7, 3, second), 4);
  EXPECT_EQ(tanrosen::shareInUnits(0.005, 1, 0, second), 0) << "no distance";
}

TEST(ClosureFormula, AWholeClosureErrorIsCutOff) {
  EXPECT_EQ(tanrosen::wholeUnits(0.0012, first), 12);
  EXPECT_EQ(tanrosen::wholeUnits(-0.066, second), -66);
  EXPECT_EQ(tanrosen::wholeUnits(0, second), 0);
}

TEST(ClosureFormula, ACorrectedHeightIsTheObservedOnePlusTheCorrection) {
  EXPECT_DOUBLE_EQ(tanrosen::correctedHeight(11, -13, first), 10.9987);
  EXPECT_DOUBLE_EQ(tanrosen::correctedHeight(11, 13, second), 11.013);
}

}  // namespace
