#include "daen/screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "daen/columns.h"
#include "daen/daen_job.h"
#include "daen/route_maker.h"
#include "platform/files.h"
#include "support/recording_desktop.h"
#include "support/tool.h"

namespace {

using Lines = std::vector<std::string>;

class EllipsoidalScreen : public testing::Test {
 protected:
  EllipsoidalScreen() {
    job.observed(1, "01A00101", "A", "100", "0", "", "'0'", "1");
    job.observed(2, "01A00101", "B", "NULL", "0", "", "'0'", "1");
    job.observed(3, "01A00101", "C", "NULL", "0", "", "'0'", "2");
    job.observed(4, "01A00101", "D", "NULL", "NULL", "-1");
    job.section("01A00102", "0", 1, "X", "A", "1.5");
    screen.load();
  }

  void openRoute() {
    screen.LstDataKubun.choose(0);
    screen.cmbJIgyoBango1.choose(0);
    screen.cmbRosenBango1.choose(0);
    screen.openButton.press();
  }

  /// From 45°30′ to 44°30′ at 100 m: 9.2 mm.
  void calculate(int start, int end) {
    screen.LstHyousekiNo1.choose(start);
    screen.LstHyousekiNo2.choose(end);
    screen.txtStartIdo.edit("45");
    screen.txtStartFun.edit("30");
    screen.txtEndIdo.edit("44");
    screen.txtEndFun.edit("30");
    screen.CmdDaenCal.press();
  }

  std::string result(int row) const {
    return test::DaenGrids::cells(screen.Grid1, row, daen::colCorrection, daen::colResult);
  }
  std::string section(int row) const {
    return test::DaenGrids::cells(screen.Grid2, row, daen::secStartBenchMark, daen::secEndBenchMark) + "|" +
           screen.Grid2.text(row, daen::secAccumulated);
  }
  std::size_t count(const std::string& table) const {
    return job.records("SELECT * FROM " + table, {"JobId"}).size();
  }

