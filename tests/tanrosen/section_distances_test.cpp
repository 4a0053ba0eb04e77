#include "tanrosen/section_distances.h"

#include <gtest/gtest.h>

#include <map>

#include "tanrosen/route_maker.h"
#include "text/error.h"

namespace {

using tanrosen::Points;
using tanrosen::SectionDistances;

// Rows 1, 3, 5, 7 with 1, 2, 4, 8 km. From row 5 to the end 4 + 8 = 12, from row 1 15; below row 7 nothing.
TEST(SectionDistances, SumUpFromAnyPointToTheEnd) {
  SectionDistances distances(9, 2, [](int row) { return 1 << (row / 2); });
  EXPECT_EQ(distances.of(3), 2);
  EXPECT_EQ(distances.toTheEnd(5), 12);
  EXPECT_EQ(distances.toTheEnd(1), 15);
  EXPECT_EQ(distances.toTheEnd(9), 0);
}

// Every fourth row: 1 and 5, with 1 and 4 km.
TEST(SectionDistances, TakeThePointsOfTheStrideAlone) {
  SectionDistances distances(9, 4, [](int row) { return 1 << (row / 2); });
  EXPECT_EQ(distances.toTheEnd(1), 5);
  EXPECT_EQ(distances.toTheEnd(5), 4);
}

TEST(SectionDistances, ReadEachDistanceOnceHoweverOftenItIsAskedFor) {
  std::map<int, int> readings;
  SectionDistances distances(2001, 2, [&](int row) {
    ++readings[row];
    return 1.0;
  });
  for (int times = 0; times < 3; ++times)
    for (int row = 1; row < 2001; row += 2) {
      distances.of(row);
      distances.toTheEnd(row);
    }
  EXPECT_EQ(readings.size(), 1000U);
  for (const auto& [row, times] : readings) ASSERT_EQ(times, 1) << row;
}

TEST(SectionDistances, AnEmptyGridHasNone) {
  SectionDistances distances(1, 2, [](int) { return 1.0; });
  EXPECT_EQ(distances.toTheEnd(1), 0);
}

// The row behind the last point of a full grid is 32,769 in steps of four.
TEST(SectionDistances, ARowBeyond16BitsIsAnOverflow) {
  SectionDistances distances(32767, 4, [](int) { return 1.0; });
  EXPECT_THROW(distances.toTheEnd(1), text::RuntimeError);
  SectionDistances shorter(32766, 2, [](int) { return 1.0; });
  EXPECT_EQ(shorter.toTheEnd(32765), 1);
}

TEST(SectionDistance, OfASectionWithRunsApartIsThatOfTheBackwardRun) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("PF", "0.5", "11.000")
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("PB", "0.6", "11.000")
      .benchMark("Q", "", "11.500", "", "-2");
  EXPECT_EQ(tanrosen::sectionDistance(grid, 1, Points::Every), 0);
  EXPECT_EQ(tanrosen::sectionDistance(grid, 5, Points::Every), 0.6);
  EXPECT_EQ(tanrosen::sectionDistance(grid, 1, Points::EverySecond), 0.5) << "no pairs there";
  EXPECT_THROW(tanrosen::sectionDistance(grid, -1, Points::Every), text::RuntimeError);
}

TEST(SectionDistance, PointsFollowFromTheCategory) {
  for (const char* category : {"0", "4"}) EXPECT_EQ(tanrosen::pointsOf(category), Points::Every) << category;
  for (const char* category : {"1", "2", "3", ""})
    EXPECT_EQ(tanrosen::pointsOf(category), Points::EverySecond) << category;
  EXPECT_EQ(tanrosen::stride(Points::Every), 2);
  EXPECT_EQ(tanrosen::stride(Points::EverySecond), 4);
}

}  // namespace
