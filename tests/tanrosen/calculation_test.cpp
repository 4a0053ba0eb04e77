#include "tanrosen/calculation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include "tanrosen/route_maker.h"
#include "text/error.h"

namespace {

using tanrosen::FcCalcTanrosen;
using Texts = std::vector<std::string>;

const job::Grade first(1);
const job::Grade second(2);

std::string raisedBy(ui::Grid& grid, const Texts& known, std::string_view category) {
  try {
    FcCalcTanrosen(grid, known, second, category);
  } catch (const text::RuntimeError& error) {
    return error.what();
  }
  return "nothing";
}

TEST(FcCalcTanrosen, WithoutKnownPointsNothingIsWritten) {
  ui::Grid grid;
  test::RouteMaker(grid).benchMark("A", "1", "10.000", "10.000").benchMark("B", "", "11.000", "", "-1");
  FcCalcTanrosen(grid, {}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"", ""}));
}

// 10.0012 − 10.0000 = 12 (0.1 mm); 10.0019 − 10.0000 in mm: 1.9 → shown as 0.002 → 2.
TEST(FcCalcTanrosen, ASingleKnownPointAtTheStartGetsItsClosureErrorAlone) {
  ui::Grid grid;
  test::RouteMaker(grid).benchMark("A", "1", "10.0000", "10.0012").benchMark("B", "", "11.0000", "", "-1");
  FcCalcTanrosen(grid, {"A"}, first, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"12", ""}));
  EXPECT_EQ(test::results(grid), (Texts{"10.0012", ""}));
  grid.setText(1, tanrosen::colResult, "10.0019");
  FcCalcTanrosen(grid, {"A"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"2", ""}));
}

// Known minus observed: 9.997 − 10.000 = −0.003.
TEST(FcCalcTanrosen, AClosureErrorIsKnownMinusObserved) {
  ui::Grid grid;
  test::RouteMaker(grid).benchMark("A", "1", "10.000", "9.997");
  FcCalcTanrosen(grid, {"A"}, second, "0");
  EXPECT_EQ(test::corrections(grid), Texts{"-3"});
}

// A levelling line as text books have it: L 1.5, 0.6, 0.8, 1.0, 1.2, 1.6 km (6.7 in all); the observed
// heights are 7.967 + 4.362 + 2.413 − 3.121 + 1.263 + 2.716 − 3.715 = 11.885; closure error 11.819 − 11.885 =
// −66 mm. Shares: 66 × 1.5 / 6.7 = 14.78, × 2.1 = 20.69, × 2.9 = 28.57, × 3.9 = 38.42, × 5.1 = 50.24, × 6.7
// = 66.
TEST(FcCalcTanrosen, DistributesByDistanceFromTheKnownPointBefore) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("1", "1.5", "7.967", "7.967")
      .benchMark("2", "0.6", "12.329")
      .benchMark("3", "0.8", "14.742")
      .benchMark("4", "1.0", "11.621")
      .benchMark("5", "1.2", "12.884")
      .benchMark("6", "1.6", "15.600")
      .benchMark("7", "", "11.885", "11.819", "-1");
  FcCalcTanrosen(grid, {"1", "7"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "-15", "-21", "-29", "-38", "-50", "-66"}));
  EXPECT_EQ(test::results(grid),
            (Texts{"7.967", "12.314", "14.721", "11.592", "12.846", "15.550", "11.819"}));
}

// First grade: 0.0012 m over two equal sections: 12 × 1/2 = 6 and 12 (0.1 mm).
TEST(FcCalcTanrosen, FirstGradeWorksInTenthsOfMillimetres) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "2", "10.0000", "10.0000")
      .benchMark("B", "2", "11.0000")
      .benchMark("C", "", "12.0000", "12.0012", "-1");
  FcCalcTanrosen(grid, {"A", "C"}, first, "4");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "6", "12"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.0000", "11.0006", "12.0012"}));
}

