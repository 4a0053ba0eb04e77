#include "hend/calculation.h"

#include <gtest/gtest.h>

#include "hend/grid_maker.h"
#include "text/error.h"

namespace {

using hend::FcHendCalc;
using hend::FcHendCalcResult;
using test::VariationGrid;

const job::Grade first(1);
const job::Grade second(2);

// 2019/08/15 to 2022/05/11 are 1000 days, 2022/05/11 to 2022/08/19 another 100: 20 left in May, 30 in June,
// 31 in July, 19 in August.
constexpr const char* before = "2019/08/15";
constexpr const char* now = "2022/05/11";
constexpr const char* hundredLater = "2022/08/19";

// 1.5000 − 1.4900 = 0.0100 in 1000 days: 1.00E-05 a day; 100 days: 0.0010; 1.5000 + 0.0010 = 1.5010.
TEST(FcHendCalc, CarriesASectionToTheReferenceDate) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.end("E2");
  FcHendCalc(route.grid, hundredLater, first);
  EXPECT_EQ(route.results(1), "|1000||100||");
  EXPECT_EQ(route.results(2), "0.0100||1.00E-05||0.0010|1.5010");
  EXPECT_EQ(route.results(3), "|||||");
  EXPECT_EQ(route.results(4), "|||||");
}

TEST(FcHendCalc, OtherGradesShowThreeDecimals) {
  VariationGrid route;
  route.add("E1", now, "1.500", before, "1.490");
  route.end("E2");
  FcHendCalc(route.grid, hundredLater, second);
  EXPECT_EQ(route.results(2), "0.010||1.00E-05||0.001|1.501");
}

// The correction 0.01 × 149 / 1000 = 0.00149 is shown as 0.0015 (0.001); that counts, not 0.00149:
// 1.50005 + 0.0015 = 1.50155, shown as 1.5016. Unrounded it would be 1.50154, shown as 1.5015.
// 2022/05/11 and 149 days: 20 + 30 + 31 + 31 = 112 to the end of August, 30 in September, 7 in October.
TEST(FcHendCalc, TheCorrectionCountsAsItIsShown) {
  VariationGrid route;
  route.add("E1", now, "1.50005", before, "1.49005");
  route.end("E2");
  FcHendCalc(route.grid, "2022/10/07", first);
  EXPECT_EQ(route.results(1), "|1000||149||");
  EXPECT_EQ(route.results(2), "0.0100||1.00E-05||0.0015|1.5016");
  FcHendCalc(route.grid, "2022/10/07", second);
  // 1.50005 + 0.001 = 1.50105
  EXPECT_EQ(route.results(2), "0.010||1.00E-05||0.001|1.501");
}

// 100 days before the observation: 31 − 11 … 2022/01/31 is 100 days before 2022/05/11 (28 + 31 + 30 + 11 =
// 100).
TEST(FcHendCalc, AReferenceDateBeforeTheObservationTurnsTheSign) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.add("E2", now, "-0.7000", before, "-0.7200");
  route.end("E3");
  FcHendCalc(route.grid, "2022/01/31", first);
  EXPECT_EQ(route.results(1), "|1000||-100||");
  EXPECT_EQ(route.results(2), "0.0100||1.00E-05||-0.0010|1.4990");
  EXPECT_EQ(route.results(4), "0.0200||2.00E-05||-0.0020|-0.7020");
}

// An old date behind the new one: days −1000, rate −1.00E-05.
TEST(FcHendCalc, NegativeDaysBetweenTheObservationsAreTakenAsTheyStand) {
  VariationGrid route;
  route.add("E1", before, "1.5000", now, "1.4900");
  route.end("E2");
  FcHendCalc(route.grid, now, first);
  EXPECT_EQ(route.results(1), "|-1000||1000||");
  EXPECT_EQ(route.results(2), "0.0100||-1.00E-05||-0.0100|1.4900");
}

TEST(FcHendCalc, WithoutAReferenceDateNothingIsCarried) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.end("E2");
  for (const char* none : {"", "  "}) {
    FcHendCalc(route.grid, none, first);
    EXPECT_EQ(route.results(1), "|1000||||");
    EXPECT_EQ(route.results(2), "0.0100||1.00E-05||0.0000|1.5000");
  }
}

// The count made at E1 (100 days) is used again at E2, which has no new date: 1.00E-05 × 100. Its own old
// date makes it an ordinary point; the 1000 days of E1 serve too: 0.0200 / 1000 = 2.00E-05.
TEST(FcHendCalc, ACountThatCannotBeMadeIsTheOneBefore) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.add("E2", "", "0.5000", before, "0.4800");
  route.end("E3");
  FcHendCalc(route.grid, hundredLater, first);
  EXPECT_EQ(route.results(3), "|||||");
  EXPECT_EQ(route.results(4), "0.0200||2.00E-05||0.0020|0.5020");
}

// E2 was observed twice on one day; the rate of E1, 1.00E-05, stands for its section too.
TEST(FcHendCalc, NoDaysBetweenTheObservationsRepeatTheRateBefore) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.add("E2", now, "0.5000", now, "0.4000");
  route.end("E3");
  FcHendCalc(route.grid, hundredLater, first);
  EXPECT_EQ(route.results(3), "|0||100||");
  EXPECT_EQ(route.results(4), "0.1000||1.00E-05||0.0010|0.5010");
}

