#include <gtest/gtest.h>

#include "hend/calculation.h"
#include "hend/grid_maker.h"

namespace {

using hend::FcHendCalc;
using test::VariationGrid;

const job::Grade first(1);
const job::Grade second(2);

/// E2 to E3 run forward (rows 1 to 4) and backward (rows 5 to 8), each 1000 days after its epoch before.
VariationGrid runs(const char* newForward, const char* oldForward, const char* newBackward,
                   const char* oldBackward) {
  VariationGrid route;
  route.add("E2F", "2022/05/11", newForward, "2019/08/15", oldForward);
  route.add("E3", "", "", "", "", "-2");
  route.add("E2B", "2022/05/13", newBackward, "2019/08/17", oldBackward);
  route.add("E3", "2022/05/13", "", "", "", "-2");
  route.end("E3");
  return route;
}

// Forward 2.0000 − 1.9800 = 0.0200, 1000 days, 100 days to 2022/08/19: 2.00E-05 × 100 = 0.0020.
// Backward 2.0020 − 1.9820 = 0.0200, 1000 days, 98 days: 0.00196, shown 0.0020.
// Means: 2.0010, 1.9810, 0.0200, 1000, 198 / 2 = 99; 2.00E-05 × 99 = 0.00198, shown 0.0020; 2.0010 + 0.0020.
TEST(ForwardAndBackward, TheSecondRepeatedPointTakesTheMeans) {
  VariationGrid route = runs("2.0000", "1.9800", "2.0020", "1.9820");
  for (int call = 0; call < 2; ++call) {  // a second call changes nothing
    FcHendCalc(route.grid, "2022/08/19", first);
    EXPECT_EQ(route.values(1), "2022/05/11||2019/08/15|||1000||100||");
    EXPECT_EQ(route.values(2), "|2.0000||1.9800|0.0200||2.00E-05||0.0020|2.0020");
    EXPECT_EQ(route.values(3), "|||||||||");
    EXPECT_EQ(route.values(4), "|||||||||");
    EXPECT_EQ(route.values(5), "2022/05/13||2019/08/17|||1000||98||");
    EXPECT_EQ(route.values(6), "|2.0020||1.9820|0.0200||2.00E-05||0.0020|2.0040");
    EXPECT_EQ(route.values(7), "2022/05/13|||||1000||99||");
    EXPECT_EQ(route.values(8), "|2.0010||1.9810|0.0200||2.00E-05||0.0020|2.0030");
  }
}

// Millimetres, halves upwards: (1.002 + 1.003) / 2 = 1.0025, 1.003; old (1.000 + 1.000) / 2 = 1.000;
// difference (0.002 + 0.003) / 2 = 0.0025, 0.003. Tenths of a millimetre keep 1.0025 and 0.0025 as they are.
TEST(ForwardAndBackward, MeansAreRoundedToTheGradesUnit) {
  VariationGrid route = runs("1.002", "1.000", "1.003", "1.000");
  FcHendCalc(route.grid, "", second);
  EXPECT_EQ(route.values(8), "|1.003||1.000|0.003||3.00E-06||0.000|1.003");
  FcHendCalc(route.grid, "", first);
  EXPECT_EQ(route.values(8), "|1.0025||1.0000|0.0025||2.50E-06||0.0000|1.0025");
}

// Upwards also below zero: (−1.002 − 1.003) / 2 = −1.0025, −1.002.
TEST(ForwardAndBackward, HalvesBelowZeroAreRoundedUpwardsToo) {
  VariationGrid route = runs("-1.002", "-1.000", "-1.003", "-1.000");
  FcHendCalc(route.grid, "", second);
  EXPECT_EQ(route.values(8), "|-1.002||-1.000|-0.002||-2.00E-06||0.000|-1.002");
}

// The difference is the mean of both differences: (0.002 + 0.001) / 2 = 0.0015, 0.002, though the means of
// the heights, (1.002 + 1.004) / 2 = 1.003 and (1.000 + 1.003) / 2 = 1.0015, 1.002, lie 0.001 apart.
TEST(ForwardAndBackward, TheDifferenceIsAveragedByItself) {
  VariationGrid route = runs("1.002", "1.000", "1.004", "1.003");
  FcHendCalc(route.grid, "", second);
  EXPECT_EQ(route.values(8), "|1.003||1.002|0.002||2.00E-06||0.000|1.003");
}

// Days: (1000 + 1001) / 2 = 1000.5, 1000. Before the observations: (−100 − 101) / 2 = −100.5, −101.
TEST(ForwardAndBackward, MeansOfDaysAreWholeDaysDownwards) {
  VariationGrid route = runs("2.0000", "1.9800", "2.0020", "1.9820");
  route.grid.setText(5, hend::colNewDate, "2022/05/12");
  route.grid.setText(5, hend::colOldDate, "2019/08/15");
  FcHendCalc(route.grid, "2022/01/31", first);
  EXPECT_EQ(route.results(1), "|1000||-100||");
  EXPECT_EQ(route.results(5), "|1001||-101||");
  EXPECT_EQ(route.results(7), "|1000||-101||");
  // 0.0200 / 1000 × −101 = −0.00202; 2.0010 − 0.0020
  EXPECT_EQ(route.results(8), "0.0200||2.00E-05||-0.0020|1.9990");
}

TEST(ForwardAndBackward, WithoutAReferenceDateTheDaysToItStayBlank) {
  VariationGrid route = runs("2.0000", "1.9800", "2.0020", "1.9820");
  FcHendCalc(route.grid, "", first);
  EXPECT_EQ(route.results(7), "|1000||||");
  EXPECT_EQ(route.results(8), "0.0200||2.00E-05||0.0000|2.0010");
}

TEST(ForwardAndBackward, RunsWithoutAnEpochBeforeGiveTheNewMeanAlone) {
  VariationGrid route = runs("2.0000", "", "2.0020", "");
  route.grid.setText(1, hend::colOldDate, "");
  route.grid.setText(5, hend::colOldDate, "");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(5), "2022/05/13|||||||98||");
  EXPECT_EQ(route.values(7), "2022/05/13|||||||99||");
  EXPECT_EQ(route.values(8), "|2.0010||||||||");
}

