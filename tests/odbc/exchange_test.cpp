#include <gtest/gtest.h>

#include <sstream>

#include "exchange/check.h"
#include "exchange/command.h"
#include "exchange/copy.h"
#include "exchange/csv_file.h"
#include "exchange/random_job.h"
#include "open/open.h"
#include "platform/files.h"
#include "sql/tokens.h"
#include "support/postgres_server.h"
#include "support/server_tests.h"

// seikahyou-job with jobs behind file data sources: on a PostgreSQL server and in SQLite files through ODBC.

namespace {

using exchange::Encoding;
using test::errorOf;
using test::holds;
using test::JobFile;
using test::rows;

test::PostgresServer& server() {
  static test::PostgresServer one;
  return one;
}

/// A new, empty database of the engine that the parameter names, behind a file data source.
class Exchange : public testing::TestWithParam<const char*> {
 protected:
  std::string newSource(const std::string& name, const std::string& engine = GetParam()) const {
    if (engine == "postgres") return folder_.write(name + ".dsn", server().newDatabase());
    const std::string file = folder_.path(name + ".sqlite");
    db::createDatabase(file)->close();
    return folder_.write(name + ".dsn", "[ODBC]\nDRIVER=SQLite3\nDATABASE=" + file + "\n");
  }

  static void copy(const std::string& from, const std::string& to, bool over = false) {
    std::ostringstream progress;
    exchange::copyJob(from, to, over, progress);
  }
  static std::string copyError(const std::string& from, const std::string& to, bool over = false) {
    return errorOf([&] { copy(from, to, over); });
  }
  static int run(const std::vector<std::string>& words) {
    std::ostringstream ignored;
    return exchange::run(words, ignored, ignored);
  }
  static void expectSameJob(const std::string& one, const std::string& other) {
    for (const job::TableSchema& table : job::schemaTables())
      EXPECT_EQ(rows(one, table.name), rows(other, table.name)) << table.name;
  }

  test::TemporaryFolder folder_;
  const JobFile job_;
  const std::string there_ = newSource("職場 1");
};

INSTANTIATE_TEST_SUITE_P(Engines, Exchange, testing::Values("postgres", "sqlite"),
                         [](const auto& engine) { return std::string(engine.param); });

TEST_P(Exchange, AJobGoesThereAndComesBackToTheLastBit) {
  test::fillJob(job_.path(), 7);
  job_.sql({"ALTER TABLE KansokuSeikaDataHKSNB ADD COLUMN RosenEndFlg TEXT(2)",
            "INSERT INTO KansokuSeikaData VALUES ('1 ', ' 1001', '01A00101', NULL, 7, '007', '', '  ', "
            "'一,\"二\"', NULL, 0.30000000000000004, -1.25, NULL, 1E-7, '12.500', 'ソ髙①', '-1')"});
  copy(job_.path(), there_);
  expectSameJob(job_.path(), there_);
  const std::string back = folder_.path("戻り.sqlite");
  copy(there_, back);
  expectSameJob(job_.path(), back);
  for (const char* engine : {"postgres", "sqlite"}) {
    const std::string onwards = newSource(std::string("職場 ") + engine, engine);
    copy(there_, onwards);
    expectSameJob(job_.path(), onwards);
  }
  const auto database = db::openDatabase(there_);
  EXPECT_EQ(database->tableDefinition("KansokuSeikaDataHKSNB").back().name, "RosenEndFlg");
}

// Key words, quotes and brackets: an office may have called its columns anything.
TEST_P(Exchange, ColumnsOfAnyNameGoThereAndComeBack) {
  std::string values;
  std::vector<std::string> names{"Order", "Group", "Index", "a]b",   "a[b", "a\"b",
                                 "a;b",   "a'b",   "-- a",  "列 名", "?"};
  if (GetParam() == std::string("postgres"))
    names.emplace_back("a.b");  // the other driver hands on what follows the point
  for (const std::string& name : names) {
    job_.sql({"ALTER TABLE JobData ADD COLUMN " + db::quotedName(name) + " TEXT"});
    values += ",'" + std::to_string(values.size()) + "'";
  }
  job_.sql({"INSERT INTO JobData VALUES ('1', '作業', 1, 1" + values + ")"});
  copy(job_.path(), there_);
  EXPECT_EQ(rows(there_, "JobData"), rows(job_.path(), "JobData"));
  const std::string csv = folder_.path("b.csv");
  exchange::exportCsv(there_, "JobData", csv, Encoding::Utf8);
  exchange::importCsv(there_, "JobData", csv, Encoding::Utf8);
  EXPECT_EQ(rows(there_, "JobData").size(), 2U);
  const std::string back = folder_.path("戻り.sqlite");
  copy(there_, back);
  EXPECT_EQ(rows(back, "JobData"), rows(there_, "JobData"));
}

// 2^53 + 1 is the first whole number that a double does not hold.
TEST_P(Exchange, LongWholeNumbersAndBytesGoOverUnchangedOrAreRefused) {
  job_.sql({"ALTER TABLE JobData ADD COLUMN 番号 BIGINT", "ALTER TABLE JobData ADD COLUMN 図 BLOB",
            "INSERT INTO JobData VALUES ('1', '', 1, 1, 9007199254740993, NULL)"});
  exchange::createJob(there_);
  test::sql(there_, {"ALTER TABLE JobData ADD COLUMN 番号 BIGINT", "ALTER TABLE JobData ADD COLUMN 図 BLOB"});
  copy(job_.path(), there_);
  const std::string back = folder_.path("戻り.sqlite");
  copy(there_, back);
  EXPECT_EQ(rows(back, "JobData"), rows(job_.path(), "JobData"));
  job_.sql({"UPDATE JobData SET 図 = x'00FF27'"});
  copy(job_.path(), there_, true);
  const std::string again = folder_.path("再び.sqlite");
  copy(there_, again);
  test::sql(again, {"DELETE FROM JobData WHERE hex(図) = '00FF27'"});
  EXPECT_TRUE(rows(again, "JobData").empty());
  job_.sql({"UPDATE JobData SET 図 = NULL, 作業名 = x'00FF27'"});
  const std::string error = copyError(job_.path(), there_, true);
  if (!error.empty()) {
    EXPECT_TRUE(holds(error, "テーブル「JobData」")) << error;
    EXPECT_TRUE(holds(error, "には何も書き込んでいません。")) << error;
  } else {
    EXPECT_EQ(rows(there_, "JobData"), rows(job_.path(), "JobData"));
  }
}

TEST_P(Exchange, AnEmptyJobIsMadeOnce) {
  EXPECT_EQ(run({"create", there_}), 0);
  for (const job::TableSchema& table : job::schemaTables()) {
    const auto columns = db::openDatabase(there_)->tableDefinition(table.name);
    ASSERT_EQ(columns.size(), table.columns.size()) << table.name;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      EXPECT_EQ(columns[i].name, table.columns[i].name);
      EXPECT_EQ(exchange::kindOf(columns[i].type), exchange::kindOf(table.columns[i].declaration));
    }
  }
  EXPECT_TRUE(
      holds(errorOf([&] { exchange::createJob(there_); }), "すでにジョブのテーブル「JobData」があります"));
  test::fill(there_, "JobData", 1);
  EXPECT_EQ(run({"create", there_}), 1);
  EXPECT_EQ(rows(there_, "JobData").size(), 40U);
}

