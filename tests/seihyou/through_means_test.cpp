#include "seihyou/through_means.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "seihyou/calculation.h"
#include "seihyou/grid_maker.h"
#include "text/number.h"

namespace {

using seihyou::calcThroughMeans;
using Texts = std::vector<std::string>;

const job::Grade first(1);
const job::Grade second(2);

Texts results(const ui::Grid& grid) {
  Texts texts;
  for (int row = 1; row < grid.rows(); ++row) texts.push_back(grid.text(row, seihyou::colResult));
  return texts;
}

/// A to B observed there and back and there again, B to C once, as loading shows it: 22.0000 and 22.0020,
/// mean 22.0010.
void layPair(ui::Grid& grid) {
  test::GridMaker(grid)
      .benchMark("A", "20.0000")
      .section("2.0000", "8")
      .benchMark("B", "22.0000", "-2")
      .section("")
      .benchMark("A", "20.0000")
      .section("2.0020")
      .benchMark("B", "22.0020", "-2")
      .section("")
      .benchMark("B", "22.0010")
      .section("1.5000")
      .benchMark("C", "23.5020", "-1");
}

// 20 + 2.0008 = 22.0008; 20 + 2.0020 = 22.0020; mean 22.0014; C 22.0014 + 1.5 = 23.5014.
TEST(ThroughMeans, TheMeanOfAPairIsCarriedOn) {
  ui::Grid grid;
  layPair(grid);
  for (int times = 0; times < 2; ++times) {
    calcThroughMeans(grid, 2, first);
    EXPECT_EQ(results(grid), (Texts{"20.0000", "2.0008", "22.0008", "", "20.0000", "2.0020", "22.0020", "",
                                    "22.0014", "1.5000", "23.5014"}))
        << times;
  }
}

// The other calculation carries 22.0020 + 2.0020 over to B and 25.5040 to C; this one mends it.
TEST(ThroughMeans, WhatTheOtherCalculationWroteOverIsMended) {
  ui::Grid grid;
  layPair(grid);
  seihyou::FcCalcSeihyou(grid, 2, first);
  ASSERT_EQ(grid.text(9, seihyou::colResult), "24.0040");
  calcThroughMeans(grid, 2, first);
  EXPECT_EQ(grid.text(9, seihyou::colResult), "22.0014");
  EXPECT_EQ(grid.text(11, seihyou::colResult), "23.5014");
}

// A correction before the pair moves the start of both runs: A0 9 + 11.0010 = 20.0010; runs 22.0010
// and 22.0030.
TEST(ThroughMeans, TheSecondRunBeginsWhereTheFirstOneDid) {
  for (const bool lettered : {false, true}) {
    ui::Grid grid;
    test::GridMaker(grid)
        .benchMark("O", "9.0000")
        .section("11.0000", "10")
        .benchMark(lettered ? "AF" : "A", "20.0000")
        .section("2.0000")
        .benchMark("B", "22.0000", "-2")
        .section("")
        .benchMark(lettered ? "AB" : "A", "20.0000")
        .section("2.0020")
        .benchMark("B", "22.0020", "-2")
        .section("")
        .benchMark("B", "22.0010", "-1");
    calcThroughMeans(grid, 1, first);
    EXPECT_EQ(grid.text(7, seihyou::colResult), "20.0010") << lettered;
    EXPECT_EQ(grid.text(11, seihyou::colResult), "22.0020") << lettered;
  }
}

// Two bench marks one behind the other are repeated: P 10 + 1.0010 = 11.0010, Q as far behind it as shown
// (0.5000), 11.5010; the mean 11.2510 stands at C, E 12.2510.
TEST(ThroughMeans, AHiddenDifferenceIsThatOfTheHeightsShown) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "10.0000")
      .section("1.0003", "7")
      .benchMark("P", "11.0003", "-2")
      .section("")
      .benchMark("Q", "11.5003", "-2")
      .section("")
      .benchMark("C", "11.2503")
      .section("1.0000")
      .benchMark("E", "12.7503", "-1");
  calcThroughMeans(grid, 1, first);
  EXPECT_EQ(results(grid),
            (Texts{"10.0000", "1.0010", "11.0010", "", "11.5010", "", "11.2510", "1.0000", "12.2510"}));
}

TEST(ThroughMeans, ARouteWithoutPairsIsThePlainCalculation) {
  ui::Grid grid;
  test::GridMaker(grid)
      .benchMark("A", "10.000")
      .section("1.000", "5")
      .benchMark("B", "11.000")
      .section("2.000", "-3")
      .benchMark("C", "13.000", "-1")
      .benchMark("D", "50.000")
      .section("1.000", "1")
      .benchMark("E", "51.000", "-1");
  calcThroughMeans(grid, 2, second);
  EXPECT_EQ(grid.text(5, seihyou::colResult), "13.002");
  EXPECT_EQ(grid.text(8, seihyou::colResult), "51.000") << "the other route stays";
  calcThroughMeans(grid, 5, second);
  EXPECT_EQ(grid.text(8, seihyou::colResult), "51.000") << "the end belongs to its own route";
  calcThroughMeans(grid, 6, second);
  EXPECT_EQ(grid.text(8, seihyou::colResult), "51.001");
}

// A route of sections, some of them observed there twice. Least squares with equal weights on the two runs of
// a section: its difference is the mean of both, so x[i] is the start and the sum of the means. Each mean is
// rounded to 0.1 mm on the way, half a unit each; with 1 mm for the unit nothing is lost.
TEST(ThroughMeans, HeightsAreTheLeastSquaresHeights) {
  for (std::uint32_t seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto between = [&](int least, int most) {
      return least + static_cast<int>(random() % static_cast<std::uint32_t>(most - least + 1));
    };
    const job::Grade grade(seed % 2 == 0 ? 1 : 2);
    const auto shown = [&](int units) { return grade.heights().format(units / grade.factor()); };
    ui::Grid grid;
    test::GridMaker maker(grid);
    double expected = 100000;  // units
    maker.benchMark("P0", shown(100000));
    int pairs = 0;
    const int sections = between(1, 30);
    for (int i = 1; i <= sections; ++i) {
      const std::string name = "P" + std::to_string(i);
      const int rise = between(-20000, 20000);
      const int correction = between(-20, 20);
      maker.section(shown(rise), text::numberText(correction));
      if (between(0, 2) == 0) {
        const int again = rise + between(-30, 30);
        maker.benchMark(name, "", "-2").section("").benchMark("P" + std::to_string(i - 1));
        maker.section(shown(again)).benchMark(name, "", "-2").section("");
        expected += (rise + correction + again) / 2.0;
        ++pairs;
      } else {
        expected += rise + correction;
      }
      maker.benchMark(name, "", i == sections ? "-1" : "");
    }
    calcThroughMeans(grid, 1, grade);
    const double units = text::readNumber(grid.text(grid.rows() - 1, seihyou::colResult)) * grade.factor();
    ASSERT_LE(std::abs(units - expected), (grade.isFirst() ? 0.5 * pairs : 0.5) + 1e-6);
  }
}

}  // namespace
