#include "start/start_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFrame>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QUrl>
#include <filesystem>

#include "exchange/create.h"
#include "platform/files.h"
#include "start/choose_job_dialog.h"
#include "support/temporary_folder.h"

namespace {

class StartWindowTest : public testing::Test {
 protected:
  StartWindowTest() { std::filesystem::create_directory(folder_.path("program")); }

  start::StartWindow& window() {
    if (!window_) {
      window_ = std::make_unique<start::StartWindow>(
          start::Places{folder_.path("settings.txt"), folder_.path("program"), folder_.path()},
          start::FileDialogs{.open = [this](QWidget*, const QString&, const QString&,
                                            const QString&) { return chosenFile_; },
                             .save = {},
                             .folder = {}});
      window_->whenOpened([this](shell::CommandLine commandLine) { opened_.push_back(commandLine); });
      window_->show();
      window_->activateWindow();
      QApplication::processEvents();
    }
    return *window_;
  }

  /// A job database with these entries, each "'id', 'title', grade, mark".
  std::string job(const std::string& name, std::initializer_list<const char*> entries) {
    const std::string path = folder_.path(name);
    exchange::createJob(path, [&](db::Database& database) {
      for (const char* entry : entries)
        database.execute("INSERT INTO JobData VALUES (" + std::string(entry) + ")");
    });
    return path;
  }

  template <typename Kind>
  Kind* find(const char* name) {
    return window().findChild<Kind*>(QString::fromLatin1(name));
  }
  void press(const char* name) { find<QPushButton>(name)->click(); }
  QString message() {
    return find<QFrame>("messagePanel")->isVisible() ? find<QLabel>("message")->text() : QString();
  }
  QStringList recent() {
    QStringList lines;
    auto* list = find<QTreeWidget>("recent");
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
      const auto* item = list->topLevelItem(row);
      lines << item->text(0) + "|" + item->text(2) + "|" + item->text(3);
    }
    return lines;
  }
  /// The window as the next run of the program has it.
  void startAnew() { window_.reset(); }

  test::TemporaryFolder folder_;
  QString chosenFile_;
  std::vector<shell::CommandLine> opened_;
  std::unique_ptr<start::StartWindow> window_;
};

TEST_F(StartWindowTest, OpensAFileAndRemembersIt) {
  const std::string path = job("諏訪.sqlite", {"'1', 'a', 1, 0", "'2', 'b', 2, 1"});
  EXPECT_FALSE(find<QPushButton>("open")->isEnabled());
  EXPECT_TRUE(find<QPushButton>("newJob")->hasFocus());
  press("openFile");
  EXPECT_TRUE(opened_.empty()) << "no file was chosen";
  chosenFile_ = QString::fromStdString(path);
  press("openFile");
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_EQ(opened_[0].text, path);
  EXPECT_EQ(opened_[0].programFolder, folder_.path("program"));
  EXPECT_FALSE(opened_[0].chosen) << "the database itself names the job";
  startAnew();
  EXPECT_EQ(recent(), QStringList{"諏訪.sqlite|SQLite|2・2級"});
  EXPECT_TRUE(find<QTreeWidget>("recent")->hasFocus());
  QTest::keyClick(find<QTreeWidget>("recent"), Qt::Key_Return);
  EXPECT_EQ(opened_.size(), 2U);
}

TEST_F(StartWindowTest, SaysWhyAJobCannotBeOpenedAndStays) {
  chosenFile_ = QString::fromStdString(folder_.write("表.csv", "標石番号,距離\n"));
  press("openFile");
  EXPECT_TRUE(message().contains("文字のファイルで、ジョブではありません。")) << message().toStdString();
  EXPECT_TRUE(message().contains("観測成果の取り込み")) << message().toStdString();
  EXPECT_TRUE(window().isVisible());
  EXPECT_TRUE(opened_.empty());
  EXPECT_TRUE(recent().isEmpty());
  chosenFile_ = QString::fromStdString(job("good.sqlite", {"'1', '', 1, 1"}));
  press("openFile");
  EXPECT_EQ(message(), QString());
}

