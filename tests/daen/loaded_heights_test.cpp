#include "daen/loaded_heights.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <vector>

namespace {

struct Record {
  const char* benchMark;
  const char* flag;
  double own;
  double meanDifference;
};

using Heights = std::vector<std::optional<double>>;

Heights heightsOf(std::initializer_list<Record> records) {
  daen::LoadedHeights loaded;
  Heights heights;
  for (const Record& record : records) {
    heights.push_back(loaded.reach(record.benchMark, record.flag, record.own));
    loaded.leave(record.meanDifference);
  }
  return heights;
}

// 10 and 14 have the mean 12; the height runs on from 14.
TEST(LoadedHeights, TheMeanServesOneRowAndTheRunningHeightGoesOn) {
  EXPECT_EQ(heightsOf({{"B", "-2", 10, 4}, {"B", "-2", 0, 0}, {"B", "", 0, 1}, {"C", "", 0, 0}}),
            (Heights{10, 14, 12, 15}));
}

TEST(LoadedHeights, AHeightOfItsOwnGoesBeforeTheMean) {
  EXPECT_EQ(heightsOf({{"B", "-2", 10, 4}, {"B", "-2", 0, 0}, {"B", "", 11, 1}, {"C", "", 0, 0}}),
            (Heights{10, 14, 11, 12}));
}

TEST(LoadedHeights, TheMeanIsNotShownAtAnotherBenchMark) {
  EXPECT_EQ(heightsOf({{"B", "-2", 10, 4}, {"B", "-2", 0, 0}, {"C", "", 0, 1}, {"B", "", 0, 0}}),
            (Heights{10, 14, 14, 15}))
      << "nor at the same one further on";
}

TEST(LoadedHeights, RowsOfDifferentBenchMarksMakeNoPair) {
  EXPECT_EQ(heightsOf({{"B", "-2", 10, 4}, {"C", "-2", 0, 0}, {"C", "", 0, 0}}), (Heights{10, 14, 14}));
}

// B 10 and 16, mean 13, with C's row between them.
TEST(LoadedHeights, ARowOfAnotherBenchMarkBetweenThePairDoesNotPartIt) {
  EXPECT_EQ(heightsOf({{"B", "-2", 10, 4}, {"C", "-2", 0, 2}, {"B", "-2", 0, 0}, {"B", "", 0, 0}}),
            (Heights{10, 14, 16, 13}));
}

TEST(LoadedHeights, ARouteEndPartsThePair) {
  EXPECT_EQ(heightsOf({{"B", "-2", 10, 4}, {"B", "-1", 0, 0}, {"B", "-2", 0, 0}, {"B", "", 0, 0}}),
            (Heights{10, 14, 14, 14}));
}

// The third row begins a pair of its own: 14 and 20 have the mean 17.
TEST(LoadedHeights, PairFollowsPair) {
  EXPECT_EQ(
      heightsOf(
          {{"B", "-2", 10, 4}, {"B", "-2", 0, 0}, {"B", "-2", 0, 6}, {"B", "-2", 0, 0}, {"B", "", 0, 0}}),
      (Heights{10, 14, 12, 20, 17}));
}

// 0.00015 is rounded upwards to 0.0002, −0.00015 to −0.0001.
TEST(LoadedHeights, TheMeanIsRoundedToATenthOfAMillimetreHalvesUpwards) {
  EXPECT_EQ(heightsOf({{"B", "-2", 0.0001, 0.0001}, {"B", "-2", 0, 0}, {"B", "", 0, 0}}).back(), 0.0002);
  EXPECT_EQ(heightsOf({{"B", "-2", -0.0001, -0.0001}, {"B", "-2", 0, 0}, {"B", "", 0, 0}}).back(), -0.0001);
}

TEST(LoadedHeights, BeforeTheFirstHeightThereIsNone) {
  EXPECT_EQ(
      heightsOf({{"A", "", 0, 4}, {"B", "-2", 0, 0}, {"B", "-2", 0, 0}, {"B", "", 5, 1}, {"C", "", 0, 0}}),
      (Heights{std::nullopt, std::nullopt, std::nullopt, 5, 6}));
}

}  // namespace
