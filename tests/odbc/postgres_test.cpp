#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "db/database.h"
#include "open/open.h"
#include "support/database_steps.h"
#include "support/postgres_server.h"
#include "support/server_tests.h"

// What is the PostgreSQL server's own: its words, its locks, its order.

namespace {

using test::add;
using test::deleted;
using test::failure;
using test::holds;

test::PostgresServer& server() {
  static test::PostgresServer one;
  return one;
}

class Postgres : public testing::Test {
 protected:
  void SetUp() override {
    execute("CREATE TABLE T(JobId TEXT, n INTEGER CHECK(n < 100), 標高 REAL)");
    execute("CREATE TABLE Log(n INTEGER PRIMARY KEY)");
    execute("INSERT INTO T VALUES('1', 1, 10.5), ('1', 2, NULL), ('2', 3, 30)");
  }

  std::unique_ptr<db::Database> open() const { return db::openDatabase(path_); }
  void execute(const std::string& sql) const {
    const auto database = open();
    database->execute(sql);
    database->close();
  }
  std::string listed(const std::string& sql) const { return listed(*open(), sql); }
  static std::string listed(db::Database& database, const std::string& sql) {
    std::string result;
    for (const auto records = database.openRecordset(sql); !records->eof(); records->moveNext()) {
      const db::Value value = records->value(db::Column{0});
      result += (result.empty() ? "" : ",") + (value.isNull() ? "-" : value.text());
    }
    return result;
  }
  std::string numbers() const { return listed("SELECT n FROM T ORDER BY n"); }
  std::string named(const std::string& rest) const { return "データベース「" + path_ + "」" + rest; }