// ±5 mm over two equal sections: ±2.5 → ±3, away from zero. 11.000 ± 0.003.
TEST(FcCalcTanrosen, HalfUnitsAreRoundedAwayFromZero) {
  for (const bool up : {true, false}) {
    ui::Grid grid;
    test::RouteMaker(grid)
        .benchMark("A", "1", "10.000", "10.000")
        .benchMark("B", "1", "11.000")
        .benchMark("C", "", "12.000", up ? "12.005" : "11.995", "-1");
    FcCalcTanrosen(grid, {"A", "C"}, second, "0");
    EXPECT_EQ(test::corrections(grid), up ? (Texts{"0", "3", "5"}) : (Texts{"0", "-3", "-5"}));
    EXPECT_EQ(test::results(grid)[1], up ? "11.003" : "10.997");
  }
}

// 15 mm × 0.7 / 3.0 is 3.5 on paper; in doubles 0.015 × 0.7 / 3 × 1000 = 3.4999999999999996. With the half
// added the text of that number is "4", so a unit is not lost to the noise.
TEST(FcCalcTanrosen, NoiseOfDoublesCostsNoUnit) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "0.7", "0.000", "0.000")
      .benchMark("B", "2.3", "1.000")
      .benchMark("C", "", "2.000", "2.015", "-1");
  FcCalcTanrosen(grid, {"A", "C"}, second, "0");
  EXPECT_EQ(test::corrections(grid)[1], "4");
}

// Three known points, closure errors 0, +4, +2 mm. A–C: 4 × 1/2 = 2, 4. C–E: the change −2 mm over 2 + 2:
// −2 × 2/4 = −1, −2; at E column 3 then shows the whole closure error, 2. Heights take the change alone:
// D 53.000 − 0.001 = 52.999, E 54.000 − 0.002 = 53.998.
TEST(FcCalcTanrosen, BehindAThirdKnownPointOnlyTheChangeIsDistributed) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "50.000", "50.000")
      .benchMark("B", "1", "51.000")
      .benchMark("C", "2", "52.000", "52.004")
      .benchMark("D", "2", "53.000")
      .benchMark("E", "", "54.000", "54.002", "-1");
  FcCalcTanrosen(grid, {"A", "C", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "4", "-1", "2"}));
  EXPECT_EQ(test::results(grid), (Texts{"50.000", "51.002", "52.004", "52.999", "53.998"}));
}

// Every second bench mark: rows 1, 5, 9, 13. Their sections' distances make the total, 1 + 2 + 3 = 6; each
// share runs over the distances of the rows in between, two rows above: 1, 1 + 2 = 3, 3 + 3 = 6.
// +12 mm: 12 × 1/6 = 2, 12 × 3/6 = 6, 12.
TEST(FcCalcTanrosen, InOtherCategoriesEverySecondBenchMarkIsAPoint) {
  for (const char* category : {"1", "2", "3"}) {
    ui::Grid grid;
    test::RouteMaker(grid)
        .benchMark("A", "1", "10.000", "10.000")
        .benchMark("a", "1", "10.500")
        .benchMark("B", "2", "11.000")
        .benchMark("b", "2", "11.500")
        .benchMark("C", "3", "12.000")
        .benchMark("c", "3", "12.500")
        .benchMark("D", "", "13.000", "13.012", "-1");
    FcCalcTanrosen(grid, {"A", "D"}, second, category);
    EXPECT_EQ(test::corrections(grid), (Texts{"0", "", "2", "", "6", "", "12"})) << category;
    EXPECT_EQ(test::results(grid), (Texts{"10.000", "", "11.002", "", "12.006", "", "13.012"})) << category;
  }
}

// A known point on a row between is never met in these categories: nothing is closed but A.
TEST(FcCalcTanrosen, ARowBetweenIsNoKnownPoint) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("B", "1", "11.000", "11.009")
      .benchMark("C", "", "12.000", "", "-1");
  FcCalcTanrosen(grid, {"A", "B"}, second, "1");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "", ""}));
}

