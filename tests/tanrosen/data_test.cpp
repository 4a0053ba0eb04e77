#include "tanrosen/data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/recording_desktop.h"
#include "tanrosen/columns.h"
#include "tanrosen/single_route_job.h"
#include "ui/grid.h"

namespace {

using Lines = std::vector<std::string>;

class SingleRouteData : public testing::Test {
 protected:
  SingleRouteData() {
    grid.setDesktop(&desktop);
    grid.setCols(tanrosen::columnCount);
  }

  /// The cells of all rows below the header, joined with "|".
  Lines rows() const {
    Lines lines;
    for (int row = 1; row < grid.rows(); ++row) {
      std::string line = grid.text(row, 0);
      for (int col = 1; col < grid.cols(); ++col) line += "|" + grid.text(row, col);
      lines.push_back(line);
    }
    return lines;
  }

  bool load(const route::Selection& selection) {
    return tanrosen::FcDBOpen(selection, job.context(), grid, {all, known});
  }

  bool reopen(const route::Selection& selection) {
    return tanrosen::FcDBReOpen(selection, job.context(), grid, {all, known});
  }

  void savedRecord(int order, std::string_view benchMark, std::string_view values,
                   std::string_view category = "0") const {
    job.sql("INSERT INTO KansokuSeikaDataTanrosen VALUES ('3','1001','R1','" + std::string(category) + "'," +
            std::to_string(order) + ",'" + std::string(benchMark) + "'," + std::string(values) + ")");
  }

