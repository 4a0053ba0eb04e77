#include "job/schema.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "open/open.h"
#include "sql/split_statements.h"
#include "support/temporary_folder.h"

namespace {

const job::TableSchema& table(const std::string& name) {
  const auto& all = job::schemaTables();
  return *std::find_if(all.begin(), all.end(), [&](const auto& one) { return one.name == name; });
}

TEST(SchemaTables, ListsTablesInTheirOrder) {
  const auto& all = job::schemaTables();
  ASSERT_EQ(16U, all.size());
  EXPECT_EQ("JobData", all.front().name);
  EXPECT_EQ("A_ExePath", all[1].name);
  EXPECT_EQ("KansokuKikan", all.back().name);
}

TEST(SchemaTables, KeepsDeclarationsWhole) {
  const job::TableSchema& observations = table("KansokuSeikaData");
  ASSERT_EQ(17U, observations.columns.size());
  EXPECT_EQ("JobId", observations.columns[0].name);
  EXPECT_EQ("TEXT COLLATE RTRIM NOT NULL", observations.columns[0].declaration);
  EXPECT_EQ("DataKubun", observations.columns[3].name);
  EXPECT_EQ("TEXT(1) COLLATE RTRIM", observations.columns[3].declaration);
  EXPECT_EQ("RosenEndDataFlg", observations.columns[16].name);
  EXPECT_EQ("TEXT(2) COLLATE RTRIM", observations.columns[16].declaration);
}

TEST(SchemaTables, GivesIndexesToTheirTables) {
  ASSERT_EQ(1U, table("KansokuSeikaDataHKSNB").indexes.size());
  EXPECT_TRUE(
      table("KansokuSeikaDataHKSNB").indexes[0].starts_with("CREATE INDEX KansokuSeikaDataHKSNBBook ON"));
  EXPECT_TRUE(table("JobData").indexes.empty());
}

// What is read out of the text is what the engine makes of it.
TEST(SchemaTables, AreThoseThatTheTextMakes) {
  const test::TemporaryFolder folder;
  const auto database = db::createDatabase(folder.path("job.sqlite"));
  for (const std::string& statement : db::splitStatements(job::schemaSql())) database->execute(statement);
  for (const job::TableSchema& one : job::schemaTables()) {
    const auto made = database->tableDefinition(one.name);
    ASSERT_EQ(made.size(), one.columns.size()) << one.name;
    for (std::size_t i = 0; i < made.size(); ++i) {
      EXPECT_EQ(made[i].name, one.columns[i].name);
      EXPECT_TRUE(one.columns[i].declaration.starts_with(made[i].type)) << one.columns[i].declaration;
    }
  }
}

}  // namespace