  test::TemporaryFolder folder_;
  std::string path_ = folder_.write("職場.dsn", server().newDatabase());
};

TEST_F(Postgres, NamesInAnyLetterCaseFindTablesOfEveryMaker) {
  EXPECT_EQ(listed("SELECT N FROM t WHERE JOBID = '2 '"), "3");
  // A table as other programs make it: the server has written its names small.
  execute("CREATE TABLE \"other\"(\"jobid\" text, \"saveorder\" integer)");
  execute("INSERT INTO OTHER VALUES('7', 1)");
  EXPECT_EQ(listed("SELECT JobId FROM Other WHERE SaveOrder = '1 '"), "7");
  EXPECT_EQ(open()->tableDefinition("OTHER").at(1).name, "saveorder");
}

TEST_F(Postgres, TextsAreSortedByBytesWithNullFirst) {
  execute("DELETE FROM T");
  execute("INSERT INTO T(JobId) VALUES('b'), ('B'), ('a'), (NULL), ('水'), ('A1')");
  EXPECT_EQ(listed("SELECT JobId FROM T ORDER BY JobId"), "-,A1,B,a,b,水");
  EXPECT_EQ(listed("SELECT DISTINCT JobId FROM T WHERE JobId >= 'A' ORDER BY JobId DESC"), "水,b,a,B,A1");
  EXPECT_EQ(listed("SELECT JobId FROM T WHERE JobId < 'a'"), "B,A1");
}

TEST_F(Postgres, RecordsComeInTheOrderWrittenAlsoWhereRoomIsUsedAgain) {
  const auto database = open();
  const auto records = database->openRecordset("SELECT * FROM T", db::Access::Edit);
  for (int i = 0; i < 40; ++i) add(*records, i);
  database->close();
  execute("DELETE FROM T WHERE n < 20");
  execute("VACUUM \"T\"");  // the room of the first records is free again
  execute("INSERT INTO T(n) VALUES(90)");
  execute("INSERT INTO T(n) VALUES(80)");
  EXPECT_EQ(listed("SELECT n FROM T WHERE n > 36"), "37,38,39,90,80");
}

TEST_F(Postgres, MissingNamesAreNamed) {
  const auto database = open();
  const auto sqlFailure = [&](const std::string& sql) {
    return failure([&] { database->openRecordset(sql); });
  };
  EXPECT_EQ(sqlFailure("SELECT * FROM 無い表"),
            named("にテーブル「無い表」がありません: ERROR: relation \"無い表\" does not exist"));
  EXPECT_EQ(sqlFailure("SELECT 無い列 FROM T"),
            named("に列「無い列」がありません: ERROR: column \"無い列\" does not exist"));
  EXPECT_EQ(sqlFailure("SELECT A.無い列 FROM T A"),
            named("に列「a.無い列」がありません: ERROR: column a.無い列 does not exist"));
  EXPECT_TRUE(holds(sqlFailure("SELECT n FROM T, Log"), "列「n」がどのテーブルのものか決まりません"));
  EXPECT_TRUE(holds(sqlFailure("SELEC * FROM T"), "への SQL 文に誤りがあります: ERROR: syntax error"));
  EXPECT_EQ(failure([&] { database->tableDefinition("無い表"); }),
            named("にテーブル「無い表」がありません。"));
}

TEST_F(Postgres, ARefusedRecordLeavesTheEarlierWork) {
  const auto database = open();
  const auto records = deleted(*database);
  add(*records, 11);
  EXPECT_TRUE(
      holds(failure([&] { add(*records, 100); }),
            named("のテーブル「T」の制約に反するため書き込めません: ERROR: new row for relation \"T\"")));
  EXPECT_TRUE(
      holds(failure([&] { database->execute("INSERT INTO Log VALUES('x')"); }), "列の型に合わない値です"));
  EXPECT_TRUE(holds(failure([&] { database->openRecordset("SELECT 無 FROM T"); }), "列「無」"));
  add(*records, 12);
  EXPECT_EQ(numbers(), "1,2,3");  // others see the old records
  database->close();
  EXPECT_EQ(numbers(), "3,11,12");
}

// Far more records than are written from one savepoint to the next.
TEST_F(Postgres, ARefusedRecordAmongManyLeavesTheOthersInTheirOrder) {
  const auto database = open();
  const auto records = deleted(*database);
  std::string expected = "3";
  const auto refuse = [&] {
    EXPECT_TRUE(holds(failure([&] { add(*records, 100); }), "制約に反するため書き込めません"));
  };
  refuse();  // the deletions before it stay
  for (int i = 0; i < 1203; ++i) {
    add(*records, i % 97);
    expected += "," + std::to_string(i % 97);
    if (i == 200 || i == 201 || i == 1000) refuse();
  }
  EXPECT_EQ(listed(*database, "SELECT n FROM T"), expected);
  refuse();
  database->close();
  EXPECT_EQ(listed("SELECT n FROM T"), expected);
}

TEST_F(Postgres, AChangedRecordIsFoundAgainBehindARefusedOne) {
  const auto database = open();
  const auto records = database->openRecordset("SELECT * FROM T WHERE n = 2", db::Access::Edit);
  const auto refuse = [&] { EXPECT_NE(failure([&] { add(*records, 100); }), "no error"); };
  add(*records, 50);
  for (const char* text : {"x", "y"}) {
    records->edit();
    records->set("JobId", text);
    records->update();
    add(*records, 51);
    refuse();
    EXPECT_EQ(records->field("JobId"), db::Value(text));
  }
  const auto added = database->openRecordset("SELECT * FROM T WHERE n = 51", db::Access::Edit);
  refuse();
  for (; !added->eof(); added->moveNext()) added->remove();
  records->remove();
  refuse();
  database->close();
  EXPECT_EQ(numbers(), "1,3,50");
}

TEST_F(Postgres, AWorkLeftWithoutACloseIsKept) {
  {
    const auto database = open();
    const auto records = deleted(*database);
    add(*records, 11);
    records->addNew();
    EXPECT_TRUE(holds(failure([&] { records->set("無", 1.0); }), "列「無」"));
  }
  EXPECT_EQ(numbers(), "3,11");
}

TEST_F(Postgres, AChangedRecordIsFoundAgain) {
  const auto database = open();
  const auto records = database->openRecordset("SELECT * FROM T ORDER BY n", db::Access::Edit);
  for (const char* text : {"x", "y"}) {
    records->edit();
    records->set("JobId", text);
    records->update();
    EXPECT_EQ(records->field("JobId"), db::Value(text));
  }
  records->remove();
  database->close();
  EXPECT_EQ(numbers(), "2,3");
}

TEST_F(Postgres, ASecondWriterWaitsAndIsToldReadersAreNot) {
  const auto first = open();
  deleted(*first);
  const auto second = open();
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(holds(failure([&] { second->openRecordset("SELECT * FROM T", db::Access::Edit); }),
                    named("は他のプログラムが使用中です: ERROR: canceling statement due to lock timeout")));
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(2500));
  EXPECT_EQ(listed(*second, "SELECT n FROM T ORDER BY n"), "1,2,3");
  second->openRecordset("SELECT * FROM Log", db::Access::Edit);  // another table is free
  second->close();
  first->close();
  EXPECT_EQ(numbers(), "3");
}

