#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_screen.h"
#include "hksnb/screen.h"
#include "platform/files.h"
#include "support/tool.h"

// The way from the choice to the stored book and its picture.

namespace {

using Lines = std::vector<std::string>;
using BookSteps = test::BookScreen;

TEST_F(BookSteps, ABookIsSavedAndReopenedCellByCell) {
  newBook();
  keys(U"9.995\r11\r");
  screen.txtKansokuNen.edit("2022");
  screen.txtHeikinNen.edit("2019");
  screen.cmdSetNen.press();
  screen.CmdHendryocal.press();
  screen.txtHksnbNo.edit("12");
  screen.txtOldYearFr.edit("2010");
  screen.txtOldMonTo.edit("11");
  const auto before = test::cells(screen.Grid1);
  screen.CmdExeE2.press();
  EXPECT_EQ(desktop.takeMessages(), (std::vector<ui::Message>{{"", "保存しました", ui::Icon::None}}));
  EXPECT_EQ(screen.SSTab1.current(), 1) << "saving does not change the page";

  hksnb::fHHksb later(job.context(), desktop);
  later.load();
  EXPECT_EQ(later.LstHksnbNo.items(), Lines{"12"});
  later.txtOldYearFr.edit("1999");
  later.LstHksnbNo.choose(0);
  later.Command1.press();
  EXPECT_EQ(test::cells(later.Grid1), before);
  EXPECT_EQ(later.txtHksnbNo.text(), "12");
  EXPECT_EQ(later.txtKansokuNen.text(), "2022");
  EXPECT_EQ(later.txtHeikinNen.text(), "2019");
  EXPECT_EQ(later.txtNewYearFr.text() + later.txtNewMonFr.text(), "202205");
  EXPECT_EQ(later.txtNewYearTo.text() + later.txtNewMonTo.text(), "202208");
  for (const ui::TextBox* box :
       {&later.txtOldYearFr, &later.txtOldMonFr, &later.txtOldYearTo, &later.txtOldMonTo})
    EXPECT_EQ(box->text(), "") << box->name();
  EXPECT_EQ(later.LstHyousekiNo.items(), (Lines{"A", "B", "C", "D"}));
  EXPECT_TRUE(desktop.messages.empty());
}

// The kind of the book in the grid is that of the button that made it, whatever is chosen afterwards.
TEST_F(BookSteps, TheKindStaysUntilTheNextBook) {
  newBook();
  screen.CmdExeD1.press();
  screen.optSeika1.press();
  screen.optSeika21.press();
  EXPECT_EQ(screen.Grid1.rows(), 9) << "going back does not clear the grid";
  screen.txtHksnbNo.edit("3");
  screen.CmdExeE2.press();
  EXPECT_EQ(job.records("SELECT DISTINCT 補正値フラグ FROM KansokuSeikaDataHKSNB", {"補正値フラグ"}),
            Lines{"0"});
  screen.Command1.press();
  EXPECT_EQ(cell(0, 7), "楕円補正");
  screen.txtHksnbNo.edit("3");
  screen.CmdExeE2.press();
  EXPECT_EQ(job.records("SELECT 観測簿種類 FROM KansokuKikan ORDER BY 観測簿種類", {"観測簿種類"}),
            (Lines{"1", "2"}));
}

TEST_F(BookSteps, AFailedSaveShowsTheErrorAndKeepsTheGrid) {
  newBook();
  job.sql("DROP TABLE KansokuSeikaDataHKSNB");
  screen.CmdExeE2.press();
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcHHKSB_HKSNBSave");
  EXPECT_EQ(cell(1, 5), "A");
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

TEST_F(BookSteps, ABookThatCannotBeReadKeepsTheBoxes) {
  screen.txtKansokuNen.edit("2022");
  screen.txtNewYearFr.edit("2021");
  job.sql("DROP TABLE KansokuKikan");
  screen.Command1.press();
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcHHKSB_Reopen");
  EXPECT_EQ(screen.txtKansokuNen.text(), "2022");
  EXPECT_EQ(screen.txtNewYearFr.text(), "2021");
  EXPECT_EQ(screen.SSTab1.current(), 1);
}

TEST_F(BookSteps, WithoutTheToolTheOperatorIsTold) {
  screen.cmdMap.press();
  ASSERT_EQ(desktop.messages.size(), 2U);
  EXPECT_EQ(desktop.messages[0].text, "オプション「画像貼付ツール」をインストールしてください");
  EXPECT_EQ(desktop.messages[1].title, "FcPicturePaste");
}

/// A tool in the folder `owner` that leaves a picture with the owner's name in it in the data folder.
void installTool(const test::SmallJob& job, const std::string& owner) {
  test::placeTool(job.folder(), owner + "/map_app/PicturePaste.exe",
                  "write " + job.folder().path("data/map_app/temp.bmp") + "|" + owner);
}

TEST_F(BookSteps, ThePictureIsFiledUnderKindAndNumber) {
  installTool(job, "data");
  screen.txtHksnbNo.edit("12");
  screen.cmdMap.press();
  EXPECT_EQ(platform::readFile(job.folder().path("data/3/bmp_data/成果変動図正標高12.bmp")), "data");
  screen.optSeika1.press();
  screen.CmdExeC2.press();
  screen.cmdMap.press();
  EXPECT_TRUE(platform::isFile(job.folder().path("data/3/bmp_data/成果変動図楕円12.bmp")));
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(BookSteps, TheToolBesideTheProgramComesFirst) {
  installTool(job, "data");
  installTool(job, "program");
  job::JobContext context = job.context();
  context.gAppPath = job.folder().path("program") + "\\";
  hksnb::fHHksb other(context, desktop);
  other.load();
  other.cmdMap.press();
  EXPECT_EQ(platform::readFile(job.folder().path("data/3/bmp_data/成果変動図正標高.bmp")), "program");
}

// The tab control fills the window and the grid grows with it; the controls below it keep their size. Where
// they stand is the form's business.
TEST_F(BookSteps, TheLayoutFollowsTheWindow) {
  const ui::Box grid = screen.Grid1.box();
  const ui::Box list = screen.LstHyousekiNo.box();
  const auto expectSize = [](const ui::Control& control, float width, float height) {
    EXPECT_EQ(control.box().width, width) << control.name();
    EXPECT_EQ(control.box().height, height) << control.name();
  };
  expectSize(screen.SSTab1, screen.width(), screen.height());
  EXPECT_LE(screen.width(), 1280 * 15);
  EXPECT_LE(screen.height(), 800 * 15);
  screen.resize(screen.width() + 1500, screen.height() + 3000);
  expectSize(screen.SSTab1, screen.width(), screen.height());
  expectSize(screen.Grid1, grid.width + 1500, grid.height + 3000);
  expectSize(screen.LstHyousekiNo, list.width, list.height);
  screen.resize(100, 100);
  EXPECT_GT(screen.Grid1.box().width, 0);
  EXPECT_GT(screen.Grid1.box().height, 0);
}

}  // namespace