TEST(FcHendCalc, TheFirstSectionStartsFromARateOfZeroInEveryCall) {
  VariationGrid route;
  route.add("E1", now, "0.5000", now, "0.4000");
  route.add("E2", now, "1.5000", before, "1.4900");
  route.end("E3");
  for (int call = 0; call < 2; ++call) {
    FcHendCalc(route.grid, hundredLater, first);
    EXPECT_EQ(route.results(2), "0.1000||0.00E+00||0.0000|0.5000");
    EXPECT_EQ(route.results(4), "0.0100||1.00E-05||0.0010|1.5010");
  }
}

TEST(FcHendCalc, ABlankHeightDifferenceCountsAsZero) {
  VariationGrid route;
  route.add("E1", now, "", before, "0.0100");
  route.end("E2");
  FcHendCalc(route.grid, hundredLater, first);
  EXPECT_EQ(route.results(2), "-0.0100||-1.00E-05||-0.0010|-0.0010");
}

// 2020/02/28 to 2020/03/01 are 2 days over the leap day, 2100/02/28 to 2100/03/01 one.
TEST(FcHendCalc, CountsLeapDaysAndCenturies) {
  VariationGrid route;
  route.add("E1", "2020/03/01", "1.0000", "2020/02/28", "0.9998");
  route.add("E2", "2100/03/01", "1.0000", "2100/02/28", "0.9998");
  route.end("E3");
  FcHendCalc(route.grid, "2100/03/02", first);
  // Rate 0.0002 / 2 = 1.00E-04. 2020/03/01 to 2100/03/01: 80 × 365 + the leap days of 2024 … 2096 (19) =
  // 29219.
  EXPECT_EQ(route.results(1), "|2||29220||");
  EXPECT_EQ(route.results(2), "0.0002||1.00E-04||2.9220|3.9220");
  EXPECT_EQ(route.results(3), "|1||1||");
  EXPECT_EQ(route.results(4), "0.0002||2.00E-04||0.0002|1.0002");
}

TEST(FcHendCalc, DatesWithoutLeadingZerosCountAlike) {
  VariationGrid route;
  route.add("E1", "2022/5/11", "1.5000", "2019-08-15", "1.4900");
  route.end("E2");
  FcHendCalc(route.grid, " 2022/8/19 ", first);
  EXPECT_EQ(route.results(1), "|1000||100||");
  EXPECT_EQ(route.values(1).substr(0, 9), "2022/5/11");
}

TEST(FcHendCalc, ATextThatIsNoDateIsATypeMismatchOfThatCell) {
  const auto fault = [](const char* newDate, const char* oldDate, const char* reference) -> std::string {
    VariationGrid route;
    route.grid.setText(0, hend::colNewDate, "新観測年月日");
    route.grid.setText(0, hend::colOldDate, "旧観測年月日");
    route.add("E1", now, "1.5000", before, "1.4900");
    route.add("E2", newDate, "1.5000", oldDate, "1.4900");
    route.end("E3");
    try {
      FcHendCalc(route.grid, reference, first);
      return {};
    } catch (const hend::WrongDate& error) {
      EXPECT_EQ(error.code(), text::ErrorCode::TypeMismatch);
      return error.what() + std::to_string(error.place().row) + "," + std::to_string(error.place().col);
    }
  };
  EXPECT_EQ(fault(now, before, "2022/02/30"),
            "型が一致しません。基準日「2022/02/30」は日付ではありません。0,0");
  EXPECT_EQ(fault(now, before, "明日"), "型が一致しません。基準日「明日」は日付ではありません。0,0");
  EXPECT_EQ(fault("2022/13/11", before, ""),
            "型が一致しません。水準点 E2 の新観測年月日「2022/13/11」は日付ではありません。3,1");
  EXPECT_EQ(fault(now, "2019/00/15", ""),
            "型が一致しません。水準点 E2 の旧観測年月日「2019/00/15」は日付ではありません。3,3");
  EXPECT_EQ(fault(now, before, hundredLater), "");
}

TEST(FcHendCalc, AnEmptyGridStaysEmpty) {
  VariationGrid route;
  route.grid.setRows(2);
  FcHendCalc(route.grid, hundredLater, first);
  EXPECT_EQ(route.grid.rows(), 2);
  EXPECT_EQ(route.values(1), "|||||||||");
}

TEST(FcHendCalc, TheCurrentCellGoesAlongToTheLastBenchMark) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.end("E2");
  route.grid.setCurrent(2, hend::colCorrection);
  FcHendCalc(route.grid, hundredLater, first);
  EXPECT_EQ(route.grid.row(), 3);
  EXPECT_EQ(route.grid.col(), hend::colCorrection);
}

// A correction typed by hand: 1.5000 + 0.0025 = 1.5025; in other grades 1.500 + 0.0025 = 1.5025, shown
// as 1.503.
TEST(FcHendCalcResult, AddsTheTypedCorrection) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.grid.setText(2, hend::colCorrection, "0.0025");
  FcHendCalcResult(route.grid, 2, first);
  EXPECT_EQ(route.results(2), "||||0.0025|1.5025");
  FcHendCalcResult(route.grid, 2, second);
  EXPECT_EQ(route.results(2), "||||0.0025|1.503");
}

TEST(IsNewPoint, IsAnOrdinaryBenchMarkWithoutAnOldDate) {
  VariationGrid route;
  route.add("E1", now, "1.5000", before, "1.4900");
  route.add("E2", now, "1.5000", " ", "");
  route.add("E3", now, "", "", "", "-2");
  route.end("E4");
  EXPECT_FALSE(hend::isNewPoint(route.grid, 1));
  EXPECT_TRUE(hend::isNewPoint(route.grid, 3));
  EXPECT_FALSE(hend::isNewPoint(route.grid, 5));
  EXPECT_FALSE(hend::isNewPoint(route.grid, 7));
}

}  // namespace
