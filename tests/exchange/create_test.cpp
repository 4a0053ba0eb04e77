#include "exchange/create.h"

#include <gtest/gtest.h>

#include "exchange/tables.h"
#include "open/open.h"
#include "platform/files.h"
#include "support/job_file.h"

namespace {

using test::errorOf;
using test::holds;

TEST(CreateJob, MakesEveryTableEmpty) {
  const test::JobFile job;
  const auto database = db::openDatabase(job.path());
  for (const job::TableSchema& table : job::schemaTables()) {
    EXPECT_EQ(database->tableDefinition(table.name).size(), table.columns.size());
    EXPECT_EQ(exchange::countRecords(*database, table.name), 0);
  }
}

TEST(CreateJob, LeavesWhatIsThereAlone) {
  const test::TemporaryFolder folder;
  const std::string path = folder.write("job.sqlite", "大切な内容");
  EXPECT_TRUE(holds(errorOf([&] { exchange::createJob(path); }), "すでにある"));
  EXPECT_EQ(platform::readFile(path), "大切な内容");
}

TEST(CreateJob, MakesNoFilesOfOtherEngines) {
  const test::TemporaryFolder folder;
  for (const char* name : {"job.mdb", "job.ACCDB"}) {
    EXPECT_TRUE(holds(errorOf([&] { exchange::createJob(folder.path(name)); }), "SQLite のファイルだけ"));
    EXPECT_FALSE(exchange::isThere(folder.path(name)));
  }
}

TEST(CreateJob, NeedsTheDataSourceOfAServer) {
  const test::TemporaryFolder folder;
  const std::string path = folder.path("職場.dsn");
  EXPECT_EQ(
      errorOf([&] { exchange::createJob(path); }),
      "「" + path +
          "」が見つかりません。サーバーのデータベースに書くには、それを示すファイルデータソースを先に用意"
          "してください。");
  EXPECT_FALSE(exchange::isThere(path));
}

TEST(CreateTable, TakesTheKindsOfAnotherDatabase) {
  const test::TemporaryFolder folder;
  const std::string path = folder.path("a.sqlite");
  db::createDatabase(path)->close();
  const auto database = db::openDatabase(path);
  const std::vector<db::ColumnDefinition> like{
      {"JOBID", "INTEGER"}, {"tokyu", "VARCHAR(1)"}, {"JikkouFlg", "int4"}, {"メモ 欄", "DATETIME"}};
  exchange::createTable(*database, exchange::jobTable("JobData"), like);
  std::string made;
  for (const auto& column : database->tableDefinition("JobData"))
    made += column.name + ":" + column.type + " ";
  EXPECT_EQ(made, "JobId:INTEGER 作業名:TEXT Tokyu:TEXT JikkouFlg:INTEGER メモ 欄:TEXT ");
}

}  // namespace
