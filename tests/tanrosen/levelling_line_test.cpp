#include "tanrosen/levelling_line.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "tanrosen/calculation.h"
#include "tanrosen/route_maker.h"
#include "text/number.h"

namespace {

using tanrosen::calcOnKnownHeights;
using tanrosen::Points;
using Texts = std::vector<std::string>;

const job::Grade first(1);
const job::Grade second(2);

/// Three known points, closure errors 0, +4 and +2 mm; 1, 1, 2 and 2 km.
void layThreeKnown(ui::Grid& grid) {
  test::RouteMaker(grid)
      .benchMark("A", "1", "50.000", "50.000")
      .benchMark("B", "1", "51.000")
      .benchMark("C", "2", "52.000", "52.004")
      .benchMark("D", "2", "53.000")
      .benchMark("E", "", "54.000", "54.002", "-1");
}

// B 4 × 1/2 = 2; D 4 + (2 − 4) × 2/4 = 3: every known point ends on its known height.
TEST(OnKnownHeights, EverySegmentTakesItsWholeClosureError) {
  ui::Grid grid;
  layThreeKnown(grid);
  for (int times = 0; times < 2; ++times) {
    calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
    EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "4", "3", "2"})) << times;
    EXPECT_EQ(test::results(grid), (Texts{"50.000", "51.002", "52.004", "53.003", "54.002"})) << times;
  }
}

// The distribution of changes has left E at 53.998 with its closure error 2 beside it: known is 54.002 still.
TEST(OnKnownHeights, TheKnownHeightsAreFoundAgainBehindTheOtherCalculation) {
  ui::Grid grid;
  layThreeKnown(grid);
  tanrosen::FcCalcTanrosen(grid, {"A", "C", "E"}, second, "0");
  ASSERT_EQ(test::results(grid).back(), "53.998");
  calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
  EXPECT_EQ(test::results(grid), (Texts{"50.000", "51.002", "52.004", "53.003", "54.002"}));
}

// A known height typed over a computed one counts: E 54.008: +8 mm, D 4 + 4 × 2/4 = 6.
TEST(OnKnownHeights, AKnownHeightTypedAnewCounts) {
  ui::Grid grid;
  layThreeKnown(grid);
  calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
  grid.setText(9, tanrosen::colResult, "54.008");
  calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "4", "6", "8"}));
}

// The order of the list does not matter, nor does a name twice in it; B is listed without a height.
TEST(OnKnownHeights, KnownPointsAreThoseOfTheListThatHaveAHeight) {
  ui::Grid grid;
  layThreeKnown(grid);
  calcOnKnownHeights(grid, {"E", "C", "B", "A", "C", "nowhere"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "4", "3", "2"}));
}

// Above the first known point and below the last one the line hangs: its correction goes on, B's +5 and D's
// +3 mm.
TEST(OnKnownHeights, ALineThatHangsKeepsTheCorrectionOfItsKnownPoint) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000")
      .benchMark("B", "1", "11.000", "11.005")
      .benchMark("C", "1", "12.000")
      .benchMark("D", "1", "13.000", "13.003")
      .benchMark("E", "", "14.000", "", "-1");
  calcOnKnownHeights(grid, {"B", "D"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"5", "5", "4", "3", "3"}));
  EXPECT_EQ(test::results(grid), (Texts{"10.005", "11.005", "12.004", "13.003", "14.003"}));
}

TEST(OnKnownHeights, WithoutAKnownPointNothingIsWritten) {
  ui::Grid grid;
  test::RouteMaker(grid).benchMark("A", "1", "10.000").benchMark("B", "", "11.000", "", "-1");
  calcOnKnownHeights(grid, {"A"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"", ""}));
  ui::Grid empty;
  test::RouteMaker{empty};
  calcOnKnownHeights(empty, {"A"}, second, "0");
}

// Between A and B there is no distance: B's neighbour X takes what A has, 0.
TEST(OnKnownHeights, WithoutDistancesCorrectionsAreThoseOfTheUpperKnownPoint) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "", "10.000", "10.001")
      .benchMark("X", "", "11.000")
      .benchMark("B", "", "12.000", "12.004", "-1");
  calcOnKnownHeights(grid, {"A", "B"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"1", "1", "4"}));
}

// P known, +2 mm, its section's runs apart: PF and PB both 2; Q 2 + (6 − 2) × 0.5/2.0 = 3; E 6 on its known
// height.
TEST(OnKnownHeights, ASectionWithRunsApartCountsOnce) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1.0", "10.000", "10.000")
      .benchMark("PF", "0.5", "11.000", "11.002")
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("PB", "0.5", "11.000", "11.002")
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("Q", "1.5", "11.500")
      .benchMark("E", "", "12.500", "12.506", "-1");
  calcOnKnownHeights(grid, {"A", "PF", "PB", "E"}, second, "0");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "2", "", "2", "", "3", "6"}));
  EXPECT_EQ(test::results(grid).back(), "12.506");
}

// Two routes of a family: every second bench mark of each from its own first one on. First: +6 mm over 1 + 2
// km: 2, 6. Second: −3 mm over 2 + 1: −2, −3.
TEST(OnKnownHeights, EveryRouteOfAFamilyIsClosedByItself) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("a", "1", "10.500")
      .benchMark("B", "2", "11.000")
      .benchMark("b", "2", "11.500")
      .benchMark("C", "", "12.000", "12.006", "-1")
      .benchMark("C", "2", "12.006", "12.006")
      .benchMark("c", "2", "12.500")
      .benchMark("D", "1", "13.006")
      .benchMark("d", "1", "13.500")
      .benchMark("E", "", "14.006", "14.003", "-1");
  calcOnKnownHeights(grid, {"A", "C", "C", "E"}, second, "1");
  EXPECT_EQ(test::corrections(grid), (Texts{"0", "", "2", "", "6", "0", "", "-2", "", "-3"}));
  EXPECT_EQ(test::results(grid)[7], "13.004");
  EXPECT_EQ(test::results(grid).back(), "14.003");
}

