#include "daen/data.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "daen/columns.h"
#include "daen/daen_job.h"
#include "daen/route_maker.h"
#include "support/recording_desktop.h"

namespace {

using Lines = std::vector<std::string>;

class DaenData : public testing::Test, protected test::DaenGrids {
 protected:
  DaenData() { route.setDesktop(&desktop); }

  bool load(const char* number = "01A00101", const char* category = "0") {
    return daen::FcDHseiDBOpen({"1001", number, category, ""}, job.context(), formats, route);
  }
  bool reopen(const char* number = "01A00101", const char* category = "0") {
    return daen::FcDHseiDBReOpen({"1001", number, category, ""}, job.context(), formats, route);
  }
  bool save(const char* number = "01A00101", const char* category = "0") {
    return daen::FcDHseiSave({"1001", number, category, ""}, job.context(), route);
  }

  Lines rows() const {
    Lines lines;
    for (int row = 1; row < route.rows(); ++row) lines.push_back(cells(route, row, 0, daen::columnCount - 1));
    return lines;
  }

  /// Heights of the bench marks in their order.
  Lines heights() const {
    Lines column;
    for (int row = 1; row < route.rows(); row += 2) column.push_back(route.text(row, daen::colHeight));
    return column;
  }

  void clear() {
    route.setRows(3);
    for (int row = 1; row < 3; ++row)
      for (int col = 0; col < route.cols(); ++col) route.setText(row, col, "");
  }

  Lines saved(const std::string& where = {}) const {
    return job.records(
        "SELECT * FROM KansokuSeikaDataDaen" + where + " ORDER BY 路線番号, DataKubun, SaveOrder",
        {"路線番号", "DataKubun", "SaveOrder", "標石番号", "距離", "標高", "楕円補正値", "楕円補正結果",
         "備考1", "備考2", "RosenEndDataFlg"});
  }

