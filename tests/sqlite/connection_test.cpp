#include <sqlite3.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "support/database_test.h"

namespace {

using test::failure;
using test::holds;

class Connection : public test::DatabaseTest {
 protected:
  void SetUp() override {
    make(
        "CREATE TABLE T(JobId TEXT, n INTEGER, words TEXT);"
        "INSERT INTO T VALUES('1', 1, 'old'), ('1', 2, 'old'), ('2', 3, 'old')");
  }
};

/// SQLite may use no more memory than at the moment.
class NoMoreMemory {
 public:
  NoMoreMemory() { sqlite3_hard_heap_limit64(sqlite3_memory_used() + 1024); }
  ~NoMoreMemory() { sqlite3_hard_heap_limit64(0); }
  NoMoreMemory(const NoMoreMemory&) = delete;
  NoMoreMemory& operator=(const NoMoreMemory&) = delete;
};

TEST_F(Connection, WhereMemoryRunsOutNothingOfASaveIsKept) {
  if (sqlite3_hard_heap_limit64(-1) != 0 || sqlite3_memory_used() < 0) GTEST_SKIP();
  {
    const auto database = open();
    const auto records = test::deleted(*database);
    test::add(*records, 11);
    std::string refused;
    {
      const NoMoreMemory limit;
      refused = failure([&] {
        for (int i = 0; i < 1000; ++i) {
          records->addNew();
          records->set("words", std::string(100000, 'x'));
          records->update();
        }
      });
    }
    EXPECT_TRUE(holds(refused, "メモリが足りない")) << refused;
    EXPECT_TRUE(holds(failure([&] { test::add(*records, 12); }), "すべて取り消されました"));
    EXPECT_TRUE(holds(failure([&] { database->close(); }), "すべて取り消されました"));
  }
  EXPECT_EQ(listed("SELECT n FROM T ORDER BY n", "n", ","), "1,2,3");
}

/// The durable settings cannot be made while another program has locked the file.
TEST_F(Connection, AJobLockedAtItsOpeningIsRefusedAfterOneWait) {
  test::OtherProgram other(path_);
  other.run("BEGIN EXCLUSIVE");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(holds(failure([&] { open(); }), "使用中"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(4500));
}

TEST_F(Connection, LocksAreWaitedForOnceForAllStatements) {
  const auto database = open();
  test::OtherProgram other(path_);
  other.run("BEGIN EXCLUSIVE");
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 5; ++i)
    EXPECT_TRUE(holds(failure([&] { database->openRecordset("SELECT * FROM T"); }), "使用中"));
  const auto waited = std::chrono::steady_clock::now() - start;
  EXPECT_GE(waited, std::chrono::milliseconds(2500));
  EXPECT_LT(waited, std::chrono::milliseconds(5000));
}

TEST_F(Connection, WhatHasNoRowNumbersIsReadAndNotWritten) {
  make(
      "CREATE TABLE W(k TEXT PRIMARY KEY, n INTEGER) WITHOUT ROWID; INSERT INTO W VALUES('a', 7);"
      "CREATE VIEW V AS SELECT n FROM T");
  const auto database = open();
  EXPECT_EQ(texts(*database, "SELECT * FROM W", "n"), std::vector<std::string>{"7"});
  EXPECT_EQ(texts(*database, "SELECT * FROM V", "n").size(), 3U);
  const std::string named = "データベース「" + path_ + "」";
  EXPECT_EQ(
      failure([&] { database->openRecordset("SELECT * FROM w", db::Access::Edit); }),
      named + "のテーブル「w」は行の番号がない表（WITHOUT ROWID）のため、読み込みだけで書き込めません。");
  EXPECT_EQ(failure([&] { database->openRecordset("SELECT * FROM V", db::Access::Edit); }),
            named + "の「V」はビューのため、読み込みだけで書き込めません。");
}

TEST_F(Connection, DamageIsFound) {
  make(
      "CREATE TABLE U(a TEXT); CREATE INDEX I ON U(a);"
      "INSERT INTO U WITH c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c WHERE x<2000) SELECT 'words '||x "
      "FROM c");
  const auto size = std::filesystem::file_size(path_);
  std::fstream file(path_, std::ios::in | std::ios::out | std::ios::binary);
  file.seekp(static_cast<std::streamoff>(size - 4096));
  file << std::string(100, '\x55');
  file.close();
  std::vector<std::string> found;
  const std::string refused = failure([&] { found = open()->damage(); });
  EXPECT_TRUE(holds(refused, "壊れています") || !found.empty()) << refused;
}

}  // namespace
