#include "seihyou/data.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "seihyou/columns.h"
#include "support/recording_desktop.h"
#include "support/small_job.h"
#include "ui/grid.h"

namespace {

using Lines = std::vector<std::string>;

class SeihyouData : public testing::Test {
 protected:
  SeihyouData() {
    grid.setDesktop(&desktop);
    clear();
  }

  void clear() {
    grid.setRows(2);
    grid.setCols(seihyou::columnCount);
    grid.clearText();
  }

  /// The cells of a grid row, joined with "|".
  std::string row(int at) const {
    std::string line = grid.text(at, 0);
    for (int col = 1; col < grid.cols(); ++col) line += "|" + grid.text(at, col);
    return line;
  }

  Lines rows() const {
    Lines lines;
    for (int at = 1; at < grid.rows(); ++at) lines.push_back(row(at));
    return lines;
  }

  /// A saved record of route R1; `values`: 標高, 備考1, 備考2, RosenEndDataFlg, 中数, 正標高補正数 and
  /// 正標高結果.
  void saveRecord(int order, std::string_view benchMark, std::string_view values) const {
    job.sql("INSERT INTO KansokuSeikaDataSeihyou VALUES ('3','1001','R1','0'," + std::to_string(order) +
            ",'" + std::string(benchMark) + "'," + std::string(values) + ")");
  }

  const route::Selection r1{"1001", "R1", "0", ""};
  test::SmallJob job;
  test::RecordingDesktop desktop;
  ui::Grid grid;
  const Lines saved = {"路線番号", "DataKubun",       "SaveOrder", "水準点番号",   "標高",      "備考1",
                       "備考2",    "RosenEndDataFlg", "中数",      "正標高補正数", "正標高結果"};
  const std::string allSaved = "SELECT * FROM KansokuSeikaDataSeihyou ORDER BY DataKubun, SaveOrder";
};

// Running heights: 100.0000, + 1.2345 = 101.2345, − 0.5000 = 100.7345. Order by SaveOrder, not by entry.
TEST_F(SeihyouData, LoadsARouteWithRunningHeights) {
  job.observed(3, "01A00101", "C", "100.74", "NULL", "-1");
  job.observed(1, "01A00101", "A", "100", "1.2345");
  job.observed(2, "01A00101", "B", "NULL", "-0.5");
  EXPECT_TRUE(seihyou::FcDBOpen({"1001", "01A00101", "0", ""}, job.context(), grid));
  EXPECT_EQ(rows(), (Lines{"A|100.0000||100.0000|||01A00101", "|1.2345|||||", "B|||101.2345|||01A00101",
                           "|-0.5000|||||", "C|100.7400||100.7345||-1|01A00101"}));
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(SeihyouData, KeysMatchWhateverTheirTrailingBlanks) {
  job.observed(1, "R001    ", "A", "1", "2");
  seihyou::FcDBOpen({"1001    ", "R001", "0", ""}, job.context(), grid);
  EXPECT_EQ(grid.text(1, 0), "A");
}

TEST_F(SeihyouData, OtherGradesShowThreeDecimals) {
  test::SmallJob coarse(2);
  coarse.observed(1, "01A00101", "A", "100", "1.2345");
  coarse.observed(2, "01A00101", "B", "NULL", "NULL", "-1");
  seihyou::FcDBOpen({"1001", "01A00101", "0", ""}, coarse.context(), grid);
  EXPECT_EQ(grid.text(2, 1), "1.235");    // 1.2345 half away from zero
  EXPECT_EQ(grid.text(3, 3), "101.235");  // 100 + 1.2345 = 101.2345
}

TEST_F(SeihyouData, ABlankStartHeightStaysBlankAndCountsAsZero) {
  job.observed(1, "01A00101", "A", "NULL", "1.5");
  job.observed(2, "01A00101", "B", "NULL", "NULL");
  job.observed(3, "01A00101", "C", "NULL", "NULL", "-1");
  seihyou::FcDBOpen({"1001", "01A00101", "0", ""}, job.context(), grid);
  EXPECT_EQ(grid.text(1, 3), "");
  EXPECT_EQ(grid.text(3, 3), "1.5000");
  EXPECT_EQ(grid.text(4, 1), "") << "a blank difference is shown blank";
  EXPECT_EQ(grid.text(5, 3), "1.5000") << "and counts as 0";
}

TEST_F(SeihyouData, RecordsWithoutACategoryAreNeitherLoadedNorDeleted) {
  job.observed(1, "01A00101", "A", "1", "2");
  job.observed(2, "01A00101", "N", "1", "2", "", "NULL");
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号) "
      "VALUES"
      " ('3','1001','01A00101',NULL,1,'N'), ('3','1001','01A00101','0',7,'old')");
  seihyou::FcDBOpen({"1001", "01A00101", "0", ""}, job.context(), grid);
  ASSERT_EQ(grid.rows(), 3);
  EXPECT_EQ(grid.text(1, 0), "A");
  EXPECT_TRUE(seihyou::FcDbSave({"1001", "01A00101", "0", ""}, job.context(), grid));
  EXPECT_EQ(job.records(allSaved, {"DataKubun", "SaveOrder", "水準点番号"}), (Lines{"-|1|N", "0|1|A"}));
}

