#include "intake/cells.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

std::string day(std::string_view cell) {
  const auto date = intake::dateCell(cell);
  return date ? date->text() : "none";
}

TEST(NumberCell, KeepsTheDigitsAsTheyStand) {
  EXPECT_EQ(intake::numberCell("12.500"), "12.500");
  EXPECT_EQ(intake::numberCell(" －１．５ "), "-1.5");
  EXPECT_EQ(intake::numberCell("1,234.5"), "1234.5");
  EXPECT_EQ(intake::numberCell("-1,234,567"), "-1234567");
}

TEST(NumberCell, RefusesWhatIsNoNumber) {
  for (const char* cell : {"", "A", "1,23", "1,2345", ",123", "1.2.3", "12m", "1,,234", "1 2"})
    EXPECT_EQ(intake::numberCell(cell), std::nullopt) << cell;
}

// Years before the eras: 令和 1 = 2019, 平成 31 = 2019, 昭和 60 = 1985, 大正 1 = 1912, 明治 40 = 1907.
TEST(DateCell, ReadsTheUsualForms) {
  const std::pair<const char*, const char*> cases[] = {
      {"2020/1/5", "2020/01/05"},      {"2020-01-05", "2020/01/05"},     {"2020.1.5", "2020/01/05"},
      {"20200105", "2020/01/05"},      {"2020年1月5日", "2020/01/05"},   {"２０２０／１／５", "2020/01/05"},
      {"令和2年1月5日", "2020/01/05"}, {"令和元年5月1日", "2019/05/01"}, {"R2.1.5", "2020/01/05"},
      {"h31/4/30", "2019/04/30"},      {"S60.1.1", "1985/01/01"},        {"大正元年8月1日", "1912/08/01"},
      {"M40-2-28", "1907/02/28"},      {"2020/1/5 0:00", "2020/01/05"},  {"2020/02/29", "2020/02/29"}};
  for (const auto& [cell, date] : cases) EXPECT_EQ(day(cell), date) << cell;
}

TEST(DateCell, RefusesWhatLeavesRoomForAGuess) {
  for (const char* cell : {"", "20/1/5", "1/5/2020", "2019/2/29", "2020/13/1", "2020/1", "202015", "R0.1.1",
                           "令和", "X2.1.1", "2020/1/5x", "2020年1/5", "43835"})
    EXPECT_EQ(day(cell), "none") << cell;
}

TEST(CategoryCell, TakesTheCodeOrAnItemOfTheList) {
  EXPECT_EQ(intake::categoryCell("0"), "0");
  EXPECT_EQ(intake::categoryCell("４"), "4");
  EXPECT_EQ(intake::categoryCell("1:2往復 基準水準点取付"), "1");
  for (const char* cell : {"", "5", "01", "x", "-1"})
    EXPECT_EQ(intake::categoryCell(cell), std::nullopt) << cell;
}

TEST(EndCell, TakesFlagsAndTheirWords) {
  EXPECT_EQ(intake::endCell(""), "");
  EXPECT_EQ(intake::endCell("-1"), "-1");
  EXPECT_EQ(intake::endCell("－２"), "-2");
  EXPECT_EQ(intake::endCell("終点"), "-1");
  EXPECT_EQ(intake::endCell("再測"), "-2");
  EXPECT_EQ(intake::endCell("1"), std::nullopt);
}

}  // namespace
