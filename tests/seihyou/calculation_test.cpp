#include "seihyou/calculation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "seihyou/grid_maker.h"
#include "text/error.h"
#include "text/number.h"

namespace {

using seihyou::FcCalcSeihyou;

const job::Grade first(1);
const job::Grade second(2);

std::string result(const ui::Grid& grid, int row) { return grid.text(row, seihyou::colResult); }

TEST(FcCalcSeihyou, HeaderRowAloneIsLeftAsItIs) {
  ui::Grid grid;
  test::GridMaker maker(grid);
  FcCalcSeihyou(grid, 0, first);
  EXPECT_EQ(grid.rows(), 1);
  EXPECT_EQ(result(grid, 0), "");
}

TEST(FcCalcSeihyou, EmptyRowsAreStridden) {
  ui::Grid grid;
  test::GridMaker(grid).benchMark("").section("");
  FcCalcSeihyou(grid, 1, first);
  EXPECT_EQ(result(grid, 1), "");
  EXPECT_EQ(result(grid, 2), "");
}

// First grade, corrections in 0.1 mm:
//   A–B  1.2345 + 0.0012 =  1.2357    B = 100.0000 + 1.2357 = 101.2357
//   B–C −0.5000 − 0.0003 = −0.5003    C = 101.2357 − 0.5003 = 100.7354
TEST(FcCalcSeihyou, FirstGradeCorrectsInTenthsOfMillimetres) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "100.0000")
      .section("1.2345", "12")
      .benchMark("B")
      .section("-0.5000", "-3")
      .benchMark("C", "", "-1");
  FcCalcSeihyou(grid, 2, first);
  EXPECT_EQ(result(grid, 1), "100.0000");
  EXPECT_EQ(result(grid, 2), "1.2357");
  EXPECT_EQ(result(grid, 3), "101.2357");
  EXPECT_EQ(result(grid, 4), "-0.5003");
  EXPECT_EQ(result(grid, 5), "100.7354");
}

// Other grades, corrections in mm: 1.234 + 0.012 = 1.246; 100.000 + 1.246 = 101.246
TEST(FcCalcSeihyou, OtherGradesCorrectInMillimetres) {
  ui::Grid grid;
  test::GridMaker(grid).benchMark("A", "100.000").section("1.234", "12").benchMark("B", "", "-1");
  FcCalcSeihyou(grid, 2, second);
  EXPECT_EQ(result(grid, 2), "1.246");
  EXPECT_EQ(result(grid, 3), "101.246");
}

// No start height: the heights are the sums 1.5000 and 1.5000 − 0.2500 = 1.2500.
TEST(FcCalcSeihyou, WithoutStartHeightTheSumsBeginAtZero) {
  ui::Grid grid;
  test::GridMaker(grid).benchMark("A").section("1.5000").benchMark("B").section("-0.2500").benchMark("C", "",
                                                                                                     "-1");
  FcCalcSeihyou(grid, 1, first);
  EXPECT_EQ(result(grid, 1), "");
  EXPECT_EQ(result(grid, 3), "1.5000");
  EXPECT_EQ(result(grid, 5), "1.2500");
}

// "abc" counts as 0, "7x" as 7 (0.1 mm): 1.0000 and 2.0000 + 0.0007.
TEST(FcCalcSeihyou, TextThatIsNoNumberCountsAsZero) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "0.0000")
      .section("1.0000", "abc")
      .benchMark("B")
      .section("2.0000", "7x")
      .benchMark("C", "", "-1");
  FcCalcSeihyou(grid, 1, first);
  EXPECT_EQ(result(grid, 2), "1.0000");
  EXPECT_EQ(result(grid, 4), "2.0007");
  EXPECT_EQ(result(grid, 5), "3.0007");
}

