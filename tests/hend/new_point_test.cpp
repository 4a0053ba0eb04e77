#include <gtest/gtest.h>

#include "hend/calculation.h"
#include "hend/grid_maker.h"

namespace {

using hend::FcHendCalc;
using test::VariationGrid;

const job::Grade first(1);
const job::Grade second(2);

/// E3, new between E2 and E4 (+2.0100 in 2019), observed on `date`; E2 on 2022/05/11. Rows: E1 1, E2 3, E3 5.
VariationGrid parted(const char* date) {
  VariationGrid route;
  route.add("E1", "2022/05/11", "1.5000", "2019/08/15", "1.4900");
  route.add("E2", "2022/05/11", "1.2000", "2019/08/15", "2.0100");
  route.add("E3", date, "0.8000", "", "");
  route.end("E4");
  return route;
}

// Between 2022/05/11 and 2022/05/21 lie 10 days, half of them 5: 2022/05/16, 1005 days after 2019/08/15 and
// 95 before 2022/08/19. 1.2000 + 0.8000 = 2.0000; 2.0000 − 2.0100 = −0.0100; −0.0100 / 1005 = −9.95E-06; × 95
// = −0.00095 (−0.000945), shown −0.0009; 2.0000 − 0.0009 = 1.9991.
TEST(NewPoint, ItsRowTakesTheCombinedSection) {
  VariationGrid route = parted("2022/05/21");
  for (int call = 0; call < 2; ++call) {  // a second call changes nothing
    FcHendCalc(route.grid, "2022/08/19", first);
    EXPECT_EQ(route.results(2), "0.0100||1.00E-05||0.0010|1.5010");
    EXPECT_EQ(route.values(3), "2022/05/11||2019/08/15|||1000||100||");
    EXPECT_EQ(route.values(4), "2022/05/16|1.2000||2.0100||||||");
    EXPECT_EQ(route.values(5), "2022/05/21|2.0000||2.0100|-0.0100|1005|-9.95E-06|95|-0.0009|1.9991");
    EXPECT_EQ(route.values(6), "|0.8000||||||||");
  }
}

// −0.000945 is −0.001 in millimetres: 2.000 − 0.001 = 1.999.
TEST(NewPoint, OtherGradesShowThreeDecimals) {
  VariationGrid route = parted("2022/05/21");
  FcHendCalc(route.grid, "2022/08/19", second);
  EXPECT_EQ(route.values(5), "2022/05/21|2.000||2.0100|-0.010|1005|-9.95E-06|95|-0.001|1.999");
}

// An odd day counts towards the later date: Int(11 / 2 + 0.5) = 6 days after the earlier one, either way
// round.
TEST(NewPoint, AnOddDayBetweenTheDatesIsRoundedUp) {
  VariationGrid later = parted("2022/05/22");
  FcHendCalc(later.grid, "", first);
  EXPECT_EQ(later.grid.text(4, hend::colNewDate), "2022/05/17");
  VariationGrid earlier = parted("2022/04/30");
  FcHendCalc(earlier.grid, "", first);
  EXPECT_EQ(earlier.grid.text(4, hend::colNewDate), "2022/05/06");
}

// 2020/02/27 and 2020/03/02 lie 4 days apart: two days after the 27th is the leap day.
TEST(NewPoint, TheMidpointMayBeALeapDay) {
  VariationGrid route = parted("2020/03/02");
  route.grid.setText(3, hend::colNewDate, "2020/2/27");
  FcHendCalc(route.grid, "", first);
  EXPECT_EQ(route.grid.text(4, hend::colNewDate), "2020/02/29");
}

TEST(NewPoint, WithoutAReferenceDateItIsNotCarried) {
  VariationGrid route = parted("2022/05/21");
  FcHendCalc(route.grid, "", first);
  EXPECT_EQ(route.results(5), "-0.0100|1005|-9.95E-06||0.0000|2.0000");
}

// Without its own date there is no midpoint; the days counted at E2 serve: −0.0100 / 1000 × 100 = −0.0010.
TEST(NewPoint, WithoutADateTheCountsBeforeServe) {
  VariationGrid route = parted("");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(4), "|1.2000||2.0100||||||");
  EXPECT_EQ(route.values(5), "|2.0000||2.0100|-0.0100||-1.00E-05||-0.0010|1.9990");
}

TEST(NewPoint, TheFirstBenchMarkPartsNoSection) {
  VariationGrid route;
  route.add("E1", "2022/05/11", "1.5000", "", "");
  route.add("E2", "2022/05/11", "1.0000", "2019/08/15", "0.9900");
  route.end("E3");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(1), "2022/05/11|||||||100||");
  EXPECT_EQ(route.values(2), "|1.5000||||||||");
  EXPECT_EQ(route.results(4), "0.0100||1.00E-05||0.0010|1.0010");
}

TEST(NewPoint, TheFirstBenchMarkBehindARouteEndPartsNoSection) {
  VariationGrid route;
  route.add("E1", "2022/05/11", "1.0000", "2019/08/15", "0.9900");
  route.end("E2");
  const int start = route.add("E3", "2022/05/11", "1.5000", "", "");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(start - 1), "|||||||||");
  EXPECT_EQ(route.values(start), "2022/05/11|||||||100||");
}

