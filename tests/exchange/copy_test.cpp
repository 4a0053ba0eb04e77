#include "exchange/copy.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "exchange/csv_file.h"
#include "exchange/tables.h"
#include "open/open.h"
#include "platform/files.h"
#include "sql/tokens.h"
#include "support/job_file.h"

namespace {

using test::errorOf;
using test::holds;
using test::JobFile;

/// Copies and returns the progress.
std::string copy(const std::string& from, const std::string& to, bool over = false) {
  std::ostringstream progress;
  exchange::copyJob(from, to, over, progress);
  return progress.str();
}

std::string copyError(const std::string& from, const std::string& to, bool over = false) {
  return errorOf([&] { copy(from, to, over); });
}

TEST(Copy, KeepsEveryValueAsItIs) {
  const JobFile job;
  job.sql(
      {"ALTER TABLE KansokuSeikaDataHKSNB ADD COLUMN RosenEndFlg TEXT(2)",
       "INSERT INTO KansokuSeikaData VALUES ('1 ', ' 1001', '01A00101', NULL, 7, '007', '', '  ', "
       "'一,\"二\"', NULL, 0.30000000000000004, -1.25, NULL, 1E-7, '12.500', 'a'||char(13,10)||'b', '-1')",
       "INSERT INTO KansokuSeikaDataHKSNB (JobId, RosenEndFlg) VALUES ('1', '-2')",
       "INSERT INTO KansokuKikan VALUES ('1', '2', '', '202205', '202206', ' ', ' ')"});
  const std::string to = job.folder().path("移 した.sqlite");
  const std::string progress = copy(job.path(), to);
  for (const char* table : {"KansokuSeikaData", "KansokuSeikaDataHKSNB", "KansokuKikan", "JobData"})
    EXPECT_EQ(test::records(to, table), job.records(table)) << table;
  ASSERT_EQ(test::records(to, "KansokuSeikaData").size(), 1U);
  const auto database = db::openDatabase(to);
  const auto records = database->openRecordset("SELECT * FROM KansokuSeikaData");
  EXPECT_EQ(records->field("距離"), db::Value(0.1 + 0.2));  // all 17 digits
  EXPECT_EQ(records->field("標石番号"), db::Value("007"));
  EXPECT_TRUE(holds(progress, "KansokuSeikaData: 1 件\n"));
  EXPECT_TRUE(holds(progress, "JobData: 0 件\n"));
}

TEST(Copy, NamesAndLeavesOutWhatIsMissing) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '作業', 1, 1)", "DROP TABLE KansokuKikan"});
  const std::string to = job.folder().path("b.sqlite");
  EXPECT_TRUE(holds(copy(job.path(), to), "KansokuKikan: 移す元にないため省きました\n"));
  const auto database = db::openDatabase(to);
  EXPECT_FALSE(exchange::definitionOf(*database, "KansokuKikan"));
  EXPECT_TRUE(exchange::definitionOf(*database, "JobData"));
}

// A database of the office's own making: heights as texts, numbers as keys, columns that nobody else knows.
TEST(Copy, TakesOverTheKindsOfColumns) {
  const test::TemporaryFolder folder;
  const std::string from = folder.path("a.sqlite");
  db::createDatabase(from)->close();
  test::sql(from,
            {"CREATE TABLE KansokuSeikaDataSeihyou (標高 VARCHAR(12), jobid INTEGER, 社内メモ VARCHAR(50))",
             "INSERT INTO KansokuSeikaDataSeihyou VALUES ('012.500 ', 1, 'ソ連')"});
  const std::string to = folder.path("b.sqlite");
  copy(from, to);
  const auto database = db::openDatabase(to);
  const auto records = database->openRecordset("SELECT * FROM KansokuSeikaDataSeihyou");
  EXPECT_EQ(records->field("標高"), db::Value("012.500 "));
  EXPECT_EQ(records->field("JobId"), db::Value(1.0));
  EXPECT_EQ(records->field("社内メモ"), db::Value("ソ連"));
  EXPECT_TRUE(records->field("備考1").isNull());
}

TEST(Copy, RefusesAJobThatIsThere) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '新', 1, 1)"});
  const JobFile other;
  other.sql({"INSERT INTO KansokuKikan VALUES ('9','1','1','','','','')"});
  const std::string error = copyError(job.path(), other.path());
  EXPECT_TRUE(holds(error, "すでにジョブがあります（テーブル「KansokuKikan」に 1 件）")) << error;
  EXPECT_TRUE(holds(error, "--over"));
  EXPECT_TRUE(other.records("JobData").empty());
}

TEST(Copy, TakesAnEmptyJobWithoutBeingTold) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '新', 1, 1)"});
  const JobFile other;
  copy(job.path(), other.path());
  EXPECT_EQ(other.records("JobData"), job.records("JobData"));
}

