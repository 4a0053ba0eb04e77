#include "report/check.h"

#include <gtest/gtest.h>

namespace {

using namespace report;

TEST(Decimals, AreThoseThatACellShows) {
  EXPECT_EQ(decimalsOf("12.3400"), (Decimals{4, false}));
  EXPECT_EQ(decimalsOf("-7"), (Decimals{0, false}));
  EXPECT_EQ(decimalsOf("2.50E-05"), (Decimals{2, true}));
  EXPECT_EQ(decimalsOf("12a"), Decimals{});
  EXPECT_EQ(decimalsOf(""), Decimals{});
}

TEST(Difference, IsTakenToTheDecimalsShown) {
  EXPECT_EQ(difference("10.001", 10.0005), 0);  // the half rounds up to what is shown
  EXPECT_EQ(difference("10.002", 10.0005), 0.001);
  EXPECT_EQ(difference("-3", -2.5), 0);  // and away from zero
  // Of 15 digits this is 6.16255000000000, which is shown as 6.1626; in units of the last place it would be
  // 61625.4999999999510, whose 15 digits are less than a half.
  EXPECT_EQ(difference("6.1626", 6.1625499999999951), 0);
  EXPECT_EQ(difference("-6.1626", -6.1625499999999951), 0);
  EXPECT_EQ(difference("0.00E+00", 0), 0);
  EXPECT_EQ(difference("2.00E-05", 1.9957e-5), 0);  // 1.9957 rounds to 2.00 with two decimals
  EXPECT_EQ(difference("2.01E-05", 1.9957e-5), 1e-7);
  EXPECT_EQ(difference("", 4), -4);
}

TEST(Checked, ReckonsOneCellFromAnother) {
  // 10 + 2.5 = 12.5, shown as 12.5; 12.5 + 1 = 13.5, shown as 13.6: 0.1 too much.
  Table table{
      "", {{"標高", "m", Side::Point, false}}, {{{"10"}}, {{"2.5"}}, {{"12.5"}}, {{"1"}}, {{"13.6"}}}};
  Check check;
  check.columns = {{"標高", 0, 0}};
  check.cells.push_back({0, 2, Formula::given({0, 0, 0}) + Formula::given({0, 1, 0})});
  check.cells.push_back({0, 4, Formula::reckoned({0, 2, 0}) + Formula::given({0, 3, 0})});
  const auto results = checked({table}, check);
  ASSERT_EQ(results.size(), 2U);
  EXPECT_EQ(results[0].reckoned, 12.5);
  EXPECT_EQ(results[0].difference, 0);
  EXPECT_EQ(results[1].reckoned, 13.5);
  EXPECT_EQ(results[1].difference, 0.1);
}

TEST(Checked, NumbersOnTheWayHaveNoDifference) {
  Table table{"", {{"距離", "km", Side::Point, false}}, {{{"2.0"}}}};
  Check check;
  check.columns = {{"距離の和", 0, -1}};
  check.cells.push_back({0, 0, Formula::given({0, 0, 0}) * 2});
  EXPECT_EQ(checked({table}, check)[0].reckoned, 4);
  EXPECT_EQ(checked({table}, check)[0].difference, 0);
}

}  // namespace