// Two routes, no section row under the first one's end: route 1 on rows 1–3, route 2 on rows 4–8.
//   C–D 2.0000 + 0.0010 = 2.0010; D = 50.0000 + 2.0010 = 52.0010; D–E 1.0000; E = 53.0010
TEST(FcCalcSeihyou, OnlyTheRouteOfTheRowIsRecalculated) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "10.0000")
      .section("1.0000", "99")
      .benchMark("B", "unchanged", "-1")
      .benchMark("C", "50.0000")
      .section("2.0000", "10")
      .benchMark("D")
      .section("1.0000")
      .benchMark("E", "", "-1");
  FcCalcSeihyou(grid, 7, first);
  EXPECT_EQ(result(grid, 2), "");
  EXPECT_EQ(result(grid, 3), "unchanged");
  EXPECT_EQ(result(grid, 5), "2.0010");
  EXPECT_EQ(result(grid, 6), "52.0010");
  EXPECT_EQ(result(grid, 8), "53.0010");
  FcCalcSeihyou(grid, 2, first);  // and the first route stops at its end
  EXPECT_EQ(result(grid, 3), "11.0099");
  EXPECT_EQ(result(grid, 4), "50.0000");
}

// A pair of repeated points, P on row 3 and Q on row 7:
//   A–P 1.0000 + 0.0006 = 1.0006; P = 10.0000 + 1.0006 = 11.0006 (first of the pair)
//   B stands before Q, so its shown height 13.0000 counts; B–Q 2.0000; Q = 15.0000 (second)
//   mean (11.0006 + 15.0000) / 2 = 13.0003 → row 9, before the repeated point R, so it stays and counts
//   there: C–R 1.0000; R = 13.0003 + 1.0000 = 14.0003 (a third one: no mean); E = 14.0003 + 1.0000 (carried
//   on) = 15.0003
TEST(FcCalcSeihyou, TheFirstTwoRepeatedPointsAreAveraged) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "10.0000")
      .section("1.0000", "6")
      .benchMark("P", "", "-2")
      .section("")
      .benchMark("B", "13.0000")
      .section("2.0000")
      .benchMark("Q", "", "-2")
      .section("")
      .benchMark("C", "")
      .section("1.0000")
      .benchMark("R", "", "-2")
      .section("")
      .benchMark("E", "", "-1");
  FcCalcSeihyou(grid, 1, first);
  EXPECT_EQ(result(grid, 3), "11.0006");
  EXPECT_EQ(result(grid, 4), "");  // the section behind a repeated point is not computed
  EXPECT_EQ(result(grid, 5), "13.0000");
  EXPECT_EQ(result(grid, 7), "15.0000");
  EXPECT_EQ(result(grid, 9), "13.0003");
  EXPECT_EQ(result(grid, 11), "14.0003");
  EXPECT_EQ(result(grid, 13), "15.0003");
}

// The mean of P and Q goes to row 9 as above, but E on row 9 is an ordinary end: the walk writes 15.0000
// + 2.0000 over it.
TEST(FcCalcSeihyou, TheWalkWritesOverAMeanAtAnOrdinaryPoint) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "10.0000")
      .section("1.0000", "6")
      .benchMark("P", "", "-2")
      .section("")
      .benchMark("B", "13.0000")
      .section("2.0000")
      .benchMark("Q", "", "-2")
      .section("")
      .benchMark("E", "", "-1");
  FcCalcSeihyou(grid, 1, first);
  EXPECT_EQ(result(grid, 9), "17.0000");
}

// The mean is rounded to 0.1 mm in every grade and shown in the grade's three decimals:
// (11.006 + 15.001) / 2 = 13.0035 → "13.004".
TEST(FcCalcSeihyou, MeansOfOtherGradesKeepFourDecimalsUntilShown) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "10.000")
      .section("1.000", "6")
      .benchMark("P", "", "-2")
      .section("")
      .benchMark("B", "13.000")
      .section("2.000", "1")
      .benchMark("Q", "", "-2")
      .section("")
      .benchMark("C", "")
      .section("1.000")
      .benchMark("R", "", "-2")
      .section("")
      .benchMark("E", "", "-1");
  FcCalcSeihyou(grid, 1, second);
  EXPECT_EQ(result(grid, 9), "13.004");
}