// Distances as they stand: the totals count rows 1 and 5 (1 + 1 = 2), the shares rows 3 and 7 (3, 3 + 5 = 8).
// 4 × 3/2 = 6 and 4 × 8/2 = 16: C 12.000 + 0.016, while column 3 of C shows its closure error, 4.
TEST(FcCalcTanrosen, InOtherCategoriesDistancesAreTakenAsTheyStand) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("a", "3", "10.500")
      .benchMark("B", "1", "11.000")
      .benchMark("b", "5", "11.500")
      .benchMark("C", "", "12.000", "12.004", "-1");
  FcCalcTanrosen(grid, {"A", "C"}, second, "2");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "", "6", "", "4"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "", "11.006", "", "12.016"}));
}

// Listed A, C, B, D. A closes; then T = 1 (A's own). C: T = 1 + 1 = 2: 4 × 1/2 = 2, 4. T = 1 (C's own).
// B lies above and is not found below C: the walk over D (1) and E leaves T = 1 + 1 = 2.
// D: nothing lies between C and D, so T = 2 while D lies 1 behind C: (6 − 4) × 1/2 = 1; D 13.000 + 0.001.
TEST(FcCalcTanrosen, AFailedWalkLeavesItsDistancesInTheTotal) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("B", "1", "11.000", "11.009")
      .benchMark("C", "1", "12.000", "12.004")
      .benchMark("D", "1", "13.000", "13.006")
      .benchMark("E", "", "14.000", "", "-1");
  FcCalcTanrosen(grid, {"A", "C", "B", "D"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "4", "6", ""}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.002", "12.004", "13.001", ""}));
}

// Each failed walk below C adds D's 1 to the total, which starts with C's own 1. Two: (6 − 4) × 1/3 = 0.67 →
// 1; three: 2 × 1/4 = 0.5 → 1; four: 2 × 1/5 = 0.4 → 0.
TEST(FcCalcTanrosen, EveryFailedWalkCounts) {
  for (const int failed : {2, 3, 4}) {
    ui::Grid grid;
    test::RouteMaker(grid)
        .benchMark("A", "1", "10.000", "10.000")
        .benchMark("C", "1", "12.000", "12.004")
        .benchMark("D", "1", "13.000", "13.006")
        .benchMark("E", "", "14.000", "", "-1");
    Texts known{"A", "C"};
    known.insert(known.end(), static_cast<std::size_t>(failed), "nowhere");
    known.push_back("D");
    FcCalcTanrosen(grid, known, second, "0");
    EXPECT_EQ(test::results(grid)[2], failed < 4 ? "13.001" : "13.000") << failed;
  }
}

