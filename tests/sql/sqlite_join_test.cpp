#include "sql/sqlite_join.h"

#include <gtest/gtest.h>

#include "text/padding.h"

namespace {

using Texts = std::vector<std::string>;

db::JoinedTexts looked(std::string_view sql) {
  return db::joinedTexts(sql, [](std::string_view table) -> std::vector<db::ColumnDefinition> {
    if (text::equalIgnoringCase(table, "Saved")) return {{"JobId", "TEXT"}, {"標高", "REAL"}};
    return {{"JobId", "TEXT"}, {"n", "INTEGER"}};
  });
}

TEST(SqliteJoin, OneTableIsNoJoin) {
  EXPECT_FALSE(looked("SELECT * FROM Saved WHERE JobId = '1'").joins);
  EXPECT_FALSE(looked("SELECT 1").joins);
}

TEST(SqliteJoin, ComparedColumnsOfEachTableAreLookedThrough) {
  const db::JoinedTexts texts = looked(
      "SELECT A.標高 FROM Saved A LEFT JOIN Seen B ON (A.jobid = B.JobId) AND (B.n = '1') WHERE A.JobId = "
      "'1' "
      "AND MID(A.JobId,3,4) = '2301'");
  EXPECT_TRUE(texts.joins);
  ASSERT_TRUE(texts.blanksSql);
  EXPECT_EQ(*texts.blanksSql,
            (Texts{"SELECT 1 FROM \"Saved\" WHERE length(\"JobId\")<>length(rtrim(\"JobId\")) LIMIT 1",
                   "SELECT 1 FROM \"Seen\" WHERE length(\"JobId\")<>length(rtrim(\"JobId\")) OR "
                   "length(\"n\")<>length(rtrim(\"n\")) LIMIT 1"}));
}

TEST(SqliteJoin, AColumnWithoutItsTableMayBeEachs) {
  const db::JoinedTexts texts = looked("SELECT * FROM Saved, Seen WHERE JobId = 標高");
  ASSERT_TRUE(texts.blanksSql);
  EXPECT_EQ(texts.blanksSql->size(), 2U);
}

TEST(SqliteJoin, WhatIsNoColumnIsNotJudged) {
  for (const char* sql :
       {"SELECT * FROM Saved A, Seen B WHERE A.JobId = '1 '", "SELECT * FROM Saved NATURAL JOIN Seen",
        "SELECT * FROM Saved A, Seen B WHERE A.JobId = MID(B.JobId,1,3)",
        "SELECT * FROM Saved A, Seen B WHERE MID(B.JobId,1,3) = A.JobId",
        "SELECT * FROM Saved A, Seen B WHERE A.JobId = B.JobId || B.n",
        "SELECT * FROM Saved WHERE JobId IN (SELECT JobId FROM Seen)",
        "SELECT * FROM Saved UNION SELECT * FROM Saved", "WITH a AS (SELECT 1) SELECT * FROM a, Seen"}) {
    const db::JoinedTexts texts = looked(sql);
    EXPECT_TRUE(texts.joins) << sql;
    EXPECT_FALSE(texts.blanksSql) << sql;
  }
}

}  // namespace