/// A line with random known points, in whole units of its grade.
struct RandomLine {
  explicit RandomLine(std::uint32_t seed) : grade(seed % 2 == 0 ? 1 : 2) {
    std::mt19937 random(seed);
    const auto between = [&](int least, int most) {
      return least + static_cast<int>(random() % static_cast<std::uint32_t>(most - least + 1));
    };
    const int points = between(2, 40);
    long height = between(0, 1000000);
    for (int i = 0; i < points; ++i) {
      observed.push_back(height);
      metres.push_back(between(50, 3500));
      known.emplace_back();
      if (between(0, 3) == 0) known.back() = height + between(-200, 200);
      height += between(-50000, 50000);
    }
    const auto one = static_cast<std::size_t>(between(0, points - 1));
    known[one] = observed[one] + between(-200, 200);
  }

  std::string shown(long units) const {
    return grade.heights().format(static_cast<double>(units) / grade.factor());
  }

  void lay(ui::Grid& grid, Texts& knownPoints) const {
    test::RouteMaker maker(grid);
    for (std::size_t i = 0; i < observed.size(); ++i) {
      const bool isEnd = i + 1 == observed.size();
      const std::string name = "P" + std::to_string(i);
      maker.benchMark(name, isEnd ? "" : text::numberText(metres[i] / 1000.0), shown(observed[i]),
                      known[i] ? shown(*known[i]) : "", isEnd ? "-1" : "");
      if (known[i]) knownPoints.push_back(name);
    }
  }

  job::Grade grade;
  std::vector<long> observed;              // units
  std::vector<int> metres;                 // of the section behind
  std::vector<std::optional<long>> known;  // units
};

// The normal equations of the line: minimise Σ (x[i+1] − x[i] − d[i])² / L[i] with the known heights held.
// Each row is that of one point, −x[i−1]/L[i−1] + x[i] (1/L[i−1] + 1/L[i]) − x[i+1]/L[i] = d[i−1]/L[i−1] −
// d[i]/L[i], or x[i] = known. Tridiagonal: one elimination downwards, one substitution upwards.
std::vector<long double> leastSquares(const RandomLine& line) {
  const std::size_t n = line.observed.size();
  std::vector<long double> diagonal(n, 0), upper(n, 0), lower(n, 0), right(n, 0);
  const auto add = [&](std::size_t i, std::size_t j, long double rise, long double weight) {
    if (line.known[i]) return;
    diagonal[i] += weight;
    (j > i ? upper : lower)[i] -= weight;
    right[i] -= weight * rise;
  };
  for (std::size_t i = 0; i + 1 < n; ++i) {
    const long double weight = 1000.0L / line.metres[i];
    const auto rise = static_cast<long double>(line.observed[i + 1] - line.observed[i]);
    add(i, i + 1, rise, weight);
    add(i + 1, i, -rise, weight);
  }
  for (std::size_t i = 0; i < n; ++i)
    if (line.known[i]) {
      diagonal[i] = 1;
      right[i] = *line.known[i];
    }
  for (std::size_t i = 1; i < n; ++i) {
    const long double factor = lower[i] / diagonal[i - 1];
    diagonal[i] -= factor * upper[i - 1];
    right[i] -= factor * right[i - 1];
  }
  std::vector<long double> heights(n);
  for (std::size_t i = n; i-- > 0;)
    heights[i] = (right[i] - (i + 1 < n ? upper[i] * heights[i + 1] : 0)) / diagonal[i];
  return heights;
}

TEST(OnKnownHeights, HeightsAreTheLeastSquaresHeightsToTheRoundingUnit) {
  for (std::uint32_t seed = 1; seed <= 500; ++seed) {
    SCOPED_TRACE(seed);
    const RandomLine line(seed);
    ui::Grid grid;
    Texts known;
    line.lay(grid, known);
    calcOnKnownHeights(grid, known, line.grade, "0");
    const auto expected = leastSquares(line);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const std::string& shown = grid.text(1 + 2 * static_cast<int>(i), tanrosen::colResult);
      const long double units =
          static_cast<long double>(text::readNumber(shown)) * static_cast<long double>(line.grade.factor());
      ASSERT_LE(std::abs(units - expected[i]), 0.5L + 1e-4L) << "bench mark " << i;
      if (line.known[i]) {
        ASSERT_EQ(shown, line.shown(*line.known[i]));
      }
    }
  }
}

// Where the plain calculation closes on its known points, on two, both commands give the same cells.
TEST(OnKnownHeights, BetweenTwoKnownPointsItIsThePlainCalculation) {
  for (std::uint32_t seed = 1; seed <= 200; ++seed) {
    RandomLine line(seed);
    for (auto& known : line.known) known.reset();
    line.known.front() = line.observed.front();
    line.known.back() = line.observed.back() + static_cast<long>(seed % 37) - 18;
    ui::Grid plain;
    ui::Grid grid;
    Texts known;
    line.lay(plain, known);
    line.lay(grid, known);
    tanrosen::FcCalcTanrosen(plain, {known.front(), known[1]}, line.grade, "4");
    calcOnKnownHeights(grid, known, line.grade, "4");
    ASSERT_EQ(test::corrections(grid), test::corrections(plain)) << seed;
    ASSERT_EQ(test::results(grid), test::results(plain)) << seed;
  }
}

}  // namespace
