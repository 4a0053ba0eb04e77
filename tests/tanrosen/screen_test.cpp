#include "tanrosen/screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/recording_desktop.h"
#include "tanrosen/columns.h"
#include "tanrosen/single_route_job.h"

namespace {

using Texts = std::vector<std::string>;

// A 100 known, B, C known at 100.7369: observed 100 + 1.2345 − 0.5 = 100.7345, closure error +24 (0.1 mm)
// over 1 + 2 km: B 24 × 1/3 = 8, C 24.
class SingleRouteScreen : public testing::Test {
 protected:
  SingleRouteScreen() {
    job.observed(1, "R1", "A", "100", "1.2345", "", "'0'", "1");
    job.observed(2, "R1", "B", "NULL", "-0.5", "", "'0'", "2");
    job.observed(3, "R1", "C", "100.7369", "NULL", "-1");
    screen.load();
  }

  void openRoute() {
    screen.LstDataKubun.choose(0);
    screen.cmbJIgyoBango1.choose(0);
    screen.cmbRosenBango1.choose(0);
    screen.openButton.press();
  }

  void reopenRoute() {
    screen.LstDataKubun1.choose(0);
    screen.cmbJIgyoBango2.choose(0);
    screen.cmbRosenBango2.choose(0);
    screen.reopenButton.press();
  }

  void type(int row, int col, const char32_t* keys) {
    screen.Grid1.click(row, col);
    for (; *keys != 0; ++keys) screen.Grid1.pressKey(*keys);
  }

  const std::string& cell(int row, int col) const { return screen.Grid1.text(row, col); }

  Texts cells() const {
    Texts texts;
    for (int row = 0; row < screen.Grid1.rows(); ++row)
      for (int col = 0; col < screen.Grid1.cols(); ++col) texts.push_back(cell(row, col));
    return texts;
  }

