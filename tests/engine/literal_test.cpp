#include "db/literal.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/database_test.h"

namespace {

/// Values that are more than a text where they become part of a statement as they stand.
std::vector<std::string> hostileValues() {
  std::string longOne;
  for (int i = 0; i < 33333; ++i) longOne += "あ'";
  return {"",
          "'",
          "''",
          "'OR''='",
          "3-1'",
          "R'1",
          "%_%",
          "a;DROP TABLE T",
          "a'; DELETE FROM T; --",
          "/* a",
          "-- a",
          "[a] \"b\" `c`",
          "a\\'b\\",
          "{fn NOW()}",
          "?",
          ":a @b $1 $$x$$",
          "行\r\n列\t",
          "水準点①𠮷",
          longOne};
}

class LiteralInStatements : public test::DatabaseTest {
 protected:
  void SetUp() override {
    make("CREATE TABLE T(番 INTEGER, 名 TEXT)");
    database_ = open();
  }

  /// The numbers of the records that meet the condition, in their order.
  std::string found(const std::string& condition) {
    std::string result;
    for (const std::string& one :
         texts(*database_, "SELECT 番 FROM T WHERE " + condition + " ORDER BY 番", "番"))
      result += (result.empty() ? "" : ",") + one;
    return result;
  }

  std::unique_ptr<db::Database> database_;
};

TEST_F(LiteralInStatements, EachValueIsThatTextAndNothingElse) {
  const std::vector<std::string> values = hostileValues();
  for (std::size_t i = 0; i < values.size(); ++i)
    database_->execute("INSERT INTO T(番, 名) VALUES(" + std::to_string(i) + "," + db::literal(values[i]) +
                       ")");
  EXPECT_EQ(texts(*database_, "SELECT 名 FROM T ORDER BY 番", "名"), values);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string number = std::to_string(i);
    EXPECT_EQ(found("名 = " + db::literal(values[i])), number);
    EXPECT_EQ(found("名 = " + db::literal(values[i] + "x")), "");
    EXPECT_EQ(found("MID(名,1) = " + db::literal(values[i] + "  ")), number);
    const auto records =
        database_->openRecordset("SELECT * FROM T WHERE 名 = " + db::literal(values[i]), db::Access::Edit);
    ASSERT_FALSE(records->eof());
    EXPECT_EQ(records->field("番").text(), number);
    records->remove();
  }
  EXPECT_EQ(found("番 >= 0"), "");
}

TEST_F(LiteralInStatements, AKeyOfAlwaysTrueWordsFindsNothing) {
  database_->execute("INSERT INTO T(番, 名) VALUES(1, 'R001')");
  EXPECT_EQ(found("名 = " + db::literal("'OR''='")), "");
  EXPECT_EQ(found("名 = " + db::literal("' OR 1=1 --")), "");
}

/// SQLite keeps such a character; an engine that keeps none refuses the statement and says why.
TEST_F(LiteralInStatements, ACharacterOfCodeZeroEndsNoText) {
  const std::string value("R\0 1'\1", 6);
  database_->execute("INSERT INTO T(番, 名) VALUES(1, 'R')");
  const std::string refused = test::failure([&] {
    database_->execute("INSERT INTO T(番, 名) VALUES(2, " + db::literal(value) + ")");
    EXPECT_EQ(found("名 = " + db::literal(value)), "2");
    EXPECT_EQ(found("名 = " + db::literal(value.substr(0, 2))), "");
  });
  EXPECT_TRUE(refused == "no error" || test::holds(refused, "コード 0")) << refused;
  EXPECT_EQ(found("名 = 'R'"), "1");
  EXPECT_EQ(found("番 = 1"), "1");
}

}  // namespace