TEST_F(SeihyouData, CategoryOneLoadsAndSavesTheFamilyOfRoutes) {
  job.observed(1, "01B00101", "A", "1", "1", "-1", "'1'");
  job.observed(2, "02B00102", "B", "2", "1", "-1", "'1'");
  job.observed(3, "03C00101", "X", "9", "1", "-1", "'1'");
  seihyou::FcDBOpen({"1001", "01B00101", "1", ""}, job.context(), grid);
  EXPECT_EQ(rows(), (Lines{"A|1.0000||1.0000||-1|01B00101", "B|2.0000||2.0000||-1|02B00102"}));
  EXPECT_TRUE(seihyou::FcDbSave({"1001", "01B00101", "1", ""}, job.context(), grid));
  EXPECT_EQ(job.records(allSaved, {"路線番号", "SaveOrder", "水準点番号"}),
            (Lines{"01B00101|1|A", "02B00102|2|B"}));
}

// The route before ended on A with the saved height 50.1234.
TEST_F(SeihyouData, ARouteStartsOnTheSavedEndOfTheOneBefore) {
  job.observed(1, "01A00201", "A", "50", "1.0");
  job.observed(2, "01A00201", "B", "51", "NULL", "-1");
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, "
      "標高,"
      " RosenEndDataFlg) VALUES ('3','1001','01A00101','0',9,'A',50.1234,'-1')");
  seihyou::FcDBOpen({"1001", "01A00201", "0", "01A00101"}, job.context(), grid);
  EXPECT_EQ(grid.text(1, 1), "50.0000") << "the observed height is shown as it is";
  EXPECT_EQ(grid.text(1, 3), "50.1234");
  EXPECT_EQ(grid.text(3, 3), "51.1234");
  clear();
  seihyou::FcDBOpen({"1001", "01A00201", "0", ""}, job.context(), grid);
  EXPECT_EQ(grid.text(1, 3), "50.0000") << "the first route of the list has none before it";
  for (const char* none : {"NULL", "''"}) {
    job.sql("UPDATE KansokuSeikaDataSeihyou SET 標高 = " + std::string(none));
    clear();
    seihyou::FcDBOpen({"1001", "01A00201", "0", "01A00101"}, job.context(), grid);
    EXPECT_EQ(grid.text(1, 3), "50.0000") << "a saved end without height changes nothing: " << none;
  }
}

// Two routes in one selection: the second starts on its own height 20, right below the end of the first.
TEST_F(SeihyouData, ASecondRouteStandsDirectlyBelowTheEndOfTheFirst) {
  job.observed(1, "01A00101", "A", "10", "1.0");
  job.observed(2, "01A00101", "B", "11.5", "5.0", "-1");
  job.observed(3, "01A00101", "C", "20", "2.0");
  job.observed(4, "01A00101", "D", "NULL", "NULL", "-1");
  seihyou::FcDBOpen({"1001", "01A00101", "0", ""}, job.context(), grid);
  EXPECT_EQ(rows(), (Lines{"A|10.0000||10.0000|||01A00101", "|1.0000|||||", "B|11.5000||11.0000||-1|01A00101",
                           "C|20.0000||20.0000|||01A00101", "|2.0000|||||", "D|||22.0000||-1|01A00101"}));
}

