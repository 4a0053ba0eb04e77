#include "support/database_test.h"

namespace {

using test::DatabaseTest;
using test::failure;

class EditRecords : public DatabaseTest {
 protected:
  void SetUp() override {
    make(
        "CREATE TABLE T(JobId TEXT, SaveOrder INTEGER, 標高 REAL, 備考 TEXT, \"a\"\"b\" TEXT);"
        "INSERT INTO T VALUES('1', 3, 30, 'c', NULL), ('1', 1, 10, 'a', NULL), ('2', 9, 90, 'z', NULL),"
        " ('1', 2, 20, 'b', NULL);");
    database_ = open();
  }

  std::unique_ptr<db::Recordset> edit(const std::string& sql) {
    return database_->openRecordset(sql, db::Access::Edit);
  }
  std::string named(const std::string& rest) const { return "データベース「" + path_ + "」" + rest; }
  std::string remarks() const { return listed("SELECT 備考 FROM T ORDER BY SaveOrder", "備考", ""); }

  std::unique_ptr<db::Database> database_;
};

TEST_F(EditRecords, WalksInTheOrderAskedFor) {
  std::string seen;
  for (const auto records = edit("SELECT * FROM T WHERE JobId ='1 ' ORDER BY SaveOrder"); !records->eof();
       records->moveNext())
    seen += records->field("備考").text();
  EXPECT_EQ(seen, "abc");
}

TEST_F(EditRecords, DeletesTheSelectedRecordsOnly) {
  const auto records = edit("select * from T WHERE JobID ='1'");
  for (; !records->eof(); records->moveNext()) records->remove();
  database_->close();
  EXPECT_EQ(remarks(), "z");
}

TEST_F(EditRecords, ADeletedRecordIsNoMore) {
  const auto records = edit("SELECT * FROM T ORDER BY SaveOrder");
  records->remove();
  const std::string gone = named("の現在のレコードは削除されています。");
  EXPECT_EQ(failure([&] { records->field("備考"); }), gone);
  EXPECT_EQ(failure([&] { records->remove(); }), gone);
  EXPECT_EQ(failure([&] { records->edit(); }), gone);
  records->moveNext();
  EXPECT_EQ(records->field("備考"), db::Value("b"));
}

TEST_F(EditRecords, AddsRecordsAndStaysWhereItWas) {
  const auto records = edit("SELECT * FROM T ORDER BY SaveOrder");
  records->addNew();
  records->set("jobid", "3");
  records->set("SaveOrder", 5.0);
  records->set("備考", "n");
  records->set("備考", "m");  // the later one counts
  records->set("a\"b", "q");
  records->update();
  EXPECT_EQ(records->field("備考"), db::Value("a"));
  database_->close();
  EXPECT_EQ(remarks(), "abcmz");
  EXPECT_EQ(ask("SELECT 標高 FROM T WHERE JobId='3'"), "null");
  EXPECT_EQ(ask("SELECT \"a\"\"b\" FROM T WHERE JobId='3'"), "q");
}

TEST_F(EditRecords, FieldsOfTheRecordBeforeAreNotKept) {
  const auto records = edit("SELECT * FROM T WHERE JobId = 'none'");
  EXPECT_TRUE(records->eof());
  for (const char* remark : {"x", "", "y"}) {
    records->addNew();
    records->set("JobId", "5");
    if (*remark != '\0') records->set("備考", remark);
    records->update();
  }
  database_->close();
  EXPECT_EQ(listed("SELECT 備考 FROM T WHERE JobId='5'", "備考", ","), "x,-,y");
}

TEST_F(EditRecords, ARecordOfNullsCanBeAdded) {
  const auto records = edit("SELECT * FROM T");
  records->addNew();
  records->update();
  database_->close();
  EXPECT_EQ(ask("SELECT count(*) FROM T WHERE JobId IS NULL AND 標高 IS NULL"), "1");
}

TEST_F(EditRecords, ChangesThePresentRecord) {
  const auto records = edit("SELECT * FROM T WHERE JobId = '1' ORDER BY SaveOrder");
  records->moveNext();
  EXPECT_EQ(records->field("備考"), db::Value("b"));
  records->edit();
  records->set("備考", "B'B");
  records->set("標高", db::Value());
  records->update();
  EXPECT_EQ(records->field("備考"), db::Value("B'B"));
  database_->close();
  EXPECT_EQ(remarks(), "aB'Bcz");
  EXPECT_EQ(ask("SELECT count(*) FROM T WHERE 標高 IS NULL"), "1");
}

TEST_F(EditRecords, AChangeLeftBehindIsDropped) {
  const auto records = edit("SELECT * FROM T ORDER BY SaveOrder");
  records->edit();
  records->set("備考", "X");
  records->moveNext();
  EXPECT_EQ(failure([&] { records->update(); }), named("のレコードの追加も変更も始まっていません。"));
  EXPECT_EQ(failure([&] { records->set("備考", "Y"); }), named("のレコードの追加も変更も始まっていません。"));
  database_->close();
  EXPECT_EQ(remarks(), "abcz");
}

TEST_F(EditRecords, MissingColumnsAreNamed) {
  const auto records = edit("SELECT * FROM T");
  records->addNew();
  EXPECT_EQ(failure([&] { records->set("正標高", 1.0); }),
            named("のテーブル「T」に列「正標高」がありません。"));
}

TEST_F(EditRecords, RecordsThatOthersDeletedAreGone) {
  const auto records = edit("SELECT * FROM T");
  database_->execute("DELETE FROM T");
  const std::string gone = named("のテーブル「T」のレコードはすでに削除されています。");
  EXPECT_EQ(failure([&] { records->field("備考"); }), gone);
  EXPECT_EQ(failure([&] { records->remove(); }), gone);
  records->edit();
  records->set("備考", "x");
  EXPECT_EQ(failure([&] { records->update(); }), gone);
}

TEST_F(EditRecords, OnlyWholeRecordsOfOneTable) {
  const std::string refused = named("で書き込み用に開けるのは一つのテーブルの SELECT * だけです。");
  for (const char* sql : {"SELECT JobId FROM T", "SELECT * FROM T A, T B", "SELECT DISTINCT * FROM T",
                          "SELECT * FROM (SELECT * FROM T)", "SELECT * FROM T LIMIT 1", "DELETE FROM T"})
    EXPECT_EQ(failure([&] { edit(sql); }), refused) << sql;
  EXPECT_EQ(failure([&] { edit("SELECT * FROM 無い WHERE a='1'"); }),
            named("にテーブル「無い」がありません: no such table: 無い"));
  EXPECT_EQ(failure([&] { edit("SELECT * FROM T WHERE 無='1'"); }),
            named("に列「無」がありません: no such column: 無"));
  EXPECT_EQ(failure([&] { edit("SELECT * FRM T"); }),
            named("への SQL 文に誤りがあります: near \"FRM\": syntax error"));
}

TEST_F(EditRecords, AtTheEndNothingCanBeChanged) {
  const auto records = edit("SELECT * FROM T WHERE JobId = 'x'");
  const std::string none = named("に現在のレコードがありません。");
  EXPECT_EQ(failure([&] { records->remove(); }), none);
  EXPECT_EQ(failure([&] { records->edit(); }), none);
  EXPECT_EQ(failure([&] { records->field("JobId"); }), none);
  EXPECT_EQ(failure([&] { records->moveNext(); }), none);
}

}  // namespace
