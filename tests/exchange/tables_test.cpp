#include "exchange/tables.h"

#include <gtest/gtest.h>

#include "open/open.h"
#include "support/job_file.h"

namespace {

using exchange::Kind;
using exchange::kindOf;

TEST(KindOf, KnowsTheWordsOfManyEngines) {
  for (const char* type :
       {"TEXT", "TEXT(2)", "varchar(8)", "character varying", "LONGCHAR", "bpchar", "Memo"})
    EXPECT_EQ(kindOf(type), Kind::Text) << type;
  for (const char* type :
       {"INTEGER", "REAL", "double precision", "int4", "numeric(10,4)", "BYTE", "CURRENCY", "COUNTER", "BIT"})
    EXPECT_EQ(kindOf(type), Kind::Number) << type;
  for (const char* type : {"", "DATETIME", "bytea", "LONGBINARY", "BLOB"})
    EXPECT_EQ(kindOf(type), Kind::Other) << type;
}

TEST(DefinitionOf, TellsAMissingTableFromOtherTrouble) {
  const test::JobFile job;
  const auto database = db::openDatabase(job.path());
  EXPECT_TRUE(exchange::definitionOf(*database, "JobData"));
  EXPECT_FALSE(exchange::definitionOf(*database, "Ressha"));
  database->close();
  EXPECT_THROW(exchange::definitionOf(*database, "JobData"), db::Error);
}

TEST(JobTable, IsFoundInAnyLetterCase) {
  EXPECT_EQ(exchange::jobTable("kansokuseikadata").name, "KansokuSeikaData");
  EXPECT_EQ(test::errorOf([] { exchange::jobTable("sqlite_master"); }),
            "「sqlite_master」はジョブデータベースのテーブルではありません。");
}

TEST(ExactText, ReadsBackAsTheSameNumber) {
  EXPECT_EQ(exchange::exactText(0.1), "0.1");
  EXPECT_EQ(exchange::exactText(-12.0), "-12");
  // The sum is the double next to 0.3; 15 digits would make 0.3 of it.
  EXPECT_EQ(exchange::exactText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(exchange::exactText(" 01 "), " 01 ");
  EXPECT_EQ(exchange::exactText({}), "");
}

}  // namespace