  test::DaenJob job;
  test::RecordingDesktop desktop;
  const daen::Formats formats = daen::FcDaenInit(job::Grade(1));
};

TEST_F(DaenData, EveryRecordHasABenchMarkRowAndASegmentRow) {
  job.observed(2, "01A00101", "B", "101.5", "-0.5", "", "'0'", "2.1");
  job.observed(1, "01A00101", "A", "100", "1.2345", "", "'0'", "1.5");
  job.observed(3, "01A00101", "C", "100.74", "9.9", "-1", "'0'", "9.9");
  EXPECT_TRUE(load());
  EXPECT_EQ(rows(), (Lines{"A||100.0000||||0|1||", "|1.500|1.2345|||||||", "B||101.5000||||0|2||",
                           "|2.100|-0.5000|||||||", "C||100.7400||||0|3|-1|-1", "|||||||||"}));
  EXPECT_TRUE(desktop.messages.empty());
}

// B: 100 + 1.23456 = 101.23456; C stands at 0: 101.23456 − 0.50004 = 100.73452; D has 50 of its own; E 50 +
// 0.25.
TEST_F(DaenData, MissingHeightsFollowFromTheBenchMarkBefore) {
  job.observed(1, "01A00101", "A", "100", "1.23456");
  job.observed(2, "01A00101", "B", "NULL", "-0.50004");
  job.observed(3, "01A00101", "C", "0", "7");
  job.observed(4, "01A00101", "D", "50", "0.25", "-2");
  job.observed(5, "01A00101", "E", "''", "NULL", "-1");
  load();
  EXPECT_EQ(heights(), (Lines{"100.0000", "101.2346", "100.7345", "50.0000", "50.2500"}));
  EXPECT_EQ(cells(route, 7, daen::colEndMark, daen::colFlag), "-2|-2");
}

// Nothing leads to A. The section behind B has no mean difference and adds nothing: C 20, D 20 + 1; the
// height runs on over the route end: E 30 + 1.5.
TEST_F(DaenData, OnlyBeforeTheFirstHeightIsAHeightBlank) {
  job.observed(1, "01A00101", "A", "NULL", "1");
  job.observed(2, "01A00101", "B", "20", "NULL");
  job.observed(3, "01A00101", "C", "NULL", "1");
  job.observed(4, "01A00101", "D", "''", "NULL");
  job.observed(5, "01A00101", "E", "30", "1.5", "-1");
  job.observed(6, "01A00101", "F", "NULL", "1");
  load();
  EXPECT_EQ(heights(), (Lines{"", "20.0000", "20.0000", "21.0000", "30.0000", "31.5000"}));
}

// Two runs from A to B: 200 + 2 = 202 and 200 + 2.0021 = 202.0021; their mean 202.00105 is 202.0011 where B
// goes on. The height runs on from the second run: C 202.0021 + 1 = 203.0021.
TEST_F(DaenData, TheMeanOfTwoRunsStandsWhereTheRouteGoesOn) {
  job.observed(1, "01A00101", "A", "200", "2", "", "'0'", "1");
  job.observed(2, "01A00101", "B", "NULL", "NULL", "-2");
  job.observed(3, "01A00101", "A", "200", "2.0021", "", "'0'", "1");
  job.observed(4, "01A00101", "B", "NULL", "NULL", "-2");
  job.observed(5, "01A00101", "B", "NULL", "1", "", "'0'", "1");
  job.observed(6, "01A00101", "C", "NULL", "NULL", "-1");
  load();
  EXPECT_EQ(heights(), (Lines{"200.0000", "202.0000", "200.0000", "202.0021", "202.0011", "203.0021"}));
}

// A corrected height is the height and the correction: 202.0011 + 2.1 mm = 202.0032, never 2.1 mm alone.
TEST_F(DaenData, ACorrectionBehindAPairStandsOnItsHeight) {
  job.observed(1, "01A00101", "A", "200", "2", "", "'0'", "1");
  job.observed(2, "01A00101", "B", "NULL", "NULL", "-2");
  job.observed(3, "01A00101", "A", "200", "2.0021", "", "'0'", "1");
  job.observed(4, "01A00101", "B", "NULL", "NULL", "-2");
  job.observed(5, "01A00101", "B", "NULL", "1", "", "'0'", "1");
  job.observed(6, "01A00101", "C", "NULL", "NULL", "-1");
  load();
  const daen::Section section{"B", "C", "36", "0", "36", "0", "2.1"};
  route.setText(3, daen::colBenchMark, "");  // the section begins where the route goes on
  route.setText(7, daen::colBenchMark, "");
  ASSERT_TRUE(daen::FcSeiDaenCal(route, sections, section, formats, [](const daen::SectionValues&) {}));
  EXPECT_EQ(result(9), "2.1|202.0032");
}

TEST_F(DaenData, OtherGradesShowThreeDecimals) {
  job.observed(1, "01A00101", "A", "100.0005", "1.2345", "", "'0'", "1.2345");
  daen::FcDHseiDBOpen({"1001", "01A00101", "0", ""}, job.context(), daen::FcDaenInit(job::Grade(2)), route);
  EXPECT_EQ(rows(), (Lines{"A||100.001||||0|1||", "|1.235|1.235|||||||"}));
}

// The comparison with Null never holds, whatever the query hopes for.
TEST_F(DaenData, CategoryZeroAsksForRecordsWithoutACategoryInVain) {
  job.observed(1, "01A00101", "A", "100", "1");
  job.observed(2, "01A00101", "B", "100", "1", "", "NULL");
  job.observed(3, "01A00101", "C", "100", "1", "", "'4'");
  load();
  EXPECT_EQ(route.rows(), 3);
  EXPECT_EQ(route.text(1, daen::colBenchMark), "A");
}

TEST_F(DaenData, CategoryOneLoadsTheFamilyOfTheRoute) {
  job.observed(1, "01B00101", "A", "1", "1", "", "'1'");
  job.observed(2, "02B00199", "B", "2", "1", "", "'1'");
  job.observed(3, "01C00101", "X", "3", "1", "", "'1'");
  load("01B00101", "1");
  EXPECT_EQ(route.rows(), 5);
  EXPECT_EQ(route.text(3, daen::colBenchMark), "B");
}

TEST_F(DaenData, WithoutDataTheGridStaysEmpty) {
  EXPECT_TRUE(load());
  EXPECT_TRUE(reopen());
  EXPECT_EQ(route.rows(), 3);
  EXPECT_EQ(rows(), (Lines{"|||||||||", "|||||||||"}));
}

TEST_F(DaenData, SavesWhatTheGridShowsAndReopensIt) {
  job.observed(1, "01A00101", "A", "100", "1.2345", "", "'0'", "1.5");
  job.observed(2, "01A00101", "B", "101.5", "NULL", "-1", "'0'", "NULL");
  load();
  route.setText(1, daen::colCorrection, "-0.5");
  route.setText(1, daen::colResult, "99.9995");
  route.setText(1, daen::colRemark, "起点");
  route.setText(2, daen::colRemark, "坂");
  EXPECT_TRUE(save());
  EXPECT_EQ(desktop.takeMessages(), (std::vector<ui::Message>{{"", "保存しました", ui::Icon::None}}));
  EXPECT_EQ(saved(), (Lines{"01A00101|0|1|A|1.500|100.0000|-0.5|99.9995|起点|坂|-",
                            "01A00101|0|2|B|-|101.5000|-|-|-|-|-1"}));
  clear();
  EXPECT_TRUE(reopen());
  EXPECT_EQ(rows(), (Lines{"A||100.0000|-0.5|99.9995|起点|0|1||", "|1.500||||坂||||",
                           "B||101.5000||||0|2|-1|-1", "|||||||||"}));
}

// Numbers lose the zeros that the cells show, and get them back.
TEST_F(DaenData, ColumnsMayBeDeclaredAsNumbers) {
  job.declare("KansokuSeikaDataDaen", {"SaveOrder", "距離", "楕円補正値", "標高", "楕円補正結果"}, "REAL");
  job.observed(1, "01A00101", "A", "100", "1.2345", "", "'0'", "1.5");
  job.observed(2, "01A00101", "B", "101.5", "NULL", "-1", "'0'", "NULL");
  load();
  route.setText(1, daen::colCorrection, "-0.5");
  route.setText(1, daen::colResult, "99.9995");
  EXPECT_TRUE(save());
  EXPECT_EQ(saved(),
            (Lines{"01A00101|0|1|A|1.5|100|-0.5|99.9995|-|-|-", "01A00101|0|2|B|-|101.5|-|-|-|-|-1"}));
  clear();
  EXPECT_TRUE(reopen());
  EXPECT_EQ(rows(), (Lines{"A||100.0000|-0.5|99.9995||0|1||", "|1.500||||||||", "B||101.5000||||0|2|-1|-1",
                           "|||||||||"}));
}

TEST_F(DaenData, SavingReplacesTheSelectionAndNothingElse) {
  job.sql(
      "INSERT INTO KansokuSeikaDataDaen (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号) VALUES"
      " ('3','1001','01A00101','0',7,'old'), ('3','1001','01A00101 ','0',8,'padded'),"
      " ('3','1001','01A00101','1',1,'category'), ('3','1001','01A00102','0',1,'route'),"
      " ('3','1002','01A00101','0',1,'project'), ('4','1001','01A00101','0',1,'job'),"
      " ('3','1001','01A00101',NULL,1,'none')");
  benchMark("A", "100", "1");
  route.setText(1, daen::colSaveOrder, "4");
  save();
  EXPECT_EQ(job.records("SELECT * FROM KansokuSeikaDataDaen ORDER BY 標石番号", {"標石番号", "SaveOrder"}),
            (Lines{"A|4", "category|1", "job|1", "none|1", "project|1", "route|1"}));
}

TEST_F(DaenData, SavingStopsBehindTheRouteEndAndPassesRowsWithoutNumber) {
  benchMark("A", "100", "1");
  benchMark("  ", "100", "1");
  benchMark("C", "100", "1.25");
  benchMark("D", "100");
  route.setText(5, daen::colEndMark, "-1");
  route.setText(5, daen::colSaveOrder, "3");
  save();
  EXPECT_EQ(saved(), (Lines{"01A00101|0|0|A|1|100|-|-|-|-|-", "01A00101|0|3|C|-|100|-|-|-|-|-1"}));
}

TEST_F(DaenData, AnEmptyGridDeletesTheSavedRows) {
  benchMark("A", "100", "1");
  save();
  clear();
  EXPECT_TRUE(save());
  EXPECT_TRUE(saved().empty());
}

TEST_F(DaenData, KeysAreStoredPaddedToEightCharacters) {
  benchMark("A", "100", "1");
  save("01A1");
  EXPECT_EQ(job.records("SELECT * FROM KansokuSeikaDataDaen", {"事業番号", "路線番号"}),
            Lines{"1001    |01A1    "});
}

TEST_F(DaenData, ErrorsAreReportedUnderTheProcedure) {
  job.sql("DROP TABLE KansokuSeikaDataDaen");
  job.sql("ALTER TABLE KansokuSeikaData RENAME COLUMN 距離 TO 長さ");
  EXPECT_FALSE(load());
  EXPECT_FALSE(reopen());
  EXPECT_FALSE(save());
  Lines titles;
  for (const ui::Message& message : desktop.messages) titles.push_back(message.title);
  EXPECT_EQ(titles, (Lines{"FcDHseiDBOpen", "FcDHseiDBReOpen", "FcDHseiSave"})) << "and nothing was saved";
}

// The first record is written, the second refused: the old rows are gone, the first one stays.
TEST_F(DaenData, ASaveThatFailsHalfwayLeavesWhatWasWritten) {
  benchMark("old", "1");
  save();
  job.sql(
      "CREATE TRIGGER refuse BEFORE INSERT ON KansokuSeikaDataDaen WHEN NEW.標石番号 = 'B'"
      " BEGIN SELECT RAISE(ABORT, 'refused'); END");
  route.setText(1, daen::colBenchMark, "A");
  benchMark("B", "1");
  desktop.messages.clear();
  EXPECT_FALSE(save());
  ASSERT_EQ(desktop.messages.size(), 1U) << "no word of a save";
  EXPECT_EQ(desktop.messages[0].title, "FcDHseiSave");
  EXPECT_EQ(job.records("SELECT * FROM KansokuSeikaDataDaen", {"標石番号"}), Lines{"A"});
}

TEST_F(DaenData, ListsOfBenchMarksHoldWhatTheRouteHolds) {
  ui::ListBox first("LstHyousekiNo1", nullptr);
  ui::ListBox second("LstHyousekiNo2", nullptr);
  first.addItem("old");
  benchMark("A", "1");
  benchMark("B", "1");
  benchMark("", "1");
  benchMark("A", "1");
  EXPECT_TRUE(daen::FcDaenSetLstHyouseki(route, first, second));
  EXPECT_EQ(first.items(), (Lines{"A", "B", "A"}));
  EXPECT_EQ(second.items(), first.items());
}

}  // namespace
