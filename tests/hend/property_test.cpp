#include <gtest/gtest.h>

#include <random>
#include <string>

#include "hend/calculation.h"
#include "hend/grid_maker.h"
#include "text/date.h"
#include "text/number.h"

namespace {

using hend::FcHendCalc;
using test::VariationGrid;

/// Routes of up to 30 bench marks with new points and pairs of runs among them.
class RandomRoutes : public testing::TestWithParam<int> {
 protected:
  int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

  std::string height() { return grade_.heights().format(between(-30000, 30000) / 10000.0); }

  std::string day() { return text::Date(1890, 1, 1).plus(between(0, 90000)).text(); }

  /// Every section gets the old difference of `old(new)`.
  template <class Old>
  VariationGrid route(const std::string& newDate, Old old) {
    VariationGrid made;
    const int sections = between(1, 15);
    for (int i = 0; i < sections; ++i) addSection(made, newDate, old);
    made.end("E");
    return made;
  }

  template <class Old>
  void addSection(VariationGrid& made, const std::string& newDate, Old old) {
    const std::string difference = height();
    switch (between(0, 3)) {
      case 0: {
        for (const char* run : {"RF", "RB"}) {
          made.add(run, newDate, difference, day(), old(difference));
          made.add("R", newDate, "", "", "", "-2");
        }
        break;
      }
      case 1: {
        const std::string other = height();
        const double whole = text::readNumber(difference) + text::readNumber(other);
        made.add("A", newDate, difference, day(), old(grade_.heights().format(whole)));
        made.add("N", newDate, other, "", "");
        break;
      }
      default:
        made.add("A", newDate, difference, day(), old(difference));
    }
  }

  void expectNothingCarried(const VariationGrid& route) {
    const std::string zero = grade_.heights().format(0);
    for (int row = 1; row < route.grid.rows(); ++row) {
      const std::string& correction = route.grid.text(row, hend::colCorrection);
      if (correction.empty()) continue;
      EXPECT_EQ(correction, zero);
      EXPECT_EQ(route.grid.text(row, hend::colResult), route.grid.text(row, hend::colNewHeight));
    }
  }

  std::mt19937 random_{static_cast<std::mt19937::result_type>(GetParam())};
  job::Grade grade_{static_cast<std::int16_t>(GetParam() % 3)};
};

// No days lie between the observation and the reference date.
TEST_P(RandomRoutes, AReferenceDateOnTheDayOfObservationCorrectsNothing) {
  for (int i = 0; i < 50; ++i) {
    const std::string today = day();
    VariationGrid made = route(today, [this](const std::string&) { return height(); });
    FcHendCalc(made.grid, today, grade_);
    expectNothingCarried(made);
  }
}

TEST_P(RandomRoutes, EqualDifferencesInBothEpochsGiveZeroEverywhere) {
  for (int i = 0; i < 50; ++i) {
    VariationGrid made = route(day(), [](const std::string& same) { return same; });
    FcHendCalc(made.grid, day(), grade_);
    expectNothingCarried(made);
    for (int row = 1; row < made.grid.rows(); ++row) {
      const std::string rate = made.grid.text(row, hend::colRate);
      EXPECT_TRUE(rate.empty() || rate == "0.00E+00") << rate;
    }
  }
}

TEST_P(RandomRoutes, ASecondCallChangesNothing) {
  for (int i = 0; i < 50; ++i) {
    VariationGrid made = route(day(), [this](const std::string&) { return height(); });
    const std::string reference = day();
    FcHendCalc(made.grid, reference, grade_);
    std::string before;
    for (int row = 1; row < made.grid.rows(); ++row) before += made.values(row) + "\n";
    FcHendCalc(made.grid, reference, grade_);
    std::string after;
    for (int row = 1; row < made.grid.rows(); ++row) after += made.values(row) + "\n";
    EXPECT_EQ(before, after);
  }
}

// The line adds up as it is shown: 基準日比高 = 新観測比高 + 変動補正量, to the last decimal.
TEST_P(RandomRoutes, EveryResultIsTheSumOfWhatIsShown) {
  for (int i = 0; i < 50; ++i) {
    VariationGrid made = route(day(), [this](const std::string&) { return height(); });
    FcHendCalc(made.grid, day(), grade_);
    for (int row = 1; row < made.grid.rows(); ++row) {
      if (made.grid.text(row, hend::colCorrection).empty()) continue;
      const double sum = text::readNumber(made.grid.text(row, hend::colNewHeight)) +
                         text::readNumber(made.grid.text(row, hend::colCorrection));
      EXPECT_EQ(made.grid.text(row, hend::colResult), grade_.heights().format(sum));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRoutes, testing::Range(1, 13));

}  // namespace