TEST_F(StartWindowTest, MarksJobsThatAreGoneAndTakesThemOff) {
  window().openPath(job("a.sqlite", {"'1', '', 1, 1"}));
  window().openPath(job("b.sqlite", {"'1', '', 1, 1"}));
  platform::removeFile(folder_.path("a.sqlite"));
  startAnew();
  ASSERT_EQ(recent().size(), 2);
  auto* list = find<QTreeWidget>("recent");
  const qsizetype gone = recent().indexOf("a.sqlite|見つかりません|1・1級");
  ASSERT_GE(gone, 0);
  list->setCurrentItem(list->topLevelItem(static_cast<int>(gone)));
  press("open");
  EXPECT_TRUE(message().contains("が見つかりません。"));
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_EQ(recent(), QStringList{"b.sqlite|SQLite|1・1級"});
  startAnew();
  EXPECT_EQ(recent().size(), 1);
}

TEST_F(StartWindowTest, LetsTheOperatorChooseAmongSeveralJobs) {
  window().openPath(job("a.sqlite", {"'1', '一等', 1, 1", "'2', '二等', 2, 1"}));
  EXPECT_TRUE(opened_.empty());
  auto* dialog = window().findChild<start::ChooseJobDialog*>();
  ASSERT_NE(dialog, nullptr);
  auto* jobs = dialog->findChild<QTreeWidget*>("jobs");
  EXPECT_EQ(jobs->topLevelItem(1)->text(1), "二等");
  jobs->setCurrentItem(jobs->topLevelItem(1));
  dialog->findChild<QPushButton*>("open")->click();
  ASSERT_EQ(opened_.size(), 1U);
  ASSERT_TRUE(opened_[0].chosen);
  EXPECT_EQ(opened_[0].chosen->id, "2");
  EXPECT_EQ(opened_[0].chosen->grade, 2);
  EXPECT_EQ(recent(), QStringList{"a.sqlite|SQLite|2・2級"});
}

TEST_F(StartWindowTest, TakesTheOnlyJobThereIsThoughNothingMarksIt) {
  window().openPath(job("a.sqlite", {"'7', '', 3, 0"}));
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_EQ(opened_[0].chosen->id, "7");
  window().openPath(job("empty.sqlite", {}));
  EXPECT_EQ(opened_.size(), 1U);
  EXPECT_TRUE(message().contains("ジョブが登録されていません。"));
}

TEST_F(StartWindowTest, AsksNothingWhereTheSelectionFileDecides) {
  folder_.write("program/JobSel.txt", "21");
  window().openPath(job("a.sqlite", {"'1', '', 1, 1", "'2', '', 2, 1"}));
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_FALSE(opened_[0].chosen);
}

TEST_F(StartWindowTest, MakesTheSampleJob) {
  press("sample");
  ASSERT_EQ(opened_.size(), 1U) << message().toStdString();
  EXPECT_EQ(opened_[0].text, folder_.path("seikahyou-sample/job.sqlite"));
}

TEST_F(StartWindowTest, OpensAFileThatIsDroppedOnIt) {
  const std::string path = job("a.sqlite", {"'1', '', 1, 1"});
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window(), &drop);
  QApplication::processEvents();
  EXPECT_EQ(opened_.size(), 1U);
  QMimeData words;
  words.setText("/a.sqlite");
  QDragEnterEvent refused({5, 5}, Qt::CopyAction, &words, Qt::LeftButton, Qt::NoModifier);
  refused.setAccepted(false);
  QApplication::sendEvent(&window(), &refused);
  EXPECT_FALSE(refused.isAccepted());
}

TEST_F(StartWindowTest, TellsWhenTheOperatorLeaves) {
  bool left = false;
  window().whenLeft([&left] { left = true; });
  press("leave");
  EXPECT_TRUE(left);
}

TEST_F(StartWindowTest, EveryControlHasAName) {
  for (const QWidget* widget : window().findChildren<QWidget*>()) {
    if (!qobject_cast<const QPushButton*>(widget) && !qobject_cast<const QTreeWidget*>(widget)) continue;
    auto* seen = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
  }
}

}  // namespace
