#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

#include "job/grade.h"
#include "tanrosen/calculation.h"
#include "tanrosen/route_maker.h"
#include "text/number.h"

namespace {

// A second road to the corrected heights: the least-squares adjustment of the route's height differences with
// weights 1 / distance and both ends fixed, from its normal equations.
//
//   minimise Σ (x[i+1] − x[i] − d[i])² / L[i], x[0] and x[n] known
//
// For each inner point i:  −x[i−1]/L[i−1] + x[i] (1/L[i−1] + 1/L[i]) − x[i+1]/L[i] = d[i−1]/L[i−1] −
// d[i]/L[i]. The matrix is tridiagonal; one elimination downwards and one substitution upwards solve it.
std::vector<long double> adjusted(long double start, long double end, const std::vector<long double>& rises,
                                  const std::vector<long double>& km) {
  const std::size_t inner = rises.size() - 1;
  std::vector<long double> diagonal(inner);
  std::vector<long double> right(inner);
  for (std::size_t i = 0; i < inner; ++i) {
    diagonal[i] = 1 / km[i] + 1 / km[i + 1];
    right[i] = rises[i] / km[i] - rises[i + 1] / km[i + 1];
  }
  right.front() += start / km.front();
  right.back() += end / km.back();
  for (std::size_t i = 1; i < inner; ++i) {
    const long double factor = 1 / km[i] / diagonal[i - 1];
    diagonal[i] -= factor / km[i];
    right[i] += factor * right[i - 1];
  }
  std::vector<long double> heights(inner);
  for (std::size_t i = inner; i-- > 0;) {
    const long double below = i + 1 < inner ? heights[i + 1] / km[i + 1] : 0;
    heights[i] = (right[i] + below) / diagonal[i];
  }
  return heights;
}

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed * 2862933555777941757ULL + 3037000493ULL) {}

  /// A whole number from `least` to `most`.
  int between(int least, int most) {
    state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
    const auto span = static_cast<std::uint64_t>(most - least + 1);
    return least + static_cast<int>((state_ >> 33U) % span);
  }

 private:
  std::uint64_t state_;
};

/// A random route between two known points; heights and differences in whole units of the grade.
struct RandomRoute {
  explicit RandomRoute(std::uint64_t seed) : grade(seed % 2 == 0 ? 1 : 2) {
    Dice dice(seed);
    const int sections = dice.between(2, 60);
    start = dice.between(0, 2000000);
    for (int i = 0; i < sections; ++i) {
      rises.push_back(dice.between(-50000, 50000));
      metres.push_back(dice.between(50, 3500));
    }
    end = std::accumulate(rises.begin(), rises.end(), start) + dice.between(-300, 300);
  }

  std::string shown(long units) const {
    return grade.heights().format(static_cast<double>(units) / grade.factor());
  }

  /// `stride4`: every point on every second bench-mark row, the rows between with the same distances.
  void lay(ui::Grid& grid, bool stride4) const {
    test::RouteMaker maker(grid);
    long height = start;
    for (std::size_t i = 0; i <= rises.size(); ++i) {
      const bool isEnd = i == rises.size();
      const std::string km = isEnd ? "" : text::numberText(metres[i] / 1000.0);
      const std::string known = i == 0 ? shown(start) : isEnd ? shown(end) : "";
      maker.benchMark("P" + std::to_string(i), km, shown(height), known, isEnd ? "-1" : "");
      if (!isEnd && stride4) maker.benchMark("between", km, shown(height));
      if (!isEnd) height += rises[i];
    }
  }

  std::vector<std::string> known() const { return {"P0", "P" + std::to_string(rises.size())}; }

  std::vector<long double> adjustedUnits() const {
    std::vector<long double> km;
    for (const int m : metres) km.push_back(m / 1000.0L);
    return adjusted(start, end, {rises.begin(), rises.end()}, km);
  }

  job::Grade grade;
  long start = 0;           // units
  long end = 0;             // units
  std::vector<long> rises;  // units
  std::vector<int> metres;  // lengths of the sections
};

