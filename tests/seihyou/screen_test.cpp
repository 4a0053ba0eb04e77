#include "seihyou/screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "seihyou/columns.h"
#include "support/recording_desktop.h"
#include "support/small_job.h"

namespace {

class OrthometricScreen : public testing::Test {
 protected:
  OrthometricScreen() {
    job.observed(1, "01A00101", "A", "100", "1.2345");
    job.observed(2, "01A00101", "B", "NULL", "-0.5");
    job.observed(3, "01A00101", "C", "NULL", "NULL", "-1");
    screen.load();
  }

  void openRoute() {
    screen.LstDataKubun.choose(0);
    screen.cmbJIgyoBango1.choose(0);
    screen.cmbRosenBango1.choose(0);
    screen.openButton.press();
  }

  void type(int row, int col, const char32_t* keys) {
    screen.Grid1.click(row, col);
    for (; *keys != 0; ++keys) screen.Grid1.pressKey(*keys);
  }

  const std::string& cell(int row, int col) const { return screen.Grid1.text(row, col); }

  test::SmallJob job;
  test::RecordingDesktop desktop;
  seihyou::fSHsei screen{job.context(), desktop};
};

TEST_F(OrthometricScreen, OpensOnTheSelectionWithItsCategories) {
  EXPECT_EQ(screen.caption(), "正標高補正");
  EXPECT_EQ(screen.SSTab1.current(), 1);
  EXPECT_EQ(screen.LstDataKubun.count(), 5);
  EXPECT_EQ(screen.LstDataKubun1.items()[3], "3: 片道 検測");
  EXPECT_EQ(cell(0, 2), "正標高補正数");
  EXPECT_EQ(screen.Grid1.rows(), 2);
}

TEST_F(OrthometricScreen, EveryControlIsKnownByItsName) {
  for (const char* name : {"SSTab1", "LstDataKubun", "cmbJIgyoBango1", "cmbRosenBango1", "CmdDataOpen",
                           "LstDataKubun1", "cmbJIgyoBango2", "cmbRosenBango2", "CmdReOpen", "lblJigyobango",
                           "lblRosenbango", "lblDatakubun", "Grid1", "mitem(0)", "mitem(1)", "mitem(2)"})
    EXPECT_NE(screen.find(name), nullptr) << name;
}

TEST_F(OrthometricScreen, ChoosingACategoryFillsTheProjectsAndEmptiesTheRoutes) {
  screen.LstDataKubun.choose(0);
  EXPECT_EQ(screen.cmbJIgyoBango1.items(), std::vector<std::string>{"1001"});
  screen.cmbJIgyoBango1.choose(0);
  EXPECT_EQ(screen.cmbRosenBango1.items(), std::vector<std::string>{"01A00101"});
  screen.LstDataKubun.choose(4);
  EXPECT_EQ(screen.cmbJIgyoBango1.count(), 0);
  EXPECT_EQ(screen.cmbRosenBango1.count(), 0);
}

TEST_F(OrthometricScreen, OpeningShowsTheKeysAndTheGrid) {
  openRoute();
  EXPECT_EQ(screen.lblJigyobango.text(), "1001");
  EXPECT_EQ(screen.lblRosenbango.text(), "01A00101");
  EXPECT_EQ(screen.lblDatakubun.text(), "0:1往復 本作業、検測、取付");
  EXPECT_EQ(screen.SSTab1.current(), 0);
  EXPECT_EQ(screen.Grid1.rows(), 6);
  EXPECT_EQ(desktop.pointers.front(), ui::Pointer::Hourglass);
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

TEST_F(OrthometricScreen, TheHourglassStandsWhileEnterCalculates) {
  openRoute();
  desktop.pointers.clear();
  screen.Grid1.pressKey(U'5');
  EXPECT_TRUE(desktop.pointers.empty()) << "a digit calculates nothing";
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(desktop.pointers, (std::vector{ui::Pointer::Hourglass, ui::Pointer::Default}));
}

TEST_F(OrthometricScreen, OpeningWithoutDataShowsOneEmptyRow) {
  screen.LstDataKubun.choose(3);
  screen.openButton.press();
  EXPECT_EQ(screen.Grid1.rows(), 2);
  EXPECT_EQ(cell(1, 0), "");
  EXPECT_TRUE(desktop.messages.empty());
}

// The start height stands above, takes keys, and is no place that keys lead to.
TEST_F(OrthometricScreen, OpeningLeadsToTheFirstCorrection) {
  openRoute();
  EXPECT_EQ(screen.Grid1.row(), 2);
  EXPECT_EQ(screen.Grid1.col(), 2);
  EXPECT_EQ(screen.Grid1.cellUse(1, 3), ui::CellUse::Number);
  EXPECT_FALSE(screen.Grid1.isEntry(1, 3));
  EXPECT_TRUE(screen.Grid1.isEntry(2, 2));
  EXPECT_TRUE(screen.Grid1.isEntry(1, 4)) << "a remark";
  screen.Grid1.pressKey(U'5');
  EXPECT_EQ(cell(2, 2), "5");
  EXPECT_EQ(cell(1, 3), "100.0000");
}

// A route of one bench mark has no correction: the first remark is where typing begins.
TEST_F(OrthometricScreen, WithoutCorrectionsOpeningLeadsToTheFirstRemark) {
  job.sql("DELETE FROM KansokuSeikaData WHERE SaveOrder > 1");
  openRoute();
  EXPECT_EQ(screen.Grid1.row(), 1);
  EXPECT_EQ(screen.Grid1.col(), 4);
}

// 100 + (1.2345 + 0.0012) = 101.2357; + (−0.5 − 0.0003) = 100.7354
TEST_F(OrthometricScreen, EnterOnACorrectionRecalculatesAndGoesOn) {
  openRoute();
  type(2, 2, U"12\r");
  EXPECT_EQ(cell(3, 3), "101.2357");
  EXPECT_EQ(screen.Grid1.row(), 4);
  EXPECT_EQ(screen.Grid1.col(), 2);
  for (const char32_t key : std::u32string(U"-3\r")) screen.Grid1.pressKey(key);
  EXPECT_EQ(cell(5, 3), "100.7354");
  EXPECT_EQ(screen.Grid1.row(), 4) << "the last correction keeps the cursor";
}

TEST_F(OrthometricScreen, EnterOnTheStartHeightRecalculates) {
  openRoute();
  type(1, 3,
       U"\b\b\b\b\b\b\b\b"
       U"200\r");
  EXPECT_EQ(cell(1, 3), "200");
  EXPECT_EQ(cell(3, 3), "201.2345");
  EXPECT_EQ(screen.Grid1.row(), 1);
}

TEST_F(OrthometricScreen, RemarksTakeAnyTextAndOtherCellsNone) {
  openRoute();
  type(1, 4, U"橋の北\b");
  EXPECT_EQ(cell(1, 4), "橋の");
  type(1, 0, U"X");
  type(1, 1, U"1");
  type(3, 3, U"1");
  type(1, 2, U"1");
  EXPECT_EQ(cell(1, 0), "A");
  EXPECT_EQ(cell(1, 1), "100.0000");
  EXPECT_EQ(cell(3, 3), "101.2345");
  EXPECT_EQ(cell(1, 2), "");
  EXPECT_EQ(screen.Grid1.cellUse(1, 4), ui::CellUse::Text);
  EXPECT_EQ(screen.Grid1.cellUse(2, 2), ui::CellUse::Number);
  EXPECT_EQ(screen.Grid1.cellUse(1, 3), ui::CellUse::Number);
  EXPECT_EQ(screen.Grid1.cellUse(3, 3), ui::CellUse::Shown);
}

TEST_F(OrthometricScreen, SavesClearsAndReopensTheSameGrid) {
  openRoute();
  type(2, 2, U"12\r");
  type(2, 4, U"橋");
  std::vector<std::string> before;
  for (int row = 0; row < 6; ++row)
    for (int col = 0; col < 7; ++col) before.push_back(cell(row, col));
  screen.saveItem.press();
  ASSERT_EQ(desktop.messages, (std::vector<ui::Message>{{"", "保存しました", ui::Icon::None}}));
  screen.clearItem.press();
  EXPECT_EQ(screen.Grid1.rows(), 2);
  EXPECT_EQ(screen.lblRosenbango.text(), "");
  screen.LstDataKubun1.choose(0);
  screen.cmbJIgyoBango2.choose(0);
  screen.cmbRosenBango2.choose(0);
  screen.reopenButton.press();
  std::vector<std::string> after;
  for (int row = 0; row < 6; ++row)
    for (int col = 0; col < 7; ++col) after.push_back(cell(row, col));
  EXPECT_EQ(screen.Grid1.row(), 2);
  EXPECT_EQ(screen.Grid1.col(), 2) << "reopening leads there too";
  // The saved rows match their observations, of which only A has a height; the others had none to be shown
  // either.
  EXPECT_EQ(after, before);
}

TEST_F(OrthometricScreen, SavingBeforeAnythingIsOpenDoesNothing) {
  screen.saveItem.press();
  EXPECT_TRUE(desktop.messages.empty());
  openRoute();
  screen.clearItem.press();
  screen.saveItem.press();
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_TRUE(job.records("SELECT * FROM KansokuSeikaDataSeihyou", {"水準点番号"}).empty());
}

TEST_F(OrthometricScreen, AFailedSaveShowsTheErrorAndNothingElse) {
  openRoute();
  job.sql("DROP TABLE KansokuSeikaDataSeihyou");
  screen.saveItem.press();
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcDbSave");
  EXPECT_EQ(cell(3, 3), "101.2345") << "the grid keeps what the operator has";
}

TEST_F(OrthometricScreen, ErrorsInEventHandlersAreReportedUnderControlAndEvent) {
  job.sql("DROP TABLE KansokuSeikaData");
  screen.LstDataKubun.choose(0);
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "LstDataKubun_Click");
}

// 17940 / 8970 = 2, 9112.5 / 6075 = 1.5: widths double, heights grow by half.
TEST_F(OrthometricScreen, TabAndGridGrowWithTheWindow) {
  EXPECT_FLOAT_EQ(screen.SSTab1.box().width, 8655);
  EXPECT_FLOAT_EQ(screen.Grid1.box().height, 3700);
  screen.resize(17940, 9112.5);
  EXPECT_FLOAT_EQ(screen.SSTab1.box().width, 17310);
  EXPECT_FLOAT_EQ(screen.SSTab1.box().height, 7942.5);
  EXPECT_FLOAT_EQ(screen.Grid1.box().width, 16800);
  EXPECT_FLOAT_EQ(screen.Grid1.box().height, 5550);
}

TEST_F(OrthometricScreen, ExitUnloadsOnce) {
  int unloaded = 0;
  screen.whenUnloaded([&](ui::Screen&) { ++unloaded; });
  screen.exitItem.press();
  screen.unload();
  EXPECT_EQ(unloaded, 1);
  EXPECT_FALSE(screen.loaded());
}

}  // namespace