// Running heights: A 10, P 11.0003, Q 11.0003 + 0.5 = 11.5003, C 11.5003 + 0.25 = 11.7503, E 12.7503.
// Mean of P and Q: (11.0003 + 11.5003) / 2 = 11.2503, shown at C; the running height goes on unchanged.
TEST_F(SeihyouData, AMeanOfRepeatedPointsStandsTwoRowsBelowTheSecond) {
  job.observed(1, "01A00101", "A", "10", "1.0003");
  job.observed(2, "01A00101", "P", "NULL", "0.5", "-2");
  job.observed(3, "01A00101", "Q", "NULL", "0.25", "-2");
  job.observed(4, "01A00101", "C", "NULL", "1.0");
  job.observed(5, "01A00101", "E", "NULL", "NULL", "-1");
  seihyou::FcDBOpen({"1001", "01A00101", "0", ""}, job.context(), grid);
  EXPECT_EQ(rows(), (Lines{"A|10.0000||10.0000|||01A00101", "|1.0003|||||", "P|||11.0003||-2|01A00101",
                           "||||||", "Q|||11.5003||-2|01A00101", "||||||", "C|||11.2503|||01A00101",
                           "|1.0000|||||", "E|||12.7503||-1|01A00101"}));
}

TEST_F(SeihyouData, AnEmptySelectionLeavesTheEmptyRow) {
  EXPECT_TRUE(seihyou::FcDBOpen({"", "", "", ""}, job.context(), grid));
  EXPECT_EQ(rows(), Lines{"||||||"});
}

TEST_F(SeihyouData, AMissingTableIsReportedUnderTheProceduresName) {
  job.sql("DROP TABLE KansokuSeikaData");
  EXPECT_FALSE(seihyou::FcDBOpen({"1001", "01A00101", "0", ""}, job.context(), grid));
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcDBOpen");
  EXPECT_EQ(desktop.messages[0].icon, ui::Icon::Critical);
  EXPECT_NE(desktop.messages[0].text.find("KansokuSeikaData"), std::string::npos);
}

// The route end keeps no mean difference, correction and result; blank cells are Null; the padded route is
// stored.
TEST_F(SeihyouData, SavesOneRecordForEachBenchMark) {
  job.observed(1, "R1", "A", "100", "1.2345");
  job.observed(2, "R1", "B", "NULL", "-0.5");
  job.observed(3, "R1", "C", "100.74", "NULL", "-1");
  seihyou::FcDBOpen({"1001", "R1", "0", ""}, job.context(), grid);
  grid.setText(1, seihyou::colRemark, "起点");
  grid.setText(2, seihyou::colRemark, "橋");
  grid.setText(2, seihyou::colCorrection, "12");
  EXPECT_TRUE(seihyou::FcDbSave({"1001", "R1", "0", ""}, job.context(), grid));
  EXPECT_EQ(job.records(allSaved, saved),
            (Lines{"R1      |0|1|A|100|起点|橋|-|1.2345|12|100", "R1      |0|2|B|-|-|-|-|-0.5|-|101.2345",
                   "R1      |0|3|C|100.74|-|-|-1|-|-|-"}));
}

TEST_F(SeihyouData, SavingTwiceLeavesOneSetAndOtherSelectionsUntouched) {
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号) "
      "VALUES"
      " ('3','1001','R2','0',1,'other route'), ('4','1001','R1','0',1,'other job'),"
      " ('3','1002','R1','0',1,'other project'), ('3','1001','R1','4',1,'other category')");
  job.observed(1, "R1", "A", "1", "2");
  seihyou::FcDBOpen({"1001", "R1", "0", ""}, job.context(), grid);
  seihyou::FcDbSave({"1001", "R1", "0", ""}, job.context(), grid);
  seihyou::FcDbSave({"1001", "R1", "0", ""}, job.context(), grid);
  EXPECT_EQ(job.records(allSaved, {"水準点番号"}).size(), 5U);
}