// A second new point in a row has no old difference above it: it shows the sum 0.8000 + 0.3000 and the
// midpoint, from where 89 days lead to 2022/08/19, and is compared with nothing.
TEST(NewPoint, WithoutAnOldDifferenceNothingIsCompared) {
  VariationGrid route = parted("2022/05/21");
  route.grid.setText(7, hend::colMark, "");
  route.grid.setText(7, hend::colNewDate, "2022/05/23");
  route.grid.setText(8, hend::colNewHeight, "0.3000");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.grid.text(6, hend::colNewDate), "2022/05/22");
  EXPECT_EQ(route.values(7), "2022/05/23|1.1000||||||89||");
}

// Behind the point the rate of the combined section is the rate before.
TEST(NewPoint, ItsRateIsTheRateBeforeForTheNextSection) {
  VariationGrid route = parted("2022/05/21");
  route.grid.setText(7, hend::colMark, "");
  route.grid.setText(7, hend::colNewDate, "2022/05/11");
  route.grid.setText(7, hend::colOldDate, "2022/05/11");
  route.grid.setText(8, hend::colNewHeight, "0.3000");
  route.grid.setText(8, hend::colOldHeight, "0.3000");
  FcHendCalc(route.grid, "2022/08/19", first);
  // −9.95E-06 × 100 = −0.000995, shown −0.0010
  EXPECT_EQ(route.results(8), "0.0000||-9.95E-06||-0.0010|0.2990");
}

// Nothing old goes on below E3: E2's section is not parted and keeps its own comparison,
// 1.2000 − 2.0100 = −0.8100; / 1000 = −8.10E-04; × 100 = −0.0810; 1.2000 − 0.0810 = 1.1190.
TEST(NewPoint, WithoutAnOldObservationBelowTheSectionAboveStaysAsComputed) {
  VariationGrid route = parted("2022/05/21");
  route.grid.setRows(7);
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(4), "2022/05/16|1.2000||2.0100|-0.8100||-8.10E-04||-0.0810|1.1190");
  EXPECT_EQ(route.values(5), "2022/05/21|2.0000||2.0100|-0.0100|1005|-9.95E-06|95|-0.0009|1.9991");
}

// The route has no end in the grid, but E5 was observed before: the old observation passed E3.
TEST(NewPoint, AnOldDateFurtherOnPartsTheSection) {
  VariationGrid route = parted("2022/05/21");
  route.grid.setText(7, hend::colMark, "");
  route.add("E5", "2022/05/21", "", "2019/08/15", "");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(4), "2022/05/16|1.2000||2.0100||||||");
}

// Above the point stand the means of two runs, 2.0010 against 1.9810: 0.0200 / 1000 × 100 = 0.0020, 2.0030. A
// pair is no section that a point can part. Combined: 2.0010 + 0.8000 = 2.8010, − 1.9810 = 0.8200;
// / 1005 = 8.16E-04 (0.000815920); × 95 = 0.0775 (0.077512); 2.8010 + 0.0775 = 2.8785.
TEST(NewPoint, BehindAPairTheMeansStay) {
  VariationGrid route;
  route.add("RF", "2022/05/11", "2.0000", "2019/08/15", "1.9800");
  route.add("R", "2022/05/11", "", "2019/08/15", "", "-2");
  route.add("RB", "2022/05/11", "2.0020", "2019/08/15", "1.9820");
  const int pair = route.add("R", "2022/05/11", "", "2019/08/15", "", "-2");
  const int point = route.add("N", "2022/05/21", "0.8000", "", "");
  route.end("E");
  for (int call = 0; call < 2; ++call) {
    FcHendCalc(route.grid, "2022/08/19", first);
    EXPECT_EQ(route.values(pair + 1), "2022/05/16|2.0010||1.9810|0.0200||2.00E-05||0.0020|2.0030");
    EXPECT_EQ(route.values(point), "2022/05/21|2.8010||1.9810|0.8200|1005|8.16E-04|95|0.0775|2.8785");
  }
}

// No section leads to the point: nothing is combined, and the point counts by its own date.
TEST(NewPoint, WithBothHeightsAboveBlankNothingIsCombined) {
  VariationGrid route = parted("2022/05/21");
  route.grid.setText(4, hend::colNewHeight, " ");
  route.grid.setText(4, hend::colOldHeight, "");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.grid.text(4, hend::colNewDate), "");
  EXPECT_EQ(route.values(5), "2022/05/21|||||||90||");
}

// An old difference alone above the point is a section that leads to it: 0 + 0.8000 against 2.0100 is
// −1.2100; / 1005 = −1.20E-03 (−0.00120398); × 95 = −0.1144 (−0.114378); 0.8000 − 0.1144 = 0.6856.
TEST(NewPoint, AnOldHeightAloneAboveIsCombined) {
  VariationGrid route = parted("2022/05/21");
  route.grid.setText(4, hend::colNewHeight, "");
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.values(5), "2022/05/21|0.8000||2.0100|-1.2100|1005|-1.20E-03|95|-0.1144|0.6856");
}

TEST(NewPoint, TheGridGrowsWhereItsSectionRowIsMissing) {
  VariationGrid route = parted("2022/05/21");
  route.grid.setRows(6);
  FcHendCalc(route.grid, "2022/08/19", first);
  EXPECT_EQ(route.grid.rows(), 7);
  EXPECT_EQ(route.grid.text(5, hend::colNewHeight), "1.2000");
}

}  // namespace
