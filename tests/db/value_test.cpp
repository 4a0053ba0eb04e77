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

}  // namespace
