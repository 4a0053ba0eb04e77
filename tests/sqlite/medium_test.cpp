#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>

#include "open/open.h"
#include "support/database_test.h"

namespace {

using test::DatabaseTest;
using test::failure;
using test::holds;

/// What a child process says: it may give up rights or be limited without harm to the test program.
template <typename Act>
std::string saidByChild(Act act) {
  int ends[2];
  if (pipe(ends) != 0) return "no pipe";
  const pid_t child = fork();
  if (child == 0) {
    const std::string said = act();
    const bool told = write(ends[1], said.data(), said.size()) == static_cast<ssize_t>(said.size());
    _exit(told ? 0 : 1);
  }
  close(ends[1]);
  std::string said;
  char buffer[512];
  for (ssize_t n = 0; (n = read(ends[0], buffer, sizeof buffer)) > 0;)
    said.append(buffer, static_cast<std::size_t>(n));
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return said;
}

class Medium : public DatabaseTest {
 protected:
  void SetUp() override { make("CREATE TABLE T(a TEXT); INSERT INTO T VALUES('old')"); }

  /// Deletes the old record and adds new ones until the medium refuses; what it said, and what the close
  /// said.
  std::string fill(db::Database& database) const {
    const std::string refusal = failure([&] {
      const auto records = database.openRecordset("SELECT * FROM T", db::Access::Edit);
      records->remove();
      for (int i = 0; i < 20000; ++i) {
        records->addNew();
        records->set("a", std::string(1000, 'x'));
        records->update();
      }
    });
    return refusal + "|" + failure([&] { database.close(); });
  }
  std::string named(const std::string& rest) const { return "データベース「" + path_ + "」" + rest; }
  std::string lost() const { return named("への書き込みは、先に起きたエラーのためすべて取り消されました。"); }
};

TEST_F(Medium, AFullDiskLeavesTheOldRecords) {
  const auto database = open();
  database->execute("PRAGMA max_page_count=50");
  EXPECT_EQ(fill(*database), "ディスクの空き容量が足りないため、" +
                                 named("に書き込めません: database or disk is full") + "|" + lost());
  EXPECT_EQ(ask("SELECT group_concat(a) FROM T"), "old");
}

TEST_F(Medium, AWriteErrorLeavesTheOldRecords) {
  const std::string said = saidByChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{200000, 200000};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto database = open();
    return fill(*database);
  });
  EXPECT_TRUE(holds(said, named("の読み書きに失敗しました: disk I/O error"))) << said;
  EXPECT_EQ(ask("SELECT group_concat(a) FROM T"), "old");
}

TEST_F(Medium, AReadOnlyFileIsReadAndNotWritten) {
  ASSERT_EQ(chmod(path_.c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  const std::string said = saidByChild([&] {
    if (geteuid() == 0 && seteuid(65534) != 0) return std::string("cannot give up rights");
    const auto database = open();
    const std::string seen = texts(*database, "SELECT a FROM T", "a").at(0);
    const auto records = database->openRecordset("SELECT * FROM T", db::Access::Edit);
    return seen + "|" + records->field("a").text() + "|" + failure([&] { records->remove(); }) + "|" +
           failure([&] { database->execute("DELETE FROM T"); });
  });
  const std::string refused =
      named("は読み取り専用のため書き込めません: attempt to write a readonly database");
  EXPECT_EQ(said, "old|old|" + refused + "|" + refused);
  EXPECT_EQ(ask("SELECT a FROM T"), "old");
}

TEST_F(Medium, WhatKeepsAWriterOutIsToldAheadAndAtOnce) {
  const auto database = open();
  EXPECT_EQ(database->writeBar(), db::WriteBar::None);
  {
    const auto writer = open();
    writer->gather();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(database->writeBar(), db::WriteBar::Locked);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1)) << "nobody was waited for";
    EXPECT_EQ(writer->writeBar(), db::WriteBar::None);
  }
  EXPECT_EQ(database->writeBar(), db::WriteBar::None);
  database->execute("INSERT INTO T VALUES('new')");  // nothing was left begun
}

TEST_F(Medium, AReadOnlyFileIsToldAhead) {
  ASSERT_EQ(chmod(path_.c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  const std::string said = saidByChild([&] {
    if (geteuid() == 0 && seteuid(65534) != 0) return std::string("cannot give up rights");
    return std::string(open()->writeBar() == db::WriteBar::ReadOnly ? "read-only" : "writable");
  });
  EXPECT_EQ(said, "read-only");
}

TEST_F(Medium, AJobWithAWriteAheadLogOnAReadOnlyMediumIsRead) {
  make("PRAGMA journal_mode=WAL; INSERT INTO T VALUES('logged')");
  ASSERT_EQ(chmod(path_.c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  const std::string said = saidByChild([&] {
    if (geteuid() == 0 && seteuid(65534) != 0) return std::string("cannot give up rights");
    const auto database = open();
    return texts(*database, "SELECT a FROM T", "a").at(1) + "|" +
           failure([&] { database->execute("DELETE FROM T"); });
  });
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  EXPECT_EQ(said,
            "logged|" + named("は読み取り専用のため書き込めません: attempt to write a readonly database"));
}

TEST_F(Medium, AFileWithoutRightsIsNotRead) {
  ASSERT_EQ(chmod(path_.c_str(), 0), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  const std::string said = saidByChild([&] {
    if (geteuid() == 0 && seteuid(65534) != 0) return std::string("cannot give up rights");
    return failure([&] { open(); });
  });
  EXPECT_EQ(said, named("を読む権限がありません。"));
}

TEST_F(Medium, APipeIsNotWaitedFor) {
  const std::string path = folder_.path("pipe");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(failure([&] { db::openDatabase(path); }), "「" + path + "」はファイルではありません。");
}

TEST_F(Medium, ADamagedPageIsTold) {
  make(
      "INSERT INTO T SELECT hex(randomblob(1000)) FROM (SELECT 1 UNION SELECT 2 UNION SELECT 3 UNION SELECT "
      "4)");
  {
    std::fstream file(path_, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(4096);  // the root page of T
    file << std::string(200, '\xFF');
  }
  const auto database = open();
  EXPECT_EQ(failure([&] { texts(*database, "SELECT a FROM T", "a"); }),
            named("は壊れています: database disk image is malformed"));
}

}  // namespace
