#include "tanrosen/closure_table.h"

#include <gtest/gtest.h>

#include "tanrosen/route_maker.h"

namespace {

const route::Tolerances tolerances;

// A–C: 4 km, +31 mm, allowed 15 √4 = 30. C–E: 1 km, −14 mm (17 − 31), allowed 15.
TEST(ClosureTable, TellsDistanceClosureErrorAndTolerance) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1.5", "50.000", "50.000")
      .benchMark("B", "2.5", "51.000")
      .benchMark("C", "0.5", "52.000", "52.031")
      .benchMark("D", "0.5", "53.000")
      .benchMark("E", "", "54.000", "54.017", "-1");
  const auto table = tanrosen::closureTable(grid, {"A", "C", "E"}, job::Grade(2), "0", tolerances);
  ASSERT_EQ(table.size(), 2U);
  EXPECT_EQ(table[0].from, "A");
  EXPECT_EQ(table[0].to, "C");
  EXPECT_EQ(table[0].fromRow, 1);
  EXPECT_EQ(table[0].toRow, 5);
  EXPECT_DOUBLE_EQ(table[0].kilometres, 4);
  EXPECT_NEAR(table[0].closure, 31, 1e-9);
  EXPECT_DOUBLE_EQ(table[0].allowed, 30);
  EXPECT_FALSE(table[0].kept());
  EXPECT_NEAR(table[1].closure, -14, 1e-9);
  EXPECT_DOUBLE_EQ(table[1].allowed, 15);
  EXPECT_TRUE(table[1].kept());
}

// 30 mm over 4 km is just kept. Without a distance nothing can be said.
TEST(ClosureTable, AToleranceIsKeptToItsLastUnit) {
  for (const char* closing : {"10.030", "9.970"}) {
    ui::Grid grid;
    test::RouteMaker(grid)
        .benchMark("A", "4", "10.000", "10.000")
        .benchMark("B", "", "10.000", closing, "-1");
    EXPECT_TRUE(tanrosen::closureTable(grid, {"A", "B"}, job::Grade(3), "0", tolerances)[0].kept());
    grid.setText(1, tanrosen::colDistance, "");
    const auto table = tanrosen::closureTable(grid, {"A", "B"}, job::Grade(3), "0", tolerances);
    EXPECT_FALSE(table[0].measured());
    EXPECT_TRUE(table[0].kept());
  }
}

// A loop of 4 km in grade 2: 5 √4 = 10 mm.
TEST(ClosureTable, ALoopHasATighterTolerance) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "2", "10.000", "10.000")
      .benchMark("B", "2", "11.000")
      .benchMark("A", "", "10.011", "10.000", "-1");
  const auto table = tanrosen::closureTable(grid, {"A", "A"}, job::Grade(2), "0", tolerances);
  ASSERT_EQ(table.size(), 1U);
  EXPECT_TRUE(table[0].loop);
  EXPECT_DOUBLE_EQ(table[0].allowed, 10);
  EXPECT_FALSE(table[0].kept());
}

TEST(ClosureTable, NoSegmentReachesOverARouteEnd) {
  ui::Grid grid;
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("B", "", "11.000", "11.001", "-1")
      .benchMark("C", "1", "20.000", "20.000")
      .benchMark("D", "", "21.000", "21.002", "-1");
  const auto table = tanrosen::closureTable(grid, {"A", "B", "C", "D"}, job::Grade(1), "4", tolerances);
  ASSERT_EQ(table.size(), 2U);
  EXPECT_EQ(table[1].from, "C");
}

}  // namespace