TEST(Copy, WritesOverWhereTold) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '新', 1, 1)", "DROP TABLE KansokuKikan"});
  const JobFile other;
  other.sql({"INSERT INTO JobData VALUES ('8', '古', 2, 0)", "INSERT INTO JobData VALUES ('9', '古', 2, 0)",
             "INSERT INTO KansokuKikan VALUES ('9','1','1','','','','')"});
  const std::string progress = copy(job.path(), other.path(), true);
  EXPECT_EQ(other.records("JobData"), std::vector<std::string>{"'1'|'新'|1|1"});
  EXPECT_TRUE(holds(progress, "KansokuKikan: 移す元にないため省きました（移す先の 1 件はそのままです）"));
  EXPECT_EQ(other.records("KansokuKikan").size(), 1U);
}

TEST(Copy, RefusesItself) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '作業', 1, 1)"});
  for (const std::string& same : {job.path(), job.folder().path() + "\\.\\仕事 1.sqlite"})
    EXPECT_TRUE(holds(copyError(job.path(), same, true), "移す元と移す先が同じです"));
  EXPECT_EQ(job.records("JobData").size(), 1U);
}

TEST(Copy, RefusesWhatIsNoJob) {
  const test::TemporaryFolder folder;
  const std::string from = folder.path("a.sqlite");
  db::createDatabase(from)->close();
  EXPECT_TRUE(holds(copyError(from, folder.path("b.sqlite")), "ジョブのテーブルが一つもありません"));
  EXPECT_TRUE(holds(copyError(folder.path("ない.sqlite"), folder.path("b.sqlite")), "見つかりません"));
  EXPECT_FALSE(exchange::isThere(folder.path("b.sqlite")));
  const std::string words = folder.write("c.sqlite", "これは文章です。データベースではありません。");
  const JobFile job;
  EXPECT_TRUE(holds(copyError(job.path(), words), "データベースではありません"));
  EXPECT_EQ(platform::readFile(words), "これは文章です。データベースではありません。");
}

TEST(Copy, AFailureNamesTheRecordAndLeavesTheJobAsItWas) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '新', 1, 1)"});
  job.observed("01A00101", 1);
  job.observed("01A00101", 2);
  const JobFile other;
  other.sql({"INSERT INTO JobData VALUES ('9', '古', 2, 0)",
             "INSERT INTO KansokuSeikaData (JobId, 標高) VALUES ('8', '7.000')",
             "INSERT INTO KansokuSeikaData (JobId, 標高) VALUES ('9', NULL)",
             "CREATE TRIGGER t BEFORE INSERT ON KansokuSeikaData WHEN NEW.SaveOrder = 2 BEGIN SELECT "
             "RAISE(ABORT, 'no more'); END"});
  const auto before = other.records("KansokuSeikaData");
  const auto jobBefore = other.records("JobData");
  const std::string error = copyError(job.path(), other.path(), true);
  EXPECT_TRUE(holds(error,
                    "テーブル「KansokuSeikaData」の 2 件目（JobId=1, 事業番号=1001, 路線番号=01A00101, "
                    "DataKubun=0, SaveOrder=2）を書き込めません。"))
      << error;
  EXPECT_TRUE(holds(error, "no more"));
  EXPECT_TRUE(holds(error, " 移す先「" + other.path() + "」には何も書き込んでいません。")) << error;
  EXPECT_EQ(other.records("KansokuSeikaData"), before);
  EXPECT_EQ(other.records("JobData"), jobBefore);  // though it was copied before
}

/// The names of all that stands in a folder.
std::vector<std::string> filesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  return names;
}

TEST(Copy, AFailureLeavesNoFileOfItsOwnMaking) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', CAST(1.5 AS REAL), 1, 1)",
           "CREATE TABLE other AS SELECT * FROM KansokuKikan", "DROP TABLE KansokuKikan",
           "CREATE VIEW KansokuKikan AS SELECT abs(-9223372036854775807 - 1) AS JobId"});
  const std::string to = job.folder().path("b.sqlite");
  const std::string error = copyError(job.path(), to);
  EXPECT_TRUE(holds(error, " 移す先「" + to + "」には何も書き込んでいません。")) << error;
  EXPECT_FALSE(holds(error, ".part")) << error;
  EXPECT_EQ(filesIn(job.folder().path()).size(), 1U);  // the job itself
}

// What a killed copy leaves bears the number of a process that is no more.
TEST(Copy, RemovesWhatAKilledOneHasLeft) {
  const JobFile job;
  const std::string to = job.folder().path("b.sqlite");
  std::string left;
  {
    const platform::GrowingFile growing(to);
    left = growing.path();
  }
  const std::string mine = left.substr(0, left.rfind('-', left.rfind('-') - 1) + 1);
  const std::string dead = mine + "7ffffffe-1.part";
  const std::string& alive = left;  // of this process
  for (const std::string& path : {dead, dead + "-journal", alive, to + ".part"})
    std::ofstream(path) << "half a job";
  copy(job.path(), to);
  EXPECT_FALSE(exchange::isThere(dead));
  EXPECT_FALSE(exchange::isThere(dead + "-journal"));
  EXPECT_TRUE(exchange::isThere(alive));
  EXPECT_TRUE(exchange::isThere(to + ".part"));
}

