#include "start/new_job_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "jobs/examine.h"
#include "support/temporary_folder.h"

namespace {

class NewJobDialogTest : public testing::Test {
 protected:
  NewJobDialogTest() {
    dialog_.whenMade([this](const std::string& path) { made_ = path; });
    dialog_.show();
    dialog_.activateWindow();
    QApplication::processEvents();
  }
  void enter(const char* name, const QString& text) { dialog_.findChild<QLineEdit*>(name)->setText(text); }
  void press(const char* name) { dialog_.findChild<QPushButton*>(name)->click(); }

  test::TemporaryFolder folder_;
  std::string made_;
  start::NewJobDialog dialog_{QString::fromStdString(folder_.path()),
                              {.open = {},
                               .save = {},
                               .folder = [this](QWidget*, const QString&,
                                                const QString&) { return QString::fromStdString(chosen_); }},
                              nullptr};
  std::string chosen_;
};

TEST_F(NewJobDialogTest, MakesTheJobThatWasEntered) {
  EXPECT_TRUE(dialog_.findChild<QLineEdit*>("name")->hasFocus());
  enter("name", "諏訪");
  enter("title", "水準測量");
  dialog_.findChild<QComboBox*>("grade")->setCurrentIndex(2);
  press("make");
  EXPECT_EQ(made_, folder_.path("諏訪.sqlite"));
  EXPECT_FALSE(dialog_.isVisible());
  EXPECT_EQ(jobs::examine(made_).entries, (std::vector<jobs::JobEntry>{{"1", "水準測量", 3, true}}));
}

TEST_F(NewJobDialogTest, SaysWhatIsWrongAndStays) {
  press("make");
  EXPECT_TRUE(dialog_.isVisible());
  EXPECT_EQ(dialog_.findChild<QLabel*>("fault")->text(), "ファイル名を入力してください。");
  EXPECT_EQ(made_, "");
}

TEST_F(NewJobDialogTest, TakesAFolderFromTheSystemsDialog) {
  press("browse");
  EXPECT_EQ(dialog_.findChild<QLineEdit*>("folder")->text().toStdString(), folder_.path())
      << "none was chosen";
  chosen_ = folder_.path("other");
  press("browse");
  EXPECT_EQ(dialog_.findChild<QLineEdit*>("folder")->text().toStdString(), chosen_);
}

}  // namespace
