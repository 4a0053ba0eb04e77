#include "db/value.h"

#include <gtest/gtest.h>

namespace {

using db::Value;

TEST(Value, NullIsEmptyTextAndZero) {
  EXPECT_TRUE(Value().isNull());
  EXPECT_EQ(Value().text(), "");
  EXPECT_EQ(Value().number(), 0.0);
}

TEST(Value, NumbersAndTextsReadAsEachOther) {
  EXPECT_EQ(Value(0.1 + 0.2).text(), "0.3");  // 15 digits of 0.30000000000000004
  EXPECT_EQ(Value(12.0).text(), "12");
  EXPECT_EQ(Value("12.50m").number(), 12.5);
  EXPECT_EQ(Value("  R1 ").text(), "  R1 ");
}

TEST(Value, EmptyTextIsNotNull) {
  EXPECT_FALSE(Value("").isNull());
  EXPECT_NE(Value(""), Value());
  EXPECT_NE(Value("1"), Value(1.0));
}

TEST(FcNullToBlank, NullBecomesEmptyAndBlanksGo) {
  EXPECT_EQ(db::FcNullToBlank(Value()), "");
  EXPECT_EQ(db::FcNullToBlank("   "), "");
  EXPECT_EQ(db::FcNullToBlank("  1001  "), "1001");
  EXPECT_EQ(db::FcNullToBlank(2.5), "2.5");
}

TEST(FcNullToZeroText, BlankBecomesZero) {
  EXPECT_EQ(db::FcNullToZeroText(Value()), "0");
  EXPECT_EQ(db::FcNullToZeroText("  "), "0");
  EXPECT_EQ(db::FcNullToZeroText(" -1"), "-1");
}

TEST(FcBlankToNull, BlankBecomesNullAndTheRestStays) {
  EXPECT_TRUE(db::FcBlankToNull(Value()).isNull());
  EXPECT_TRUE(db::FcBlankToNull("").isNull());
  EXPECT_TRUE(db::FcBlankToNull("   ").isNull());
  EXPECT_EQ(db::FcBlankToNull(" a "), Value(" a "));
  EXPECT_EQ(db::FcBlankToNull(0.0), Value(0.0));
}

TEST(Value, IsBlankWhereNothingStandsInIt) {
  EXPECT_TRUE(db::Value().isBlank());
  EXPECT_TRUE(db::Value("").isBlank());
  EXPECT_TRUE(db::Value("  ").isBlank());
  EXPECT_FALSE(db::Value(" x ").isBlank());
  EXPECT_FALSE(db::Value("0").isBlank());
  EXPECT_FALSE(db::Value(0.0).isBlank());
}

// 2^53 is the last whole number up to which a double holds all.
TEST(WholeNumber, StaysExact) {
  EXPECT_EQ(db::wholeNumber(9007199254740992), db::Value(9007199254740992.0));
  EXPECT_EQ(db::wholeNumber(-9007199254740992), db::Value(-9007199254740992.0));
  EXPECT_EQ(db::wholeNumber(9007199254740993), db::Value("9007199254740993"));
  EXPECT_EQ(db::wholeNumber(INT64_MIN), db::Value("-9223372036854775808"));
}

TEST(WholeNumber, IsLongBeyondADoubleAlone) {
  for (const char* text : {"9007199254740993", "-9007199254740993", "9223372036854775807"})
    EXPECT_TRUE(db::isLongWhole(text)) << text;
  for (const char* text : {"", "12", "9007199254740992", "09007199254740993", "+9007199254740993",
                           "9007199254740993.0", "9223372036854775808", "x"})
    EXPECT_FALSE(db::isLongWhole(text)) << text;
}

TEST(Bytes, CountAsTheTextThatTheyAreButAreNone) {
  const db::Value bytes(db::Bytes{" 12 "});
  EXPECT_TRUE(bytes.isBytes());
  EXPECT_FALSE(bytes.isText());
  EXPECT_EQ(bytes.text(), " 12 ");
  EXPECT_EQ(bytes.number(), 12);
  EXPECT_FALSE(bytes.isBlank());
  EXPECT_TRUE(db::Value(db::Bytes{"  "}).isBlank());
  EXPECT_NE(bytes, db::Value(" 12 "));
}

}  // namespace
