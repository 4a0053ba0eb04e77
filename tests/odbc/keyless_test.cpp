#include <gtest/gtest.h>

#include "odbc/access.h"
#include "odbc/records.h"
#include "odbc/sqlite.h"
#include "open/open.h"
#include "support/temporary_folder.h"

// Records of an engine without a key of its own, such as Access: SQLite with its key hidden.

namespace {

class WithoutKey final : public db::OdbcSqlite {
 public:
  std::string keyColumn() const override { return {}; }
};

class KeylessRecords : public testing::Test {
 protected:
  void SetUp() override {
    const auto database = db::createDatabase(path_);
    database->execute("CREATE TABLE T(JobId TEXT, 標高 REAL, 備考 TEXT)");
    database->execute(
        "INSERT INTO T VALUES('1', 1.5, NULL), ('2', 2.5, 'b'), ('2', 2.5, 'b'), ('2', 2.5, 'B'), ('3', "
        "NULL, '')");
    database->close();
    const std::string source = "DRIVER={SQLite3};NoCreat=1;StepAPI=1;DATABASE=" + path_ + ";";
    connection_ = std::make_shared<db::OdbcConnection>(db::OdbcSource{source, true, "SQLite3"}, path_,
                                                       std::make_unique<WithoutKey>());
  }

  std::unique_ptr<db::Recordset> edit(const std::string& sql) {
    return db::odbcEditor(connection_, sql, "T");
  }
  /// All records after the close, in their order.
  std::string records() {
    connection_->close();
    std::string result;
    const auto database = db::openDatabase(path_);
    for (const auto all = database->openRecordset("SELECT * FROM T ORDER BY JobId, 備考"); !all->eof();
         all->moveNext())
      result +=
          all->field("JobId").text() + (all->field("備考").isNull() ? "-" : all->field("備考").text()) + " ";
    return result;
  }

  test::TemporaryFolder folder_;
  std::string path_ = folder_.path("job.sqlite");
  std::shared_ptr<db::OdbcConnection> connection_;
};

TEST_F(KeylessRecords, OneOfSeveralAlikeIsDeleted) {
  edit("SELECT * FROM T WHERE 備考 = 'b'")->remove();
  EXPECT_EQ(records(), "1- 2B 2b 3 ");
}

TEST_F(KeylessRecords, AllSelectedAreDeletedAlikeOrNot) {
  const auto all = edit("SELECT * FROM T WHERE JobId <> '3'");
  for (; !all->eof(); all->moveNext()) all->remove();
  EXPECT_EQ(records(), "3 ");
}

TEST_F(KeylessRecords, FieldsAreReadAndChangedInPlace) {
  const auto first = edit("SELECT * FROM T ORDER BY JobId");
  EXPECT_EQ(first->field("標高"), db::Value(1.5));
  for (const char* remark : {"x", "y"}) {
    first->edit();
    first->set("備考", remark);
    first->update();
    EXPECT_EQ(first->field("備考"), db::Value(remark));
  }
  EXPECT_EQ(records(), "1y 2B 2b 2b 3 ");
}

TEST_F(KeylessRecords, AChangeOfOneOfSeveralAlikeIsRefused) {
  const auto twin = edit("SELECT * FROM T WHERE 備考 = 'b'");
  twin->edit();
  twin->set("備考", "x");
  EXPECT_THROW(twin->update(), db::Error);
  EXPECT_EQ(records(), "1- 2B 2b 2b 3 ");
}

TEST(AccessFields, TextsAreFoundByTheirLettersExactly) {
  const db::OdbcAccess access;
  EXPECT_EQ(access.fieldCondition({"備考", "TEXT(20)"}), "StrComp([備考],?,0)=0");
  EXPECT_EQ(access.fieldCondition({"標高", "REAL"}), "[標高]=?");
}

TEST_F(KeylessRecords, ARecordThatIsGoneIsTold) {
  const auto records = edit("SELECT * FROM T WHERE JobId = '1'");
  connection_->run("DELETE FROM T");
  EXPECT_THROW(records->remove(), db::Error);
}

}  // namespace
