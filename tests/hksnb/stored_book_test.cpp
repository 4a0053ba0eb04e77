#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "hksnb/book_job.h"
#include "hksnb/book_maker.h"
#include "hksnb/data.h"
#include "hksnb/grid_set_up.h"
#include "support/recording_desktop.h"

namespace {

using hksnb::BookBoxes;
using hksnb::Kind;
using hksnb::Period;
using hksnb::Status;
using Lines = std::vector<std::string>;

const ui::Message saved{{}, "保存しました", ui::Icon::None};

class StoredBook : public testing::Test {
 protected:
  StoredBook() {
    grid.setDesktop(&desktop);
    hksnb::FcHHKSB_AddRosenEndFlg(job.context(), desktop);
  }

  /// A book of two bench marks on two routes.
  void make(Kind kind) {
    test::BookMaker(grid, kind)
        .benchMark("A", "10.0000", "10.0000", "R1")
        .section("1.0000", kind == Kind::Orthometric ? "5" : "", kind == Kind::Orthometric ? "1.0005" : "",
                 "橋")
        .benchMark("B", "11.0000", "11.0005", "R2")
        .section();
    grid.setText(1, hksnb::colProject, "1001");
    grid.setText(1, hksnb::colTown, "原村");
    grid.setText(1, hksnb::colPrevious, "9.9950");
    grid.setText(1, hksnb::colVariation, "5.0");
    grid.setText(1, hksnb::colRemark, "起点");
    grid.setText(3, hksnb::colEndMark, "-1");
    if (kind == Kind::Ellipsoidal) grid.setText(3, hksnb::colCorrection, "12.3");
    hksnb::setYears(grid, "2022", "2019");
  }

  Status save(Kind kind, const std::string& number) {
    return hksnb::FcHHKSB_HKSNBSave(job.context(), kind, number, now, grid);
  }

  Status reopen(Kind kind, const std::string& number) {
    FcHHKSB_InitGrid1(grid, kind);
    return hksnb::FcHHKSB_Reopen(job.context(), kind, number, boxes, grid);
  }

