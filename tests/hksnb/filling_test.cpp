#include "hksnb/filling.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_maker.h"
#include "support/recording_desktop.h"

namespace {

using hksnb::Kind;
using hksnb::Observation;
using Lines = std::vector<std::string>;

const job::Grade first(1);
const job::Grade second(2);

/// An observation in 長野県 諏訪郡 富士見町.
Observation observation(const std::string& route, const std::string& benchMark, const std::string& height,
                        const std::string& meanDifference, const std::string& correction,
                        const std::string& result, const std::string& flag = {}) {
  Observation made;
  made.place = {"1001", route, "長野県", "諏訪郡", "富士見町"};
  made.benchMark = benchMark;
  made.height = height;
  made.meanDifference = meanDifference;
  made.correction = correction;
  made.result = result;
  made.flag = flag;
  return made;
}

class BookFilling : public testing::Test {
 protected:
  BookFilling() { grid.setDesktop(&desktop); }

  void fill(Kind kind, job::Grade grade, const std::vector<Observation>& observations) {
    FcHHKSB_InitGrid1(grid, kind);
    hksnb::Filling filling(grid, kind, grade);
    for (const Observation& each : observations) ASSERT_TRUE(filling.add(each));
    ASSERT_TRUE(filling.finish());
  }

  test::RecordingDesktop desktop;
  ui::Grid grid;
};

// Column 6: 10, + 1.0 = 11, + 2.0 = 13. Column 8: 10, + (1.0 + 0.0005) = 11.0005, + (2.0 − 0.0003) = 13.0002.
TEST_F(BookFilling, AnOrthometricBookWalksBothHeights) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "1", "5", "10"), observation("R1", "B", "", "2", "-3", "11.0005"),
        observation("R1", "C", "13.1", "", "", "", "-1")});
  EXPECT_EQ(test::rowTexts(grid),
            (Lines{"1001|R1|長野県|諏訪郡|富士見町|A|10.0000||10.0000||||", "||||||1.0000|5|1.0005||||",
                   "|||||B|11.0000||11.0005||||", "||||||2.0000|-3|1.9997||||",
                   "|||||C|13.0000||13.0002||||-1", "||||||||||||"}));
}

// In grade 2 corrections are millimetres: 1.0 + 0.005 = 1.005.
TEST_F(BookFilling, OtherGradesShowThreeDecimalsAndCorrectInMillimetres) {
  fill(Kind::Orthometric, second,
       {observation("R1", "A", "10", "1", "5", "10"), observation("R1", "B", "", "0.5", "", "11.005", "-1")});
  EXPECT_EQ(test::rowTexts(grid),
            (Lines{"1001|R1|長野県|諏訪郡|富士見町|A|10.000||10.000||||", "||||||1.000|5|1.005||||",
                   "|||||B|11.000||11.005||||-1", "||||||||||||"}));
}

// The stored 1.0007 is a difference: 0.0002 from 1.0 + 0.0005, 8.9993 from the height 10. The stored 10.0000
// is a height: 8.9995 from 1.0005, 0 from the height; 1.0005 takes its place.
TEST_F(BookFilling, AStoredResultIsTheDifferenceOrTheHeightThatItLiesNearerTo) {
  fill(Kind::Orthometric, first, {observation("R1", "A", "10", "1", "5", "1.0007")});
  EXPECT_EQ(grid.text(2, hksnb::colPresent), "1.0007");
  fill(Kind::Orthometric, first, {observation("R1", "A", "10", "1", "5", "10.0000")});
  EXPECT_EQ(grid.text(2, hksnb::colPresent), "1.0005");
}

// 5.5 lies as far from 1 + 0 as from the height 10: it is no difference.
TEST_F(BookFilling, AStoredResultHalfwayIsNoDifference) {
  fill(Kind::Orthometric, first, {observation("R1", "A", "10", "1", "0", "5.5")});
  EXPECT_EQ(grid.text(2, hksnb::colPresent), "1.0000");
}