TEST_F(SeihyouData, ABenchMarkWithoutNumberIsNotSaved) {
  grid.setRows(7);
  grid.setText(3, 0, "B");
  grid.setText(5, 0, " ");
  seihyou::FcDbSave({"1001", "R1", "0", ""}, job.context(), grid);
  EXPECT_EQ(job.records(allSaved, {"路線番号", "SaveOrder", "水準点番号"}), Lines{"R1      |1|B"});
}

// Reopened, the observed heights are those of today; the corrected difference is 1.2345 + 0.0012 = 1.2357 and
// −0.5 + 0 = −0.5; the end is 101.2357 − 0.5000 = 100.7357.
TEST_F(SeihyouData, ReopensWhatWasSavedWithTheObservedHeightsOfToday) {
  job.observed(1, "R1", "A", "100.5", "1.2345");
  job.observed(3, "R1", "C", "NULL", "NULL", "-1");
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, "
      "標高, 備考1,"
      " 備考2, RosenEndDataFlg, 中数, 正標高補正数, 正標高結果) VALUES"
      " ('3','1001','R1','0',1,'A',100,'起点','橋',NULL,1.2345,'12',100),"
      " ('3','1001','R1','0',2,'B',101.5,NULL,NULL,NULL,-0.5,NULL,101.2357),"
      " ('3','1001','R1','0',3,'C',100.74,NULL,NULL,'-1',NULL,NULL,NULL)");
  EXPECT_TRUE(seihyou::FcDBReOpen({"1001", "R1", "0", ""}, job.context(), grid));
  EXPECT_EQ(rows(),
            (Lines{"A|100.5000||100.0000|起点||R1", "|1.2345|12|1.2357|橋||", "B|101.5000||101.2357|||R1",
                   "|-0.5000||-0.5000|||", "C|100.7400||100.7357||-1|R1"}));
}

// A blank text is no observed height: B shows what was saved.
TEST_F(SeihyouData, ReopeningTakesABlankObservedHeightForNone) {
  job.sql("ALTER TABLE KansokuSeikaData RENAME COLUMN 標高 TO 旧標高");
  job.sql("ALTER TABLE KansokuSeikaData ADD COLUMN 標高 TEXT");
  job.observed(1, "R1", "A", "'100.5'", "1");
  job.observed(2, "R1", "B", "' '", "1");
  job.observed(3, "R1", "C", "''", "NULL", "-1");
  saveRecord(1, "A", "'100',NULL,NULL,NULL,1,NULL,100");
  saveRecord(2, "B", "101.25,NULL,NULL,NULL,1,NULL,101");
  saveRecord(3, "C", "102.5,NULL,NULL,'-1',NULL,NULL,NULL");
  EXPECT_TRUE(seihyou::FcDBReOpen(r1, job.context(), grid));
  EXPECT_EQ(grid.text(1, 1), "100.5000");
  EXPECT_EQ(grid.text(3, 1), "101.2500");
  EXPECT_EQ(grid.text(5, 1), "102.5000");
}

// P and Q are the pair: (11.0008 + 11.0021) / 2 = 11.00145 → 11.0015 to 0.1 mm, halves upwards; the end does
// not follow from Q's height and the last corrected difference, 11.0021 + 1.0008.
TEST_F(SeihyouData, AnEndBehindAPairReopensWithTheMeanOfItsSavedResults) {
  saveRecord(1, "A", "10,NULL,NULL,NULL,1,'8',10");
  saveRecord(2, "P", "NULL,NULL,NULL,'-2',NULL,NULL,11.0008");
  saveRecord(3, "A", "NULL,NULL,NULL,NULL,1.0021,NULL,10");
  saveRecord(4, "P", "NULL,NULL,NULL,'-2',NULL,NULL,11.0021");
  saveRecord(5, "P", "NULL,NULL,NULL,'-1',NULL,NULL,NULL");
  EXPECT_TRUE(seihyou::FcDBReOpen(r1, job.context(), grid));
  EXPECT_EQ(rows(), (Lines{"A|10.0000||10.0000|||R1", "|1.0000|8|1.0008|||", "P|||11.0008||-2|R1", "||||||",
                           "A|||10.0000|||R1", "|1.0021||1.0021|||", "P|||11.0021||-2|R1", "||||||",
                           "P|||11.0015||-1|R1"}));
}