// The second "C" is looked for below the first and not found.
TEST(FcCalcTanrosen, ABenchMarkListedTwiceIsPassedOverTheSecondTime) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("B", "1", "11.000")
      .benchMark("C", "", "12.000", "12.004", "-1");
  FcCalcTanrosen(grid, {"A", "C", "C"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "4"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.002", "12.004"}));
}

TEST(FcCalcTanrosen, WithoutAnyDistanceCorrectionsAreZero) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "", "10.000", "10.000")
      .benchMark("B", "", "11.000")
      .benchMark("C", "", "12.000", "12.004", "-1");
  FcCalcTanrosen(grid, {"A", "C"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "0", "4"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.000", "12.000"}));
}

// The first segment starts at row 1 and would need the distance two rows above it.
TEST(FcCalcTanrosen, AFirstKnownPointInsideTheRouteIsASubscriptError) {
  for (const char* category : {"0", "1"}) {
    ui::Grid grid;
    test::RouteMaker(grid)
        .benchMark("A", "1", "10.000")
        .benchMark("B", "1", "11.000", "11.001")
        .benchMark("C", "", "12.000", "12.004", "-1");
    EXPECT_EQ(raisedBy(grid, {"B", "C"}, category), "インデックスが有効範囲にありません。") << category;
    EXPECT_EQ(test::corrections(grid), (Texts{"", "", ""}));
    EXPECT_EQ(test::results(grid), (Texts{"", "11.001", "12.004"}));
  }
}

// A bench mark without a number and a repeated one get nothing, yet the way over them counts:
// 6 × 1/3 = 2 at B; C at 6 × 3/3.
TEST(FcCalcTanrosen, RepeatedAndNamelessBenchMarksGetNoCorrection) {
  for (const bool nameless : {true, false}) {
    ui::Grid grid;
    test::RouteMaker(grid)
        .benchMark("A", "1", "10.000", "10.000")
        .benchMark("B", "1", "11.000")
        .benchMark(nameless ? "" : "X", nameless ? "1" : "", "11.500", "", nameless ? "" : "-2")
        .benchMark("C", nameless ? "" : "1", "12.000")
        .benchMark("D", "", "13.000", "13.006", "-1");
    FcCalcTanrosen(grid, {"A", "D"}, second, "0");
    EXPECT_EQ(test::corrections(grid)[2], "");
    EXPECT_EQ(test::corrections(grid)[1], "2");
    EXPECT_EQ(test::results(grid)[4], "13.006") << "the route closes on its known end";
  }
}

// A pair without letters, 1 km to B and 1 km over it: the way over the repeated rows, 0.5 km on each, runs
// on. T = 1 + 0.5 + 0.5 + 1 = 3: C (behind 1 + 0.5 + 0.5) 6 × 2/3 = 4, and D carries the whole 6.
TEST(FcCalcTanrosen, DistancesOnRepeatedRowsCountInTheShareAndInTheTotal) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("B", "0.5", "11.000", "", "-2")
      .benchMark("B", "0.5", "11.000", "", "-2")
      .benchMark("C", "1", "11.500")
      .benchMark("D", "", "12.000", "12.006", "-1");
  FcCalcTanrosen(grid, {"A", "D"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "", "", "4", "6"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "", "", "11.504", "12.006"}));
}

// Closure errors are taken in the decimals of the grade: 11.0064 − 11.0000 is 0.006 in mm.
TEST(FcCalcTanrosen, ClosureErrorsHaveTheDecimalsOfTheGrade) {
  ui::Grid grid;
  test::RouteMaker(grid).benchMark("A", "1", "10", "10").benchMark("B", "", "11", "11.0064", "-1");
  FcCalcTanrosen(grid, {"A", "B"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "6"}));
  EXPECT_EQ(test::results(grid)[1], "11.006");
}

/// The processor's time that a calculation takes (s).
double secondsOf(ui::Grid& grid, const Texts& known) {
  const std::clock_t begin = std::clock();
  FcCalcTanrosen(grid, known, second, "0");
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

// 16,000 bench marks, all known. In route order each is met at once; in the other order all but the first are
// missed, and a search through the grid for each of them would take thousands of times as long.
TEST(FcCalcTanrosen, KnownPointsOutOfOrderCostNoMoreThanThoseInOrder) {
  constexpr int benchMarks = 16000;
  ui::Grid grid;
  test::RouteMaker maker(grid);
  Texts known;
  for (int i = 0; i < benchMarks; ++i) {
    known.push_back("N" + std::to_string(i));
    maker.benchMark(known.back(), "1.5", "10.000", "10.000");
  }
  const double inOrder = secondsOf(grid, known);
  EXPECT_EQ(test::corrections(grid).back(), "0") << "the last known point is reached";
  std::reverse(known.begin() + 1, known.end());
  EXPECT_LT(secondsOf(grid, known), 20 * inOrder + 0.05);
}

// 16,383 bench marks fill the grid; the walk over every second one ends beyond row 32,767.
TEST(FcCalcTanrosen, ARowCounterPast16BitsIsAnOverflow) {
  ui::Grid grid;
  test::RouteMaker(grid).benchMark("A", "1", "10.000", "10.000");
  grid.setRows(32767);
  EXPECT_EQ(raisedBy(grid, {"A", "nowhere"}, "1"), "オーバーフローしました。");
  EXPECT_EQ(raisedBy(grid, {"A", "nowhere"}, "0"), "nothing");
}

}  // namespace
