#include "hend/data.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hend/calculation.h"
#include "hend/grid_maker.h"
#include "hend/variation_job.h"
#include "support/recording_desktop.h"

namespace {

using Lines = std::vector<std::string>;

const route::Selection selection{"1001", "01E00101", "0", {}};

class VariationData : public testing::Test {
 protected:
  VariationData() { setUp(made.grid); }

  void setUp(ui::Grid& grid) {
    grid.setDesktop(&desktop);
    grid.setRows(2);
  }

  void open(const test::VariationJob& from, const route::Selection& what = selection) {
    hend::FcHendDBOpen(what, from.context(), made.grid);
  }

  bool save(const test::VariationJob& into, const char* date = "2022/08/19") {
    return hend::FcHendDBSave(selection, into.context(), made.grid, date);
  }

  /// 水準点, SaveOrder, データ形式 and DataEndMark of a row.
  std::string keys(int row) const {
    return made.grid.text(row, hend::colBenchMark) + "|" + made.cells(row, hend::colOrder, hend::colMark);
  }

  test::RecordingDesktop desktop;
  test::VariationGrid made;
  test::VariationJob job;
};

TEST_F(VariationData, LoadsTwoRowsForEveryRecord) {
  job.routeWithNewPoint();
  open(job);
  EXPECT_EQ(made.grid.rows(), 9);
  EXPECT_EQ(keys(1), "E1|1|0|");
  EXPECT_EQ(made.values(1), "2022/05/11||2019/08/15|||||||");
  EXPECT_EQ(made.values(2), "|1.5000||1.4900||||||");
  EXPECT_EQ(made.values(3), "2022/05/11||2019/08/15|||||||");
  EXPECT_EQ(made.values(5), "2022/05/21|||||||||");
  EXPECT_EQ(made.values(6), "|0.8000||||||||");
  EXPECT_EQ(keys(7), "E4|4|0|-1");
  EXPECT_EQ(made.values(7), "|||||||||");
  EXPECT_EQ(made.values(8), "|||||||||");
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(VariationData, OtherGradesLoadThreeDecimals) {
  test::VariationJob second(2);
  second.routeWithNewPoint();
  open(second);
  EXPECT_EQ(made.values(2), "|1.500||1.490||||||");
}

TEST_F(VariationData, ARepeatedPointHasDatesAndAnEmptySectionRow) {
  job.observedTwice(1, "'E1F'", "'20220511'", "1.5", "'20190815'", "1.49");
  job.observedTwice(2, "'E2'", "'20220512'", "-1.5", "'20190816'", "-1.49", "'-2'");
  open(job);
  EXPECT_EQ(keys(3), "E2|2|0|-2");
  EXPECT_EQ(made.values(3), "2022/05/12||2019/08/16|||||||");
  EXPECT_EQ(made.values(4), "|||||||||");
}

// Eight digits get their slashes, valid or not; ten characters stay; of the others a date is written anew.
TEST_F(VariationData, DatesOfOtherLengthsAreWrittenAnewWhereTheyAreDates) {
  job.observedTwice(1, "'E1'", "20220511", "1", "'2019/8/15'", "1");
  job.observedTwice(2, "'E2'", "'20221399'", "1", "'2019-08-5'", "1");
  job.observedTwice(3, "'E3'", "'2022.05.11'", "1", "'昨年'", "1");
  job.observedTwice(4, "'E4'", "'2022/5/1'", "1", "'20190815 '", "1");
  job.observedTwice(5, "'E5'", "'令和4年5月11日'", "1", "'  '", "1");
  open(job);
  EXPECT_EQ(made.cells(1, hend::colNewDate, hend::colOldDate), "2022/05/11||2019/08/15");
  EXPECT_EQ(made.cells(3, hend::colNewDate, hend::colOldDate), "2022/13/99||2019/08/05");
  EXPECT_EQ(made.cells(5, hend::colNewDate, hend::colOldDate), "2022.05.11||昨年");
  EXPECT_EQ(made.cells(7, hend::colNewDate, hend::colOldDate), "2022/05/01||2019/08/15");
  EXPECT_EQ(made.cells(9, hend::colNewDate, hend::colOldDate), "令和4年5月11日||");
}

TEST_F(VariationData, RecordsWithoutACategoryStayOut) {
  job.observedTwice(1, "'E1'", "'20220511'", "1", "NULL", "NULL");
  job.observedTwice(2, "'E2'", "'20220511'", "1", "NULL", "NULL", "NULL", "'01E00101'", "NULL");
  job.observedTwice(3, "'E3'", "'20220511'", "1", "NULL", "NULL", "NULL", "'01E00101'", "'4'");
  open(job);
  EXPECT_EQ(made.grid.rows(), 3);
  EXPECT_EQ(keys(1), "E1|1|0|");
}

TEST_F(VariationData, KeysAreTakenWithoutBlanksAroundThem) {
  job.observedTwice(1, "'E1'", "'20220511'", "1", "NULL", "NULL", "NULL", "'E1      '");
  open(job, {" 1001 ", "E1   ", "0", {}});
  EXPECT_EQ(keys(1), "E1|1|0|");
}

TEST_F(VariationData, InCategoryOneTheWholeFamilyIsLoaded) {
  job.observedTwice(1, "'B1'", "'20220511'", "1", "NULL", "NULL", "NULL", "'01B00101'", "'1'");
  job.observedTwice(2, "'B2'", "'20220511'", "1", "NULL", "NULL", "NULL", "'02B00101'", "'1'");
  job.observedTwice(3, "'B3'", "'20220511'", "1", "NULL", "NULL", "NULL", "'02B00201'", "'1'");
  open(job, {"1001", "01B00101", "1", {}});
  EXPECT_EQ(made.grid.rows(), 5);
  EXPECT_EQ(keys(3), "B2|2|1|");
}

TEST_F(VariationData, LoadingPassesItsErrorsOn) {
  job.sql("DROP TABLE KansokuSeikaData");
  EXPECT_THROW(open(job), db::Error);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(VariationData, ReopeningAndSavingReportTheirErrors) {
  job.sql("DROP TABLE KansokuSeikaDataHend");
  std::string date = "2022/08/19";
  EXPECT_FALSE(hend::FcHendDBReOpen(selection, job.context(), made.grid, date));
  EXPECT_FALSE(save(job));
  EXPECT_EQ(date, "2022/08/19");
  ASSERT_EQ(desktop.messages.size(), 2u);
  EXPECT_EQ(desktop.messages[0].title, "FcHendDBReOpen");
  EXPECT_EQ(desktop.messages[1].title, "FcHendDBSave");
  EXPECT_EQ(desktop.messages[1].icon, ui::Icon::Critical);
}

// The numbers of new_point_test: the combined section of E3 is 2.0000 against 2.0100 at the midpoint
// 2022/05/16.
TEST_F(VariationData, SavesEveryColumnOfARoute) {
  job.routeWithNewPoint();
  open(job);
  made.grid.setText(1, hend::colRemark, "起点");
  made.grid.setText(2, hend::colRemark, "橋梁上");
  hend::FcHendCalc(made.grid, "2022/08/19", job.context().grade());
  ASSERT_TRUE(save(job));
  EXPECT_EQ(job.saved({"JobId", "事業番号", "路線番号", "DataKubun", "SaveOrder", "標石番号", "基準観測日",
                       "RosenEndDataFlg"}),
            (Lines{"3|1001|01E00101|0|1|E1|2022/08/19|-", "3|1001|01E00101|0|2|E2|2022/08/19|-",
                   "3|1001|01E00101|0|3|E3|2022/08/19|-", "3|1001|01E00101|0|4|E4|2022/08/19|-1"}));
  EXPECT_EQ(job.saved({"新観測年月日", "新観測比高", "旧測年月日", "旧観測比高", "比高差", "新_旧経過日数",
                       "日毎比高変化", "基準_新経過日数", "変動補正量", "変動補正結果", "備考1", "備考2"}),
            (Lines{"2022/05/11|1.5000|2019/08/15|1.4900|0.0100|1000|1.00E-05|100|0.0010|1.5010|起点|橋梁上",
                   "2022/05/11|1.2000|2019/08/15|2.0100|-|1000|-|100|-|-|-|-",
                   "2022/05/21|0.8000|-|-|-|1005|-|95|-|-|-|-", "-|-|-|-|-|-|-|-|-|-|-|-"}));
}

const Lines companions = {"新設点BrankFlg",          "新設点Flg",
                          "新設点用変動補正量",      "新設点用新観測比高",
                          "新設点用旧測年月日",      "新設点用旧観測比高",
                          "新設点用比高差",          "新設点用新_旧経過日数",
                          "新設点用基準_新経過日数", "新設点用日毎比高変化",
                          "新設点用変動補正結果",    "新設点用平均_新観測年月日"};

// At the route end stand the values of the section that leads there, as far as it has any: 0.8000, and the
// days of E3.
TEST_F(VariationData, CompanionColumnsHoldTheCombinedSection) {
  job.routeWithNewPoint();
  open(job);
  hend::FcHendCalc(made.grid, "2022/08/19", job.context().grade());
  ASSERT_TRUE(save(job));
  EXPECT_EQ(job.saved(companions),
            (Lines{"-1|0|-|-|-|-|-|-|-|-|-|-", "-1|0|-|-|-|-|-|-|-|-|-|-",
                   "0|-1|-0.0009|2.0000|2019/08/15|2.0100|-0.0100|1005|95|-9.95E-06|1.9991|2022/05/16",
                   "0|-1|-|0.8000|-|-|-|1005|95|-|-|-"}));
}

TEST_F(VariationData, CompanionColumnsOfARouteEndHoldItsLastSection) {
  job.observedTwice(1, "'E1'", "'20220511'", "1.5", "'20190815'", "1.49");
  job.observedTwice(2, "'E2'", "NULL", "NULL", "NULL", "NULL", "'-1'");
  open(job);
  hend::FcHendCalc(made.grid, "2022/08/19", job.context().grade());
  ASSERT_TRUE(save(job));
  EXPECT_EQ(job.saved(companions),
            (Lines{"-1|0|-|-|-|-|-|-|-|-|-|-",
                   "0|-1|0.0010|1.5000|2019/08/15|1.4900|0.0100|1000|100|1.00E-05|1.5010|-"}));
}

TEST_F(VariationData, WithoutValuesTheCompanionColumnsAreMarkedBlank) {
  job.observedTwice(1, "'E1'", "NULL", "1.5", "NULL", "NULL");
  job.observedTwice(2, "'E2'", "NULL", "NULL", "NULL", "NULL", "'-1'", "'01E00201'");
  open(job);
  hend::FcHendCalc(made.grid, "2022/08/19", job.context().grade());
  ASSERT_TRUE(save(job));
  EXPECT_EQ(job.saved(companions), (Lines{"-1|-1|-|-|-|-|-|-|-|-|-|-"}));
  made.grid.setRows(1);
  open(job, {"1001", "01E00201", "0", {}});
  ASSERT_TRUE(save(job));
  EXPECT_EQ(job.saved(companions), (Lines{"-1|-1|-|-|-|-|-|-|-|-|-|-"}));
}

// A new point that begins the route shows the days to the reference date, and whatever was typed into its
// line.
TEST_F(VariationData, TheLineOfANewPointIsSavedOnTheFirstRowToo) {
  job.observedTwice(1, "'E1'", "'20220511'", "1.5", "NULL", "NULL");
  open(job);
  hend::FcHendCalc(made.grid, "2022/08/19", job.context().grade());
  made.grid.setText(1, hend::colCorrection, "0.0007");
  made.grid.setText(1, hend::colResult, "1.5007");
  ASSERT_TRUE(save(job));
  EXPECT_EQ(job.saved(companions), (Lines{"0|-1|0.0007|-|-|-|-|-|100|-|1.5007|-"}));
}

TEST_F(VariationData, SavingReplacesTheSelectionAndNothingElse) {
  for (const char* other :
       {"'3','1001','01E00201','0'", "'4','1001','01E00101','0'", "'3','1002','01E00101','0'",
        "'3','1001','01E00101','1'", "'3','1001','01E00101',NULL"})
    job.sql(std::string("INSERT INTO KansokuSeikaDataHend (JobId, 事業番号, 路線番号, DataKubun, SaveOrder)"
                        " VALUES (") +
            other + ",9)");
  job.routeWithNewPoint();
  open(job);
  for (int time = 0; time < 2; ++time) {
    ASSERT_TRUE(save(job, " "));
    const Lines lines = job.saved({"SaveOrder", "標石番号", "基準観測日"});
    EXPECT_EQ(lines,
              (Lines{"1|E1|-", "2|E2|-", "3|E3|-", "4|E4|-", "9|-|-", "9|-|-", "9|-|-", "9|-|-", "9|-|-"}));
  }
}

TEST_F(VariationData, ABenchMarkWithoutANumberIsNotSaved) {
  job.routeWithNewPoint();
  open(job);
  made.grid.setText(3, hend::colBenchMark, "  ");
  ASSERT_TRUE(save(job));
  EXPECT_EQ(job.saved({"標石番号"}), (Lines{"E1", "E3", "E4"}));
}

TEST_F(VariationData, SavingAndReopeningGivesBackTheGrid) {
  for (const std::int16_t grade : {std::int16_t{1}, std::int16_t{2}}) {
    test::VariationJob mine(grade);
    mine.routeWithNewPoint();
    made.grid.setRows(1);
    open(mine);
    made.grid.setText(4, hend::colRemark, "傾斜地");
    made.grid.setText(7, hend::colRemark, "終点");
    made.grid.setText(8, hend::colRemark, "再測");
    hend::FcHendCalc(made.grid, "2022/08/19", mine.context().grade());
    ASSERT_TRUE(save(mine));
    test::VariationGrid again;
    setUp(again.grid);
    std::string date;
    ASSERT_TRUE(hend::FcHendDBReOpen(selection, mine.context(), again.grid, date));
    EXPECT_EQ(date, "2022/08/19");
    // Before it is calculated, a new point's row holds its days and its correction of the combined section.
    EXPECT_EQ(again.values(5),
              grade == 1 ? "2022/05/21|||||1005||95|-0.0009|" : "2022/05/21|||||1005||95|-0.001|");
    hend::FcHendCalc(again.grid, date, mine.context().grade());
    ASSERT_EQ(again.grid.rows(), made.grid.rows());
    for (int row = 1; row < made.grid.rows(); ++row)
      EXPECT_EQ(again.cells(row, 0, hend::columnCount - 1), made.cells(row, 0, hend::columnCount - 1)) << row;
  }
}

TEST_F(VariationData, ReopeningShowsNumbersInTheGradesPatterns) {
  job.sql(
      "INSERT INTO KansokuSeikaDataHend (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, "
      "新観測比高,"
      " 日毎比高変化, 基準_新経過日数, 変動補正量, 基準観測日) VALUES ('3','1001','01E00101','0',1,'E1',1.5,"
      "'0.00001','  ','.00105',NULL)");
  std::string date = "2022/08/19";
  ASSERT_TRUE(hend::FcHendDBReOpen(selection, job.context(), made.grid, date));
  EXPECT_EQ(made.values(1), "|||||||||");
  EXPECT_EQ(made.values(2), "|1.5000|||||1.00E-05||0.0011|");
  EXPECT_EQ(date, "");
}

}  // namespace