// B near sea level: its result 0.0090 is its own height, from which it lies 0 away, and 0.0005 from 0.0040 +
// 0.0055. The walk has brought it to 201 in this book, which says nothing.
TEST_F(BookFilling, TheOwnHeightOfTheBenchMarkDecidesAndNotTheWalk) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "200", "1", "0", "200"),
        observation("R1", "B", "0.0090", "0.0040", "55", "0.0090")});
  EXPECT_EQ(grid.text(3, hksnb::colPresent), "201.0000");
  EXPECT_EQ(grid.text(4, hksnb::colPresent), "0.0095");
}

// With a correction of 0.0500 the result 0.0530 is the difference 0.0040 + 0.0500 but for 0.0010; from the
// mean difference alone it is 0.0490 away, from the height 0.0600 only 0.0070.
TEST_F(BookFilling, TheCorrectionCountsInWhatADifferenceLiesNear) {
  fill(Kind::Orthometric, first, {observation("R1", "A", "0.0600", "0.0040", "500", "0.0530")});
  EXPECT_EQ(grid.text(2, hksnb::colPresent), "0.0530");
}

// B's record holds no height: the result 11.0005 lies at the height that the walk has reached.
TEST_F(BookFilling, WhereTheRecordHoldsNoHeightTheWalkDoes) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "1", "5", "10"), observation("R1", "B", "", "2", "-3", "11.0005")});
  EXPECT_EQ(grid.text(4, hksnb::colPresent), "1.9997");
}

// Saved without a correction: the difference is the mean difference itself.
TEST_F(BookFilling, ABlankCorrectionBesideAResultCountsAsZero) {
  fill(Kind::Orthometric, first, {observation("R1", "A", "10", "1.25", "", "10")});
  EXPECT_EQ(test::rowText(grid, 2), "||||||1.2500||1.2500||||");
}

// Behind the second of two repeated bench marks no section was measured: its stored height makes none either.
TEST_F(BookFilling, ASectionWithoutAMeanDifferenceAndACorrectionStaysBlank) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "", "", "10", "-2"), observation("R1", "A", "", "1", "", "10")});
  EXPECT_EQ(test::rowText(grid, 2), "||||||||||||");
  EXPECT_EQ(grid.text(3, hksnb::colPresent), "10.0000");
}

// Its correction has not been calculated: the walk of present heights goes on level.
TEST_F(BookFilling, ASectionWithoutAResultHasNoCorrectedDifference) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "1.25", "4", ""), observation("R1", "B", "", "1", "", "")});
  EXPECT_EQ(test::rowText(grid, 2), "||||||1.2500|4|||||");
  EXPECT_EQ(grid.text(3, hksnb::colHeight), "11.2500");
  EXPECT_EQ(grid.text(3, hksnb::colPresent), "10.0000");
}

// Sections of 1.00004 m: 11.00004, 12.00008, 13.00012 read 11.0000, 12.0001, 13.0001. The present heights add
// what the section rows show: 11.0001 after 1.0000 + 0.0001, 12.0001 and 13.0001.
TEST_F(BookFilling, ObservedHeightsAddAllDecimalsOfTheMeanDifferences) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "1.00004", "1", "10"),
        observation("R1", "B", "", "1.00004", "0", "11.0001"),
        observation("R1", "C", "", "1.00004", "0", "12.0001"), observation("R1", "D", "", "", "", "", "-1")});
  EXPECT_EQ(test::rowTexts(grid),
            (Lines{"1001|R1|長野県|諏訪郡|富士見町|A|10.0000||10.0000||||", "||||||1.0000|1|1.0001||||",
                   "|||||B|11.0000||11.0001||||", "||||||1.0000|0|1.0000||||", "|||||C|12.0001||12.0001||||",
                   "||||||1.0000|0|1.0000||||", "|||||D|13.0001||13.0001||||-1", "||||||||||||"}));
}