void expectAdjustedHeights(const RandomRoute& route, const ui::Grid& grid, int stride) {
  const std::vector<long double> expected = route.adjustedUnits();
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const int row = 1 + stride * static_cast<int>(i + 1);
    const long double units =
        static_cast<long double>(text::readNumber(grid.text(row, tanrosen::colResult))) *
        static_cast<long double>(route.grade.factor());
    ASSERT_LE(std::abs(units - expected[i]), 0.5L + 1e-6L) << "row " << row << " of " << grid.rows();
  }
}

class Adjustment : public testing::TestWithParam<bool> {};

TEST_P(Adjustment, DistributedHeightsAreTheLeastSquaresHeightsToTheRoundingUnit) {
  const bool stride4 = GetParam();
  const char* category = stride4 ? "1" : "0";
  for (std::uint64_t seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE(seed);
    const RandomRoute route(seed);
    ui::Grid grid;
    route.lay(grid, stride4);
    tanrosen::FcCalcTanrosen(grid, route.known(), route.grade, category);
    expectAdjustedHeights(route, grid, stride4 ? 4 : 2);
    ASSERT_EQ(test::results(grid).front(), route.shown(route.start));
    ASSERT_EQ(test::results(grid).back(), route.shown(route.end)) << "closes on the known end";
    const auto results = test::results(grid);
    const auto corrections = test::corrections(grid);
    tanrosen::FcCalcTanrosen(grid, route.known(), route.grade, category);
    ASSERT_EQ(test::results(grid), results) << "a second calculation changes nothing";
    ASSERT_EQ(test::corrections(grid), corrections);
  }
}

INSTANTIATE_TEST_SUITE_P(EveryPointAndEverySecond, Adjustment, testing::Bool());

// A section with its runs apart, PF Q PB Q Q, is one section of the adjustment. `place`: which one.
TEST(AdjustmentWithRunsApart, HeightsAreThoseOfTheRouteWithTheSectionOnce) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE(seed);
    const RandomRoute route(seed);
    const auto place =
        static_cast<std::size_t>(Dice(seed).between(0, static_cast<int>(route.rises.size()) - 2));
    ui::Grid grid;
    test::RouteMaker maker(grid);
    std::vector<int> rows;
    long height = route.start;
    std::vector<std::string> known;
    for (std::size_t i = 0; i <= route.rises.size(); ++i) {
      const bool isEnd = i == route.rises.size();
      const std::string name = "P" + std::to_string(i);
      const std::string km = isEnd ? "" : text::numberText(route.metres[i] / 1000.0);
      const std::string knownHeight = i == 0 ? route.shown(route.start) : isEnd ? route.shown(route.end) : "";
      const std::string far = isEnd ? "" : route.shown(height + route.rises[i]);
      if (i == place) {
        maker.benchMark(name + "F", km, route.shown(height), knownHeight);
        maker.benchMark("far", "", far, "", "-2");
      }
      rows.push_back(grid.rows());
      maker.benchMark(i == place ? name + "B" : name, km, route.shown(height), knownHeight,
                      isEnd ? "-1" : "");
      if (i == place) maker.benchMark("far", "", far, "", "-2");
      if (!isEnd) height += route.rises[i];
    }
    known.push_back(place == 0 ? "P0F" : "P0");
    if (place == 0) known.push_back("P0B");
    known.push_back("P" + std::to_string(route.rises.size()));
    tanrosen::FcCalcTanrosen(grid, known, route.grade, "0");
    const auto expected = route.adjustedUnits();
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const long double units =
          static_cast<long double>(text::readNumber(grid.text(rows[i + 1], tanrosen::colResult))) *
          static_cast<long double>(route.grade.factor());
      ASSERT_LE(std::abs(units - expected[i]), 0.5L + 1e-6L) << "bench mark " << i + 1;
    }
    ASSERT_EQ(test::results(grid).back(), route.shown(route.end));
  }
}

}  // namespace