// 1.5 seconds for the first table leave 1.5 for the second: 3 altogether, not 4.5.
TEST_F(Postgres, AnActWaitsOnceHoweverManyTablesItWrites) {
  auto first = open();
  deleted(*first);
  const auto other = open();
  other->openRecordset("SELECT * FROM Log", db::Access::Edit);
  const auto act = open();
  const auto start = std::chrono::steady_clock::now();
  std::thread done([&first] {
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    first->close();
  });
  act->openRecordset("SELECT * FROM T", db::Access::Edit);
  EXPECT_TRUE(holds(failure([&] { act->openRecordset("SELECT * FROM Log", db::Access::Edit); }),
                    "は他のプログラムが使用中です"));
  const auto waited = std::chrono::steady_clock::now() - start;
  done.join();
  EXPECT_GE(waited, std::chrono::milliseconds(2500));
  EXPECT_LT(waited, std::chrono::milliseconds(4000));
}

TEST_F(Postgres, ALostConnectionKeepsTheOldRecordsAndIsTold) {
  const auto database = open();
  const auto records = deleted(*database);
  add(*records, 11);
  listed(
      "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE pid <> pg_backend_pid() AND datname = "
      "current_database()");
  EXPECT_TRUE(holds(failure([&] { add(*records, 12); }), "データベース「"));
  EXPECT_NE(failure([&] { database->close(); }), "no error");
  EXPECT_EQ(numbers(), "1,2,3");
}

TEST_F(Postgres, AConnectionLostBeforeTheCloseIsTold) {
  const auto database = open();
  add(*deleted(*database), 11);
  listed(
      "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE pid <> pg_backend_pid() AND datname = "
      "current_database()");
  EXPECT_NE(failure([&] { database->close(); }), "no error");
  EXPECT_EQ(numbers(), "1,2,3");
}

TEST_F(Postgres, AJoinOverManyRecordsIsNotSquare) {
  execute("CREATE TABLE L(a TEXT, n INTEGER)");
  execute("CREATE TABLE R(a TEXT, n TEXT)");
  execute("INSERT INTO L SELECT 'job', i FROM generate_series(1, 16000) AS g(i)");
  execute("INSERT INTO R SELECT a || '  ', n || ' ' FROM L");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(listed("SELECT count(*) FROM L LEFT JOIN R ON (L.a = R.a) AND (L.n = R.n) WHERE R.n > ''"),
            "16000");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(Postgres, AServerThatIsNotThereIsTold) {
  const std::string path = folder_.write(
      "x.dsn", "[ODBC]\nDRIVER=PostgreSQL Unicode\nSERVER=" + folder_.path() + "\nDATABASE=x\nUID=x\n");
  EXPECT_TRUE(
      holds(failure([&] { db::openDatabase(path); }), "データベース「" + path + "」に接続できません: "));
}

}  // namespace

int main(int count, char** arguments) { return test::runServerTests(count, arguments); }
