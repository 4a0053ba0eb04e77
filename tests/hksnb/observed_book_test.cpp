#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_job.h"
#include "hksnb/book_maker.h"
#include "hksnb/data.h"
#include "support/recording_desktop.h"

namespace {

using hksnb::Kind;
using hksnb::Period;
using hksnb::Status;
using Lines = std::vector<std::string>;

class ObservedBook : public testing::Test {
 protected:
  ObservedBook() { grid.setDesktop(&desktop); }

  Status fill(const test::SmallJob& from, Kind kind, const std::vector<hksnb::RouteItem>& routes) {
    FcHHKSB_InitGrid1(grid, kind);
    return hksnb::FcHHKSB_SetGrid1FromSeikaData(from.context(), kind, routes, period, places, grid);
  }

  test::BookJob job;
  test::RecordingDesktop desktop;
  ui::Grid grid;
  Period period;
  hksnb::PlaceNames places;
};

// A 10, B 11.0005, C 13.0002 where the routes meet; the second route has no result, so D keeps C's
// present height, while column 6 goes on: 13.0 + 0.5.
TEST_F(ObservedBook, HoldsTheChosenRoutesInTheirOrder) {
  job.twoRoutes();
  EXPECT_EQ(fill(job, Kind::Orthometric, {{"1001", "01A00101"}, {"1001", "01A00201"}}), Status::Done);
  EXPECT_EQ(test::rowTexts(grid),
            (Lines{"1001|01A00101|長野県||富士見町|A|10.0000||10.0000|||一A|", "||||||1.0000|5|1.0005|||二A|",
                   "|||||B|11.0000||11.0005|||一B|", "||||||2.0000|-3|1.9997|||二B|",
                   "|01A00201|||原村|C|13.0000||13.0002||||", "||||||0.5000||||||",
                   "|||||D|13.5000||13.0002||||-1", "||||||||||||"}));
  EXPECT_EQ(period, (Period{"2022", "05", "2022", "08"}));
  EXPECT_TRUE(desktop.messages.empty());
}

// The only record of August is a route end that no other route follows in this order.
TEST_F(ObservedBook, MonthsOfRouteEndsCountAndTheBoxesAreNeverNarrowed) {
  job.twoRoutes();
  job.sql("UPDATE KansokuSeikaData SET 観測年月日 = '20220801' WHERE 標石番号 = 'D'");
  job.sql("UPDATE KansokuSeikaData SET 観測年月日 = NULL WHERE 標石番号 <> 'D'");
  period = {"2022", "06", "2022", "07"};
  fill(job, Kind::Orthometric, {{"1001", "01A00201"}, {"1001", "01A00101"}});
  EXPECT_EQ(period, (Period{"2022", "06", "2022", "08"}));
}

TEST_F(ObservedBook, WithoutDatesTheEmptyBoxesShowTheSentinels) {
  job.observed(1, "R1", "A", "1", "1");
  fill(job, Kind::Orthometric, {{"1001", "R1"}});
  EXPECT_EQ(period, (Period{"9999", "99", "0000", "00"}));
}

// Stored 1.23 mm reads 12.3 in first grade and 1.23 in others; a bench mark without correction stays blank.
TEST_F(ObservedBook, TheEllipsoidalKindReadsItsOwnTable) {
  for (const std::int16_t grade : {std::int16_t{1}, std::int16_t{2}}) {
    const test::BookJob graded(grade);
    graded.observed(1, "R1", "A", "480", "10");
    graded.observed(2, "R1", "B", "490", "10");
    graded.observed(3, "R1", "C", "500", "NULL", "-1");
    graded.ellipsoidal(1, "R1", "A", "'480.0000'", "'1.23'", "'480.0012'");
    graded.ellipsoidal(3, "R1", "C", "'500.0000'", "'7.3'", "'500.0073'");
    fill(graded, Kind::Ellipsoidal, {{"1001", "R1"}});
    ASSERT_EQ(grid.rows(), 7);
    EXPECT_EQ(grid.text(1, hksnb::colCorrection), grade == 1 ? "12.3" : "1.23");
    EXPECT_EQ(grid.text(1, hksnb::colPresent), grade == 1 ? "480.0012" : "480.001");
    EXPECT_EQ(test::rowText(grid, 3), "|||||B|||||||");
    EXPECT_EQ(grid.text(4, hksnb::colHeight), grade == 1 ? "10.0000" : "10.000");
    EXPECT_EQ(grid.text(5, hksnb::colHeight), grade == 1 ? "500.0000" : "500.000");
    EXPECT_EQ(grid.text(5, hksnb::colCorrection), grade == 1 ? "73" : "7.3");
  }
}

TEST_F(ObservedBook, ListsEveryBenchMarkOfARouteWithoutCorrections) {
  job.observed(1, "R1", "A", "1", "1");
  job.observed(2, "R1", "B", "2", "NULL", "-1");
  fill(job, Kind::Orthometric, {{"1001", "R1"}});
  EXPECT_EQ(test::rowTexts(grid), (Lines{"1001|R1||||A|||||||", "||||||1.0000||||||",
                                         "|||||B|1.0000||0.0000||||-1", "||||||||||||"}));
}

TEST_F(ObservedBook, TakesOnlyCategoryZeroOfTheJobInSaveOrder) {
  job.observed(2, "R1", "B", "2", "1");
  job.observed(1, "R1", "A", "1", "1");
  job.observed(3, "R1", "N", "1", "1", "", "NULL");
  job.observed(4, "R1", "X", "1", "1", "", "'1'");
  job.sql(
      "INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号) VALUES"
      " ('4','1001','R1','0',1,'Z')");
  fill(job, Kind::Orthometric, {{"1001", "R1"}});
  ASSERT_EQ(grid.rows(), 5);
  EXPECT_EQ(grid.text(1, hksnb::colBenchMark), "A");
  EXPECT_EQ(grid.text(3, hksnb::colBenchMark), "B");
}

TEST_F(ObservedBook, NoRouteGivesTheEmptyBook) {
  job.twoRoutes();
  EXPECT_EQ(fill(job, Kind::Orthometric, {}), Status::Done);
  EXPECT_EQ(test::rowTexts(grid), Lines{"||||||||||||"});
}

TEST_F(ObservedBook, AnErrorKeepsThePeriodAndIsReported) {
  job.sql("DROP TABLE KansokuSeikaDataDaen");
  period = {"2022", "06", "2022", "07"};
  EXPECT_EQ(fill(job, Kind::Ellipsoidal, {{"1001", "R1"}}), Status::Failed);
  EXPECT_EQ(period, (Period{"2022", "06", "2022", "07"}));
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcHHKSB_SetGrid1FromSeikaData");
}

}  // namespace
