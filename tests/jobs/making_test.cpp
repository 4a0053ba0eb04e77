#include "jobs/making.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "jobs/examine.h"
#include "open/open.h"
#include "platform/files.h"
#include "support/database_steps.h"
#include "support/temporary_folder.h"
#include "text/error.h"

namespace {

class Making : public testing::Test {
 protected:
  Making() {
    job_.folder = folder_.path();
    job_.name = "諏訪 水準";
  }

  std::string field(const std::string& path, const std::string& table, const char* column) {
    const auto database = db::openDatabase(path);
    const auto records = database->openRecordset("SELECT * FROM " + table);
    return records->eof() ? "no record" : records->field(column).text();
  }
  std::size_t files() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_.path()),
                                                  std::filesystem::directory_iterator()));
  }
  std::string failure() {
    try {
      jobs::makeJob(job_);
      return "no error";
    } catch (const text::RuntimeError& error) {
      return error.what();
    }
  }

  test::TemporaryFolder folder_;
  jobs::NewJob job_;
};

TEST_F(Making, AJobGetsItsFileWithHeadingAndLists) {
  job_.title = " 一等水準測量 ";
  job_.grade = 2;
  job_.planner = "計画";
  job_.observer = "測量 太郎";
  job_.staffNumber = "20511";
  const std::string path = jobs::makeJob(job_);
  EXPECT_EQ(path, folder_.path("諏訪 水準.sqlite"));
  const auto found = jobs::examine(path);
  EXPECT_FALSE(found.trouble);
  EXPECT_EQ(found.entries, (std::vector<jobs::JobEntry>{{"1", "一等水準測量", 2, true}}));
  EXPECT_EQ(field(path, "EditTextData", "計画機関名"), "計画");
  EXPECT_EQ(field(path, "EditTextData", "作業地域"), "");
  EXPECT_EQ(field(path, "EditTextData", "観測者No"), "1");
  EXPECT_EQ(field(path, "EditTextData", "器械No"), "") << "no instrument was entered";
  EXPECT_EQ(field(path, "ComKansokushameiMst", "観測者名"), "測量 太郎");
  EXPECT_EQ(field(path, "ComShiyouKIkaimeiMst", "器械名"), "no record");
  EXPECT_EQ(field(path, "ComShiyouHyoushakuMeiMst", "標尺番号"), "20511");
  EXPECT_TRUE(test::holds(field(path, "A_ExePath", "Exe_Dir"), "諏訪 水準_data\\"));
}

TEST_F(Making, SaysWhatIsWrong) {
  job_.name = " ";
  EXPECT_EQ(failure(), "ファイル名を入力してください。");
  job_.name = "a/b";
  EXPECT_EQ(failure(), "ファイル名に / \\ : * ? \" < > | は使えません。");
  job_.name = "a.sqlite";
  job_.id = "12";
  EXPECT_EQ(failure(), "ジョブ番号は 1 文字です。");
  job_.id = "ア";
  job_.grade = 5;
  EXPECT_EQ(failure(), "等級は 1 から 4 です。");
  job_.folder = folder_.path("none");
  EXPECT_EQ(failure(), "フォルダ「" + folder_.path("none") + "」がありません。");
  EXPECT_EQ(files(), 0U);
}

TEST_F(Making, NeverWritesOverAFile) {
  folder_.write("諏訪 水準.sqlite", "mine");
  EXPECT_EQ(failure(),
            "「" + folder_.path("諏訪 水準.sqlite") + "」はすでにあります。別の名前にしてください。");
  EXPECT_EQ(platform::readFile(folder_.path("諏訪 水準.sqlite")), "mine");
}

TEST_F(Making, LeavesNothingBehindWhereItFails) {
  job_.title = std::string("a\xff\xfe");
  job_.folder = folder_.path();
  std::filesystem::permissions(folder_.path(),
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  const std::string told = failure();
  std::filesystem::permissions(folder_.path(), std::filesystem::perms::owner_all);
  if (told == "no error") GTEST_SKIP() << "root writes everywhere";
  EXPECT_EQ(files(), 0U);
}

TEST_F(Making, TheSampleIsMadeOnceInAFolderOfItsOwn) {
  const std::string path = jobs::sampleJob(folder_.path(), folder_.path());
  EXPECT_EQ(path, folder_.path("seikahyou-sample/job.sqlite"));
  EXPECT_EQ(jobs::settledEntry(jobs::examine(path).entries)->grade, 1);
  const auto made = platform::fileState(path);
  EXPECT_EQ(jobs::sampleJob(folder_.path(), folder_.path()), path);
  EXPECT_EQ(platform::fileState(path), made);
  EXPECT_THROW(jobs::sampleJob(folder_.path("none"), folder_.path()), text::RuntimeError);
}

}  // namespace
