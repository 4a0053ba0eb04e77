#include "support/database_test.h"

namespace {

using test::DatabaseTest;
using test::failure;

class ReadRecords : public DatabaseTest {
 protected:
  void SetUp() override {
    make(
        "CREATE TABLE T(JobId TEXT, 標高 REAL, 備考 TEXT, 数 INTEGER, 塊 BLOB);"
        "INSERT INTO T VALUES('1', 12.3456, '山  頂', 7, x'4142'), ('2', NULL, '', NULL, NULL);"
        "CREATE TABLE U(JobId TEXT, 標高 REAL);"
        "INSERT INTO U VALUES('1', 99.5);");
    database_ = open();
  }

  std::string sqlFailure(const std::string& sql) {
    return failure([&] { database_->openRecordset(sql); });
  }
  std::string named(const std::string& rest) const { return "データベース「" + path_ + "」" + rest; }

  std::unique_ptr<db::Database> database_;
};

TEST_F(ReadRecords, ValuesAreNullNumberTextOrBytes) {
  const auto records = database_->openRecordset("SELECT * FROM T ORDER BY JobId");
  EXPECT_EQ(records->field("標高"), db::Value(12.3456));
  EXPECT_EQ(records->field("備考"), db::Value("山  頂"));
  EXPECT_EQ(records->field("数"), db::Value(7.0));
  EXPECT_EQ(records->field("塊"), db::Value(db::Bytes{"AB"}));
  EXPECT_EQ(records->field("塊").text(), "AB");
  records->moveNext();
  EXPECT_TRUE(records->field("標高").isNull());
  EXPECT_EQ(records->field("備考"), db::Value(""));
  EXPECT_TRUE(records->field("塊").isNull());
}

TEST_F(ReadRecords, EndOfFile) {
  const auto none = database_->openRecordset("SELECT * FROM T WHERE JobId = '3'");
  EXPECT_TRUE(none->eof());
  EXPECT_EQ(failure([&] { none->field("JobId"); }), named("に現在のレコードがありません。"));
  EXPECT_EQ(failure([&] { none->moveNext(); }), named("に現在のレコードがありません。"));
  const auto one = database_->openRecordset("SELECT * FROM T WHERE JobId = '1'");
  EXPECT_FALSE(one->eof());
  one->moveNext();
  EXPECT_TRUE(one->eof());
}

TEST_F(ReadRecords, ColumnNamesInAnyLetterCase) {
  const auto records = database_->openRecordset("SELECT * FROM T");
  for (const char* name : {"JobId", "JobID", "JObId", "jobid"})
    EXPECT_EQ(records->column(name), db::Column{0}) << name;
}

TEST_F(ReadRecords, TwoColumnsOfOneNameAreToldApartByTable) {
  const auto records = database_->openRecordset(
      "SELECT A.*,B.標高 FROM T A LEFT JOIN U B ON A.JobId = B.JobId ORDER BY A.JobId");
  EXPECT_EQ(records->field("標高"), db::Value(12.3456));
  EXPECT_EQ(records->field("A.標高"), db::Value(12.3456));
  EXPECT_EQ(records->field("B.標高"), db::Value(99.5));
  EXPECT_EQ(records->field("b.標高"), db::Value(99.5));
  EXPECT_EQ(records->field("U.標高"), db::Value(99.5));
  records->moveNext();
  EXPECT_TRUE(records->field("B.標高").isNull());
  EXPECT_EQ(failure([&] { records->column("C.標高"); }), named("の検索結果に列「C.標高」がありません。"));
  EXPECT_EQ(failure([&] { records->column("B.数"); }), named("の検索結果に列「B.数」がありません。"));
}

TEST_F(ReadRecords, StarsOfSeveralTablesAreLaidOut) {
  const auto stars =
      database_->openRecordset("SELECT * FROM T LEFT JOIN U ON T.JobId = U.JobId WHERE T.JobId='1'");
  EXPECT_EQ(stars->field("U.標高"), db::Value(99.5));
  EXPECT_EQ(stars->field("T.標高"), db::Value(12.3456));
  const auto twice =
      database_->openRecordset("SELECT B.*,1+1,A.標高 FROM T A, U AS B WHERE A.JobId = B.JobId");
  EXPECT_EQ(twice->field("標高"), db::Value(99.5));
  EXPECT_EQ(twice->field("A.標高"), db::Value(12.3456));
  const auto alone = database_->openRecordset("SELECT 標高 FROM T WHERE JobId = '1'");
  EXPECT_EQ(alone->field("T.標高"), db::Value(12.3456));
}

TEST_F(ReadRecords, MissingNamesAreNamed) {
  EXPECT_EQ(sqlFailure("SELECT * FROM 無い表"),
            named("にテーブル「無い表」がありません: no such table: 無い表"));
  EXPECT_EQ(sqlFailure("SELECT 無い列 FROM T"), named("に列「無い列」がありません: no such column: 無い列"));
  EXPECT_EQ(sqlFailure("SELECT 標高 FROM T, U"),
            named("で列「標高」がどのテーブルのものか決まりません: ambiguous column name: 標高"));
  EXPECT_EQ(sqlFailure("SELECT FORMAT2(標高) FROM T"),
            named("で関数「FORMAT2」は使えません: no such function: FORMAT2"));
  const auto records = database_->openRecordset("SELECT * FROM T");
  EXPECT_EQ(failure([&] { records->field("水準点"); }), named("の検索結果に列「水準点」がありません。"));
}

TEST_F(ReadRecords, ANameInQuotesIsNoText) {
  EXPECT_EQ(sqlFailure("SELECT \"無い列\" FROM T"),
            named("に列「無い列」がありません: no such column: 無い列"));
}

TEST_F(ReadRecords, FaultyTextsAreTheEnginesOwnErrors) {
  EXPECT_EQ(sqlFailure("SELEC * FROM T"), named("への SQL 文に誤りがあります: near \"SELEC\": syntax error"));
  EXPECT_EQ(sqlFailure("SELECT * FROM"), named("への SQL 文に誤りがあります: incomplete input"));
  EXPECT_EQ(sqlFailure("SELECT * FROM T WHERE JobId = '1"),
            named("への SQL 文に誤りがあります: unrecognized token: \"'1\""));
  EXPECT_EQ(sqlFailure(""), named("への SQL 文が空です。"));
  EXPECT_EQ(sqlFailure(" -- nothing"), named("への SQL 文が空です。"));
}

TEST_F(ReadRecords, ASecondStatementIsNotRun) {
  const std::string one = named("への SQL 文は一度に一つだけです。二つめ以降があるため実行しませんでした。");
  EXPECT_EQ(sqlFailure("SELECT * FROM T; DELETE FROM T"), one);
  EXPECT_EQ(failure([&] { database_->execute("DELETE FROM U; DELETE FROM T"); }), one);
  EXPECT_EQ(failure([&] { database_->openRecordset("SELECT * FROM T; DELETE FROM T", db::Access::Edit); }),
            one);
  EXPECT_EQ(sqlFailure(std::string("SELECT 1\0DELETE", 15)), one);
  EXPECT_EQ(sqlFailure("SELECT * FROM T ; -- end\n ;"), "no error");
  EXPECT_EQ(ask("SELECT count(*) FROM T") + ask("SELECT count(*) FROM U"), "21");
}

TEST_F(ReadRecords, OnlySelectsYieldRecords) {
  EXPECT_EQ(sqlFailure("DELETE FROM T"), named("からレコードを読む SQL 文ではありません。"));
  EXPECT_EQ(failure([&] { database_->execute("SELECT * FROM T"); }),
            named("でレコードを返す SQL 文は実行できません。"));
  EXPECT_EQ(ask("SELECT count(*) FROM T"), "2");
}

TEST_F(ReadRecords, WritingIsRefused) {
  const auto records = database_->openRecordset("SELECT * FROM T");
  const std::string refused = named("のレコードは読み取り用に開かれています。");
  EXPECT_EQ(failure([&] { records->addNew(); }), refused);
  EXPECT_EQ(failure([&] { records->edit(); }), refused);
  EXPECT_EQ(failure([&] { records->set("JobId", 1.0); }), refused);
  EXPECT_EQ(failure([&] { records->update(); }), refused);
  EXPECT_EQ(failure([&] { records->remove(); }), refused);
}

TEST_F(ReadRecords, ClosedRecordsAreAtTheirEnd) {
  const auto records = database_->openRecordset("SELECT * FROM T");
  records->close();
  EXPECT_TRUE(records->eof());
  EXPECT_EQ(failure([&] { records->field("JobId"); }), named("に現在のレコードがありません。"));
}

TEST_F(ReadRecords, TableDefinitionsInTheirOrder) {
  const auto columns = database_->tableDefinition("t");
  ASSERT_EQ(columns.size(), 5U);
  EXPECT_EQ(columns[1].name, "標高");
  EXPECT_EQ(columns[1].type, "REAL");
  EXPECT_EQ(failure([&] { database_->tableDefinition("\"無い\""); }),
            named("にテーブル「\"無い\"」がありません。"));
}

}  // namespace
