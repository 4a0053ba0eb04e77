#include <gtest/gtest.h>

#include <algorithm>

#include <memory>
#include <string>
#include <vector>

#include "support/database_test.h"

// Order numbers, and lists without repetition, whatever the columns are declared as.

namespace {

using Texts = std::vector<std::string>;

class Orders : public test::DatabaseTest {
 protected:
  Texts read(const std::string& sql, const std::string& column) {
    const auto database = open();
    return texts(*database, sql, column);
  }
};

TEST_F(Orders, TextsCountAsNumbersInSaveOrder) {
  make(
      "CREATE TABLE T(JobId TEXT, SaveOrder TEXT, 名 TEXT);"
      "INSERT INTO T VALUES('1','10','j'); INSERT INTO T VALUES('1','2','b'); INSERT INTO T "
      "VALUES('1','1','a');"
      "INSERT INTO T VALUES('1','11 ','k'); INSERT INTO T VALUES('1','3','c')");
  EXPECT_EQ(read("SELECT * FROM T ORDER BY SaveOrder", "名"), (Texts{"a", "b", "c", "j", "k"}));
  EXPECT_EQ(read("SELECT A.* FROM T A WHERE A.JobId='1' ORDER BY JobId,A.saveorder DESC", "名"),
            (Texts{"k", "j", "c", "b", "a"}));
  const auto database = open();
  const auto records = database->openRecordset("SELECT * FROM T ORDER BY SaveOrder", db::Access::Edit);
  EXPECT_EQ(records->field("名").text(), "a");
  EXPECT_EQ(records->field("SaveOrder").text(), "1");
}

TEST_F(Orders, NullStandsBeforeEveryNumber) {
  make(
      "CREATE TABLE T(SaveOrder TEXT, 名 TEXT);"
      "INSERT INTO T VALUES('1','a'); INSERT INTO T VALUES(NULL,'n'); INSERT INTO T VALUES('-1','m')");
  EXPECT_EQ(read("SELECT * FROM T ORDER BY SaveOrder", "名"), (Texts{"n", "m", "a"}));
}

TEST_F(Orders, OrderNumbersJoinByTheirNumber) {
  make(
      "CREATE TABLE A(SaveOrder TEXT, 名 TEXT); CREATE TABLE B(SaveOrder TEXT, 高 TEXT);"
      "CREATE TABLE C(SaveOrder INTEGER, 高 TEXT);"
      "INSERT INTO A VALUES('2','b'); INSERT INTO A VALUES('10','j'); INSERT INTO A VALUES('1','a');"
      "INSERT INTO B VALUES('02','2.0'); INSERT INTO B VALUES('10 ','10.0');"
      "INSERT INTO C VALUES(2,'2.0'); INSERT INTO C VALUES(10,'10.0')");
  for (const std::string table : {"B", "C"})
    EXPECT_EQ(read("SELECT A.名, " + table + ".高 FROM A LEFT JOIN " + table + " ON A.SaveOrder = " + table +
                       ".SaveOrder ORDER BY A.SaveOrder",
                   "高"),
              (Texts{"", "2.0", "10.0"}))
        << table;
}

TEST_F(Orders, OtherTextColumnsStayTexts) {
  make("CREATE TABLE T(番 TEXT); INSERT INTO T VALUES('2'); INSERT INTO T VALUES('10')");
  EXPECT_EQ(read("SELECT * FROM T ORDER BY 番", "番"), (Texts{"10", "2"}));
}

class Lists : public Orders {
 protected:
  void SetUp() override {
    make(
        "CREATE TABLE T(JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, 番 INTEGER);"
        "INSERT INTO T VALUES('1','2','R2',2); INSERT INTO T VALUES('1','2','R1',10);"
        "INSERT INTO T VALUES('1','2       ','R1      ',10); INSERT INTO T VALUES('1','10','R1',1);"
        "INSERT INTO T VALUES('1','10','R10',2); INSERT INTO T VALUES('2','3','R9',3)");
  }
};

TEST_F(Lists, TextsThatDifferInTrailingBlanksAreOneItem) {
  const Texts routes = read("SELECT DISTINCT 路線番号 FROM T WHERE JobId='1' ORDER BY 路線番号", "路線番号");
  ASSERT_EQ(routes.size(), 3U);
  EXPECT_EQ(routes[0].substr(0, 2), "R1");
  EXPECT_EQ(routes[1], "R10");
  EXPECT_EQ(routes[2], "R2");
  EXPECT_EQ(
      read("SELECT DISTINCT A.路線番号 FROM T A WHERE A.JobId='1' ORDER BY A.路線番号 DESC", "路線番号")[0],
      "R2");
}

TEST_F(Lists, WithoutAnOrderTheyComeSortedByTheirColumns) {
  const auto database = open();
  std::string found;
  const auto records = database->openRecordset("SELECT DISTINCT 事業番号,路線番号 FROM T");
  for (; !records->eof(); records->moveNext())
    found += records->field("事業番号").text().substr(0, 2) + "/" +
             records->field("路線番号").text().substr(0, 3) + " ";
  // Text by text: "10" before "2".
  EXPECT_EQ(found.substr(0, 13), "10/R1 10/R10 ");
  EXPECT_EQ(found.substr(found.size() - 5), "3/R9 ");
  EXPECT_EQ(std::count(found.begin(), found.end(), '/'), 5);
  EXPECT_EQ(read("SELECT DISTINCT 番 FROM T", "番"), (Texts{"1", "10", "2", "3"}));
}

TEST_F(Lists, ListsOfNumbersKeepTheirOrder) {
  EXPECT_EQ(read("SELECT DISTINCT 番 FROM T ORDER BY 番", "番"), (Texts{"1", "2", "3", "10"}));
}

}  // namespace
