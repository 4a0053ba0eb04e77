#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "support/database_test.h"

namespace {

using test::add;
using test::DatabaseTest;
using test::deleted;
using test::failure;
using test::holds;

class Gathering : public DatabaseTest {
 protected:
  void SetUp() override {
    make(
        "CREATE TABLE T(JobId TEXT, n INTEGER CHECK(n < 100));"
        "INSERT INTO T VALUES('1', 1), ('1', 2), ('2', 3);"
        "CREATE TABLE Log(n INTEGER PRIMARY KEY);");
  }

  std::string numbers() const { return listed("SELECT n FROM T ORDER BY n", "n", ","); }
  std::string named(const std::string& rest) const { return "データベース「" + path_ + "」" + rest; }
};

TEST_F(Gathering, OthersSeeTheOldRecordsUntilTheClose) {
  const auto database = open();
  const auto records = deleted(*database);
  add(*records, 11);
  database->execute("INSERT INTO Log VALUES(5)");
  EXPECT_EQ(numbers(), "1,2,3");
  EXPECT_EQ(ask("SELECT count(*) FROM Log"), "0");
  EXPECT_EQ(texts(*database, "SELECT n FROM T ORDER BY n", "n"), (std::vector<std::string>{"3", "11"}));
  database->close();
  EXPECT_EQ(numbers(), "3,11");
  EXPECT_EQ(ask("SELECT n FROM Log"), "5");
}

TEST_F(Gathering, WhatIsExecutedAloneIsThereAtOnce) {
  const auto database = open();
  database->execute("INSERT INTO Log VALUES(5)");
  EXPECT_EQ(ask("SELECT n FROM Log"), "5");
}

TEST_F(Gathering, ARefusedRecordLeavesTheEarlierWork) {
  const auto database = open();
  const auto records = deleted(*database);
  add(*records, 11);
  EXPECT_EQ(failure([&] { add(*records, 100); }),
            named("のテーブル「T」の制約に反するため書き込めません: CHECK constraint failed: n < 100"));
  add(*records, 12);
  database->close();
  EXPECT_EQ(numbers(), "3,11,12");
}

TEST_F(Gathering, ATriggersRefusalLeavesTheEarlierWork) {
  make("CREATE TRIGGER R BEFORE INSERT ON T WHEN new.n = 50 BEGIN SELECT RAISE(ABORT, '五十は不可'); END");
  {
    const auto database = open();
    const auto records = deleted(*database);
    add(*records, 11);
    EXPECT_EQ(failure([&] { add(*records, 50); }),
              named("のテーブル「T」の制約に反するため書き込めません: 五十は不可"));
  }  // an operator's save ends here without a close
  EXPECT_EQ(numbers(), "3,11");
}

TEST_F(Gathering, AWrongColumnLeavesTheEarlierWork) {
  {
    const auto database = open();
    const auto records = deleted(*database);
    records->addNew();
    EXPECT_TRUE(holds(failure([&] { records->set("無", 1.0); }), "列「無」"));
  }
  EXPECT_EQ(numbers(), "3");
}

TEST_F(Gathering, AFailedStatementLeavesTheEarlierWork) {
  const auto database = open();
  deleted(*database);
  EXPECT_EQ(failure([&] { database->execute("INSERT INTO Log VALUES(1, 2)"); }),
            named("で SQL 文を実行できません: table Log has 1 columns but 2 values were supplied"));
  EXPECT_EQ(failure([&] { database->execute("INSERT INTO Log(m) VALUES(1)"); }),
            named("のテーブル「Log」に列「m」がありません: table Log has no column named m"));
  EXPECT_EQ(failure([&] { database->execute("INSERT INTO Log VALUES('x')"); }),
            named("の列の型に合わない値です: datatype mismatch"));
  database->close();
  EXPECT_EQ(numbers(), "3");
}

TEST_F(Gathering, WhatTheEngineRollsBackIsLostAndSaidSo) {
  make("CREATE TRIGGER R BEFORE INSERT ON T WHEN new.n = 50 BEGIN SELECT RAISE(ROLLBACK, 'all back'); END");
  const auto database = open();
  const auto records = deleted(*database);
  EXPECT_TRUE(holds(failure([&] { add(*records, 50); }), "all back"));
  const std::string lost = named("への書き込みは、先に起きたエラーのためすべて取り消されました。");
  EXPECT_EQ(failure([&] { add(*records, 12); }), lost);
  EXPECT_EQ(failure([&] { database->execute("DELETE FROM T"); }), lost);
  EXPECT_EQ(failure([&] { database->openRecordset("SELECT * FROM T", db::Access::Edit); }), lost);
  EXPECT_EQ(failure([&] { database->close(); }), lost);
  EXPECT_EQ(numbers(), "1,2,3");
}

TEST_F(Gathering, ARefusedCommitRollsBackAndIsTold) {
  make(
      "CREATE TABLE P(id INTEGER PRIMARY KEY);"
      "CREATE TABLE C(p INTEGER REFERENCES P(id) DEFERRABLE INITIALLY DEFERRED);");
  const auto database = open();
  database->execute("PRAGMA foreign_keys=ON");
  deleted(*database);
  database->execute("INSERT INTO C VALUES(7)");
  EXPECT_EQ(failure([&] { database->close(); }),
            named("の制約に反するため書き込めません: FOREIGN KEY constraint failed"));
  EXPECT_EQ(numbers(), "1,2,3");
  EXPECT_EQ(ask("SELECT count(*) FROM C"), "0");
}

TEST_F(Gathering, AReaderInTheWayOfTheCommitIsToldAfterTheWait) {
  test::OtherProgram reader(path_);
  const auto database = open();
  deleted(*database);
  reader.run("BEGIN");
  EXPECT_EQ(reader.ask("SELECT count(*) FROM T"), "3");  // keeps its view until it ends
  EXPECT_EQ(failure([&] { database->close(); }), named("は他のプログラムが使用中です: database is locked"));
  reader.run("COMMIT");
  EXPECT_EQ(numbers(), "1,2,3");
}

TEST_F(Gathering, ASecondWriterIsKeptOut) {
  test::OtherProgram other(path_);
  other.run("BEGIN IMMEDIATE");
  const auto database = open();
  EXPECT_EQ(texts(*database, "SELECT n FROM T WHERE n = 3", "n"), std::vector<std::string>{"3"});
  EXPECT_EQ(failure([&] { deleted(*database); }), named("は他のプログラムが使用中です: database is locked"));
  other.run("ROLLBACK");
  deleted(*database);
  database->close();
  EXPECT_EQ(numbers(), "3");
}

TEST_F(Gathering, TheCloseCommitsPastOpenRecords) {
  const auto database = open();
  const auto reading = database->openRecordset("SELECT * FROM T");
  const auto records = deleted(*database);
  add(*records, 11);
  database->close();
  EXPECT_EQ(numbers(), "3,11");
  test::OtherProgram(path_).run("BEGIN EXCLUSIVE; COMMIT");  // no lock is left behind
}

#ifndef _WIN32  // a process that stands as this one stood needs a fork
TEST_F(Gathering, AKilledProcessLeavesTheOldRecords) {
  const pid_t child = fork();
  if (child == 0) {
    const auto database = open();
    const auto records = deleted(*database);
    for (int i = 0; i < 50; ++i) add(*records, i);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(numbers(), "1,2,3");
}
#endif

TEST_F(Gathering, DiscardedWorkLeavesTheDatabaseAsItWas) {
  make("CREATE TABLE Old(a TEXT); INSERT INTO Old VALUES('x')");
  const auto database = open();
  database->gather();
  database->execute("CREATE TABLE New(a TEXT)");
  database->execute("INSERT INTO New VALUES('y')");
  const auto records = database->openRecordset("SELECT * FROM Old", db::Access::Edit);
  records->remove();
  EXPECT_EQ(texts(*database, "SELECT a FROM New", "a"), std::vector<std::string>{"y"});
  database->discard();
  database->discard();
  database->close();
  EXPECT_TRUE(holds(failure([&] { database->execute("DELETE FROM Old"); }), "閉じられています"));
  EXPECT_EQ(ask("SELECT a FROM Old"), "x");
  EXPECT_TRUE(holds(failure([&] { open()->tableDefinition("New"); }), "テーブル「New」がありません"));
}

TEST_F(Gathering, TablesMadeReachTheDiskWithTheirRecords) {
  const auto database = open();
  database->gather();
  database->execute("CREATE TABLE New(a TEXT)");
  const auto records = database->openRecordset("SELECT * FROM New", db::Access::Edit);
  records->addNew();
  records->set("a", "y");
  records->update();
  database->close();
  EXPECT_EQ(ask("SELECT a FROM New"), "y");
}

TEST_F(Gathering, ARefusalLosesAllThatIsKeptAsAWhole) {
  const auto database = open();
  database->keepWhole();
  database->execute("INSERT INTO Log VALUES(5)");
  const auto records = deleted(*database);
  add(*records, 11);
  EXPECT_TRUE(holds(failure([&] { add(*records, 100); }), "制約に反する"));
  const std::string lost = named("への書き込みは、先に起きたエラーのためすべて取り消されました。");
  EXPECT_EQ(failure([&] { add(*records, 12); }), lost);
  EXPECT_EQ(failure([&] { database->close(); }), lost);
  EXPECT_EQ(numbers(), "1,2,3");
  EXPECT_EQ(ask("SELECT count(*) FROM Log"), "0");
}

TEST_F(Gathering, AnEndWithoutACloseLosesAllThatIsKeptAsAWhole) {
  {
    const auto database = open();
    database->keepWhole();
    const auto records = deleted(*database);
    add(*records, 11);
    records->addNew();
    EXPECT_TRUE(holds(failure([&] { records->set("無", 1.0); }), "列「無」"));
  }
  EXPECT_EQ(numbers(), "1,2,3");
}

TEST_F(Gathering, AWholeOfSeveralTablesReachesTheDiskTogether) {
  const auto database = open();
  database->keepWhole();
  const auto records = deleted(*database);
  add(*records, 11);
  database->execute("INSERT INTO Log VALUES(5)");
  EXPECT_EQ(numbers(), "1,2,3");
  database->close();
  EXPECT_EQ(numbers(), "3,11");
  EXPECT_EQ(ask("SELECT n FROM Log"), "5");
}

TEST_F(Gathering, ADatabaseInOrderHasNoDamage) { EXPECT_EQ(open()->damage(), std::vector<std::string>{}); }

TEST_F(Gathering, NothingGatheredIsNothingDiscarded) {
  make("CREATE TABLE Old(a TEXT)");
  const auto database = open();
  database->execute("INSERT INTO Old VALUES('x')");
  database->discard();
  EXPECT_EQ(ask("SELECT a FROM Old"), "x");
}

}  // namespace