TEST_P(Exchange, AnIndexIsMadeWithTheTable) {
  exchange::createJob(there_);
  const auto database = db::openDatabase(there_);
  const bool postgres = GetParam() == std::string("postgres");
  const auto found =
      database->openRecordset(postgres ? "SELECT count(*) FROM pg_indexes WHERE schemaname = 'public'"
                                       : "SELECT count(*) FROM sqlite_master WHERE type = 'index'");
  std::size_t indexes = 0;
  for (const job::TableSchema& table : job::schemaTables()) indexes += table.indexes.size();
  EXPECT_EQ(found->value(db::Column{0}).number(), static_cast<double>(indexes));
}

TEST_P(Exchange, AJobThatIsThereIsWrittenOverOnlyWhereTold) {
  job_.sql({"INSERT INTO JobData VALUES ('1', '新', 1, 1)"});
  exchange::createJob(there_);
  copy(job_.path(), there_);  // an empty one is no obstacle
  test::sql(there_, {"UPDATE JobData SET 作業名 = '古'"});
  EXPECT_TRUE(holds(copyError(job_.path(), there_), "すでにジョブがあります（テーブル「JobData」に 1 件）"));
  EXPECT_EQ(test::records(there_, "JobData"), std::vector<std::string>{"'1'|'古'|1|1"});
  copy(job_.path(), there_, true);
  expectSameJob(job_.path(), there_);
}

