#include "start/program.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include "qt/grid_view.h"
#include "start/operator_steps.h"
#include "support/start_desk.h"

namespace {

using test::answer;
using test::look;
using test::push;
using test::runProgram;
using test::seen;
using test::steps;

const test::TemporaryFolder* newJobs = nullptr;  ///< where new jobs are made

TEST(Program, TellsTheOperatorOfAnErrorThatNothingTrapsAndEnds) {
  steps = {answer, answer};
  EXPECT_EQ(runProgram("/nowhere/job.sqlite"), 1);
  ASSERT_FALSE(seen.empty());
  EXPECT_TRUE(seen.back().starts_with("エラー|")) << seen.back();
  EXPECT_NE(seen.back().find("/nowhere/job.sqlite"), std::string::npos) << seen.back();
}

TEST(Program, GoesFromMenuToCalculationAndBackAndEnds) {
  const test::StartDesk job;
  steps = {look, push("Command1"), look, [] { test::openWindow().close(); }, look, push("Command3")};
  EXPECT_EQ(runProgram(job.dbPath()), 0);
  EXPECT_EQ(seen, (std::vector<std::string>{"成果表データ作成メニュー — ジョブ 9", "正標高補正 — ジョブ 9",
                                            "成果表データ作成メニュー — ジョブ 9"}));
}

/// Fills in what a new job cannot do without.
void enterNewJob() {
  auto* dialog = test::openWindow().findChild<QDialog*>("NewJob");
  dialog->findChild<QLineEdit*>("folder")->setText(QString::fromStdString(newJobs->path()));
  dialog->findChild<QLineEdit*>("name")->setText("諏訪");
  dialog->findChild<QPushButton*>("make")->click();
}

TEST(Program, BeginsWithoutAPathInAWindowAndComesBackToIt) {
  const test::TemporaryFolder folder;
  newJobs = &folder;
  steps = {look, push("newJob"), enterNewJob, look, push("Command3"), look, push("leave")};
  EXPECT_EQ(runProgram(""), 0);
  EXPECT_EQ(seen, (std::vector<std::string>{"ジョブを開く", "成果表データ作成メニュー — ジョブ 1",
                                            "ジョブを開く"}));
}

TEST(Program, OptionsOfTheToolkitAreNotTakenFromThePath) {
  steps = {answer, answer};
  EXPECT_EQ(runProgram("-platform nowhere"), 1);
  ASSERT_FALSE(seen.empty());
  EXPECT_NE(seen.back().find("-platform nowhere"), std::string::npos) << seen.back();
}

}  // namespace
