#include "hksnb/screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_screen.h"

namespace {

using Lines = std::vector<std::string>;
using BookScreen = test::BookScreen;

TEST_F(BookScreen, OpensOnTheChoiceWithOrthometricRoutesAndBooks) {
  EXPECT_EQ(screen.caption(), "変動量計算簿・変動図");
  EXPECT_EQ(screen.SSTab1.current(), 0);
  EXPECT_EQ(screen.lblShoriShiji.text(), "処理A");
  EXPECT_TRUE(screen.optSeika0.on());
  EXPECT_TRUE(screen.optSeika20.on());
  EXPECT_EQ(screen.LstRosenNo1.items(), (Lines{"1001     ;01A00101", "1001     ;01A00201"}));
  EXPECT_EQ(screen.LstHksnbNo.count(), 0);
  EXPECT_EQ(screen.Grid1.rows(), 2);
  EXPECT_EQ(screen.Grid1.cols(), 15);
  EXPECT_EQ(screen.Grid1.fixedRows(), 1);
  EXPECT_EQ(screen.Grid1.fixedCols(), 0);
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_EQ(desktop.pointers, (std::vector<ui::Pointer>{ui::Pointer::Hourglass, ui::Pointer::Default}));
  EXPECT_TRUE(job.records("SELECT * FROM KansokuSeikaDataHKSNB", {"RosenEndFlg"}).empty())
      << "the column is there";
}

TEST_F(BookScreen, EveryControlIsKnownByItsName) {
  for (const char* name :
       {"SSTab1",        "lblShoriShiji", "optSeika(0)",   "optSeika(1)",   "LstRosenNo1",  "LstRosenNo2",
        "CmdExeC3",      "CmdExeC4",      "CmdExeC2",      "optSeika2(0)",  "optSeika2(1)", "LstHksnbNo",
        "Command1",      "Grid1",         "LstHyousekiNo", "lblStartNo",    "lblEndNo",     "lblUe",
        "CmdExeD3",      "CmdExeD4",      "CmdExeD5",      "txtKansokuNen", "txtHeikinNen", "cmdSetNen",
        "CmdHendryocal", "CmdExeD1",      "CmdExeD2",      "txtHksnbNo",    "txtNewYearFr", "txtNewMonFr",
        "txtNewYearTo",  "txtNewMonTo",   "txtOldYearFr",  "txtOldMonFr",   "txtOldYearTo", "txtOldMonTo",
        "CmdExeE1",      "CmdExeE2",      "cmdMap",        "m1item"})
    EXPECT_NE(screen.find(name), nullptr) << name;
  EXPECT_EQ(screen.m1item.text(), "終了(&X)");
  EXPECT_EQ(screen.cmdMap.text(), "画像貼付(&H)");
}

TEST_F(BookScreen, RoutesMoveBetweenTheListsInTheOrderOfChoice) {
  screen.CmdExeC3.press();
  EXPECT_EQ(screen.LstRosenNo1.count(), 2) << "nothing was chosen";
  chooseRoute(1);
  chooseRoute(0);
  EXPECT_EQ(screen.LstRosenNo2.items(), (Lines{"1001     ;01A00201", "1001     ;01A00101"}));
  EXPECT_EQ(screen.LstRosenNo1.count(), 0);
  screen.CmdExeC4.press();
  EXPECT_EQ(screen.LstRosenNo2.count(), 2);
  screen.LstRosenNo2.choose(0);
  screen.CmdExeC4.press();
  EXPECT_EQ(screen.LstRosenNo1.items(), Lines{"1001     ;01A00201"});
}

TEST_F(BookScreen, AnotherCorrectionRefillsTheRoutesAndDropsTheChosen) {
  job.ellipsoidal(1, "01F00201", "A", "1", "1", "1");
  chooseRoute(0);
  screen.optSeika1.press();
  EXPECT_EQ(screen.LstRosenNo1.items(), Lines{"1001     ;01F00201"});
  EXPECT_EQ(screen.LstRosenNo2.count(), 0);
  EXPECT_FALSE(screen.optSeika0.on());
  screen.optSeika0.press();
  EXPECT_EQ(screen.LstRosenNo1.count(), 2);
}

TEST_F(BookScreen, BooksAreListedByKind) {
  job.sql(
      "INSERT INTO KansokuSeikaDataHKSNB (JobId, 変動観測簿No, 補正値フラグ) VALUES ('3','4','0'), "
      "('3','5','1')");
  screen.optSeika21.press();
  EXPECT_EQ(screen.LstHksnbNo.items(), Lines{"5"});
  EXPECT_TRUE(screen.optSeika0.on()) << "the two frames are independent";
  screen.optSeika20.press();
  EXPECT_EQ(screen.LstHksnbNo.items(), Lines{"4"});
}

TEST_F(BookScreen, WithoutARouteTheBookIsEmpty) {
  screen.CmdExeC2.press();
  EXPECT_EQ(screen.Grid1.rows(), 2);
  EXPECT_EQ(test::rowText(screen.Grid1, 1), "||||||||||||");
  EXPECT_EQ(screen.SSTab1.current(), 1);
  EXPECT_EQ(screen.txtNewYearFr.text() + screen.txtNewMonFr.text(), "999999");
  EXPECT_EQ(screen.txtNewYearTo.text() + screen.txtNewMonTo.text(), "000000");
}

TEST_F(BookScreen, TheHeaderNamesTheCorrectionOfTheBook) {
  EXPECT_EQ(cell(0, 7), "正標高補正");
  screen.optSeika1.press();
  screen.CmdExeC2.press();
  EXPECT_EQ(cell(0, 7), "楕円補正");
}

// The buttons lead through the pages, and so do the tabs; the label always names the step.
TEST_F(BookScreen, TheLabelNamesTheStep) {
  const auto expectStep = [&](int page, const char* name) {
    EXPECT_EQ(screen.SSTab1.current(), page);
    EXPECT_EQ(screen.lblShoriShiji.text(), name);
  };
  screen.CmdExeC2.press();
  expectStep(1, "処理B");
  screen.CmdExeD2.press();
  expectStep(2, "処理C");
  screen.CmdExeE1.press();
  expectStep(1, "処理B");
  screen.CmdExeD1.press();
  expectStep(0, "処理A");
  screen.Command1.press();
  expectStep(1, "処理B");
  screen.SSTab1.setCurrent(2);
  expectStep(2, "処理C");
  screen.SSTab1.setCurrent(0);
  expectStep(0, "処理A");
}

TEST_F(BookScreen, PreviousResultsAreTypedDownTheirColumn) {
  newBook();
  EXPECT_EQ(screen.Grid1.keyRow(), 1);
  EXPECT_EQ(screen.Grid1.keyCol(), 9) << "typing begins at the first bench mark";
  keys(U"9.995\r10.99x\b75\r");
  EXPECT_EQ(cell(1, 9), "9.995");
  EXPECT_EQ(cell(3, 9), "10.9975");
  EXPECT_EQ(screen.Grid1.row(), 5);
  EXPECT_EQ(screen.Grid1.col(), 9);
  keys(U"\r");
  EXPECT_EQ(screen.Grid1.row(), 7);
  keys(U"\r");
  EXPECT_EQ(screen.Grid1.row(), 7) << "the last bench mark keeps the cursor";
}

TEST_F(BookScreen, AClickHighlightsTheRowAndKeysGoToTheClickedCell) {
  newBook();
  screen.Grid1.click(3, 9);
  EXPECT_EQ(screen.Grid1.row(), 3);
  EXPECT_EQ(screen.Grid1.col(), 0);
  EXPECT_EQ(screen.Grid1.colSel(), 14);
  keys(U"11");
  EXPECT_EQ(cell(3, 9), "11");
  screen.Grid1.click(4, 11);
  keys(U"橋\r");
  EXPECT_EQ(cell(4, 11), "二B橋");
}

TEST_F(BookScreen, OnlyPreviousResultsAndRemarksTakeKeys) {
  newBook();
  for (int row = 1; row < screen.Grid1.rows(); ++row)
    for (int col = 0; col < screen.Grid1.cols(); ++col) {
      const ui::CellUse expected = col == 11                  ? ui::CellUse::Text
                                   : col == 9 && row % 2 == 1 ? ui::CellUse::Number
                                                              : ui::CellUse::Shown;
      EXPECT_EQ(screen.Grid1.cellUse(row, col), expected) << row << "," << col;
    }
  screen.Grid1.click(1, 5);
  keys(U"Z\r");
  EXPECT_EQ(cell(1, 5), "A");
  EXPECT_EQ(screen.Grid1.row(), 1);
}

TEST_F(BookScreen, TheEmptyBookTakesNoKeys) {
  screen.CmdExeC2.press();
  for (const int col : {9, 11}) EXPECT_EQ(screen.Grid1.cellUse(1, col), ui::CellUse::Shown);
  keys(U"1");
  EXPECT_EQ(cell(1, 9), "");
}

// 11.0005 − 10.9975 = 0.0030 m
TEST_F(BookScreen, AmountsAndYearsAreSetByTheirButtons) {
  newBook();
  screen.Grid1.click(3, 9);
  keys(U"10.9975");
  screen.CmdHendryocal.press();
  EXPECT_EQ(cell(3, 10), "3.0");
  EXPECT_EQ(cell(1, 10), "");
  screen.txtKansokuNen.edit("2022年");
  screen.txtHeikinNen.edit("2019年");
  EXPECT_EQ(cell(0, 8), "観測成果:");
  screen.cmdSetNen.press();
  EXPECT_EQ(cell(0, 8), "観測成果:2022年");
  EXPECT_EQ(cell(0, 9), "平均成果:2019年");
}

TEST_F(BookScreen, ASpanIsTurnedAndTurnedBack) {
  newBook();
  EXPECT_EQ(screen.LstHyousekiNo.items(), (Lines{"A", "B", "C", "D"}));
  screen.LstHyousekiNo.choose(1);
  screen.CmdExeD3.press();
  screen.LstHyousekiNo.choose(3);
  screen.CmdExeD4.press();
  EXPECT_EQ(screen.lblStartNo.text(), "B");
  EXPECT_EQ(screen.lblEndNo.text(), "D");
  const std::string section = cell(4, 6);
  screen.CmdExeD5.press();
  EXPECT_EQ(screen.LstHyousekiNo.items(), (Lines{"A", "D", "C", "B"}));
  EXPECT_EQ(cell(6, 6), "-" + section);
  screen.CmdExeD5.press();
  EXPECT_EQ(screen.LstHyousekiNo.items(), (Lines{"A", "B", "C", "D"}));
  EXPECT_EQ(cell(4, 6), section);
}

/// The pointers shown while `act` runs.
template <class Act>
std::vector<ui::Pointer> pointersOf(test::RecordingDesktop& desktop, Act&& act) {
  desktop.pointers.clear();
  act();
  return desktop.pointers;
}

TEST_F(BookScreen, TheHourglassShowsWhileAmountsAreWorkedOutAndASpanIsTurned) {
  const std::vector<ui::Pointer> once{ui::Pointer::Hourglass, ui::Pointer::Default};
  newBook();
  EXPECT_EQ(pointersOf(desktop, [&] { screen.CmdHendryocal.press(); }), once);
  EXPECT_EQ(pointersOf(desktop, [&] { screen.CmdExeD5.press(); }), once);
}

TEST_F(BookScreen, AnEmptyBookBeginsAtItsFirstCell) {
  screen.CmdExeC2.press();
  EXPECT_EQ(screen.Grid1.keyRow(), 1);
  EXPECT_EQ(screen.Grid1.keyCol(), 0);
}

const ui::Message broken{
    {}, "読込が途中で終わったため保存しません。もう一度読み込んでください。", ui::Icon::None};

// The filling fails halfway: what stands in the grid never takes the place of the stored book.
TEST_F(BookScreen, ABookWhoseFillingFailedIsNotSaved) {
  newBook();
  screen.txtHksnbNo.edit("1");
  screen.CmdExeE2.press();
  const std::string stored = "SELECT * FROM KansokuSeikaDataHKSNB WHERE 変動観測簿No = '1'";
  const auto before = job.records(stored, {"水準点番号"});
  EXPECT_EQ(before, (Lines{"A", "B", "C", "D"}));
  job.sql("ALTER TABLE KansokuSeikaData RENAME TO Away");
  screen.CmdExeC2.press();
  desktop.messages.clear();
  screen.CmdExeE2.press();
  EXPECT_EQ(desktop.takeMessages(), std::vector<ui::Message>{broken});
  EXPECT_EQ(job.records(stored, {"水準点番号"}), before);
  job.sql("ALTER TABLE Away RENAME TO KansokuSeikaData");
  screen.CmdExeC2.press();
  screen.CmdExeE2.press();
  EXPECT_EQ(desktop.takeMessages(), (std::vector<ui::Message>{{{}, "保存しました", ui::Icon::None}}));
}

TEST_F(BookScreen, ABookWhoseReopeningFailedIsNotSaved) {
  newBook();
  screen.txtHksnbNo.edit("1");
  screen.CmdExeE2.press();
  screen.optSeika20.press();
  screen.LstHksnbNo.choose(0);
  job.sql("ALTER TABLE KansokuKikan RENAME TO Away");
  screen.Command1.press();
  job.sql("ALTER TABLE Away RENAME TO KansokuKikan");
  desktop.messages.clear();
  screen.CmdExeE2.press();
  EXPECT_EQ(desktop.takeMessages(), std::vector<ui::Message>{broken});
  screen.Command1.press();
  screen.CmdExeE2.press();
  EXPECT_EQ(desktop.takeMessages(), (std::vector<ui::Message>{{{}, "保存しました", ui::Icon::None}}));
}

// 16,400 bench marks need 32,801 rows; a grid has 32,767.
TEST_F(BookScreen, ABookThatFoundNoRoomIsNotSaved) {
  job.sql(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 16400)"
      " INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号)"
      " SELECT '3', '1001', 'LONG', '0', i, 'P' || i FROM n");
  job.orthometric(1, "LONG", "P1", "1", "1", "1");
  screen.optSeika0.press();
  screen.LstRosenNo1.choose(2);
  screen.CmdExeC3.press();
  screen.CmdExeC2.press();
  EXPECT_EQ(desktop.takeMessages(),
            (std::vector<ui::Message>{{"FcGridMoveRow", "オーバーフローしました。", ui::Icon::Critical}}));
  screen.CmdExeE2.press();
  EXPECT_EQ(desktop.takeMessages(), std::vector<ui::Message>{broken});
}

TEST_F(BookScreen, ABookNumberThatIsNoNumberIsCleared) {
  screen.txtHksnbNo.edit("1");
  screen.txtHksnbNo.edit("12");
  EXPECT_EQ(screen.txtHksnbNo.text(), "12");
  screen.txtHksnbNo.edit("12a");
  EXPECT_EQ(screen.txtHksnbNo.text(), "");
  screen.txtHksnbNo.edit("-");
  EXPECT_EQ(screen.txtHksnbNo.text(), "");
}

TEST_F(BookScreen, ExitUnloadsOnce) {
  int unloaded = 0;
  screen.whenUnloaded([&](ui::Screen&) { ++unloaded; });
  screen.m1item.press();
  screen.unload();
  EXPECT_EQ(unloaded, 1);
}

}  // namespace