  test::SingleRouteJob job;
  test::RecordingDesktop desktop;
  tanrosen::fTHsei screen{job.context(), desktop};
};

TEST_F(SingleRouteScreen, OpensOnTheSelectionWithItsCategories) {
  EXPECT_EQ(screen.name(), "fTHsei");
  EXPECT_EQ(screen.caption(), "単路線閉合差補正");
  EXPECT_EQ(screen.SSTab1.current(), 1);
  EXPECT_EQ(screen.LstDataKubun.count(), 5);
  EXPECT_EQ(screen.LstDataKubun1.count(), 5);
  EXPECT_EQ(screen.Grid1.rows(), 2);
  const Texts all = cells();
  EXPECT_EQ(Texts(all.begin(), all.begin() + 8),
            (Texts{"水準点", "距離", "標高", "補正数", "補正結果", "備考", "", ""}));
  EXPECT_EQ(screen.Grid1.colWidth(5), 1540);
  EXPECT_EQ(screen.Grid1.colWidth(6), 0);
  EXPECT_EQ(screen.Grid1.colWidth(7), 0);
}

TEST_F(SingleRouteScreen, EveryControlIsKnownByItsName) {
  for (const char* name :
       {"SSTab1",        "LstDataKubun",   "cmbJIgyoBango1", "cmbRosenBango1", "CmdDataOpen",
        "LstDataKubun1", "cmbJIgyoBango2", "cmbRosenBango2", "CmdReOpen",      "lblJigyobango",
        "lblRosenbango", "lblDatakubun",   "Grid1",          "mitem(0)",       "mitem(1)",
        "mitem(2)",      "lstSuijyun",     "lstKiti",        "Command1",       "Command2",
        "cmdCalc"})
    EXPECT_NE(screen.find(name), nullptr) << name;
  EXPECT_EQ(screen.Command1.text(), "追加");
  EXPECT_EQ(screen.Command2.text(), "削除");
  EXPECT_EQ(screen.cmdCalc.text(), "計算");
  EXPECT_EQ(screen.lblSuijyun.text(), "全水準点");
  EXPECT_EQ(screen.lblKiti.text(), "既知点");
}

TEST_F(SingleRouteScreen, LoadsCalculatesSavesAndReopens) {
  openRoute();
  EXPECT_EQ(screen.lblRosenbango.text(), "R1");
  EXPECT_EQ(screen.SSTab1.current(), 0);
  EXPECT_EQ(screen.lstKiti.items(), (Texts{"A", "C"}));
  screen.cmdCalc.press();
  EXPECT_EQ(cell(1, 3), "0");
  EXPECT_EQ(cell(3, 3), "8");
  EXPECT_EQ(cell(3, 4), "101.2353");
  EXPECT_EQ(cell(5, 3), "24");
  EXPECT_EQ(cell(5, 4), "100.7369");
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
  type(3, 5, U"橋の北");
  type(4, 5, U"水管橋");
  const Texts before = cells();
  screen.saveItem.press();
  ASSERT_EQ(desktop.takeMessages(), (std::vector<ui::Message>{{"", "保存しました", ui::Icon::None}}));
  screen.clearItem.press();
  EXPECT_EQ(screen.Grid1.rows(), 2);
  EXPECT_EQ(screen.lblDatakubun.text(), "");
  EXPECT_EQ(screen.lstSuijyun.count() + screen.lstKiti.count(), 0);
  reopenRoute();
  Texts padded = before;  // the route number is stored with its blanks
  for (const std::size_t row : {1U, 3U, 5U}) padded[row * 8 + 7] = "R1      ";
  EXPECT_EQ(cells(), padded);
  EXPECT_EQ(screen.lstKiti.items(), (Texts{"A", "C"}));
  screen.cmdCalc.press();
  EXPECT_EQ(cells(), padded) << "a second calculation changes nothing";
}

/// Counts the notices of a grid that are about more than one cell.
struct Notices : ui::GridObserver {
  void changed(ui::Control&) override { ++count; }
  void cellChanged(int, int) override {}
  int count = 0;
};

TEST_F(SingleRouteScreen, TheGridTellsWhenTheListChangesWhatCanBeTyped) {
  openRoute();
  EXPECT_EQ(screen.Grid1.row(), 1);
  EXPECT_EQ(screen.Grid1.col(), 3) << "the first correction";
  Notices notices;
  screen.Grid1.observeGrid(&notices);
  screen.Command1.press();
  EXPECT_EQ(notices.count, 0) << "nothing chosen";
  screen.lstSuijyun.choose(1);
  screen.Command1.press();
  EXPECT_EQ(notices.count, 1);
  screen.lstKiti.choose(0);
  screen.Command2.press();
  EXPECT_EQ(notices.count, 2);
  EXPECT_EQ(screen.Grid1.cellUse(1, 4), ui::CellUse::Shown) << "A is no known point any more";
  screen.Grid1.observeGrid(nullptr);
}

TEST_F(SingleRouteScreen, KnownPointsAreAddedAtTheEndAndRemoved) {
  openRoute();
  screen.Command1.press();
  screen.Command2.press();
  EXPECT_EQ(screen.lstKiti.items(), (Texts{"A", "C"})) << "nothing chosen";
  screen.lstSuijyun.choose(1);
  screen.Command1.press();
  screen.Command1.press();
  EXPECT_EQ(screen.lstKiti.items(), (Texts{"A", "C", "B", "B"}));
  screen.lstKiti.choose(2);
  screen.Command2.press();
  screen.Command2.press();
  EXPECT_EQ(screen.lstKiti.items(), (Texts{"A", "C", "B"})) << "one press removes the chosen one";
}

// A taken out: C is the first known point and stands inside the route.
TEST_F(SingleRouteScreen, AnErrorInTheCalculationIsReportedUnderItsName) {
  openRoute();
  screen.lstKiti.choose(0);
  screen.Command2.press();
  screen.cmdCalc.press();
  EXPECT_EQ(desktop.takeMessages(),
            (std::vector<ui::Message>{
                {"FcCalcTanrosen", "インデックスが有効範囲にありません。", ui::Icon::Critical}}));
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
  screen.saveItem.press();
  EXPECT_EQ(desktop.messages.size(), 1U) << "and the program goes on";
}

TEST_F(SingleRouteScreen, TheHourglassStandsWhileEnterCalculates) {
  openRoute();
  screen.Grid1.click(3, 3);
  desktop.pointers.clear();
  screen.Grid1.pressKey(U'5');
  EXPECT_TRUE(desktop.pointers.empty()) << "a digit calculates nothing";
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(desktop.pointers, (std::vector{ui::Pointer::Hourglass, ui::Pointer::Default}));
}

// 101.2345 − 0.0013 = 101.2332
TEST_F(SingleRouteScreen, EnterOnACorrectionTakesItIntoTheHeightAndGoesOn) {
  openRoute();
  type(3, 3, U"-13\r");
  EXPECT_EQ(cell(3, 3), "-13");
  EXPECT_EQ(cell(3, 4), "101.2332");
  EXPECT_EQ(screen.Grid1.row(), 5);
  EXPECT_EQ(screen.Grid1.col(), 3);
  screen.Grid1.pressKey(ui::key::enter);
  EXPECT_EQ(cell(5, 4), "100.7369") << "a known point without a correction keeps its height";
  EXPECT_EQ(screen.Grid1.row(), 5);
  type(5, 3, U"1\r");
  EXPECT_EQ(cell(5, 4), "100.7346");
}

TEST_F(SingleRouteScreen, KnownHeightsAreTypedOnKnownPointsOnly) {
  openRoute();
  type(1, 4, U"\b\b\b\b\b\b\b\b99.5");
  EXPECT_EQ(cell(1, 4), "99.5");
  type(3, 4, U"1");
  EXPECT_EQ(cell(3, 4), "");
  EXPECT_EQ(screen.Grid1.cellUse(3, 4), ui::CellUse::Shown);
  screen.lstSuijyun.choose(1);
  screen.Command1.press();
  EXPECT_EQ(screen.Grid1.cellUse(3, 4), ui::CellUse::Number) << "B has become known";
  type(3, 4, U"101.3\r");
  EXPECT_EQ(cell(3, 4), "101.3");
}

TEST_F(SingleRouteScreen, OtherCellsTakeNoKeys) {
  openRoute();
  const Texts before = cells();
  for (const int col : {0, 1, 2}) type(1, col, U"1\r");
  for (const int col : {0, 1, 2, 3, 4}) type(2, col, U"1\r");
  type(6, 5, U"lost");
  EXPECT_EQ(cells(), before);
  EXPECT_EQ(screen.Grid1.cellUse(2, 5), ui::CellUse::Text);
  EXPECT_EQ(screen.Grid1.cellUse(1, 3), ui::CellUse::Number);
  EXPECT_EQ(screen.Grid1.cellUse(1, 2), ui::CellUse::Shown);
}

TEST_F(SingleRouteScreen, SavingBeforeAnythingIsOpenDoesNothing) {
  screen.saveItem.press();
  screen.cmdCalc.press();
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_TRUE(job.saved().empty());
}

// 17940 / 8970 = 2, 9112.5 / 6075 = 1.5: widths double, heights grow by half. The lists begin 525 + 3442.5 +
// 100 twips below the upper edge of the page and reach down to 600 above its lower one: 7942.5 − 4067.5 − 600
// = 3275.
TEST_F(SingleRouteScreen, ListsReachFromBelowTheGridToTheEndOfThePage) {
  EXPECT_FLOAT_EQ(screen.Grid1.box().width, 8295);
  EXPECT_FLOAT_EQ(screen.Grid1.box().height, 2295);
  screen.resize(17940, 9112.5);
  EXPECT_FLOAT_EQ(screen.SSTab1.box().width, 17310);
  EXPECT_FLOAT_EQ(screen.SSTab1.box().height, 7942.5);
  EXPECT_FLOAT_EQ(screen.Grid1.box().width, 16590);
  EXPECT_FLOAT_EQ(screen.Grid1.box().height, 3442.5);
  for (const ui::ListBox* list : {&screen.lstSuijyun, &screen.lstKiti}) {
    EXPECT_FLOAT_EQ(list->box().width, 1650) << list->name();
    EXPECT_FLOAT_EQ(list->box().height, 3275) << list->name();
  }
}

}  // namespace
