#include "start/job_menu.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "jobs/safe_copy.h"
#include "start/intake_dialog.h"
#include "start/restore_dialog.h"
#include "support/job_file.h"

namespace {

class JobMenuTest : public testing::Test {
 protected:
  JobMenuTest() {
    job_.sql({"INSERT INTO JobData VALUES ('1', '試験', 2, 1)"});
    job_.observed("R1", 1);
    context_.gDbPath = job_.path();
    context_.gJobId = "1";
    window_.show();
    new start::JobMenu(window_, context_, job_.folder().path("settings.txt"), {});
  }
  void choose(const char* item) { window_.findChild<QAction*>(QString::fromLatin1(item))->trigger(); }
  std::size_t observations() { return job_.records("KansokuSeikaData").size(); }

  test::JobFile job_;
  job::JobContext context_;
  QMainWindow window_;
};

TEST_F(JobMenuTest, TakesObservationsIntoTheOpenJob) {
  choose("takeObservationsIn");
  EXPECT_NE(window_.findChild<start::IntakeDialog*>(), nullptr);
}

TEST_F(JobMenuTest, KeepsACopyAndSaysWhere) {
  choose("keepCopy");
  auto* box = window_.findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  ASSERT_EQ(jobs::copiesOf(job_.path()).size(), 1U);
  EXPECT_TRUE(box->text().contains("控えをとりました。")) << box->text().toStdString();
}

TEST_F(JobMenuTest, SaysWhyNoCopyCanBeKept) {
  context_.gDbPath = job_.folder().path("none.sqlite");
  QMainWindow other;
  new start::JobMenu(other, context_, {}, {});
  other.findChild<QAction*>("keepCopy")->trigger();
  EXPECT_TRUE(other.findChild<QMessageBox*>()->text().contains("が見つかりません。"));
}

TEST_F(JobMenuTest, ShowsWhatDiffersBeforeItGoesBack) {
  jobs::keepCopy(job_.path());
  job_.sql({"DELETE FROM KansokuSeikaData"});
  choose("restore");
  auto* dialog = window_.findChild<start::RestoreDialog*>();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->findChild<QPlainTextEdit*>("differences")->toPlainText().toStdString(),
            "観測成果: 今 0 件 → 控え 1 件 (消えるか変わる 0 件、戻る 1 件)");
  EXPECT_EQ(observations(), 0U);
  dialog->findChild<QPushButton*>("restore")->click();
  EXPECT_EQ(observations(), 1U);
  EXPECT_EQ(dialog->findChild<QTreeWidget*>("copies")->topLevelItemCount(), 2)
      << "what was there before is kept";
  EXPECT_TRUE(dialog->findChild<QLabel*>("message")->text().contains("に戻しました。"));
}

TEST_F(JobMenuTest, GoesNowhereWhereNothingDiffers) {
  choose("restore");
  auto* empty = window_.findChild<start::RestoreDialog*>();
  EXPECT_FALSE(empty->findChild<QPushButton*>("restore")->isEnabled());
  EXPECT_EQ(empty->findChild<QLabel*>("message")->text().toStdString(), "このジョブの控えはまだありません。");
  delete empty;
  jobs::keepCopy(job_.path());
  choose("restore");
  auto* dialog = window_.findChild<start::RestoreDialog*>();
  EXPECT_EQ(dialog->findChild<QPlainTextEdit*>("differences")->toPlainText().toStdString(),
            "今のジョブと同じです。");
  EXPECT_FALSE(dialog->findChild<QPushButton*>("restore")->isEnabled());
}

}  // namespace
