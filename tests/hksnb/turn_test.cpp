#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_maker.h"
#include "hksnb/calculation.h"
#include "support/recording_desktop.h"

namespace {

using hksnb::Kind;
using Lines = std::vector<std::string>;

const job::Grade first(1);

class Turn : public testing::Test {
 protected:
  Turn() {
    test::BookMaker(grid, Kind::Orthometric)
        .benchMark("A", "10.0000", "10.0000", "R1")
        .section("1.0000", "5", "1.0005", "山道")
        .benchMark("B", "11.0000", "11.0005")
        .section("-2.0000", "-3", "-2.0003", "橋")
        .benchMark("C", "9.0000", "9.0002", "R2")
        .section("0.5000", "0", "0.5000")
        .benchMark("D", "9.5000", "9.5002")
        .section();
    grid.setText(3, hksnb::colPrevious, "11.0000");
    grid.setText(3, hksnb::colVariation, "0.5");
    grid.setText(3, hksnb::colRemark, "標識");
    grid.setText(7, hksnb::colEndMark, "-1");
  }

  void turn(const char* start, const char* end, Kind kind = Kind::Orthometric) {
    hksnb::HKsnbSetFcSortToGrid1(grid, {}, start, end, kind, first);
  }

  ui::Grid grid;
};

// C keeps 9.0000 and 9.0002. B: 9.0000 + 2.0000 = 11.0000, 9.0002 + 2.0003 = 11.0005.
// A: 11.0000 − 1.0000 = 10.0000, 11.0005 − 1.0005 = 10.0000. D below the span stays and belongs to R2.
TEST_F(Turn, ReversesBenchMarksAndSectionsAndSumsUpAnew) {
  turn("A", "C");
  EXPECT_EQ(test::rowTexts(grid),
            (Lines{"|R2||||C|9.0000||9.0002||||", "||||||2.0000|3.0000|2.0003|||橋|",
                   "|R1||||B|11.0000||11.0005|11.0000|0.5|標識|", "||||||-1.0000|-5.0000|-1.0005|||山道|",
                   "|||||A|10.0000||10.0000||||", "||||||0.5000|0|0.5000||||",
                   "|R2||||D|9.5000||9.5002||||-1", "||||||||||||"}));
}

TEST_F(Turn, TakesTheSpanInEitherOrder) {
  turn("C", "A");
  const auto downwards = test::cells(grid);
  turn("A", "C");  // back again
  turn("A", "C");
  EXPECT_EQ(test::cells(grid), downwards);
}

TEST_F(Turn, TheMarkOfARouteEndStaysOnItsRow) {
  turn("C", "D");
  EXPECT_EQ(grid.text(5, hksnb::colBenchMark), "D");
  EXPECT_EQ(grid.text(5, hksnb::colEndMark), "");
  EXPECT_EQ(grid.text(7, hksnb::colBenchMark), "C");
  EXPECT_EQ(grid.text(7, hksnb::colEndMark), "-1");
  EXPECT_EQ(grid.text(6, hksnb::colCorrection), "0.0000") << "zero has no sign";
}

TEST_F(Turn, AnUnknownOrEmptyNumberOrASingleBenchMarkDoesNothing) {
  const auto before = test::cells(grid);
  turn("A", "X");
  turn("", "C");
  turn("A", " ");
  turn("B", "B");
  EXPECT_EQ(test::cells(grid), before);
}

// With two bench marks A the lower one counts: the span is B to A.
TEST_F(Turn, OfRepeatedNumbersTheLastCounts) {
  grid.setText(7, hksnb::colBenchMark, "A");
  turn("A", "B");
  EXPECT_EQ(grid.text(1, hksnb::colBenchMark), "A");
  EXPECT_EQ(grid.text(3, hksnb::colBenchMark), "A");
  EXPECT_EQ(grid.text(5, hksnb::colBenchMark), "C");
  EXPECT_EQ(grid.text(7, hksnb::colBenchMark), "B");
}

TEST_F(Turn, BlankCellsStayBlankAndCountAsZero) {
  grid.setText(1, hksnb::colHeight, "");
  grid.setText(1, hksnb::colPresent, "");
  grid.setText(2, hksnb::colCorrection, "");
  grid.setText(2, hksnb::colPresent, "");
  turn("A", "C");
  EXPECT_EQ(test::rowText(grid, 4), "||||||-1.0000|||||山道|");
  EXPECT_EQ(test::rowText(grid, 5), "|||||A|||||||");
}

// B's height is blank; A = 9.0000 + 2.0000 − 1.0000 all the same.
TEST_F(Turn, TheSumGoesOnPastABlankHeight) {
  grid.setText(3, hksnb::colHeight, "");
  turn("A", "C");
  EXPECT_EQ(grid.text(3, hksnb::colHeight), "");
  EXPECT_EQ(grid.text(5, hksnb::colHeight), "10.0000");
}

// Below A at 10.0000 and 10.0000 the walk goes on: D 10 + 1.0000 = 11.0000 and 10 + 1.0005 = 11.0005,
// C 11.0000 − 0.5000 = 10.5000 and 11.0005 − 0.5000 = 10.5005, B 10.5000 + 2.0000 = 12.5000 and 10.5005
// + 2.0003 = 12.5008.
TEST_F(Turn, TheWalkGoesOnIntoASpanBelowTheFirstBenchMark) {
  turn("B", "D");
  EXPECT_EQ(test::rowTexts(grid), (Lines{"|R1||||A|10.0000||10.0000||||", "||||||1.0000|5|1.0005|||山道|",
                                         "|R2||||D|11.0000||11.0005||||", "||||||-0.5000|0.0000|-0.5000||||",
                                         "|||||C|10.5000||10.5005||||", "||||||2.0000|3.0000|2.0003|||橋|",
                                         "|R1||||B|12.5000||12.5008|11.0000|0.5|標識|-1", "||||||||||||"}));
}

// B stays; D 11.0000 − 2.0000 = 9.0000, 11.0005 − 2.0003 = 9.0002; C 9.0000 − 0.5000 = 8.5000, 9.0002 −
// 0.5000 = 8.5002.
TEST_F(Turn, HeightsAboveTheSpanStay) {
  turn("C", "D");
  EXPECT_EQ(test::rowText(grid, 3), "|||||B|11.0000||11.0005|11.0000|0.5|標識|");
  EXPECT_EQ(test::rowText(grid, 4), "||||||-2.0000|-3|-2.0003|||橋|");
  EXPECT_EQ(test::rowText(grid, 5), "|R2||||D|9.0000||9.0002||||");
  EXPECT_EQ(test::rowText(grid, 7), "|||||C|8.5000||8.5002||||-1");
}

// B's height is blank: D = 10.0000 + 1.0000 − 2.0000 all the same.
TEST_F(Turn, TheWalkComesPastABlankHeightAboveTheSpan) {
  grid.setText(3, hksnb::colHeight, "");
  turn("C", "D");
  EXPECT_EQ(grid.text(3, hksnb::colHeight), "");
  EXPECT_EQ(grid.text(5, hksnb::colHeight), "9.0000");
}

TEST(TurnOfAnEllipsoidalBook, HeightsAndCorrectionsTravelWithTheirBenchMarks) {
  ui::Grid grid;
  test::BookMaker(grid, Kind::Ellipsoidal)
      .benchMark("A", "480.0000", "480.0000")
      .section("10.0000")
      .benchMark("B", "490.0000", "490.0012")
      .section("9.5000");
  grid.setText(1, hksnb::colCorrection, "0");
  grid.setText(3, hksnb::colCorrection, "12.3");
  hksnb::HKsnbSetFcSortToGrid1(grid, {}, "A", "B", Kind::Ellipsoidal, first);
  EXPECT_EQ(test::rowTexts(grid), (Lines{"|||||B|490.0000|12.3|490.0012||||", "||||||-10.0000||||||",
                                         "|||||A|480.0000|0|480.0000||||", "||||||9.5000||||||"}));
}

/// A book of `benchMarks` bench marks, P0 … ; rows: header and two each.
void fill(ui::Grid& grid, int benchMarks) {
  test::BookMaker maker(grid, Kind::Orthometric);
  for (int i = 0; i < benchMarks; ++i)
    maker.benchMark("P" + std::to_string(i), "1.0000", "1.0000").section("0.0000", "", "0.0000");
}

// 500 bench marks make 1001 rows, 0 to 1000; one more makes 1003.
TEST(TurnOfALongBook, ABookOf500BenchMarksIsTheLongest) {
  test::RecordingDesktop desktop;
  ui::Grid grid;
  fill(grid, 500);
  grid.setDesktop(&desktop);
  hksnb::HKsnbSetFcSortToGrid1(grid, {}, "P0", "P499", Kind::Orthometric, first);
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_EQ(grid.text(1, hksnb::colBenchMark), "P499");
  fill(grid, 501);
  const auto before = test::cells(grid);
  hksnb::HKsnbSetFcSortToGrid1(grid, {}, "P0", "P1", Kind::Orthometric, first);
  EXPECT_EQ(desktop.takeMessages(),
            (std::vector<ui::Message>{
                {"HKsnbSetFcSortToGrid1", "インデックスが有効範囲にありません。", ui::Icon::Critical}}));
  EXPECT_EQ(test::cells(grid), before);
}

}  // namespace