// −1.00005 is shown as −1.0001, but 10 − 1.00005 = 8.99995 reads 9.0000.
TEST_F(BookFilling, AHalfOfAMeanDifferenceIsRoundedInTheHeight) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "-1.00005", "0", "10"), observation("R1", "B", "", "", "", "", "-1")});
  EXPECT_EQ(grid.text(2, hksnb::colHeight), "-1.0001");
  EXPECT_EQ(grid.text(3, hksnb::colHeight), "9.0000");
  EXPECT_EQ(grid.text(3, hksnb::colPresent), "8.9999");
}

// Ten thousand times 0.00005 is 0.5000 to the last digit.
TEST_F(BookFilling, ObservedHeightsGatherNoNoise) {
  FcHHKSB_InitGrid1(grid, Kind::Orthometric);
  hksnb::Filling filling(grid, Kind::Orthometric, first);
  const Observation each = observation("R1", "A", "480", "0.00005", "", "");
  for (int i = 0; i < 10001; ++i) ASSERT_TRUE(filling.add(each));
  EXPECT_EQ(grid.text(3, hksnb::colHeight), "480.0001");
  EXPECT_EQ(grid.text(20001, hksnb::colHeight), "480.5000");
}

// Without saved corrections nothing is added to the present heights: B keeps A's 0, the walk of column 6 goes
// on: 0 + 1.5.
TEST_F(BookFilling, BenchMarksWithoutCorrectionsStandInTheBookWithBlankColumns) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "", "1.5", "", ""), observation("R1", "B", "", "1", "", "")});
  EXPECT_EQ(test::rowTexts(grid), (Lines{"1001|R1|長野県|諏訪郡|富士見町|A|||||||", "||||||1.5000||||||",
                                         "|||||B|1.5000||0.0000||||", "||||||1.0000||||||"}));
}

// The first route ends on C at 13.0002 / 13.0000, where the second begins: its C goes on from there, whatever
// height (20) its own correction holds, and D stands 0.5 + 0.0001 higher, 13.5003.
TEST_F(BookFilling, TheWalkGoesOnIntoTheNextRouteAndRouteEndsBetweenAreLeftOut) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "1", "5", "10"), observation("R1", "B", "", "2", "-3", "11.0005"),
        observation("R1", "C", "13", "", "", "", "-1"), observation("R2", "C", "20", "0.5", "1", "20"),
        observation("R2", "D", "20.5", "", "", "", "-1")});
  EXPECT_EQ(
      test::rowTexts(grid),
      (Lines{"1001|R1|長野県|諏訪郡|富士見町|A|10.0000||10.0000||||", "||||||1.0000|5|1.0005||||",
             "|||||B|11.0000||11.0005||||", "||||||2.0000|-3|1.9997||||", "|R2||||C|13.0000||13.0002||||",
             "||||||0.5000|1|0.5001||||", "|||||D|13.5000||13.5003||||-1", "||||||||||||"}));
}

TEST_F(BookFilling, ARouteEndThatSomethingFollowsIsNotShownAtTheEnd) {
  fill(Kind::Orthometric, first,
       {observation("R1", "A", "10", "1", "", ""), observation("R1", "B", "", "", "", "", "-1"),
        observation("R2", "C", "10", "1", "", "")});
  EXPECT_EQ(grid.rows(), 5);
  EXPECT_EQ(grid.text(3, hksnb::colBenchMark), "C");
  EXPECT_EQ(grid.text(3, hksnb::colEndMark), "");
}

