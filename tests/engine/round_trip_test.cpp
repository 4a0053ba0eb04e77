#include <cmath>
#include <random>

#include "support/database_test.h"
#include "text/number.h"
#include "text/padding.h"

namespace {

using test::DatabaseTest;

class RoundTrip : public DatabaseTest {
 protected:
  void SetUp() override {
    make("CREATE TABLE T(n INTEGER, 数 REAL, 自由 NUMERIC, 文 TEXT, 短 VARCHAR(8), 何 )");
  }

  void write(const std::vector<std::pair<std::string, db::Value>>& fields) const {
    const auto database = open();
    const auto records = database->openRecordset("SELECT * FROM T", db::Access::Edit);
    for (; !records->eof(); records->moveNext()) records->remove();
    records->addNew();
    for (const auto& [name, value] : fields) records->set(name, value);
    records->update();
    database->close();
  }
  db::Value read(const std::string& name) const {
    const auto database = open();
    return database->openRecordset("SELECT * FROM T")->field(name);
  }
};

TEST_F(RoundTrip, NumbersOfEveryKind) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> height(-9999, 9999);
  for (int round = 0; round < 60; ++round) {
    const double number =
        round < 20 ? std::floor(height(random)) : height(random) * std::pow(10.0, round % 12 - 6);
    write({{"n", std::floor(number)}, {"数", number}, {"自由", number}, {"文", number}});
    for (const char* column : {"数", "自由"}) ASSERT_EQ(read(column), db::Value(number)) << column;
    ASSERT_EQ(read("n"), db::Value(std::floor(number)));
    ASSERT_EQ(read("文"), db::Value(text::numberText(number)));
  }
}

TEST_F(RoundTrip, AnyNumberInColumnsOfWholeOrUndeclaredOnes) {
  write({{"n", 12.25}, {"何", 0.1}});
  EXPECT_EQ(read("n"), db::Value(12.25));
  EXPECT_EQ(read("何"), db::Value(0.1));
}

TEST_F(RoundTrip, WholeNumbersInTextColumnsHaveNoFraction) {
  write({{"文", 1.0}, {"短", -2.0}});
  EXPECT_EQ(read("文"), db::Value("1"));
  EXPECT_EQ(read("短"), db::Value("-2"));
}

TEST_F(RoundTrip, ARecordToBeEditedTellsAllDigits) {
  write({{"数", 0.1 + 0.2}});
  const auto database = open();
  const auto records = database->openRecordset("SELECT * FROM T", db::Access::Edit);
  EXPECT_EQ(records->field("数"), db::Value(0.1 + 0.2));
}

TEST_F(RoundTrip, TextsOfEveryKind) {
  for (const std::string& text :
       {std::string(), std::string(" "), std::string("  R1  "), std::string("水準点『一』 ' \" ; -- 髙𠮷"),
        std::string("'"), std::string("x'); DELETE FROM T; --"), std::string("12"), std::string("007"),
        std::string("1\n2\t3"), std::string(5000, 'z')}) {
    write({{"文", text}, {"短", std::string(text::left(text, 8))}});
    EXPECT_EQ(read("文"), db::Value(text));
    EXPECT_EQ(read("短"), db::Value(text::left(text, 8)));
  }
}

TEST_F(RoundTrip, AZeroCharacterIsKept) {
  const std::string zero("a\0b", 3);
  write({{"文", zero}});
  EXPECT_EQ(read("文"), db::Value(zero));
}

TEST_F(RoundTrip, NullStaysNull) {
  write({{"文", db::Value()}, {"数", db::Value()}, {"短", ""}});
  EXPECT_TRUE(read("文").isNull());
  EXPECT_TRUE(read("数").isNull());
  EXPECT_EQ(read("短"), db::Value(""));
}

TEST_F(RoundTrip, TextsOfNumbersBecomeNumbersInNumberColumns) {
  write({{"n", "12      "}, {"数", "12.3450"}});
  EXPECT_EQ(read("n"), db::Value(12.0));
  EXPECT_EQ(read("数"), db::Value(12.345));
}

TEST_F(RoundTrip, OtherTextsStayInNumberColumns) {
  write({{"自由", "R001    "}});
  EXPECT_EQ(read("自由"), db::Value("R001    "));
}

}  // namespace
