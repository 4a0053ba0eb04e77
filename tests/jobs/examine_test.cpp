#include "jobs/examine.h"

#include <gtest/gtest.h>

#include "exchange/create.h"
#include "open/open.h"
#include "platform/files.h"
#include "support/other_program.h"
#include "support/temporary_folder.h"

namespace {

class Examine : public testing::Test {
 protected:
  /// The cause that is told for a file with these bytes.
  std::string causeOf(const std::string& name, const std::string& bytes) {
    folder_.write(name, bytes);
    const auto found = jobs::examine(folder_.path(name));
    return found.trouble ? found.trouble->cause : "none";
  }
  std::string told(const std::string& what) const { return "「" + folder_.path("a") + "」" + what; }

  std::string job(std::initializer_list<const char*> statements = {}) {
    const std::string path = folder_.path("job.sqlite");
    exchange::createJob(path, [&](db::Database& database) {
      for (const char* statement : statements) database.execute(statement);
    });
    return path;
  }

  test::TemporaryFolder folder_;
};

TEST_F(Examine, TellsWhatIsNoFile) {
  EXPECT_EQ(jobs::examine("").trouble->cause, "ジョブのファイルが選ばれていません。");
  EXPECT_EQ(jobs::examine(folder_.path()).trouble->cause, "「" + folder_.path() + "」はフォルダです。");
  EXPECT_EQ(jobs::examine(folder_.path("a")).trouble->cause, told("が見つかりません。"));
}

TEST_F(Examine, TellsFilesOfOtherKinds) {
  EXPECT_EQ(causeOf("a", ""), told("は空のファイルです。"));
  EXPECT_EQ(causeOf("a", "標石番号,距離\r\n"), told("は文字のファイルで、ジョブではありません。"));
  EXPECT_EQ(causeOf("a", "PK\x03\x04..."),
            told("は Excel などの文書か圧縮ファイルで、ジョブではありません。"));
  EXPECT_EQ(causeOf("a", std::string("\x01\x00\x02", 3)),
            told("は壊れているか、ジョブではないファイルです。"));
}

TEST_F(Examine, TellsVersionsThatNoEngineReads) {
  EXPECT_EQ(causeOf("a", std::string("** This file contains an SQLite 2.1 database **\0", 48)),
            told("は SQLite 2 の形式です。このプログラムが読めるのは SQLite 3 です。"));
  EXPECT_EQ(causeOf("a", std::string("SQLite format 3\0\x10\x00\x03\x03", 20)),
            told("は、このプログラムより新しい版の SQLite の形式です。"));
  EXPECT_EQ(causeOf("a", std::string("\x00\x01\x00\x00Standard Jet DB\x00\x00", 21)),
            told("は Access 97 の形式です。今の Access のドライバーでは開けません。"));
}

TEST_F(Examine, TellsADamagedDatabase) {
  const std::string path = job();
  std::string bytes = platform::readFile(path).value();
  bytes = bytes.substr(0, 100) + std::string(bytes.size() - 100, '\x5a');
  EXPECT_NE(causeOf("job.sqlite", bytes).find("壊れています"), std::string::npos);
}

TEST_F(Examine, TellsADatabaseThatIsInUse) {
  const std::string path = job();
  test::OtherProgram other(path);
  other.run("BEGIN EXCLUSIVE");
  const auto found = jobs::examine(path);
  ASSERT_TRUE(found.trouble);
  EXPECT_NE(found.trouble->cause.find("他のプログラムが使用中です"), std::string::npos);
  EXPECT_NE(found.trouble->wayOut.find("作業が終わってから"), std::string::npos);
}

TEST_F(Examine, TellsADatabaseThatIsNoJob) {
  const auto make = [&](const char* statement) {
    const auto database = db::createDatabase(folder_.path("a"));
    database->execute(statement);
    database->close();
    const std::string cause = jobs::examine(folder_.path("a")).trouble->cause;
    platform::removeFile(folder_.path("a"));
    return cause;
  };
  EXPECT_EQ(make("CREATE TABLE T (n)"), told("はデータベースですが、水準測量のジョブではありません。"));
  EXPECT_EQ(make("CREATE TABLE JobData (JobId TEXT)"),
            told("はジョブですが、テーブル A_ExePath、KansokuSeikaData がありません。"));
}

TEST_F(Examine, ListsTheJobsOfADatabase) {
  const auto found = jobs::examine(job(
      {"INSERT INTO JobData VALUES ('1', '一等', 1, 0)", "INSERT INTO JobData VALUES ('2 ', NULL, 2, 1)"}));
  EXPECT_FALSE(found.trouble);
  EXPECT_EQ(found.engine, "SQLite");
  EXPECT_EQ(found.entries, (std::vector<jobs::JobEntry>{{"1", "一等", 1, false}, {"2", "", 2, true}}));
  EXPECT_EQ(jobs::settledEntry(found.entries)->id, "2");
}

TEST(WayOut, OfAMissingDriverTellsWhatItHasToBe) {
  const std::string access = jobs::wayOut(db::Cause::NoDriver, "Access");
  for (const char* part : {"同じビット数", "32 ビット版", "seikahyou-job copy"})
    EXPECT_NE(access.find(part), std::string::npos) << part;
  const std::string other = jobs::wayOut(db::Cause::NoDriver, "ODBC");
  EXPECT_EQ(other.find("Access"), std::string::npos);
  EXPECT_NE(other.find("seikahyou-job copy"), std::string::npos);
  EXPECT_NE(jobs::wayOut(db::Cause::NoLogin, "ODBC").find("パスワード"), std::string::npos);
}

TEST(SettledEntry, IsTheOneExecutedOrTheOnlyOne) {
  using Entries = std::vector<jobs::JobEntry>;
  const Entries one{{"1", "", 1, false}};
  EXPECT_EQ(jobs::settledEntry(one), &one.front());
  EXPECT_EQ(jobs::settledEntry(Entries{}), nullptr);
  EXPECT_EQ(jobs::settledEntry(Entries{{"1", "", 1, false}, {"2", "", 1, false}}), nullptr)
      << "none is marked";
  EXPECT_EQ(jobs::settledEntry(Entries{{"1", "", 1, true}, {"2", "", 1, true}}), nullptr) << "two are marked";
}

}  // namespace