// One bench mark further on the end follows from the height and the difference before it again: 11 + 0.5. A
// pair of which one result is missing has no mean: 11.0021 + 0.25 (D of A–P).
TEST_F(SeihyouData, OnlyAnEndRightBehindAWholePairShowsTheMean) {
  saveRecord(1, "P", "NULL,NULL,NULL,'-2',NULL,NULL,11.0008");
  saveRecord(2, "P", "NULL,NULL,NULL,'-2',NULL,NULL,11.0021");
  saveRecord(3, "P", "NULL,NULL,NULL,NULL,0.5,NULL,11");
  saveRecord(4, "E", "NULL,NULL,NULL,'-1',NULL,NULL,NULL");
  saveRecord(5, "P", "NULL,NULL,NULL,'-2',NULL,NULL,NULL");
  saveRecord(6, "A", "NULL,NULL,NULL,NULL,0.25,NULL,10");
  saveRecord(7, "P", "NULL,NULL,NULL,'-2',NULL,NULL,11.0021");
  saveRecord(8, "P", "NULL,NULL,NULL,'-1',NULL,NULL,NULL");
  EXPECT_TRUE(seihyou::FcDBReOpen(r1, job.context(), grid));
  EXPECT_EQ(grid.text(7, 0), "E");
  EXPECT_EQ(grid.text(7, 3), "11.5000");
  EXPECT_EQ(grid.text(14, 0), "P");
  EXPECT_EQ(grid.text(14, 3), "11.2521");
}

// A route of its end alone has no height before it; that of the route above is none of its.
TEST_F(SeihyouData, AnEndWithoutABenchMarkBeforeItReopensBlank) {
  saveRecord(1, "A", "10,NULL,NULL,NULL,1,NULL,10");
  saveRecord(2, "B", "11,NULL,NULL,'-1',NULL,NULL,NULL");
  saveRecord(3, "C", "50,NULL,NULL,'-1',NULL,NULL,NULL");
  EXPECT_TRUE(seihyou::FcDBReOpen(r1, job.context(), grid));
  EXPECT_EQ(rows(), (Lines{"A|10.0000||10.0000|||R1", "|1.0000||1.0000|||", "B|11.0000||11.0000||-1|R1",
                           "C|50.0000||||-1|R1"}));
}

// What stands between deletion and the failing insertion stays: both old records gone, the first new one
// written.
TEST_F(SeihyouData, AFailingInsertionLeavesWhatWasDeletedAndWrittenBefore) {
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号) "
      "VALUES"
      " ('3','1001','R1','0',1,'old1'), ('3','1001','R1','0',2,'old2')");
  job.sql(
      "CREATE TRIGGER refuse BEFORE INSERT ON KansokuSeikaDataSeihyou WHEN NEW.水準点番号 = 'B'"
      " BEGIN SELECT RAISE(ABORT, 'refused'); END");
  job.observed(1, "R1", "A", "1", "2");
  job.observed(2, "R1", "B", "1", "2");
  seihyou::FcDBOpen({"1001", "R1", "0", ""}, job.context(), grid);
  EXPECT_FALSE(seihyou::FcDbSave({"1001", "R1", "0", ""}, job.context(), grid));
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcDbSave");
  EXPECT_EQ(job.records(allSaved, {"水準点番号"}), Lines{"A"});
}

// 16,384 bench marks need 32,768 rows and the header: more than row numbers of 16 bits count.
TEST_F(SeihyouData, ARouteLongerThanTheGridStopsWithAReport) {
  job.sql(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 16384)"
      " INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 中数)"
      " SELECT '3','1001','R1','0', i, 'BM', 0.001 FROM n");
  seihyou::FcDBOpen({"1001", "R1", "0", ""}, job.context(), grid);
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcGridMoveRow");
  EXPECT_EQ(desktop.messages[0].text, "オーバーフローしました。");
  EXPECT_EQ(grid.rows(), 32767);
}

}  // namespace
