#include "hend/screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hend/columns.h"
#include "hend/variation_job.h"
#include "support/recording_desktop.h"
#include "text/error.h"

namespace {

using Lines = std::vector<std::string>;

class VariationScreen : public testing::Test {
 protected:
  VariationScreen() {
    job.routeWithNewPoint();
    screen.load();
  }

  void openRoute(const char* date = "2022/08/19") {
    screen.txtKijunbi.edit(date);
    screen.cmbJIgyoBango1.choose(0);
    screen.cmbRosenBango1.choose(0);
    screen.openButton.press();
  }

  /// Saves and opens the route again from its saved results, on a new screen as an operator would.
  void saveAndReopen() {
    screen.saveItem.press();
    again.load();
    again.cmbJIgyoBango2.choose(0);
    again.cmbRosenBango2.choose(0);
    again.reopenButton.press();
  }

  static void type(hend::fHHsei& on, int row, int col, const char32_t* keys) {
    on.Grid1.click(row, col);
    for (; *keys != 0; ++keys) on.Grid1.pressKey(*keys);
  }

  /// "row,col" of the current cell.
  std::string current() const {
    return std::to_string(screen.Grid1.row()) + "," + std::to_string(screen.Grid1.col());
  }
  const std::string& cell(int row, int col) const { return screen.Grid1.text(row, col); }

