#include <gtest/gtest.h>

#include "db/database.h"
#include "open/open.h"
#include "support/temporary_folder.h"

// Joins of tables without indexes through SQLite's driver: quick where no text ends in a blank, right
// everywhere.

namespace {

class SqliteJoins : public testing::Test {
 protected:
  SqliteJoins() {
    const auto file = db::createDatabase(folder_.path("job.sqlite"));
    file->execute("CREATE TABLE L(JobId TEXT, n INTEGER)");
    file->execute("CREATE TABLE R(JobId TEXT, n INTEGER)");
    file->execute("INSERT INTO L VALUES('1', 1), ('1', 2), ('22', 3)");
    file->execute("INSERT INTO R SELECT * FROM L");
    file->close();
    folder_.write("job.dsn", "[ODBC]\nDRIVER=SQLite3\nDATABASE=" + folder_.path("job.sqlite") + "\n");
  }

  static std::string joined(db::Database& database) {
    std::string result;
    const auto records = database.openRecordset(
        "SELECT L.n AS n FROM L LEFT JOIN R ON L.JobId = R.JobId AND L.n = R.n "
        "WHERE R.n > 0 ORDER BY L.n");
    for (; !records->eof(); records->moveNext()) result += records->field("n").text();
    return result;
  }

  test::TemporaryFolder folder_;
};

// 1, 2 and 3 find their like; the fourth pair, 'x' and 'x  ', comes while the connection stands.
TEST_F(SqliteJoins, ABlankWrittenMeanwhileIsLeftOut) {
  const auto database = db::openDatabase(folder_.path("job.dsn"));
  EXPECT_EQ(joined(*database), "123");
  const auto other = db::openDatabase(folder_.path("job.sqlite"));
  other->execute("INSERT INTO L VALUES('x', 4)");
  other->execute("INSERT INTO R VALUES('x  ', 4)");
  other->close();
  EXPECT_EQ(joined(*database), "1234");
  database->execute("DELETE FROM L WHERE n = 4");
  database->execute("DELETE FROM R WHERE n = 4");
  EXPECT_EQ(joined(*database), "123");
}

// The engine's settings change under records that are still being read.
TEST_F(SqliteJoins, OpenRecordsGoOn) {
  const auto database = db::openDatabase(folder_.path("job.dsn"));
  const auto open = database->openRecordset("SELECT n FROM L ORDER BY n");
  std::string seen;
  for (; !open->eof(); open->moveNext()) seen += open->field("n").text() + joined(*database) + " ";
  EXPECT_EQ(seen, "1123 2123 3123 ");
}

// The transaction in which a job is saved holds joins as well.
TEST_F(SqliteJoins, WritingGoesOnAroundAJoin) {
  const auto database = db::openDatabase(folder_.path("job.dsn"));
  const auto records = database->openRecordset("SELECT * FROM L WHERE n = 3", db::Access::Edit);
  records->remove();
  EXPECT_EQ(joined(*database), "12");
  records->addNew();
  records->set("JobId", "22 ");
  records->set("n", 3.0);
  records->update();
  EXPECT_EQ(joined(*database), "123");
  database->close();
  const auto again = db::openDatabase(folder_.path("job.sqlite"));
  EXPECT_EQ(joined(*again), "123");
}

TEST_F(SqliteJoins, AFaultyOneIsToldAndLeavesNoTransaction) {
  const auto database = db::openDatabase(folder_.path("job.dsn"));
  try {
    database->openRecordset("SELECT L.無い列 FROM L LEFT JOIN R ON L.JobId = R.JobId");
    FAIL() << "no error";
  } catch (const db::Error& error) {
    EXPECT_NE(std::string(error.what()).find("に列「L.無い列」がありません"), std::string::npos)
        << error.what();
  }
  database->execute("DELETE FROM L WHERE n > 1");
  const auto other = db::openDatabase(folder_.path("job.sqlite"));
  EXPECT_EQ(joined(*other), "1");
}

// A reader takes no lock along: another program writes as soon as the records are read.
TEST_F(SqliteJoins, AJoinThatWasReadKeepsNobodyOut) {
  const auto database = db::openDatabase(folder_.path("job.dsn"));
  EXPECT_EQ(joined(*database), "123");
  const auto other = db::openDatabase(folder_.path("job.sqlite"));
  other->execute("DELETE FROM L");
  other->close();
  EXPECT_EQ(joined(*database), "");
}

}  // namespace