// Key words, quotes and brackets: an office may have called its columns anything.
TEST(Copy, TakesColumnsOfAnyName) {
  const JobFile job;
  const std::vector<std::string> names{"Order", "Group", "Index", "a]b",  "a[b",   "a\"b",
                                       "a.b",   "a;b",   "a'b",   "-- a", "列 名", "?"};
  std::string values;
  for (const std::string& name : names) {
    job.sql({"ALTER TABLE JobData ADD COLUMN " + db::quotedName(name) + " TEXT"});
    values += ",'" + std::to_string(values.size()) + "'";
  }
  job.sql({"INSERT INTO JobData VALUES ('1', '作業', 1, 1" + values + ")"});
  const std::string to = job.folder().path("b.sqlite");
  copy(job.path(), to);
  EXPECT_EQ(test::records(to, "JobData"), job.records("JobData"));
  const JobFile lacking;
  copy(job.path(), lacking.path());
  EXPECT_EQ(lacking.records("JobData"), job.records("JobData"));
  const std::string csv = job.folder().path("b.csv");
  exchange::exportCsv(to, "JobData", csv, exchange::Encoding::Utf8);
  exchange::importCsv(to, "JobData", csv, exchange::Encoding::Utf8);
  EXPECT_EQ(test::records(to, "JobData").size(), 2U);
  EXPECT_EQ(test::records(to, "JobData")[1], test::records(to, "JobData")[0]);
}

// 2^53 + 1 is the first whole number that a double does not hold.
TEST(Copy, KeepsWholeNumbersBeyondADoubleAndBytes) {
  const JobFile job;
  job.sql({"ALTER TABLE JobData ADD COLUMN 番号 INTEGER", "ALTER TABLE JobData ADD COLUMN 図 BLOB",
           "INSERT INTO JobData VALUES ('1', x'00FF27', 1, 1, 9007199254740993, x'00FF27')",
           "INSERT INTO JobData VALUES ('2', '', 1, 1, -9223372036854775808, x'')"});
  const std::string to = job.folder().path("b.sqlite");
  copy(job.path(), to);
  test::sql(
      to, {"DELETE FROM JobData WHERE 番号 = 9007199254740993 AND typeof(図) = 'blob' AND hex(図) = '00FF27' "
           "AND typeof(作業名) = 'blob'",
           "DELETE FROM JobData WHERE 番号 + 1 = -9223372036854775807 AND typeof(図) = 'blob' AND "
           "typeof(作業名) = 'text'"});
  EXPECT_TRUE(test::records(to, "JobData").empty());
}

TEST(Copy, NamesAWholeNumberThatAColumnWouldRound) {
  const test::TemporaryFolder folder;
  const std::string from = folder.path("a.sqlite");
  db::createDatabase(from)->close();
  test::sql(from, {"CREATE TABLE KansokuSeikaData (JobId TEXT, 距離 INTEGER)",
                   "INSERT INTO KansokuSeikaData VALUES ('1', 9007199254740993)"});
  const std::string to = folder.path("b.sqlite");  // there distances are REAL
  EXPECT_TRUE(holds(copyError(from, to),
                    "テーブル「KansokuSeikaData」の 1 件目を移せません。列「距離」は移す先では数値の列で、"
                    "「9007199254740993」をそのまま書けません。"));
  EXPECT_FALSE(exchange::isThere(to));
}

TEST(Copy, RefusesAValueThatWouldChange) {
  const test::TemporaryFolder folder;
  const std::string from = folder.path("a.sqlite");
  db::createDatabase(from)->close();
  test::sql(from, {"CREATE TABLE KansokuSeikaDataSeihyou (JobId TEXT, 標高 TEXT)",
                   "INSERT INTO KansokuSeikaDataSeihyou VALUES ('1', '12.5')",
                   "INSERT INTO KansokuSeikaDataSeihyou VALUES ('1', '12.500')"});
  const JobFile other;  // its heights are numbers
  const std::string error = copyError(from, other.path());
  EXPECT_TRUE(holds(error,
                    "テーブル「KansokuSeikaDataSeihyou」の 2 "
                    "件目を移せません。列「標高」は移す先では数値の列で、「12.500」"))
      << error;
  EXPECT_TRUE(other.records("KansokuSeikaDataSeihyou").empty());
}

// What an engine changes behind one's back is found when the table is read again.
TEST(Copy, ReadsEveryTableAgain) {
  const JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '作業', 1, 1)"});
  const JobFile other;
  other.sql(
      {"CREATE TRIGGER t AFTER INSERT ON JobData BEGIN UPDATE JobData SET 作業名 = 作業名 || ' '; END"});
  const std::string error = copyError(job.path(), other.path());
  EXPECT_TRUE(holds(error, "テーブル「JobData」に書いた 1 件を読み返すと、書いたものと違っています"))
      << error;
  EXPECT_TRUE(holds(error, "には何も書き込んでいません。"));
  EXPECT_TRUE(other.records("JobData").empty());
}

}  // namespace