  test::DaenJob job;
  test::RecordingDesktop desktop;
  daen::fDHsei screen{job.context(), desktop};
};

TEST_F(EllipsoidalScreen, EveryControlIsKnownByItsName) {
  for (const char* name : {"SSTab1",
                           "Grid1",
                           "Grid2",
                           "LstDataKubun",
                           "cmbJIgyoBango1",
                           "cmbRosenBango1",
                           "CmdKanSeiDataOpen",
                           "LstDataKubun1",
                           "cmbJIgyoBango2",
                           "cmbRosenBango2",
                           "CmdKanDaenReOpen",
                           "lblJigyobango",
                           "lblRosenbango",
                           "lblDatakubun",
                           "LstHyousekiNo1",
                           "LstHyousekiNo2",
                           "lblHyousekiNo1",
                           "lblHyousekiNo2",
                           "txtStartIdo",
                           "txtStartFun",
                           "txtEndIdo",
                           "txtEndFun",
                           "CmdDaenCal",
                           "lblH",
                           "lblDaenHoseichi",
                           "lblSanshouDaenHoseichi",
                           "LstSanshouDaen",
                           "CmdGrid2RowDel",
                           "cmdMap",
                           "Label12",
                           "m0item",
                           "m1item(0)",
                           "m1item(1)",
                           "m1item(2)"})
    EXPECT_NE(screen.find(name), nullptr) << name;
}

TEST_F(EllipsoidalScreen, CaptionsAndEmptyGrids) {
  EXPECT_EQ(screen.caption(), "楕円補正量の計算");
  EXPECT_EQ(screen.openButton.text() + screen.reopenButton.text() + screen.CmdDaenCal.text(), "OKOKOK");
  EXPECT_EQ(screen.CmdGrid2RowDel.text(), "選択行を削除");
  EXPECT_EQ(screen.cmdMap.text(), "画像貼付(&H)");
  EXPECT_EQ(screen.Label12.text(), "１２０％");
  EXPECT_EQ(screen.m0item.text(), "ファイル(&F)");
  EXPECT_EQ(test::DaenGrids::cells(screen.Grid1, 0, 0, 9),
            "水準点|距離(km)|標高(m)|楕円補(mm)|結果(m)|備考|データ形式|SaveOrder|DataEndMark|");
  EXPECT_EQ(test::DaenGrids::cells(screen.Grid2, 0, 0, 10),
            "自首末地|至首末地|自水準点|至水準点|B1|B2|B1-B2|B1 + B2|楕円補正値|平均標高|楕円計算値");
  EXPECT_EQ(screen.Grid1.rows(), 3);
  EXPECT_EQ(screen.Grid2.rows(), 2);
  EXPECT_EQ(screen.LstDataKubun.count(), 5);
  EXPECT_EQ(screen.LstDataKubun1.count(), 5);
}

TEST_F(EllipsoidalScreen, ColumnsLookAsTheyAreDesigned) {
  const std::vector<int> widths = {1400, 1134, 1134, 1134, 1134, 1701, 1134, 0, 0, 0};
  for (int col = 0; col < 10; ++col) {
    EXPECT_EQ(screen.Grid1.colWidth(col), widths[static_cast<std::size_t>(col)]) << col;
    EXPECT_EQ(screen.Grid1.align(col), col == 5 ? ui::Align::Left : ui::Align::Right) << col;
    EXPECT_EQ(screen.Grid1.fixedAlign(col), ui::Align::Left) << col;
  }
  EXPECT_EQ(screen.Grid1.rowHeight(), 260);
  EXPECT_EQ(screen.Grid2.colWidth(10), 1134);
  EXPECT_EQ(screen.Grid2.align(10), ui::Align::Left);
}

// fx = 17910 / 8955 = 2, fy = 9157.5 / 6105 = 1.5.
TEST_F(EllipsoidalScreen, TheTabControlAndTheRouteGridGrowWithTheWindow) {
  EXPECT_EQ(screen.SSTab1.box(), (ui::Box{0, 0, 8610, 5295}));
  screen.resize(17910, 9157.5F);
  EXPECT_EQ(screen.SSTab1.box(), (ui::Box{0, 0, 17220, 7942.5F}));
  EXPECT_EQ(screen.Grid1.box(), (ui::Box{0, 0, 14790, 5850}));
  EXPECT_EQ(screen.Grid2.box(), (ui::Box{0, 0, 6700, 1560}));
}

// 1400 + 4 · 1134 + 1701 + 1134 = 8771: the columns that can be seen.
TEST_F(EllipsoidalScreen, AnOpenedRouteIsAsWideAsItsColumns) {
  openRoute();
  EXPECT_EQ(screen.Grid1.box(), (ui::Box{0, 0, 8771, 3900}));
  screen.clearItem.press();
  EXPECT_EQ(screen.Grid1.box(), (ui::Box{0, 0, 7395, 3900})) << "and laid out with the window";
}

TEST_F(EllipsoidalScreen, AnOpenedRouteBeginsAtItsTop) {
  openRoute();
  EXPECT_EQ(screen.Grid1.row(), 1);
  EXPECT_EQ(screen.Grid1.col(), 0);
  screen.saveItem.press();
  screen.LstDataKubun1.choose(0);
  screen.cmbJIgyoBango2.choose(0);
  screen.cmbRosenBango2.choose(0);
  screen.reopenButton.press();
  EXPECT_EQ(screen.Grid1.row(), 1);
  EXPECT_EQ(screen.Grid1.col(), 0);
}

TEST_F(EllipsoidalScreen, OpeningFillsTheRouteTheListsAndTheKeys) {
  openRoute();
  EXPECT_EQ(
      screen.lblJigyobango.text() + "|" + screen.lblRosenbango.text() + "|" + screen.lblDatakubun.text(),
      "1001|01A00101|0");
  EXPECT_EQ(screen.Grid1.rows(), 9);
  EXPECT_EQ(screen.LstHyousekiNo1.items(), (Lines{"A", "B", "C", "D"}));
  EXPECT_EQ(screen.LstHyousekiNo2.items(), (Lines{"A", "B", "C", "D"}));
  EXPECT_EQ(screen.LstSanshouDaen.items(), Lines{"1001     ;01A00102;X         ;A         ;1.5"});
  EXPECT_EQ(screen.SSTab1.current(), 0);
  EXPECT_EQ(desktop.pointers, (std::vector<ui::Pointer>{ui::Pointer::Hourglass, ui::Pointer::Default}));
}

TEST_F(EllipsoidalScreen, LettersEmptyALatitudeBox) {
  screen.txtStartIdo.edit("35");
  screen.txtStartIdo.edit("35x");
  EXPECT_EQ(screen.txtStartIdo.text(), "");
  screen.txtEndFun.edit("30.");
  EXPECT_EQ(screen.txtEndFun.text(), "30.");
  screen.txtEndIdo.edit("-35");
  EXPECT_EQ(screen.txtEndIdo.text(), "-35");
  screen.txtStartFun.edit("-");
  EXPECT_EQ(screen.txtStartFun.text(), "");
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(EllipsoidalScreen, AReferenceIsTakenOver) {
  openRoute();
  screen.LstSanshouDaen.choose(0);
  EXPECT_EQ(screen.lblSanshouDaenHoseichi.text(), "1.5");
  screen.LstSanshouDaen.addItem("short");
  screen.LstSanshouDaen.choose(1);
  EXPECT_EQ(screen.lblSanshouDaenHoseichi.text(), "");
}

// From A to D 4 km: B 9.2/4 + 1.5 = 3.8, C 9.2/2 + 1.5 = 6.1, D 9.2 + 1.5 = 10.7.
TEST_F(EllipsoidalScreen, CalculatesTheChosenSection) {
  openRoute();
  screen.LstSanshouDaen.choose(0);
  screen.SSTab1.setCurrent(2);
  calculate(0, 3);
  EXPECT_EQ(screen.lblHyousekiNo1.text() + screen.lblHyousekiNo2.text(), "AD");
  EXPECT_EQ(screen.lblH.text(), "100");
  EXPECT_EQ(screen.lblDaenHoseichi.text(), "9.2");
  EXPECT_EQ(result(1), "1.5|100.0015");
  EXPECT_EQ(result(3), "3.8|100.0038");
  EXPECT_EQ(result(5), "6.1|100.0061");
  EXPECT_EQ(result(7), "10.7|100.0107");
  EXPECT_EQ(section(1), "A|D|10.7");
  EXPECT_EQ(screen.SSTab1.current(), 0);
}

TEST_F(EllipsoidalScreen, ADivisionByZeroIsReportedUnderTheButton) {
  job.sql("UPDATE KansokuSeikaData SET 距離 = 0");
  openRoute();
  calculate(0, 1);
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0], (ui::Message{"CmdDaenCal_Click", "0 で除算しました。", ui::Icon::Critical}));
  EXPECT_EQ(screen.lblDaenHoseichi.text(), "9.2");
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

TEST_F(EllipsoidalScreen, NothingHappensWithoutAChosenSection) {
  openRoute();
  screen.SSTab1.setCurrent(2);
  screen.CmdDaenCal.press();
  EXPECT_EQ(screen.lblH.text(), "");
  EXPECT_EQ(screen.SSTab1.current(), 2);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(EllipsoidalScreen, AClickSelectsTheWholeRow) {
  openRoute();
  screen.Grid1.click(3, 2);
  EXPECT_EQ(screen.Grid1.row(), 3);
  EXPECT_EQ(screen.Grid1.col(), 0);
  EXPECT_EQ(screen.Grid1.colSel(), 9);
  screen.Grid2.click(1, 4);
  EXPECT_EQ(screen.Grid2.colSel(), 10);
}

TEST_F(EllipsoidalScreen, DeletingTheOnlySectionLeavesTheHeaderAndAnEmptyRow) {
  openRoute();
  calculate(0, 2);
  screen.Grid2.click(1, 0);
  screen.CmdGrid2RowDel.press();
  EXPECT_EQ(screen.Grid2.rows(), 2);
  EXPECT_EQ(section(1), "||");
  screen.CmdGrid2RowDel.press();
  EXPECT_EQ(screen.Grid2.rows(), 2) << "the empty row cannot be deleted";
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(EllipsoidalScreen, DeletesTheSelectedSectionAndNeverTheEmptyRow) {
  openRoute();
  calculate(0, 1);
  calculate(1, 2);
  screen.Grid2.click(3, 0);
  screen.CmdGrid2RowDel.press();
  EXPECT_EQ(screen.Grid2.rows(), 4);
  screen.Grid2.click(1, 0);
  screen.CmdGrid2RowDel.press();
  EXPECT_EQ(screen.Grid2.rows(), 3);
  EXPECT_EQ(section(1).substr(0, 3), "B|C");
}

TEST_F(EllipsoidalScreen, SavesBothTablesAndReopensBothGrids) {
  openRoute();
  calculate(0, 1);
  calculate(1, 3);
  screen.saveItem.press();
  EXPECT_EQ(desktop.takeMessages(), (std::vector<ui::Message>{{"", "保存しました", ui::Icon::None}}));
  EXPECT_EQ(count("KansokuSeikaDataDaen"), 4U);
  EXPECT_EQ(count("DaenHoseiChiHyouData"), 3U);
  screen.clearItem.press();
  EXPECT_EQ(screen.Grid1.rows(), 3);
  EXPECT_EQ(screen.Grid2.rows(), 2);
  EXPECT_EQ(screen.lblRosenbango.text(), "");
  screen.LstDataKubun1.choose(0);
  screen.cmbJIgyoBango2.choose(0);
  screen.cmbRosenBango2.choose(0);
  screen.reopenButton.press();
  EXPECT_EQ(screen.Grid1.rows(), 9);
  EXPECT_EQ(result(7), "18.4|100.0184");
  EXPECT_EQ(screen.Grid2.rows(), 4);
  EXPECT_EQ(section(2), "B|D|18.4");
  EXPECT_EQ(screen.lblDatakubun.text(), "0");
  EXPECT_EQ(screen.LstHyousekiNo2.count(), 4);
  EXPECT_EQ(screen.LstSanshouDaen.count(), 1);
}

TEST_F(EllipsoidalScreen, AFailingSaveOfTheRouteDoesNotSaveTheSections) {
  openRoute();
  calculate(0, 1);
  job.sql("DROP TABLE KansokuSeikaDataDaen");
  screen.saveItem.press();
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcDHseiSave");
  EXPECT_EQ(count("DaenHoseiChiHyouData"), 1U) << "the other route's alone";
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

// The old section is deleted and A–B written before B–C is refused; the route has been saved and said to be.
TEST_F(EllipsoidalScreen, AFailingSaveOfTheSectionsLeavesTheRouteSaved) {
  job.section("01A00101", "0", 1, "old", "old", "9");
  job.sql(
      "CREATE TRIGGER refuse BEFORE INSERT ON DaenHoseiChiHyouData WHEN NEW.自水準点番号 = 'B'"
      " BEGIN SELECT RAISE(ABORT, 'refused'); END");
  openRoute();
  calculate(0, 1);
  calculate(1, 2);
  screen.saveItem.press();
  ASSERT_EQ(desktop.messages.size(), 2U);
  EXPECT_EQ(desktop.messages[0].text, "保存しました");
  EXPECT_EQ(desktop.messages[1].title, "FcDaenHoseichiHyouSave");
  EXPECT_EQ(count("KansokuSeikaDataDaen"), 4U);
  EXPECT_EQ(job.records("SELECT * FROM DaenHoseiChiHyouData WHERE 路線番号 = '01A00101'",
                        {"自水準点番号", "至水準点番号"}),
            Lines{"A|B"});
}

// With safeguards the refused section takes the route along: both tables are what they were.
TEST_F(EllipsoidalScreen, WithSafeguardsAFailingSaveOfTheSectionsLeavesBothTablesAsTheyWere) {
  desktop.guarded = true;
  job.section("01A00101", "0", 1, "old", "old", "9");
  openRoute();
  screen.saveItem.press();
  EXPECT_EQ(desktop.takeMessages(), (std::vector<ui::Message>{{"", "保存しました", ui::Icon::None}}));
  EXPECT_EQ(count("KansokuSeikaDataDaen"), 4U);
  EXPECT_EQ(count("DaenHoseiChiHyouData"), 1U) << "the other route's alone";
  calculate(0, 1);
  screen.saveItem.press();
  EXPECT_EQ(desktop.takeMessages().size(), 1U);
  job.sql(
      "CREATE TRIGGER refuse BEFORE INSERT ON DaenHoseiChiHyouData WHEN NEW.自水準点番号 = 'B'"
      " BEGIN SELECT RAISE(ABORT, 'refused'); END");
  calculate(1, 2);
  const auto route = [&] {
    return job.records("SELECT * FROM KansokuSeikaDataDaen", {"標石番号", "楕円補正値"});
  };
  const auto before = route();
  screen.saveItem.press();
  ASSERT_EQ(desktop.messages.size(), 1U) << "nothing was said to be saved";
  EXPECT_EQ(desktop.messages[0].title, "FcDHseiSave");
  EXPECT_NE(desktop.messages[0].text.find("保存前の成果はそのまま残っています。"), std::string::npos);
  EXPECT_EQ(route(), before);
  EXPECT_EQ(job.records("SELECT * FROM DaenHoseiChiHyouData WHERE 路線番号 = '01A00101'",
                        {"自水準点番号", "至水準点番号"}),
            Lines{"A|B"});
}

TEST_F(EllipsoidalScreen, SavingBeforeAnythingIsOpenDoesNothing) {
  screen.saveItem.press();
  openRoute();
  screen.clearItem.press();
  screen.saveItem.press();
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_EQ(count("KansokuSeikaDataDaen"), 0U);
}

TEST_F(EllipsoidalScreen, AFailingSectionTableIsReportedUnderTheReopenButton) {
  openRoute();
  screen.saveItem.press();
  desktop.messages.clear();
  screen.LstDataKubun1.choose(0);
  screen.cmbJIgyoBango2.choose(0);
  screen.cmbRosenBango2.choose(0);
  job.sql("DROP TABLE DaenHoseiChiHyouData");
  screen.reopenButton.press();
  ASSERT_EQ(desktop.messages.size(), 2U);
  EXPECT_EQ(desktop.messages[0].title, "FcSetLstSanshouDaen");
  EXPECT_EQ(desktop.messages[1].title, "CmdKanDaenReOpen_Click");
  EXPECT_EQ(screen.Grid1.rows(), 9);
}

TEST_F(EllipsoidalScreen, FilesAPictureUnderItsOwnName) {
  test::placeTool(job.folder(), "data/map_app/PicturePaste.exe", "write temp.bmp|map");
  screen.cmdMap.press();
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_EQ(platform::readFile(job.folder().path("data/3/bmp_data/成果表楕円補正.bmp")), "map");
}

TEST_F(EllipsoidalScreen, AMissingPictureToolIsReported) {
  screen.cmdMap.press();
  ASSERT_EQ(desktop.messages.size(), 2U);
  EXPECT_EQ(desktop.messages[0].icon, ui::Icon::Information);
  EXPECT_EQ(desktop.messages[1].title, "FcPicturePaste");
}

}  // namespace