// First grade shows ellipsoidal corrections in tenths: 1.23 → 12.3. Heights are those of the bench marks.
TEST_F(BookFilling, AFirstGradeEllipsoidalBookShowsCorrectionsTimesTen) {
  fill(Kind::Ellipsoidal, first,
       {observation("R1", "A", "480", "10", "0.0", "480"),
        observation("R1", "B", "490", "10", "1.23", "490.0012"), observation("R1", "C", "500", "", "", ""),
        observation("R1", "D", "510", "", "-2.5", "509.9975", "-1")});
  EXPECT_EQ(test::rowTexts(grid),
            (Lines{"1001|R1|長野県|諏訪郡|富士見町|A|480.0000|0|480.0000||||", "||||||10.0000||||||",
                   "|||||B|490.0000|12.3|490.0012||||", "||||||10.0000||||||", "|||||C|500.0000||||||",
                   "||||||||||||", "|||||D|510.0000|-25|509.9975||||-1", "||||||||||||"}));
}

TEST_F(BookFilling, OtherGradesShowEllipsoidalCorrectionsAsStored) {
  fill(Kind::Ellipsoidal, second,
       {observation("R1", "A", "480", "10", "1.23", "480.001"), observation("R1", "B", "490", "", "", "")});
  EXPECT_EQ(grid.text(1, hksnb::colCorrection), "1.23");
  EXPECT_EQ(grid.text(3, hksnb::colCorrection), "");
}

TEST_F(BookFilling, RemarksAndFlagsStandWithTheirRows) {
  Observation a = observation("R1", "A", "10", "1", "", "", "-2");
  a.remark1 = "起点";
  a.remark2 = "傾斜地";
  Observation b = observation("R1", "B", "", "1", "", "", "-1");
  b.remark1 = "終点";
  b.remark2 = "残り";
  fill(Kind::Orthometric, first, {a, b});
  EXPECT_EQ(test::rowTexts(grid),
            (Lines{"1001|R1|長野県|諏訪郡|富士見町|A|10.0000||10.0000|||起点|-2", "||||||1.0000|||||傾斜地|",
                   "|||||B|11.0000||10.0000|||終点|-1", "|||||||||||残り|"}))
      << "the last section row holds its remark alone";
}

TEST_F(BookFilling, PlacesAreShownWhereTheyChangeAlsoToBlank) {
  Observation a = observation("R1", "A", "10", "1", "", "");
  Observation b = a;
  Observation c = a;
  Observation d = a;
  b.place[hksnb::colTown] = "原村";
  c.place[hksnb::colTown] = "";
  fill(Kind::Orthometric, first, {a, b, c, d});
  EXPECT_EQ(grid.text(3, hksnb::colTown), "原村");
  EXPECT_EQ(grid.text(3, hksnb::colCounty), "");
  EXPECT_EQ(grid.text(5, hksnb::colTown), "");
  EXPECT_EQ(grid.text(7, hksnb::colTown), "富士見町");
}

TEST_F(BookFilling, NothingToFillLeavesTheEmptyRow) {
  fill(Kind::Orthometric, first, {});
  EXPECT_EQ(test::rowTexts(grid), Lines{"||||||||||||"});
  EXPECT_EQ(
      test::rowText(grid, 0),
      "事業番号|路線番号|都道府県|郡市|町村|水準点番号|観測比高|正標高補正|観測成果:|平均成果:|変動量|備考|");
  fill(Kind::Ellipsoidal, first, {});
  EXPECT_EQ(grid.text(0, hksnb::colCorrection), "楕円補正");
}

// 16,383 bench marks take rows 1 to 32,766; the next row would be number 32,767 of a grid of 32,768 rows.
TEST_F(BookFilling, AFullGridIsReportedOnceAndEndsTheFilling) {
  FcHHKSB_InitGrid1(grid, Kind::Orthometric);
  hksnb::Filling filling(grid, Kind::Orthometric, first);
  const Observation each = observation("R1", "A", "10", "0.001", "", "");
  for (int i = 0; i < 16383; ++i) ASSERT_TRUE(filling.add(each));
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_FALSE(filling.add(each));
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0],
            (ui::Message{"FcGridMoveRow", "オーバーフローしました。", ui::Icon::Critical}));
  EXPECT_EQ(grid.rows(), 32767);
}

}  // namespace