  test::VariationJob job;
  test::RecordingDesktop desktop;
  hend::fHHsei screen{job.context(), desktop};
  hend::fHHsei again{job.context(), desktop};
};

TEST_F(VariationScreen, EveryControlIsKnownByItsName) {
  for (const char* name :
       {"SSTab1", "cmbJIgyoBango1", "cmbRosenBango1", "CmdHendDataOpen", "cmbJIgyoBango2", "cmbRosenBango2",
        "CmdHendReOpen", "txtKijunbi", "CmdSettei", "lblJigyobango", "lblRosenbango", "Grid1", "cmdMap",
        "m0item", "m1item(0)", "m1item(1)", "m1item(2)"})
    EXPECT_NE(screen.find(name), nullptr) << name;
}

TEST_F(VariationScreen, LoadsWithTheProjectsOfCategoryZero) {
  EXPECT_EQ(screen.caption(), "変動補正計算");
  EXPECT_EQ(screen.cmbJIgyoBango1.items(), Lines{"1001"});
  EXPECT_EQ(screen.cmbJIgyoBango2.count(), 0);
  EXPECT_EQ(screen.Grid1.rows(), 2);
  EXPECT_EQ(screen.Grid1.fixedCols(), 1);
  EXPECT_EQ(cell(0, 0), "水準点");
  EXPECT_EQ(cell(0, 14), "DataEndMark");
  EXPECT_EQ(screen.Grid1.colWidth(12), 0);
  EXPECT_EQ(screen.Grid1.colWidth(13), 1120);
  screen.cmbJIgyoBango1.choose(0);
  EXPECT_EQ(screen.cmbRosenBango1.items(), Lines{"01E00101"});
}

TEST_F(VariationScreen, AMissingResultTableIsReportedOnLoading) {
  job.sql("DROP TABLE KansokuSeikaDataHend");
  again.load();
  ASSERT_EQ(desktop.messages.size(), 1u);
  EXPECT_EQ(desktop.messages[0].title, "Form_Load");
  EXPECT_EQ(again.cmbJIgyoBango1.count(), 1);
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

TEST_F(VariationScreen, OpeningLoadsAndCalculates) {
  openRoute();
  EXPECT_EQ(screen.lblJigyobango.text(), "1001");
  EXPECT_EQ(screen.lblRosenbango.text(), "01E00101");
  EXPECT_EQ(screen.SSTab1.current(), 0);
  EXPECT_EQ(cell(2, hend::colResult), "1.5010");
  EXPECT_EQ(cell(5, hend::colResult), "1.9991");
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

// 2022/05/21 is 10 days behind the observation: 1.00E-05 × 10 = 0.0001.
TEST_F(VariationScreen, SettingAnotherDateCalculatesAgain) {
  openRoute();
  screen.txtKijunbi.edit("2022/05/21");
  EXPECT_EQ(cell(2, hend::colResult), "1.5010");
  desktop.pointers.clear();
  screen.CmdSettei.press();
  EXPECT_EQ(desktop.pointers, (std::vector<ui::Pointer>{ui::Pointer::Hourglass, ui::Pointer::Default}));
  EXPECT_EQ(cell(2, hend::colResult), "1.5001");
  EXPECT_EQ(cell(1, hend::colDaysReference), "10");
}

/// The heights in the table and the date they are carried to go back and forth together.
TEST_F(VariationScreen, TakingTheSettingOfADateBackBringsTheDateBeforeBack) {
  openRoute("2022/08/19");
  const std::string result = cell(2, hend::colResult);
  screen.txtKijunbi.edit("2026/04/01");
  screen.CmdSettei.press();
  const std::string later = cell(2, hend::colResult);
  ASSERT_NE(later, result);

  EXPECT_EQ(screen.history().undo(), "計算");
  EXPECT_EQ(screen.txtKijunbi.text(), "2022/08/19");
  EXPECT_EQ(cell(2, hend::colResult), result);

  EXPECT_EQ(screen.history().redo(), "計算");
  EXPECT_EQ(screen.txtKijunbi.text(), "2026/04/01");
  EXPECT_EQ(cell(2, hend::colResult), later);
}

/// What is typed into the box without a calculation belongs to no act on the table.
TEST_F(VariationScreen, ADateThatWaitsForItsSettingStaysWhereAnEntryIsTakenBack) {
  openRoute();
  type(screen, 2, hend::colRemark, U"x");
  screen.txtKijunbi.edit("2026/04/01");
  EXPECT_EQ(screen.history().undo(), "入力");
  EXPECT_EQ(cell(2, hend::colRemark), "");
  EXPECT_EQ(screen.txtKijunbi.text(), "2026/04/01");
}

TEST_F(VariationScreen, ADateThatIsNoneEndsTheActWithAnError) {
  openRoute();
  screen.txtKijunbi.edit("2022/02/30");
  EXPECT_THROW(screen.CmdSettei.press(), text::RuntimeError);
  EXPECT_THROW(screen.openButton.press(), text::RuntimeError);
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

TEST_F(VariationScreen, ADatabaseErrorOnOpeningPassesOutOfTheAct) {
  screen.cmbJIgyoBango1.choose(0);
  job.sql("DROP TABLE KansokuSeikaData");
  EXPECT_THROW(screen.openButton.press(), db::Error);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(VariationScreen, ADatabaseErrorOnReopeningIsReportedAndTheRestGoesOn) {
  job.sql("DROP TABLE KansokuSeikaDataHend");
  screen.reopenButton.press();
  ASSERT_EQ(desktop.messages.size(), 1u);
  EXPECT_EQ(desktop.messages[0].title, "FcHendDBReOpen");
  EXPECT_EQ(screen.Grid1.rows(), 2);
}

TEST_F(VariationScreen, TheDateBoxSaysWhenItsTextIsNoDate) {
  EXPECT_TRUE(screen.txtKijunbi.looksValid());
  for (const char* date : {"", " ", "2022/08/19", "2022/8/9", "2024/02/29"}) {
    screen.txtKijunbi.edit(date);
    EXPECT_TRUE(screen.txtKijunbi.looksValid()) << date;
    EXPECT_EQ(screen.txtKijunbi.complaint(), "");
  }
  for (const char* wrong : {"2022/0", "2023/02/29", "R4.8.19", "2022/08/199"}) {
    screen.txtKijunbi.edit(wrong);
    EXPECT_FALSE(screen.txtKijunbi.looksValid()) << wrong;
    EXPECT_EQ(screen.txtKijunbi.complaint(), "日付ではありません");
  }
}

TEST_F(VariationScreen, ACorrectionIsTypedAndTakenWithEnter) {
  openRoute();
  type(screen, 2, hend::colCorrection, U"\b5");
  EXPECT_EQ(cell(2, hend::colCorrection), "0.0015");
  EXPECT_EQ(cell(2, hend::colResult), "1.5010");
  type(screen, 2, hend::colCorrection, U"\r");
  EXPECT_EQ(cell(2, hend::colResult), "1.5015");
  EXPECT_EQ(cell(5, hend::colResult), "1.9991");
}

TEST_F(VariationScreen, TheHourglassStandsWhileEnterCalculates) {
  openRoute();
  desktop.pointers.clear();
  screen.Grid1.pressKey(U'5');
  EXPECT_TRUE(desktop.pointers.empty()) << "a digit calculates nothing";
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(desktop.pointers, (std::vector{ui::Pointer::Hourglass, ui::Pointer::Default}));
}

// E1 and E2 have sections (rows 2 and 4), as has the new point E3 (row 6); E4 ends the route.
TEST_F(VariationScreen, EnterLeadsFromCorrectionToCorrection) {
  openRoute();
  EXPECT_EQ(current(), "2,9") << "the first correction, after loading";
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(current(), "4,9");
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(current(), "6,9");
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(current(), "6,9") << "the last one stays";
  EXPECT_EQ(cell(1, hend::colResult) + cell(3, hend::colResult) + cell(7, hend::colResult), "");
}

// The walk ends on the route end, where Enter would write a result of 0.0000.
TEST_F(VariationScreen, CalculatingAgainLeavesTheOperatorWhereHeWas) {
  openRoute();
  screen.Grid1.click(4, hend::colCorrection);
  screen.CmdSettei.press();
  EXPECT_EQ(current(), "4,9");
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(cell(7, hend::colResult), "");
}

// Clicked, the cell of the new point's own row takes what is typed: 2.0000 + 0.0005 = 2.0005.
TEST_F(VariationScreen, TheLineOfANewPointTakesACorrection) {
  openRoute();
  type(screen, 5, hend::colCorrection, U"\b\b\b\b\b\b\b0.0005\r");
  EXPECT_EQ(cell(5, hend::colResult), "2.0005");
  EXPECT_EQ(current(), "6,9");
  screen.saveItem.press();
  EXPECT_EQ(job.saved({"標石番号", "新設点用変動補正量", "新設点用変動補正結果"})[2], "E3|0.0005|2.0005");
}

TEST_F(VariationScreen, ReopeningLeadsToTheFirstDate) {
  openRoute();
  saveAndReopen();
  EXPECT_EQ(again.Grid1.row(), 1);
  EXPECT_EQ(again.Grid1.col(), hend::colNewDate);
}

TEST_F(VariationScreen, RemarksAreTypedInEveryRow) {
  openRoute();
  type(screen, 1, hend::colRemark, U"起点");
  type(screen, 2, hend::colRemark, U"橋x\b\r");
  EXPECT_EQ(cell(1, hend::colRemark), "起点");
  EXPECT_EQ(cell(2, hend::colRemark), "橋");
}

TEST_F(VariationScreen, ObservationsAreFixedInANewCalculationAndOpenInASavedOne) {
  openRoute();
  for (const int col : {1, 2, 3, 4, 5, 6, 7, 8, 10, 13}) {
    const std::string before = cell(2, col);
    type(screen, 2, col, U"9");
    EXPECT_EQ(cell(2, col), before) << col;
    EXPECT_EQ(screen.Grid1.cellUse(2, col), ui::CellUse::Shown) << col;
  }
  saveAndReopen();
  for (const int col : {1, 2, 3, 4, 5, 6, 7, 8, 10}) {
    const std::string before = again.Grid1.text(2, col);
    type(again, 2, col, U"9\r");
    EXPECT_EQ(again.Grid1.text(2, col), before + "9") << col;
    EXPECT_EQ(again.Grid1.cellUse(2, col), ui::CellUse::Number) << col;
  }
  type(again, 2, 13, U"9");
  EXPECT_EQ(again.Grid1.text(2, 13), "");
}

// The new difference typed as 1.5100: 1.5100 − 1.4900 = 0.0200, 2.00E-05 × 100 = 0.0020.
TEST_F(VariationScreen, ATypedObservationCountsInTheNextCalculation) {
  openRoute();
  saveAndReopen();
  type(again, 2, hend::colNewHeight, U"\b\b\b100");
  EXPECT_EQ(again.Grid1.text(2, hend::colNewHeight), "1.5100");
  again.CmdSettei.press();
  EXPECT_EQ(again.Grid1.text(2, hend::colCorrection), "0.0020");
  EXPECT_EQ(again.Grid1.text(2, hend::colResult), "1.5120");
}

TEST_F(VariationScreen, ReopeningBringsTheDateAndTheGridBack) {
  openRoute();
  type(screen, 3, hend::colRemark, U"起点");
  saveAndReopen();
  EXPECT_EQ(again.txtKijunbi.text(), "2022/08/19");
  EXPECT_EQ(again.lblRosenbango.text(), "01E00101");
  ASSERT_EQ(again.Grid1.rows(), screen.Grid1.rows());
  for (int row = 0; row < again.Grid1.rows(); ++row)
    for (int col = 0; col < hend::columnCount; ++col)
      EXPECT_EQ(again.Grid1.text(row, col), cell(row, col)) << row << "," << col;
}

TEST_F(VariationScreen, SavingTellsTheOperator) {
  openRoute();
  screen.saveItem.press();
  ASSERT_EQ(desktop.messages.size(), 1u);
  EXPECT_EQ(desktop.messages[0], (ui::Message{"", "保存しました", ui::Icon::None}));
  EXPECT_EQ(job.saved({"標石番号"}), (Lines{"E1", "E2", "E3", "E4"}));
}

TEST_F(VariationScreen, AFailedSaveIsReportedAndNothingElseIsSaid) {
  openRoute();
  job.sql("DROP TABLE KansokuSeikaDataHend");
  screen.saveItem.press();
  ASSERT_EQ(desktop.messages.size(), 1u);
  EXPECT_EQ(desktop.messages[0].title, "FcHendDBSave");
}

TEST_F(VariationScreen, ClearingEndsTypingAndSaving) {
  openRoute();
  screen.clearItem.press();
  EXPECT_EQ(screen.Grid1.rows(), 2);
  EXPECT_EQ(screen.lblJigyobango.text(), "");
  EXPECT_EQ(screen.lblRosenbango.text(), "");
  EXPECT_EQ(screen.txtKijunbi.text(), "2022/08/19");
  type(screen, 1, hend::colRemark, U"x");
  type(screen, 1, hend::colCorrection, U"1\r");
  EXPECT_EQ(cell(1, hend::colRemark), "");
  EXPECT_EQ(cell(1, hend::colCorrection), "");
  EXPECT_EQ(cell(1, hend::colResult), "");
  screen.saveItem.press();
  EXPECT_TRUE(desktop.messages.empty());
  screen.CmdSettei.press();
  EXPECT_EQ(screen.Grid1.rows(), 2);
}

TEST_F(VariationScreen, BeforeAnythingIsOpenNothingIsTypedOrSaved) {
  type(screen, 1, hend::colRemark, U"x");
  EXPECT_EQ(cell(1, hend::colRemark), "");
  screen.saveItem.press();
  EXPECT_TRUE(desktop.messages.empty());
}

// The tool is not installed in this job's data folder: the hint, and then nothing to file.
TEST_F(VariationScreen, ThePictureButtonCallsTheTool) {
  screen.cmdMap.press();
  ASSERT_EQ(desktop.messages.size(), 2u);
  EXPECT_EQ(desktop.messages[0].text, "オプション「画像貼付ツール」をインストールしてください");
  EXPECT_EQ(desktop.messages[1].title, "FcPicturePaste");
}

// 16500 x 9000 at first; 300 stay free beside the table, 1650 around it.
TEST_F(VariationScreen, TheTableTakesAllTheRoomOfTheWindow) {
  EXPECT_FLOAT_EQ(screen.SSTab1.box().width, 16500);
  EXPECT_FLOAT_EQ(screen.Grid1.box().height, 7350);
  screen.resize(33000, 18000);
  EXPECT_FLOAT_EQ(screen.SSTab1.box().width, 33000);
  EXPECT_FLOAT_EQ(screen.SSTab1.box().height, 18000);
  EXPECT_FLOAT_EQ(screen.Grid1.box().width, 32700);
  EXPECT_FLOAT_EQ(screen.Grid1.box().height, 16350);
}

TEST_F(VariationScreen, ExitUnloadsIt) {
  bool gone = false;
  screen.whenUnloaded([&](ui::Screen&) { gone = true; });
  screen.exitItem.press();
  EXPECT_TRUE(gone);
}

}  // namespace