TEST_P(Exchange, ACopyThatBreaksOffLeavesNothing) {
  test::fillJob(job_.path(), 11);
  // A number that no column of heights takes as it is, in one of the last tables.
  exchange::createJob(there_);
  test::sql(there_, {"INSERT INTO JobData VALUES ('9', '古', 1, 0)", "DROP TABLE KansokuSeikaDataTanrosen",
                     "CREATE TABLE KansokuSeikaDataTanrosen (JobId TEXT, 標高 INTEGER, 備考1 REAL)"});
  const auto before = db::openDatabase(there_)->tableDefinition("KansokuSeikaDataTanrosen").size();
  job_.sql({"UPDATE KansokuSeikaDataTanrosen SET 備考1 = '12.500'"});
  const std::string error = copyError(job_.path(), there_, true);
  EXPECT_TRUE(holds(error, "列「備考1」は移す先では数値の列で、「12.500」")) << error;
  EXPECT_TRUE(holds(error, "移す先「" + there_ + "」には何も書き込んでいません。")) << error;
  EXPECT_EQ(test::records(there_, "JobData"), std::vector<std::string>{"'9'|'古'|1|0"});
  EXPECT_TRUE(rows(there_, "KansokuSeikaData").empty());
  EXPECT_EQ(db::openDatabase(there_)->tableDefinition("KansokuSeikaDataTanrosen").size(), before);
}

TEST_P(Exchange, NoTableStaysOfACopyIntoAnEmptyDatabase) {
  test::fillJob(job_.path(), 12);
  // A table that cannot be read: the smallest whole number has no absolute value.
  job_.sql({"DROP TABLE KansokuKikan",
            "CREATE VIEW KansokuKikan AS SELECT abs(-9223372036854775807 - 1) AS JobId"});
  EXPECT_NE(copyError(job_.path(), there_), "");
  const auto database = db::openDatabase(there_);
  for (const job::TableSchema& table : job::schemaTables())
    EXPECT_FALSE(exchange::definitionOf(*database, table.name)) << table.name;
}

TEST_P(Exchange, FilesAreTheSameFromEveryEngine) {
  test::fillJob(job_.path(), 13);
  copy(job_.path(), there_);
  for (const Encoding encoding : {Encoding::Utf8, Encoding::Cp932}) {
    const std::string ours = folder_.path("a.csv");
    const std::string theirs = folder_.path("b.csv");
    EXPECT_EQ(exchange::exportCsv(job_.path(), "KansokuSeikaData", ours, encoding), 40);
    EXPECT_EQ(exchange::exportCsv(there_, "KansokuSeikaData", theirs, encoding), 40);
    EXPECT_EQ(platform::readFile(ours), platform::readFile(theirs));
    test::sql(there_, {"DELETE FROM KansokuSeikaData"});
    EXPECT_EQ(exchange::importCsv(there_, "KansokuSeikaData", theirs, encoding), 40);
    EXPECT_EQ(rows(there_, "KansokuSeikaData"), rows(job_.path(), "KansokuSeikaData"));
  }
}

TEST_P(Exchange, ABadLineImportsNothing) {
  exchange::createJob(there_);
  test::sql(there_, {"INSERT INTO ComShiyouKIkaimeiMst VALUES ('9', 1, '前 ', NULL)"});
  const auto import = [&](const std::string& bytes) {
    const std::string file = folder_.write("表.csv", bytes);
    return errorOf([&] { exchange::importCsv(there_, "ComShiyouKIkaimeiMst", file, Encoding::Utf8); });
  };
  const std::string error = import("JobId,器械No\r\n1,2\r\n1,二\r\n");
  EXPECT_TRUE(
      holds(error, "3 行目 2 列目: 列「器械No」: 数値の列に「二」があります。 何も取り込んでいません。"))
      << error;
  // The engine itself refuses the second record, which names no job.
  const std::string refused = import("JobId,器械No\r\n1,2\r\n,3\r\n");
  EXPECT_TRUE(holds(refused, "テーブル「ComShiyouKIkaimeiMst」の 2 件目")) << refused;
  EXPECT_TRUE(holds(refused, "テーブル「ComShiyouKIkaimeiMst」は元のままです。")) << refused;
  EXPECT_EQ(test::records(there_, "ComShiyouKIkaimeiMst"), std::vector<std::string>{"'9'|1|'前 '|-"});
}

TEST_P(Exchange, ChecksFindTheSame) {
  job_.observed("01A00101", 1);
  job_.observed("01A00101 ", 1);
  job_.observed("01A00101", 4, "NULL");
  job_.observed("01A00201", 2, "'0'", "'-1'");
  job_.sql({"DROP TABLE A_ExePath", "ALTER TABLE JobData DROP COLUMN Tokyu"});
  copy(job_.path(), there_);
  const std::vector<std::string> findings = exchange::checkJob(there_);
  // The copy makes the tables of its schema whole: the column is there again, the table that was not copied
  // is not.
  std::vector<std::string> expected = exchange::checkJob(job_.path());
  EXPECT_EQ(expected.size(), 5U);
  std::erase(expected, "JobData: 列「Tokyu」がありません。");
  EXPECT_EQ(findings, expected);
  EXPECT_EQ(run({"check", there_}), 1);
}

}  // namespace

int main(int count, char** arguments) { return test::runServerTests(count, arguments); }
