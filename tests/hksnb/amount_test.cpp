#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>

#include "hksnb/book_maker.h"
#include "hksnb/calculation.h"
#include "support/recording_desktop.h"
#include "text/pattern.h"

namespace {

using hksnb::Kind;

const job::Grade first(1);
const job::Grade second(2);

/// The amount of one bench mark, and what the previous result reads afterwards.
std::string amount(const std::string& present, const std::string& previous, job::Grade grade) {
  ui::Grid grid;
  test::BookMaker(grid, Kind::Orthometric).benchMark("A", "", present).section();
  grid.setText(1, hksnb::colPrevious, previous);
  hksnb::FcHHKSB_HendryoCal(grid, grade);
  return grid.text(1, hksnb::colVariation) + " / " + grid.text(1, hksnb::colPrevious);
}

TEST(VariationAmount, IsPresentMinusPreviousInMillimetres) {
  EXPECT_EQ(amount("10.1234", "10.1200", first), "3.4 / 10.1200");
  EXPECT_EQ(amount("10.123", "10.120", second), "3 / 10.120");
}

// 10.115 − 10.120 = −0.005 m
TEST(VariationAmount, OfALowerResultIsNegative) {
  EXPECT_EQ(amount("10.115", "10.120", second), "-5 / 10.120");
}

TEST(VariationAmount, OfABlankPresentResultIsThePreviousBelowZero) {
  EXPECT_EQ(amount("", "1.5", first), "-1500.0 / 1.5000");
}

TEST(VariationAmount, TextsThatAreNoNumbersCountAsZero) {
  EXPECT_EQ(amount("10", "abc", second), "10000 / 0.000");
  EXPECT_EQ(amount("1.5x", " 1.25 ", second), "250 / 1.250");
}

TEST(VariationAmount, OfABlankPreviousResultIsBlankAlsoTheSecondTime) {
  ui::Grid grid;
  test::BookMaker(grid, Kind::Orthometric).benchMark("A", "", "10.1234").section();
  grid.setText(1, hksnb::colPrevious, "10.1");
  hksnb::FcHHKSB_HendryoCal(grid, first);
  EXPECT_EQ(grid.text(1, hksnb::colVariation), "23.4");
  for (int again = 0; again < 2; ++again) {
    grid.setText(1, hksnb::colPrevious, "  ");
    hksnb::FcHHKSB_HendryoCal(grid, first);
    EXPECT_EQ(grid.text(1, hksnb::colVariation), "");
  }
}

// 10.1195 − 10.123 = −0.0035 m: −3.5 mm is −4 in whole millimetres. In doubles the subtraction gives
// −3.49999999999966.
TEST(VariationAmount, RoundsHalvesAwayFromZeroDespiteTheNoiseOfSubtraction) {
  EXPECT_EQ(amount("10.1195", "10.123", second), "-4 / 10.123");
  EXPECT_EQ(amount("1234.56785", "1234.5678", first), "0.1 / 1234.5678");  // 0.05 mm
}

// 10.1195 reads 10.120 in second grade: 10.123 − 10.120 = 3 mm, not the 3.5 of what was typed.
TEST(VariationAmount, CountsThePreviousResultAsItReads) {
  ui::Grid grid;
  test::BookMaker(grid, Kind::Orthometric).benchMark("A", "", "10.123").section();
  grid.setText(1, hksnb::colPrevious, "10.1195");
  hksnb::FcHHKSB_HendryoCal(grid, second);
  const auto once = test::rowText(grid, 1);
  EXPECT_EQ(once, "|||||A|||10.123|10.120|3||");
  hksnb::FcHHKSB_HendryoCal(grid, second);
  EXPECT_EQ(test::rowText(grid, 1), once) << "a second press changes nothing";
}

TEST(VariationAmount, OfEqualResultsIsZeroWithoutASign) {
  EXPECT_EQ(amount("10.1", "10.1", first), "0.0 / 10.1000");
  EXPECT_EQ(amount("10.1000", "10.10001", second), "0 / 10.100");
}

TEST(VariationAmount, LeavesSectionsAloneAndTheEmptyBookToo) {
  ui::Grid grid;
  test::BookMaker(grid, Kind::Orthometric)
      .benchMark("A", "", "10")
      .section("1.0")
      .benchMark("B", "", "11")
      .section();
  grid.setText(2, hksnb::colPrevious, "5");
  grid.setText(3, hksnb::colPrevious, "10.999");
  hksnb::FcHHKSB_HendryoCal(grid, first);
  EXPECT_EQ(grid.text(2, hksnb::colPrevious), "5");
  EXPECT_EQ(grid.text(2, hksnb::colVariation), "");
  EXPECT_EQ(grid.text(3, hksnb::colVariation), "1.0");
  hksnb::FcHHKSB_InitGrid1(grid, Kind::Orthometric);
  EXPECT_NO_THROW(hksnb::FcHHKSB_HendryoCal(grid, first));
}

// Against integers: heights in units of 0.1 mm give the amount as their difference in tenths.
TEST(VariationAmount, IsTheIntegerDifferenceOfTheUnits) {
  const text::Pattern heights("###0.0000");
  std::uint32_t state = 11;
  const auto next = [&state](std::uint32_t limit) {
    state = state * 1664525U + 1013904223U;
    return static_cast<int>((state >> 8U) % limit);
  };
  for (int i = 0; i < 3000; ++i) {
    const int p = next(35000000);  // up to 3500 m
    const int q = p + next(4001) - 2000;
    const int tenths = p - q;
    const std::string expected = (tenths < 0 ? "-" : "") + std::to_string(std::abs(tenths) / 10) + "." +
                                 std::to_string(std::abs(tenths) % 10);
    const std::string previous = heights.format(q / 10000.0);
    ASSERT_EQ(amount(heights.format(p / 10000.0), previous, first), expected + " / " + previous);
  }
}

TEST(VariationAmount, ReportsAnErrorUnderItsOwnName) {
  test::RecordingDesktop desktop;
  ui::Grid grid;
  test::BookMaker(grid, Kind::Orthometric).benchMark("A", "", "1").section();
  grid.setDesktop(&desktop);
  grid.setText(1, hksnb::colPrevious, "1e999");
  hksnb::FcHHKSB_HendryoCal(grid, first);
  EXPECT_EQ(
      desktop.takeMessages(),
      (std::vector<ui::Message>{{"FcHHKSB_HendryoCal", "オーバーフローしました。", ui::Icon::Critical}}));
}

TEST(BenchMarkList, NamesEveryBenchMarkInOrder) {
  ui::Grid grid;
  ui::ListBox list("LstHyousekiNo", nullptr);
  list.addItem("old");
  test::BookMaker(grid, Kind::Orthometric)
      .benchMark("A")
      .section("1")
      .benchMark("B")
      .section("2")
      .benchMark("A")
      .section();
  hksnb::HKsnbSetFcGrid1ToHyousekiNo(grid, list);
  EXPECT_EQ(list.items(), (std::vector<std::string>{"A", "B", "A"}));
}

}  // namespace