TEST(ForwardAndBackward, APairNeedsAForwardRunFirst) {
  VariationGrid route = runs("2.0000", "1.9800", "2.0020", "1.9820");
  route.grid.setText(1, hend::colBenchMark, "E2");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(8), "|||||||||");
}

TEST(ForwardAndBackward, APairDoesNotReachOverARouteEnd) {
  VariationGrid route;
  route.add("E2F", "2022/05/11", "2.0000", "2019/08/15", "1.9800");
  route.add("E3", "", "", "", "", "-2");
  route.end("E3");
  route.add("E2B", "2022/05/13", "2.0020", "2019/08/17", "1.9820");
  const int end = route.add("E3", "", "", "", "", "-2");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(end + 1), "|||||||||");
}

TEST(ForwardAndBackward, TwoPairsAreTwoMeans) {
  VariationGrid route = runs("2.0000", "1.9800", "2.0020", "1.9820");
  route.grid.setText(9, hend::colMark, "");
  route.grid.setText(9, hend::colBenchMark, "E4F");
  route.grid.setText(9, hend::colNewDate, "2022/05/11");
  route.grid.setText(9, hend::colOldDate, "2019/08/15");
  route.grid.setText(10, hend::colNewHeight, "1.0000");
  route.grid.setText(10, hend::colOldHeight, "0.9900");
  route.add("E5", "", "", "", "", "-2");
  route.add("E4B", "2022/05/11", "1.0010", "2019/08/15", "0.9910");
  const int last = route.add("E5", "", "", "", "", "-2");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(8), "|2.0010||1.9810|0.0200||2.00E-05||0.0020|2.0030");
  EXPECT_EQ(route.values(last + 1), "|1.0005||0.9905|0.0100||1.00E-05||0.0010|1.0015");
}

}  // namespace
