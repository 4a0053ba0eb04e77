#include <chrono>

#include "open/open.h"
#include "platform/files.h"
#include "support/database_test.h"

namespace {

using test::DatabaseTest;
using test::failure;
using test::holds;

class OpenDatabase : public DatabaseTest {
 protected:
  std::string openFailure(const std::string& path) const {
    return failure([&] { db::openDatabase(path); });
  }
};

TEST_F(OpenDatabase, JapaneseNamesAndBackslashesAreFound) {
  platform::makeFolder(folder_.path("現場 一"));
  path_ = folder_.path("現場 一/水準.mdb");
  make("CREATE TABLE T(a); INSERT INTO T VALUES('x')");
  const auto database = db::openDatabase(folder_.path() + "\\現場 一\\水準.mdb");
  EXPECT_EQ(texts(*database, "SELECT a FROM T", "a"), std::vector<std::string>{"x"});
}

TEST_F(OpenDatabase, AnEmptyPathIsRefused) {
  EXPECT_EQ(openFailure(""), "データベースのパスが指定されていません。");
}

TEST_F(OpenDatabase, AMissingFileIsNotMade) {
  EXPECT_EQ(openFailure(path_), "データベース「" + path_ + "」が見つかりません。");
  EXPECT_FALSE(platform::isFile(path_));
  const std::string memory = openFailure(":memory:");
  EXPECT_EQ(memory, "データベース「:memory:」が見つかりません。");
}

TEST_F(OpenDatabase, AFolderIsNoDatabase) {
  EXPECT_EQ(openFailure(folder_.path()),
            "「" + folder_.path() + "」はフォルダです。データベースではありません。");
}

TEST_F(OpenDatabase, AnEmptyFileIsNoDatabase) {
  folder_.write("空.db", "");
  const std::string path = folder_.path("空.db");
  EXPECT_EQ(openFailure(path), "「" + path + "」は空のファイルで、データベースではありません。");
}

TEST_F(OpenDatabase, ATextFileIsNoDatabase) {
  const std::string path = folder_.write("JobSel.txt", "A-1, not a database at all\n");
  EXPECT_EQ(openFailure(path), "「" + path + "」はデータベースではありません。");
  EXPECT_EQ(openFailure(folder_.write("short", "SQLite")),
            "「" + folder_.path("short") + "」はデータベースではありません。");
}

TEST_F(OpenDatabase, ATruncatedDatabaseIsDamaged) {
  make("CREATE TABLE T(a); INSERT INTO T VALUES(zeroblob(20000))");
  std::filesystem::resize_file(platform::nativePath(path_), 5000);
  EXPECT_EQ(openFailure(path_),
            "データベース「" + path_ + "」は壊れています: database disk image is malformed");
}

TEST_F(OpenDatabase, AHeaderAloneIsNoDatabase) {
  const std::string path = folder_.write("header", std::string_view("SQLite format 3\0", 16));
  EXPECT_EQ(openFailure(path),
            "データベース「" + path + "」の内容はデータベースではありません: file is not a database");
}

TEST_F(OpenDatabase, ALockedDatabaseIsWaitedForAndNamed) {
  make("CREATE TABLE T(a)");
  test::OtherProgram other(path_);
  other.run("BEGIN EXCLUSIVE");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(openFailure(path_),
            "データベース「" + path_ + "」は他のプログラムが使用中です: database is locked");
  const auto waited = std::chrono::steady_clock::now() - start;
  EXPECT_GE(waited, std::chrono::milliseconds(2500));
  EXPECT_LE(waited, std::chrono::seconds(10));
}

TEST_F(OpenDatabase, ClosingTwiceDoesNothingAndWorkAfterwardsIsRefused) {
  make("CREATE TABLE T(a); INSERT INTO T VALUES(1)");
  const auto database = open();
  const auto records = database->openRecordset("SELECT * FROM T");
  database->close();
  database->close();
  const std::string closed = "データベース「" + path_ + "」はすでに閉じられています。";
  EXPECT_EQ(failure([&] { records->value(db::Column{0}); }), closed);
  EXPECT_EQ(failure([&] { records->moveNext(); }), closed);
  EXPECT_EQ(failure([&] { database->openRecordset("SELECT * FROM T"); }), closed);
  EXPECT_EQ(failure([&] { database->openRecordset("SELECT * FROM T", db::Access::Edit); }), closed);
  EXPECT_EQ(failure([&] { database->execute("DELETE FROM T"); }), closed);
  EXPECT_EQ(failure([&] { database->tableDefinition("T"); }), closed);
}

TEST_F(OpenDatabase, RecordsMayOutliveTheDatabase) {
  make("CREATE TABLE T(a); INSERT INTO T VALUES(1)");
  auto database = open();
  const auto records = database->openRecordset("SELECT * FROM T");
  database.reset();
  EXPECT_TRUE(holds(failure([&] { records->field("a"); }), "閉じられています"));
}

TEST_F(OpenDatabase, CreatedDatabasesAreEmptyAndOpenAgain) {
  db::createDatabase(path_)->close();
  EXPECT_EQ(ask("SELECT count(*) FROM sqlite_master"), "0");
  const auto database = open();
  database->execute("CREATE TABLE 表(列 TEXT(2))");
  EXPECT_EQ(database->tableDefinition("表").at(0).type, "TEXT(2)");
}

TEST_F(OpenDatabase, CreatingSparesWhatIsThere) {
  const std::string path = folder_.write("資料", "old");
  EXPECT_EQ(failure([&] { db::createDatabase(path); }),
            "「" + path + "」はすでにあるため、データベースを作れません。");
  EXPECT_EQ(platform::readFile(path), "old");
  EXPECT_EQ(failure([&] { db::createDatabase(folder_.path("no/such")); }),
            "データベース「" + folder_.path("no/such") + "」を作れません。フォルダーがありません。");
  EXPECT_EQ(failure([&] { db::createDatabase(""); }), "データベースのパスが指定されていません。");
}

}  // namespace
