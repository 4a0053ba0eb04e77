#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tanrosen/calculation.h"
#include "tanrosen/route_maker.h"
#include "text/error.h"

namespace {

using tanrosen::FcCalcTanrosen;
using Texts = std::vector<std::string>;

const job::Grade second(2);

// A section P–Q of 0.5 km whose runs are recorded apart: PF, Q ("-2"), PB, Q ("-2"), Q. Around it A–P of 1.0
// km and Q–E of 1.5 km: 3.0 km in all, as the section counts once.
void layRoute(ui::Grid& grid, std::string_view knownP, std::string_view knownE) {
  test::RouteMaker(grid)
      .benchMark("A", "1.0", "10.000", "10.000")
      .benchMark("PF", "0.5", "11.000", knownP)
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("PB", "0.5", "11.000", knownP)
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("Q", "1.5", "11.500")
      .benchMark("E", "", "12.500", knownE, "-1");
}

// Closure error at E 12.506 − 12.500 = +6 mm over 3.0 km: P 6 × 1.0/3.0 = 2 in both runs, Q 6 × 1.5/3.0 = 3,
// E 6.
TEST(ForwardAndBackwardRuns, ARouteClosesOverASectionWithRunsApart) {
  for (const char* category : {"0", "4"}) {
    ui::Grid grid;
    layRoute(grid, "", "12.506");
    FcCalcTanrosen(grid, {"A", "E"}, second, category);
    EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "", "2", "", "3", "6"})) << category;
    EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.002", "", "11.002", "", "11.503", "12.506"}))
        << category;
  }
}

// P known at 11.002: +2 mm at PF, taken over at PB. From PB on 0.5 + 1.5 = 2.0 km and a change of 6 − 2 = 4
// mm: Q 4 × 0.5/2.0 = 1, E 4; column 3 of E shows its whole closure error, 6.
TEST(ForwardAndBackwardRuns, AKnownPointTakesItsCorrectionOverAndTheSegmentClosesFromThere) {
  ui::Grid grid;
  layRoute(grid, "11.002", "12.506");
  FcCalcTanrosen(grid, {"A", "PF", "PB", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "", "2", "", "1", "6"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.002", "", "11.002", "", "11.501", "12.504"}));
}

// The route starts with the pair, its closure error there is 0: Q 4 × 0.5/2.0 = 1 and E 4, on its known
// height.
TEST(ForwardAndBackwardRuns, ARouteThatStartsWithAPairClosesOnItsKnownEnd) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("PF", "0.5", "11.000", "11.000")
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("PB", "0.5", "11.000", "11.000")
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("Q", "1.5", "11.500")
      .benchMark("E", "", "12.500", "12.504", "-1");
  FcCalcTanrosen(grid, {"PF", "PB", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "", "0", "", "1", "4"}));
  EXPECT_EQ(test::results(grid), (Texts{"11.000", "", "11.000", "", "11.501", "12.504"}));
  const Texts once = test::results(grid);
  FcCalcTanrosen(grid, {"PF", "PB", "E"}, second, "0");
  EXPECT_EQ(test::results(grid), once);
}

// Only the forward name is listed: PF closes with 2, then 4 mm over PB's 0.5 and Q's 1.5; PB itself is 0
// behind PF.
TEST(ForwardAndBackwardRuns, AForwardNameAloneCountsTheSectionOnce) {
  ui::Grid grid;
  layRoute(grid, "11.002", "12.506");
  FcCalcTanrosen(grid, {"A", "PF", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "", "0", "", "1", "6"}));
}

// A backward name that no forward name of its point stands before is a known point like any other: PB is 1.0
// behind A, +2 mm; then 4 mm over 2.0 km.
TEST(ForwardAndBackwardRuns, ABackwardNameAloneIsAnOrdinaryKnownPoint) {
  ui::Grid grid;
  layRoute(grid, "11.002", "12.506");
  FcCalcTanrosen(grid, {"A", "PB", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "", "2", "", "1", "6"}));
  EXPECT_EQ(test::results(grid)[3], "11.002");
}