  const route::Selection r1{"1001", "R1", "0", ""};
  test::SingleRouteJob job;
  test::RecordingDesktop desktop;
  ui::Grid grid;
  ui::ListBox all{"lstSuijyun", nullptr};
  ui::ListBox known{"lstKiti", nullptr};
};

// Column 2: 100, 100 + 1.2345 = 101.2345, 101.2345 − 0.5 = 100.7345, at the known C too, whose height 100.74
// stands in column 4.
TEST_F(SingleRouteData, LoadsTwoRowsForEachBenchMarkAndBothLists) {
  job.observed(1, "R1", "A", "100", "1.2345", "", "'0'", "1.5");
  job.observed(2, "R1", "B", "NULL", "-0.5", "", "'0'", "2");
  job.observed(3, "R1", "C", "100.74", "NULL", "-1", "'0'", "0.25");
  EXPECT_TRUE(load(r1));
  EXPECT_EQ(rows(), (Lines{"A|1.5|100.0000||100.0000|||R1", "||1.2345|||||", "B|2|101.2345|||||R1",
                           "||-0.5000|||||", "C||100.7345||100.7400||-1|R1", "|||||||"}));
  EXPECT_EQ(all.items(), (Lines{"A", "B", "C"}));
  EXPECT_EQ(known.items(), (Lines{"A", "C"}));
}

// Known is a height that is there and not zero.
TEST_F(SingleRouteData, ABlankHeightAndZeroAreNoKnownHeights) {
  job.sql("ALTER TABLE KansokuSeikaData RENAME COLUMN 標高 TO 旧標高");
  job.sql("ALTER TABLE KansokuSeikaData ADD COLUMN 標高 TEXT");
  const char* heights[] = {"'50'", "'0'", "''", "NULL", "'0.000'", "' 54.002 '"};
  for (int i = 0; i < 6; ++i) {
    job.observed(i + 1, "R1", std::string(1, static_cast<char>('A' + i)), heights[i], "1");
  }
  EXPECT_TRUE(load(r1));
  EXPECT_EQ(known.items(), (Lines{"A", "F"}));
  EXPECT_EQ(grid.text(3, tanrosen::colResult), "");
  EXPECT_EQ(grid.text(11, tanrosen::colResult), "54.0020");
  EXPECT_EQ(grid.text(11, tanrosen::colHeight), "55.0000");
}

TEST_F(SingleRouteData, ANamelessBenchMarkIsInNoList) {
  job.observed(1, "R1", "", "100", "1");
  job.observed(2, "R1", "B", "NULL", "1");
  EXPECT_TRUE(load(r1));
  EXPECT_EQ(all.items(), Lines{"B"});
  EXPECT_EQ(known.count(), 0);
}

// Running heights: A 10, P 11.0003, Q 11.0003 + 0.5 = 11.5003, C 11.5003 + 0.25 = 11.7503, E 12.7503.
// Mean of P and Q: (11.0003 + 11.5003) / 2 = 11.2503, shown at C; the sum goes on unchanged. Repeated bench
// marks show neither distance nor difference.
TEST_F(SingleRouteData, AMeanOfRepeatedPointsStandsTwoRowsBelowTheSecond) {
  job.observed(1, "R1", "A", "10", "1.0003", "", "'0'", "1");
  job.observed(2, "R1", "P", "NULL", "0.5", "-2", "'0'", "1");
  job.observed(3, "R1", "Q", "NULL", "0.25", "-2", "'0'", "1");
  job.observed(4, "R1", "C", "NULL", "1", "", "'0'", "1");
  job.observed(5, "R1", "E", "NULL", "NULL", "-1");
  EXPECT_TRUE(load(r1));
  EXPECT_EQ(rows(), (Lines{"A|1|10.0000||10.0000|||R1", "||1.0003|||||", "P||11.0003||||-2|R1", "|||||||",
                           "Q||11.5003||||-2|R1", "|||||||", "C|1|11.2503|||||R1", "||1.0000|||||",
                           "E||12.7503||||-1|R1", "|||||||"}));
}

// mm: (11.001 + 11.502) / 2 = 11.2515 → 11.252, half upwards.
TEST_F(SingleRouteData, MeansAreRoundedToTheUnitOfTheGrade) {
  const test::SingleRouteJob ofGrade2(2);
  ofGrade2.observed(1, "R1", "A", "10", "1.001");
  ofGrade2.observed(2, "R1", "P", "NULL", "0.501", "-2");
  ofGrade2.observed(3, "R1", "Q", "NULL", "0.25", "-2");
  ofGrade2.observed(4, "R1", "C", "NULL", "NULL", "-1");
  EXPECT_TRUE(tanrosen::FcDBOpen(r1, ofGrade2.context(), grid, {all, known}));
  EXPECT_EQ(grid.text(7, tanrosen::colHeight), "11.252");
}

// Behind B the sum starts anew at C's own height, 50; D 50 + 2. An empty row stands below the end B.
TEST_F(SingleRouteData, TheRunningSumStartsAnewBehindARouteEnd) {
  job.observed(1, "01A001", "A", "10", "1", "", "'1'");
  job.observed(2, "02A001", "B", "NULL", "9", "-1", "'1'");
  job.observed(3, "03A001", "C", "50", "2", "", "'1'");
  job.observed(4, "03A001", "D", "NULL", "NULL", "-1", "'1'");
  EXPECT_TRUE(load({"1001", "01A001", "1", ""}));
  EXPECT_EQ(rows(),
            (Lines{"A||10.0000||10.0000|||01A001", "||1.0000|||||", "B||11.0000||||-1|02A001", "|||||||",
                   "C||50.0000||50.0000|||03A001", "||2.0000|||||", "D||52.0000||||-1|03A001", "|||||||"}));
}

TEST_F(SingleRouteData, RecordsWithoutACategoryAreNeitherLoadedNorDeleted) {
  job.observed(1, "R1", "A", "10", "1");
  job.observed(2, "R1", "N", "11", "1", "", "NULL");
  job.sql(
      "INSERT INTO KansokuSeikaDataTanrosen (JobId, 事業番号, 路線番号, SaveOrder, 水準点番号)"
      " VALUES ('3','1001','R1',7,'N')");
  EXPECT_TRUE(load(r1));
  EXPECT_EQ(all.items(), Lines{"A"});
  EXPECT_TRUE(tanrosen::FcDbSave(r1, job.context(), grid));
  EXPECT_EQ(job.saved(), (Lines{"1001|R1      |0|1|A|-|10|-|10|-|-|-|1", "1001|R1|-|7|N|-|-|-|-|-|-|-|-"}));
}

// The end C keeps no mean difference and has no distance; the remark below it belongs to nothing.
TEST_F(SingleRouteData, SavesOneRecordForEachBenchMark) {
  job.observed(1, "R1", "A", "100", "1.2345", "", "'0'", "1.5");
  job.observed(2, "R1", "B", "NULL", "-0.5", "", "'0'", "2");
  job.observed(3, "R1", "C", "100.74", "NULL", "-1");
  load(r1);
  grid.setText(1, tanrosen::colCorrection, "0");
  grid.setText(3, tanrosen::colCorrection, "24");
  grid.setText(3, tanrosen::colResult, "101.2369");
  grid.setText(3, tanrosen::colRemark, "橋の北");
  grid.setText(4, tanrosen::colRemark, "水管橋");
  grid.setText(6, tanrosen::colRemark, "below the end");
  EXPECT_TRUE(tanrosen::FcDbSave(r1, job.context(), grid));
  EXPECT_EQ(job.saved(), (Lines{"1001|R1      |0|1|A|1.5|100|0|100|-|-|-|1.2345",
                                "1001|R1      |0|2|B|2|101.2345|24|101.2369|橋の北|水管橋|-|-0.5",
                                "1001|R1      |0|3|C|-|100.7345|-|100.74|-|-|-1|-"}));
}

// Two routes of a family: an empty row stands below the first end, and the second route is saved all the
// same.
TEST_F(SingleRouteData, SavesEveryRouteOfAFamilyUnderItsOwnNumber) {
  job.observed(1, "01A001", "A", "10", "1", "", "'1'");
  job.observed(2, "01A001", "B", "NULL", "NULL", "-1", "'1'");
  job.observed(3, "02A001", "C", "50", "2", "", "'1'");
  job.observed(4, "02A001", "D", "NULL", "NULL", "-1", "'1'");
  const route::Selection family{"1001", "01A001", "1", ""};
  load(family);
  EXPECT_TRUE(tanrosen::FcDbSave(family, job.context(), grid));
  EXPECT_TRUE(tanrosen::FcDbSave(family, job.context(), grid)) << "replaces all of them";
  EXPECT_EQ(job.saved(),
            (Lines{"1001|01A001  |1|1|A|-|10|-|10|-|-|-|1", "1001|01A001  |1|2|B|-|11|-|-|-|-|-1|-",
                   "1001|02A001  |1|3|C|-|50|-|50|-|-|-|2", "1001|02A001  |1|4|D|-|52|-|-|-|-|-1|-"}));
}

// A's saved height 100 stands although today it is 100.5; B has none saved and shows today's 101; C has no
// saved result and, being known today, shows today's 102.
TEST_F(SingleRouteData, ReopensWhatWasSavedAndKnowsTheHeightsOfToday) {
  job.observed(1, "R1", "A", "100.5", "1");
  job.observed(2, "R1", "B", "101", "1");
  job.observed(3, "R1", "C", "102", "NULL", "-1");
  savedRecord(1, "A", "1.50,100,12,100.0012,'起点','橋',NULL,1.2345");
  savedRecord(2, "B", "2,NULL,NULL,101.3,NULL,NULL,NULL,-0.5");
  savedRecord(3, "C", "NULL,100.7,NULL,NULL,'終点',NULL,'-1',NULL");
  savedRecord(4, "D", "NULL,7,NULL,8,NULL,NULL,NULL,NULL");
  EXPECT_TRUE(reopen(r1));
  EXPECT_EQ(rows(),
            (Lines{"A|1.5|100.0000|12|100.0012|起点||R1", "||1.2345|||橋||", "B|2|101.0000||101.3000|||R1",
                   "||-0.5000|||||", "C||100.7000||102.0000|終点|-1|R1", "|||||||", "D||7.0000||8.0000|||R1",
                   "|||||||"}));
  EXPECT_EQ(all.items(), (Lines{"A", "B", "C", "D"}));
  EXPECT_EQ(known.items(), (Lines{"A", "B", "C"})) << "D has no observation today";
}

// The observations of categories "0" and "4" have the same route, each meets the saved records of category
// "0".
TEST_F(SingleRouteData, ARouteObservedInTwoCategoriesReopensEveryBenchMarkOnce) {
  for (const char* category : {"'0'", "'4'"}) {
    job.observed(1, "R1", "A", "10", "1", "", category);
    job.observed(2, "R1", "B", "NULL", "NULL", "-1", category);
  }
  savedRecord(1, "A", "NULL,10,0,10,NULL,NULL,NULL,1");
  savedRecord(2, "B", "NULL,11,NULL,NULL,NULL,NULL,'-1',NULL");
  EXPECT_TRUE(reopen(r1));
  EXPECT_EQ(all.items(), (Lines{"A", "B"}));
  EXPECT_EQ(known.items(), Lines{"A"});
  EXPECT_EQ(grid.rows(), 5);
}

// Four saved records of order 1: two routes of a family with a bench mark each, one of them twice (the join
// met two observations), and two bench marks of one route. Each is there once.
TEST_F(SingleRouteData, RecordsAreTheSameOnlyWhereOrderRouteAndBenchMarkAre) {
  job.observed(1, "01A001", "A", "10", "1", "", "'1'");
  job.observed(1, "01A001", "A", "10", "1", "", "'0'");
  job.observed(1, "02A001", "B", "20", "1", "", "'1'");
  for (const char* record : {"'01A001','1',1,'A'", "'02A001','1',1,'B'", "'02A001','1',1,'C'"})
    job.sql(
        "INSERT INTO KansokuSeikaDataTanrosen (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号) "
        "VALUES ('3','1001'," +
        std::string(record) + ")");
  EXPECT_TRUE(reopen({"1001", "01A001", "1", ""}));
  auto names = all.items();
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (Lines{"A", "B", "C"}));
  EXPECT_EQ(grid.rows(), 7);
  EXPECT_EQ(known.count(), 2) << "C has no observation of its own";
}