TEST(FcCalcSeihyou, AHeightBeyondAllNumbersIsAnOverflow) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "1E308")
      .section("1E308")
      .benchMark("B")
      .section("1E308")
      .benchMark("C", "", "-1");
  try {
    FcCalcSeihyou(grid, 1, first);
    FAIL() << "no error";
  } catch (const text::RuntimeError& error) {
    EXPECT_STREQ(error.what(), "オーバーフローしました。");
  }
}

TEST(FcCalcSeihyou, AnOpenEndWithoutSectionRowIsASubscriptError) {
  ui::Grid grid;
  test::GridMaker(grid).benchMark("A", "1.0000");
  EXPECT_THROW(FcCalcSeihyou(grid, 1, first), text::RuntimeError);
}

// Independent second road: heights of a long route equal the sum of whole units (0.1 mm) in integers.
TEST(FcCalcSeihyou, HeightsAreTheIntegerSumsOfDifferencesAndCorrections) {
  ui::Grid grid;
  test::GridMaker maker(grid);
  std::uint32_t state = 7;
  const auto next = [&state](int limit) {
    state = state * 1664525U + 1013904223U;
    return static_cast<int>((state >> 8U) % static_cast<std::uint32_t>(2 * limit + 1)) - limit;
  };
  const text::Pattern pattern("###0.0000");
  long long units = 1234567;  // 123.4567 m
  maker.benchMark("0", "123.4567");
  std::vector<long long> expected;
  for (int i = 1; i <= 3000; ++i) {
    const int difference = next(99999);
    const int correction = next(40);
    maker.section(pattern.format(difference / 10000.0), std::to_string(correction));
    maker.benchMark(std::to_string(i), "", i == 3000 ? "-1" : "");
    units += difference + correction;
    expected.push_back(units);
  }
  FcCalcSeihyou(grid, 1, first);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const std::string shown = result(grid, static_cast<int>(2 * i + 3));
    ASSERT_EQ(std::llround(text::readNumber(shown) * 10000), expected[i]) << shown;
  }
  const ui::Grid& again = grid;
  const std::string end = result(again, 6001);
  FcCalcSeihyou(grid, 500, first);
  EXPECT_EQ(result(again, 6001), end) << "a second calculation changes nothing";
}

class CorrectionCells : public testing::Test {
 protected:
  void SetUp() override {
    test::GridMaker(grid)
        .benchMark("A", "1.0000")   // 1
        .section("1.0000")          // 2
        .benchMark("P", "", "-2")   // 3
        .section("")                // 4
        .benchMark("B", "")         // 5
        .section("1.0000")          // 6
        .benchMark("C", "", "-1")   // 7
        .benchMark("D", "2.0000")   // 8
        .section("1.0000")          // 9
        .benchMark("E", "", "-1");  // 10
  }
  ui::Grid grid;
};

TEST_F(CorrectionCells, StandOnSectionRowsThatLeadOn) {
  using seihyou::isCorrectionCell;
  EXPECT_TRUE(isCorrectionCell(grid, 2, 2));
  EXPECT_TRUE(isCorrectionCell(grid, 6, 2));
  EXPECT_TRUE(isCorrectionCell(grid, 9, 2));
  EXPECT_FALSE(isCorrectionCell(grid, 4, 2)) << "behind a repeated point";
  EXPECT_FALSE(isCorrectionCell(grid, 3, 2)) << "a bench-mark row";
  EXPECT_FALSE(isCorrectionCell(grid, 7, 2)) << "a route end, with the next route right below";
  EXPECT_FALSE(isCorrectionCell(grid, 10, 2)) << "the last row";
  EXPECT_FALSE(isCorrectionCell(grid, 0, 2)) << "the header";
  EXPECT_FALSE(isCorrectionCell(grid, 2, 3)) << "another column";
}

TEST_F(CorrectionCells, FollowOneAnotherWithinTheRoute) {
  EXPECT_EQ(seihyou::nextCorrectionRow(grid, 2), 6) << "over the repeated point";
  EXPECT_EQ(seihyou::nextCorrectionRow(grid, 6), 6) << "the last of its route";
  EXPECT_EQ(seihyou::nextCorrectionRow(grid, 9), 9);
}

}  // namespace