// RB does not belong to PF: it closes by itself, S 6 × 1/2 = 3, RB 6. PB would belong to PF and is nowhere:
// nothing happens. E: 8 − 6 = 2 over RB's 1; its whole closure error is 8.
TEST(ForwardAndBackwardRuns, OnlyTheSamePointMakesAPair) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("PF", "1", "10.000", "10.000")
      .benchMark("S", "1", "11.000")
      .benchMark("RB", "1", "12.000", "12.006")
      .benchMark("E", "", "13.000", "13.008", "-1");
  FcCalcTanrosen(grid, {"PF", "RB", "PB", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "3", "6", "8"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.003", "12.006", "13.002"}));
}

// An ordinary bench mark between the names: all distances count. PF 0; PB takes "0" over; N: 1 + 1 km, +4 mm.
TEST(ForwardAndBackwardRuns, BetweenThePairThereMayBeAnotherBenchMark) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("PF", "3", "10.000", "10.000")
      .benchMark("X", "3", "11.000")
      .benchMark("PB", "1", "10.000", "10.000")
      .benchMark("M", "1", "12.000")
      .benchMark("N", "", "13.000", "13.004", "-1");
  FcCalcTanrosen(grid, {"PF", "PB", "N"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "", "0", "2", "4"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "", "10.000", "12.002", "13.004"}));
}

// Four rows above PB on row 3 there is no row.
TEST(ForwardAndBackwardRuns, APairTooCloseToTheTopIsASubscriptError) {
  ui::Grid grid;
  test::RouteMaker(grid).benchMark("PF", "1", "10.000", "10.000").benchMark("PB", "1", "10.000", "10.000");
  EXPECT_THROW(FcCalcTanrosen(grid, {"PF", "PB"}, second, "0"), text::RuntimeError);
}

// In the other categories the names mean nothing: PF closes, PB is one of the points: +2 mm at 0 km.
TEST(ForwardAndBackwardRuns, OtherCategoriesKnowNoPairs) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("PF", "1", "10.000", "10.000")
      .benchMark("Q", "1", "11.000", "", "-2")
      .benchMark("PB", "1", "10.000", "10.002")
      .benchMark("Q", "", "11.000", "", "-2");
  FcCalcTanrosen(grid, {"PF", "PB"}, second, "1");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "", "2", ""}));
  EXPECT_EQ(test::results(grid)[2], "10.002");
}

// The far end Q is known, +8 mm, on the row with the mean of both runs: 8 over 1.0 + 0.5: P 8 × 1.0/1.5
// = 5.33. Without a known height the repeated rows of the same name are not it. E: 2 − 8 = −6 over 1.5,
// observed 12.500.
TEST(ForwardAndBackwardRuns, AKnownFarEndIsTheBenchMarkWithTheMean) {
  ui::Grid grid;
  layRoute(grid, "", "12.502");
  grid.setText(11, tanrosen::colResult, "11.508");
  FcCalcTanrosen(grid, {"A", "Q", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "5", "", "5", "", "8", "2"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.005", "", "11.005", "", "11.508", "12.494"}));
}

// A repeated row with a known height is a known point where it stands: Q (-2) 11.503, +3 mm, 1.0 + 0.5 km
// behind A, so PF and PB get 3 × 1.0/1.5 = 2. It gets no corrected height itself. Behind it E: 6 − 3 = 3
// over 1.5 km; Q with the mean lies at no distance behind the repeated row: 0.
TEST(ForwardAndBackwardRuns, ARepeatedRowWithAKnownHeightClosesWhereItStands) {
  for (const char* category : {"0", "4"}) {
    ui::Grid grid;
    layRoute(grid, "", "12.506");
    grid.setText(9, tanrosen::colResult, "11.503");
    FcCalcTanrosen(grid, {"A", "Q", "E"}, second, category);
    EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "", "2", "3", "0", "6"})) << category;
    EXPECT_EQ(test::results(grid), (Texts{"10.000", "11.002", "", "11.002", "11.503", "11.500", "12.503"}));
  }
}

// A name of one letter has no point before the letter.
TEST(ForwardAndBackwardRuns, TheLettersAloneAreNoPair) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("F", "1", "10.000", "10.000")
      .benchMark("X", "1", "11.000")
      .benchMark("B", "", "12.000", "12.004", "-1");
  FcCalcTanrosen(grid, {"F", "B"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "4"}));
}

}  // namespace