// The observations were renumbered: at B's order stands X at 999 m. That is no height of B, whose closure
// error it would make 999 − 11 = 988 m.
TEST_F(SingleRouteData, TheHeightOfAnotherBenchMarkIsNoKnownHeight) {
  job.observed(1, "R1", "A", "10", "1");
  job.observed(2, "R1", "X", "999", "NULL", "-1");
  savedRecord(1, "A", "NULL,10,0,10,NULL,NULL,NULL,1");
  savedRecord(2, "B", "NULL,11,NULL,NULL,NULL,NULL,'-1',NULL");
  EXPECT_TRUE(reopen(r1));
  EXPECT_EQ(known.items(), Lines{"A"});
  EXPECT_EQ(grid.text(3, tanrosen::colResult), "");
}

// A has 12 m in category 4 and 10.5 m in category 0, the saved one, whichever is met first; B is observed in
// category 4 alone, and that is its height. Numbers with blanks behind them are the same.
TEST_F(SingleRouteData, TheHeightOfTheSameCategoryGoesFirst) {
  for (const bool sameFirst : {false, true}) {
    job.sql("DELETE FROM KansokuSeikaData");
    job.sql("DELETE FROM KansokuSeikaDataTanrosen");
    job.observed(1, "R1", "A  ", sameFirst ? "10.5" : "12", "1", "", sameFirst ? "'0'" : "'4'");
    job.observed(1, "R1", "A", sameFirst ? "12" : "10.5", "1", "", sameFirst ? "'4'" : "'0'");
    job.observed(2, "R1", "B", "13", "NULL", "-1", "'4'");
    savedRecord(1, "A", "NULL,NULL,NULL,NULL,NULL,NULL,NULL,1");
    savedRecord(2, "B", "NULL,11,NULL,NULL,NULL,NULL,'-1',NULL");
    EXPECT_TRUE(reopen(r1));
    EXPECT_EQ(grid.text(1, tanrosen::colResult), "10.5000") << sameFirst;
    EXPECT_EQ(grid.text(1, tanrosen::colHeight), "10.5000") << sameFirst;
    EXPECT_EQ(grid.text(3, tanrosen::colResult), "13.0000") << sameFirst;
    EXPECT_EQ(known.items(), (Lines{"A", "B"}));
  }
}

