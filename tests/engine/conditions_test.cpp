#include <chrono>

#include "support/database_test.h"

namespace {

using test::DatabaseTest;

class Conditions : public DatabaseTest {
 protected:
  void SetUp() override {
    make(
        "CREATE TABLE T(名 TEXT, 数 INTEGER, 旗 TEXT);"
        "INSERT INTO T VALUES('R001', 12, '1'), ('R001    ', 12, '1'), ('r001', 13, '0'), (NULL, NULL, "
        "NULL), ('', 0, ''),"
        " ('R002', 20, '1'), ('水準点12', 5, '2');"
        "CREATE TABLE N(数 TEXT); INSERT INTO N VALUES('12  ');");
    database_ = open();
  }

  /// How many records meet the condition.
  std::string count(const std::string& condition) {
    return texts(*database_, "SELECT count(*) AS 件数 FROM T WHERE " + condition, "件数").at(0);
  }

  std::unique_ptr<db::Database> database_;
};

TEST_F(Conditions, TrailingBlanksDoNotCountOnEitherSide) {
  EXPECT_EQ(count("名 = 'R001'"), "2");
  EXPECT_EQ(count("名 = 'R001        '"), "2");
  EXPECT_EQ(count("'R001  ' = 名"), "2");
  EXPECT_EQ(count("名 = '   '"), "1");
  EXPECT_EQ(count("名 <> 'R001'"), "4");  // all but the two and Null
  EXPECT_EQ(count("名 <= 'R001'"), "3");  // '', R001 twice
  EXPECT_EQ(count("名 < 'R001'"), "1");
  EXPECT_EQ(count("名 >= 'R001' AND 名 < 'R002  '"), "2");
  EXPECT_EQ(count("名 > 'R001'"), "3");  // R002, r001, 水準点12
}

TEST_F(Conditions, LeadingBlanksAndLetterCaseCount) {
  EXPECT_EQ(count("名 = ' R001'"), "0");
  EXPECT_EQ(count("名 = 'r001'"), "1");
}

TEST_F(Conditions, NullIsNeverTrue) {
  EXPECT_EQ(count("名 = Null"), "0");
  EXPECT_EQ(count("名 <> Null"), "0");
  EXPECT_EQ(count("(旗 = '0' OR 旗 = NULL)"), "1");
  EXPECT_EQ(count("名 IS NULL"), "1");
}

TEST_F(Conditions, NumberColumnsMatchTheirPaddedTexts) {
  EXPECT_EQ(count("数 = '12'"), "2");
  EXPECT_EQ(count("数 = '12      '"), "2");
  EXPECT_EQ(count("数 = 12"), "2");
  EXPECT_EQ(count("数 < '13   '"), "4");  // 12, 12, 0, 5
}

TEST_F(Conditions, TextColumnsMatchNumbers) { EXPECT_EQ(count("旗 = 1"), "3"); }

TEST_F(Conditions, NumbersAndTheirTextsJoin) {
  EXPECT_EQ(texts(*database_, "SELECT count(*) AS 件数 FROM T INNER JOIN N ON T.数 = N.数", "件数").at(0),
            "2");
}

TEST_F(Conditions, MidCountsCharacters) {
  EXPECT_EQ(count("MID(名,2,2) = '準点'"), "1");
  EXPECT_EQ(count("MID(名,4) = '12'"), "1");
  EXPECT_EQ(count("MID(名,1,4) ='R001'"), "2");
  EXPECT_EQ(count("MID(名,5,4) ='' AND 名 = 'R001'"), "2");
}

TEST_F(Conditions, AJoinOverManyRecordsIsNotSquare) {
  make(
      "CREATE TABLE L(a TEXT, n INTEGER); CREATE TABLE R(a TEXT, n INTEGER);"
      "INSERT INTO L WITH c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c WHERE x < 16000) SELECT 'job', x "
      "FROM c;"
      "INSERT INTO R SELECT a || '  ', n FROM L;");
  const auto database = open();
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(
      texts(*database,
            "SELECT count(*) AS 件数 FROM L LEFT JOIN R ON (L.a = R.a) AND (L.n = R.n) WHERE R.n > 0", "件数")
          .at(0),
      "16000");
  // 16,000 × 16,000 comparisons would take minutes.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

// A job database whose maker knew nothing of our comparisons: plain columns, a plain index.
TEST_F(Conditions, LongRoutesJoinQuicklyWhateverTheirIndexes) {
  database_->close();
  make(
      "CREATE TABLE S(JobId TEXT, 路線番号 TEXT, SaveOrder INTEGER, 標石番号 TEXT);"
      "CREATE INDEX 鍵 ON S(JobId, 路線番号, SaveOrder);"
      "INSERT INTO S WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 16000)"
      " SELECT '1', '01A00101', i, 'BM' || i FROM n;");
  database_ = open();
  const auto start = std::chrono::steady_clock::now();
  const auto found =
      texts(*database_,
            "SELECT count(*) AS 件数 FROM S A LEFT JOIN S B ON A.JobId = B.JobId AND A.路線番号 = "
            "B.路線番号 AND A.SaveOrder = B.SaveOrder AND A.標石番号 = B.標石番号"
            " WHERE A.JobId = '1' AND A.路線番号 = '01A00101'",
            "件数");
  EXPECT_EQ(found, std::vector<std::string>{"16000"});
  // A join of every record with every other would take minutes.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
