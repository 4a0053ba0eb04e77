#include "start/program.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "qt/grid_view.h"
#include "qt/offscreen.h"
#include "support/start_desk.h"

namespace {

/// What a bodiless operator does, one step each time the program waits for one.
std::deque<std::function<void()>> steps;
std::vector<std::string> seen;  ///< titles of windows, "title|text" of message boxes

void nextStep() {
  if (steps.empty()) return;
  const auto step = steps.front();
  steps.pop_front();
  step();
}

/// Every application that comes into being gets the operator.
void seatOperator() {
  auto* clock = new QTimer(QCoreApplication::instance());
  QObject::connect(clock, &QTimer::timeout, nextStep);
  clock->start(20);
}
Q_COREAPP_STARTUP_FUNCTION(seatOperator)

const test::TemporaryFolder* newJobs = nullptr;  ///< where new jobs are made

QMainWindow& openWindow() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr)
      return *qobject_cast<QMainWindow*>(window);
  throw std::logic_error("no window is open");
}

void look() { seen.push_back(openWindow().windowTitle().toStdString()); }

std::function<void()> push(const char* name) {
  return [name] { openWindow().findChild<QPushButton*>(name)->click(); };
}

void answer() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) throw std::logic_error("no message box is open");
  seen.push_back((box->windowTitle() + "|" + box->text()).toStdString());
  box->button(QMessageBox::Ok)->click();
}

int run(const std::string& commandLine) {
  test::chooseOffscreen();
  const test::TemporaryFolder own;  // no setting of whoever runs the tests is read or written
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(own.path()));
  seen.clear();
  return start::runProgram("seikahyou", commandLine);
}

TEST(Program, TellsTheOperatorOfAnErrorThatNothingTrapsAndEnds) {
  steps = {answer, answer};
  EXPECT_EQ(run("/nowhere/job.sqlite"), 1);
  ASSERT_FALSE(seen.empty());
  EXPECT_TRUE(seen.back().starts_with("エラー|")) << seen.back();
  EXPECT_NE(seen.back().find("/nowhere/job.sqlite"), std::string::npos) << seen.back();
}

TEST(Program, GoesFromMenuToCalculationAndBackAndEnds) {
  const test::StartDesk job;
  steps = {look, push("Command1"), look, [] { openWindow().close(); }, look, push("Command3")};
  EXPECT_EQ(run(job.dbPath()), 0);
  EXPECT_EQ(seen, (std::vector<std::string>{"成果表データ作成メニュー — ジョブ 9", "正標高補正 — ジョブ 9",
                                            "成果表データ作成メニュー — ジョブ 9"}));
}

/// Fills in what a new job cannot do without.
void enterNewJob() {
  auto* dialog = openWindow().findChild<QDialog*>("NewJob");
  dialog->findChild<QLineEdit*>("folder")->setText(QString::fromStdString(newJobs->path()));
  dialog->findChild<QLineEdit*>("name")->setText("諏訪");
  dialog->findChild<QPushButton*>("make")->click();
}

TEST(Program, BeginsWithoutAPathInAWindowAndComesBackToIt) {
  const test::TemporaryFolder folder;
  newJobs = &folder;
  steps = {look, push("newJob"), enterNewJob, look, push("Command3"), look, push("leave")};
  EXPECT_EQ(run(""), 0);
  EXPECT_EQ(seen, (std::vector<std::string>{"ジョブを開く", "成果表データ作成メニュー — ジョブ 1",
                                            "ジョブを開く"}));
}

TEST(Program, OptionsOfTheToolkitAreNotTakenFromThePath) {
  steps = {answer, answer};
  EXPECT_EQ(run("-platform nowhere"), 1);
  ASSERT_FALSE(seen.empty());
  EXPECT_NE(seen.back().find("-platform nowhere"), std::string::npos) << seen.back();
}

}  // namespace
