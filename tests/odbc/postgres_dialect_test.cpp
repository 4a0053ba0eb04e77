#include "odbc/postgres_dialect.h"

#include <gtest/gtest.h>

#include "text/padding.h"

namespace {

const db::PostgresTable survey{
    "Kansoku",
    true,
    {{"JobId", "TEXT"}, {"路線番号", "TEXT(8)"}, {"SaveOrder", "INTEGER"}, {"標高", "REAL"}}};
const db::PostgresTable view{"Shown", false, {{"JobId", "TEXT"}}};

std::string translated(std::string_view sql) {
  return db::postgresText(sql, [](std::string_view name) -> const db::PostgresTable* {
    if (text::equalIgnoringCase(name, survey.name)) return &survey;
    return text::equalIgnoringCase(name, view.name) ? &view : nullptr;
  });
}

constexpr const char* asWritten = "age(xmin) DESC,CAST(CAST(cmin AS text) AS bigint),ctid";

TEST(PostgresDialect, NamesAreThoseOfTheServer) {
  EXPECT_EQ(translated("DELETE FROM KANSOKU"), "DELETE FROM \"Kansoku\"");
  EXPECT_EQ(translated("SELECT count(jobid) AS 件数 FROM kansoku A"),
            "SELECT count(\"JobId\") AS 件数 FROM \"Kansoku\" A");
  EXPECT_EQ(
      translated("SELECT A.JOBID, B.標高 FROM Kansoku A LEFT JOIN kansoku B ON A.saveorder = B.SaveOrder"),
      "SELECT A.\"JobId\", B.\"標高\" FROM \"Kansoku\" A LEFT JOIN \"Kansoku\" B ON A.\"SaveOrder\" = "
      "B.\"SaveOrder\"");
  EXPECT_EQ(translated("INSERT INTO kansoku(jobID) VALUES('1')"),
            "INSERT INTO \"Kansoku\"(\"JobId\") VALUES('1')");
  EXPECT_EQ(translated("DELETE FROM [kansoku] WHERE [標高] IS NULL"),
            "DELETE FROM \"Kansoku\" WHERE \"標高\" IS NULL");
  EXPECT_EQ(translated("DELETE FROM Nirgends"), "DELETE FROM \"Nirgends\"");
  EXPECT_EQ(translated("SELECT i FROM generate_series(1, 2) AS g(i)"),
            "SELECT i FROM generate_series(1, 2) AS g(i)");
}

TEST(PostgresDialect, TextsCompareWithoutTrailingBlanks) {
  EXPECT_EQ(translated("DELETE FROM Kansoku WHERE JobId ='1  ' AND MID(路線番号,3,4) ='2301'"),
            "DELETE FROM \"Kansoku\" WHERE rtrim(\"JobId\",' ') ='1' AND rtrim(substr(\"路線番号\",3,4),' ') "
            "='2301'");
  EXPECT_EQ(translated("DELETE FROM Kansoku WHERE 'b' <= JobId OR JobId = Null"),
            "DELETE FROM \"Kansoku\" WHERE 'b' <= rtrim(\"JobId\",' ') COLLATE \"C\" OR \"JobId\" = Null");
}

TEST(PostgresDialect, NumbersMeetTexts) {
  EXPECT_EQ(translated("DELETE FROM Kansoku WHERE SaveOrder = '12  '"),
            "DELETE FROM \"Kansoku\" WHERE \"SaveOrder\" = (12)");
  EXPECT_EQ(translated("DELETE FROM Kansoku WHERE SaveOrder = 'x'"),
            "DELETE FROM \"Kansoku\" WHERE CAST(\"SaveOrder\" AS text) = 'x'");
  EXPECT_EQ(translated("DELETE FROM Kansoku WHERE JobId = -1"),
            "DELETE FROM \"Kansoku\" WHERE rtrim(\"JobId\",' ') = '-1'");
  EXPECT_EQ(translated("DELETE FROM Kansoku WHERE SaveOrder = 3"),
            "DELETE FROM \"Kansoku\" WHERE \"SaveOrder\" = 3");
}

TEST(PostgresDialect, AssignmentsStay) {
  EXPECT_EQ(translated("UPDATE Kansoku SET JobId = '1 ', 標高 = '2' WHERE JobId = '3 '"),
            "UPDATE \"Kansoku\" SET \"JobId\" = '1 ', \"標高\" = '2' WHERE rtrim(\"JobId\",' ') = '3'");
}

TEST(PostgresDialect, OrderIsByBytesWithNullFirst) {
  EXPECT_EQ(
      translated("SELECT * FROM Kansoku ORDER BY JobId,SaveOrder DESC"),
      std::string("SELECT * FROM \"Kansoku\" ORDER BY \"JobId\" COLLATE \"C\" NULLS FIRST,\"SaveOrder\" DESC "
                  "NULLS LAST,") +
          asWritten);
  EXPECT_EQ(
      translated("SELECT DISTINCT 路線番号 FROM Kansoku ORDER BY 路線番号"),
      "SELECT DISTINCT ON (rtrim(\"路線番号\",' ') COLLATE \"C\") \"路線番号\" FROM \"Kansoku\"    ORDER BY "
      "rtrim(\"路線番号\",' ') COLLATE \"C\" NULLS FIRST,\"路線番号\" COLLATE \"C\"");
}

TEST(PostgresDialect, RecordsOfATableComeAsTheyWereWritten) {
  EXPECT_EQ(translated("SELECT * FROM Kansoku"),
            std::string("SELECT * FROM \"Kansoku\" ORDER BY ") + asWritten);
  EXPECT_EQ(translated("SELECT DISTINCTROW JobId FROM Kansoku;"),
            std::string("SELECT  \"JobId\" FROM \"Kansoku\" ORDER BY ") + asWritten + ";");
  EXPECT_EQ(translated("SELECT * FROM Shown"), "SELECT * FROM \"Shown\"");
  EXPECT_EQ(translated("SELECT count(*) FROM Kansoku"), "SELECT count(*) FROM \"Kansoku\"");
  EXPECT_EQ(translated("SELECT * FROM Kansoku A, Kansoku B"), "SELECT * FROM \"Kansoku\" A, \"Kansoku\" B");
}

TEST(PostgresDialect, DefinitionsKeepTheirNamesAndFindTheirTypes) {
  EXPECT_EQ(
      translated("CREATE TABLE Neu(JobId TEXT, 名 TEXT(2) NOT NULL, h REAL, PRIMARY KEY(JobId))"),
      "CREATE TABLE \"Neu\"(\"JobId\" TEXT, \"名\" varchar(2) NOT NULL, \"h\" double precision, PRIMARY "
      "KEY(JobId))");
  EXPECT_EQ(translated("ALTER TABLE kansoku ADD COLUMN RosenEndFlg TEXT(2)"),
            "ALTER TABLE \"Kansoku\" ADD COLUMN \"RosenEndFlg\" varchar(2)");
}

TEST(PostgresDialect, AnIndexHoldsTextsAsTheyAreCompared) {
  EXPECT_EQ(translated("CREATE INDEX KansokuRoute ON kansoku (jobid, 路線番号 COLLATE RTRIM, SaveOrder)"),
            "CREATE INDEX \"KansokuRoute\" ON \"Kansoku\" (rtrim(\"JobId\",' '), "
            "rtrim(\"路線番号\",' ')  , \"SaveOrder\")");
  EXPECT_EQ(translated("CREATE UNIQUE INDEX IF NOT EXISTS i ON Nirgends (Job DESC)"),
            "CREATE UNIQUE INDEX IF NOT EXISTS \"i\" ON \"Nirgends\" (\"Job\" DESC)");
}

}  // namespace