  const Lines rowColumns = {"JobId",          "SaveOrder",    "事業番号",     "路線番号", "変動観測簿No",
                            "補正値フラグ",   "都道府県",     "郡市",         "町村",     "水準点番号",
                            "観測比高",       "今回観測成果", "前回観測成果", "今回中数", "正標高補正値",
                            "正標高補正結果", "変動量",       "備考1",        "備考2",    "今回観測日付",
                            "前回観測日付",   "RosenEndFlg"};
  const std::string rows =
      "SELECT * FROM KansokuSeikaDataHKSNB ORDER BY 補正値フラグ, 変動観測簿No, SaveOrder";
  const Lines periodColumns = {"JobId",        "観測簿種類",     "変動観測簿No", "新観測年月From",
                               "新観測年月To", "旧観測年月From", "旧観測年月To"};
  const std::string periods = "SELECT * FROM KansokuKikan ORDER BY 観測簿種類, 変動観測簿No";
  const Period now{"2022", "05", "2022", "08"};
  test::BookJob job;
  test::RecordingDesktop desktop;
  ui::Grid grid;
  BookBoxes boxes;
};

TEST_F(StoredBook, AnOrthometricBookTakesCorrectionsFromItsSections) {
  make(Kind::Orthometric);
  EXPECT_EQ(save(Kind::Orthometric, "12"), Status::Done);
  EXPECT_EQ(
      job.records(rows, rowColumns),
      (Lines{"3|1|1001|R1|12|0|-|-|原村|A|10.0000|10.0000|9.9950|1.0000|5|1.0005|5.0|起点|橋|2022|2019|-",
             "3|2|1001|R2|12|0|-|-|-|B|11.0000|11.0005|-|-|-|-|-|-|-|2022|2019|-1"}));
  EXPECT_EQ(job.records(periods, periodColumns), Lines{"3|1|12|202205|202208| | "});
  EXPECT_EQ(desktop.messages, std::vector<ui::Message>{saved});
}

TEST_F(StoredBook, AnEllipsoidalBookTakesThemFromItsBenchMarks) {
  make(Kind::Ellipsoidal);
  EXPECT_EQ(save(Kind::Ellipsoidal, "12"), Status::Done);
  EXPECT_EQ(
      job.records(rows, rowColumns),
      (Lines{"3|1|1001|R1|12|1|-|-|原村|A|10.0000|10.0000|9.9950|1.0000|-|10.0000|5.0|起点|橋|2022|2019|-",
             "3|2|1001|R2|12|1|-|-|-|B|11.0000|11.0005|-|-|12.3|11.0005|-|-|-|2022|2019|-1"}));
  EXPECT_EQ(job.records(periods, periodColumns), Lines{"3|2|12|202205|202208| | "});
}

TEST_F(StoredBook, SavingTwiceLeavesOneBook) {
  make(Kind::Orthometric);
  save(Kind::Orthometric, "12");
  const auto once = job.records(rows, rowColumns);
  save(Kind::Orthometric, "12");
  EXPECT_EQ(job.records(rows, rowColumns), once);
  EXPECT_EQ(job.records(periods, periodColumns).size(), 1U);
}

TEST_F(StoredBook, OtherNumbersKindsAndJobsStay) {
  job.sql(
      "INSERT INTO KansokuSeikaDataHKSNB (JobId, 変動観測簿No, 補正値フラグ, 水準点番号) VALUES"
      " ('3','12','1','E'), ('3','13','0','F'), ('4','12','0','G')");
  job.sql("INSERT INTO KansokuKikan VALUES ('3','2','12','a','b','c','d')");
  make(Kind::Orthometric);
  save(Kind::Orthometric, "12");
  EXPECT_EQ(
      job.records("SELECT * FROM KansokuSeikaDataHKSNB WHERE 水準点番号 IN ('E','F','G') ORDER BY 水準点番号",
                  {"水準点番号"}),
      (Lines{"E", "F", "G"}));
  EXPECT_EQ(job.records(periods, periodColumns), (Lines{"3|1|12|202205|202208| | ", "3|2|12|a|b|c|d"}));
}

TEST_F(StoredBook, BothKindsUnderOneNumberAreReopenedUndisturbed) {
  make(Kind::Orthometric);
  const auto orthometric = test::cells(grid);
  save(Kind::Orthometric, "12");
  make(Kind::Ellipsoidal);
  const auto ellipsoidal = test::cells(grid);
  save(Kind::Ellipsoidal, "12");
  EXPECT_EQ(reopen(Kind::Orthometric, "12"), Status::Done);
  EXPECT_EQ(test::cells(grid), orthometric);
  EXPECT_EQ(reopen(Kind::Ellipsoidal, "12"), Status::Done);
  EXPECT_EQ(test::cells(grid), ellipsoidal);
}

TEST_F(StoredBook, ReopeningFillsTheYearsAndThePeriodsAndBlanksTheOldOne) {
  make(Kind::Orthometric);
  save(Kind::Orthometric, "12");
  boxes = {"x", "y", {"1", "2", "3", "4"}, {"2010", "01", "2011", "02"}};
  reopen(Kind::Orthometric, "12");
  EXPECT_EQ(boxes.presentYear, "2022");
  EXPECT_EQ(boxes.previousYear, "2019");
  EXPECT_EQ(boxes.present, now);
  EXPECT_EQ(boxes.previous, Period{});
  EXPECT_EQ(grid.text(0, hksnb::colPresent), "観測成果:2022");
  EXPECT_EQ(grid.text(0, hksnb::colPrevious), "平均成果:2019");
}

TEST_F(StoredBook, AMonthOfOneDigitIsStoredWithTwo) {
  make(Kind::Orthometric);
  hksnb::FcHHKSB_HKSNBSave(job.context(), Kind::Orthometric, "12", {"2022", "5", "2022", "11"}, grid);
  EXPECT_EQ(job.records(periods, periodColumns), Lines{"3|1|12|202205|202211| | "});
  reopen(Kind::Orthometric, "12");
  EXPECT_EQ(boxes.present, (Period{"2022", "05", "2022", "11"}));
}

TEST_F(StoredBook, AnOldPeriodOfAnotherProgramIsShown) {
  job.sql("INSERT INTO KansokuKikan VALUES ('3','1','5','202205','202208','201004','201106')");
  reopen(Kind::Orthometric, "5");
  EXPECT_EQ(boxes.previous, (Period{"2010", "04", "2011", "06"}));
}

TEST_F(StoredBook, AnUnknownNumberLeavesBoxesAndAnEmptyBook) {
  boxes = {"x", "y", {"1", "2", "3", "4"}, {"5", "6", "7", "8"}};
  EXPECT_EQ(reopen(Kind::Orthometric, "99"), Status::Done);
  EXPECT_EQ(boxes.presentYear, "x");
  EXPECT_EQ(boxes.previous, (Period{"5", "6", "7", "8"}));
  EXPECT_EQ(grid.rows(), 2);
  EXPECT_EQ(grid.text(0, hksnb::colPresent), "観測成果:");
}

TEST_F(StoredBook, AnEmptyNumberIsStoredAsItStands) {
  make(Kind::Orthometric);
  EXPECT_EQ(save(Kind::Orthometric, ""), Status::Done);
  save(Kind::Orthometric, "");
  EXPECT_EQ(job.records(rows, {"SaveOrder", "変動観測簿No"}), (Lines{"1|", "2|"}));
  EXPECT_EQ(job.records(periods, {"変動観測簿No"}), Lines{""});
}

TEST_F(StoredBook, BenchMarksWithoutANumberAreLeftOut) {
  make(Kind::Orthometric);
  grid.setText(1, hksnb::colBenchMark, " ");
  save(Kind::Orthometric, "12");
  EXPECT_EQ(job.records(rows, {"SaveOrder", "事業番号", "路線番号", "水準点番号"}), Lines{"1|1001|R2|B"});
}

TEST_F(StoredBook, AnEmptyGridTakesTheBookAwayAndKeepsItsPeriod) {
  make(Kind::Orthometric);
  save(Kind::Orthometric, "12");
  FcHHKSB_InitGrid1(grid, Kind::Orthometric);
  EXPECT_EQ(save(Kind::Orthometric, "12"), Status::Done);
  EXPECT_TRUE(job.records(rows, {"SaveOrder"}).empty());
  EXPECT_EQ(job.records(periods, {"変動観測簿No"}), Lines{"12"});
}

// Numbers lose their zeros in a number column; the cells get them back.
TEST_F(StoredBook, NumberColumnsAreShownInTheFormatsOfTheCells) {
  job.sql("DROP TABLE KansokuSeikaDataHKSNB");
  job.sql(
      "CREATE TABLE KansokuSeikaDataHKSNB (JobId TEXT, SaveOrder INTEGER, 事業番号 TEXT, 路線番号 TEXT,"
      " 変動観測簿No TEXT, 補正値フラグ TEXT, 都道府県 TEXT, 郡市 TEXT, 町村 TEXT, 水準点番号 TEXT, 観測比高 "
      "REAL,"
      " 今回観測成果 REAL, 前回観測成果 REAL, 今回中数 REAL, 正標高補正値 REAL, 正標高補正結果 REAL, 変動量 "
      "REAL,"
      " 備考1 TEXT, 備考2 TEXT, 今回観測日付 TEXT, 前回観測日付 TEXT, RosenEndFlg TEXT(2))");
  make(Kind::Orthometric);
  const auto before = test::cells(grid);
  save(Kind::Orthometric, "12");
  reopen(Kind::Orthometric, "12");
  EXPECT_EQ(test::cells(grid), before);
}

TEST_F(StoredBook, AMissingPeriodTableLeavesTheRowsWrittenAndTellsNothingSaved) {
  job.sql("DROP TABLE KansokuKikan");
  make(Kind::Orthometric);
  EXPECT_EQ(save(Kind::Orthometric, "12"), Status::Failed);
  EXPECT_EQ(job.records(rows, {"水準点番号"}), (Lines{"A", "B"}));
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcHHKSB_HKSNBSave");
  EXPECT_EQ(reopen(Kind::Orthometric, "12"), Status::Failed);
  ASSERT_EQ(desktop.messages.size(), 2U);
  EXPECT_EQ(desktop.messages[1].title, "FcHHKSB_Reopen");
  EXPECT_EQ(grid.text(3, hksnb::colBenchMark), "B") << "the rows were there before the error";
}

TEST_F(StoredBook, WithSafeguardsAMissingPeriodTableLeavesTheBookAsItWas) {
  make(Kind::Orthometric);
  EXPECT_EQ(save(Kind::Orthometric, "12"), Status::Done);
  const auto before = job.records(rows, {"水準点番号", "備考1"});
  desktop.messages.clear();
  desktop.guarded = true;
  job.sql("DROP TABLE KansokuKikan");
  grid.setText(1, hksnb::colRemark, "new");
  EXPECT_EQ(save(Kind::Orthometric, "12"), Status::Failed);
  EXPECT_EQ(job.records(rows, {"水準点番号", "備考1"}), before);
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcHHKSB_HKSNBSave");
  EXPECT_NE(desktop.messages[0].text.find("保存前の成果はそのまま残っています。"), std::string::npos);
}

/// Fills every cell that a book stores, or leaves it blank, at random.
void scatter(ui::Grid& grid, Kind kind, std::uint32_t seed) {
  const auto below = [&seed](std::uint32_t limit) {
    seed = seed * 1664525U + 1013904223U;
    return (seed >> 8U) % limit;
  };
  const int benchMarks = 1 + static_cast<int>(below(12));
  FcHHKSB_InitGrid1(grid, kind);
  grid.setRows(2 * benchMarks + 1);
  const auto put = [&](int row, int col, const char* word) {
    if (below(3) > 0) grid.setText(row, col, word + std::to_string(below(1000)));
  };
  for (int row = 1; row < grid.rows(); row += 2) {
    grid.setText(row, hksnb::colBenchMark, "P" + std::to_string(row));
    for (const int col : {hksnb::colPrefecture, hksnb::colCounty, hksnb::colTown, hksnb::colRemark})
      put(row, col, "字");
    for (const int col : {hksnb::colHeight, hksnb::colPrevious, hksnb::colVariation, hksnb::colPresent})
      put(row, col, "1.0");
    put(row, hksnb::colEndMark, "-");
    for (const int col : {hksnb::colCorrection, hksnb::colPresent})
      put(kind == Kind::Orthometric ? row + 1 : row, col, "-2.5");
    put(row + 1, hksnb::colHeight, "0.5");
    put(row + 1, hksnb::colRemark, "間");
    if (row == 1 || below(4) == 0) grid.setText(row, hksnb::colRoute, "R" + std::to_string(row));
  }
  hksnb::setYears(grid, below(2) == 0 ? "" : "令和4年:5月", "2019");
}

TEST_F(StoredBook, SaveAndReopenGiveBackEveryCell) {
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    const Kind kind = seed % 2 == 0 ? Kind::Orthometric : Kind::Ellipsoidal;
    scatter(grid, kind, seed);
    const auto before = test::cells(grid);
    ASSERT_EQ(save(kind, "8"), Status::Done);
    ASSERT_EQ(reopen(kind, "8"), Status::Done);
    ASSERT_EQ(test::cells(grid), before) << "seed " << seed;
  }
}

}  // namespace