TEST_F(SingleRouteData, ListsAreEmptiedFirst) {
  job.observed(1, "R1", "A", "10", "1");
  savedRecord(1, "A", "NULL,10,NULL,10,NULL,NULL,NULL,1");
  all.addItem("old");
  known.addItem("old");
  EXPECT_TRUE(load(r1));
  EXPECT_EQ(known.items(), Lines{"A"});
  EXPECT_TRUE(reopen(r1));
  EXPECT_EQ(all.items(), Lines{"A"});
  job.sql("DROP TABLE KansokuSeikaData");
  EXPECT_FALSE(load(r1));
  EXPECT_EQ(all.count(), 0) << "also where nothing can be read";
}

TEST_F(SingleRouteData, ErrorsAreReportedUnderTheProceduresName) {
  job.sql("DROP TABLE KansokuSeikaDataTanrosen");
  job.sql("DROP TABLE KansokuSeikaData");
  EXPECT_FALSE(load(r1));
  EXPECT_FALSE(reopen(r1));
  EXPECT_FALSE(tanrosen::FcDbSave(r1, job.context(), grid));
  ASSERT_EQ(desktop.messages.size(), 3U);
  EXPECT_EQ(desktop.messages[0].title, "FcDBOpen");
  EXPECT_EQ(desktop.messages[1].title, "FcDBReOpen");
  EXPECT_EQ(desktop.messages[2].title, "FcDbSave");
  EXPECT_EQ(desktop.messages[2].icon, ui::Icon::Critical);
}

}  // namespace
