#include "hksnb/period.h"

#include <gtest/gtest.h>

namespace {

using hksnb::GrowingPeriod;
using hksnb::Period;

TEST(GrowingPeriod, OfEmptyBoxesWithoutDatesReadsTheTwoEnds) {
  EXPECT_EQ(GrowingPeriod({}).period(), (Period{"9999", "99", "0000", "00"}));
}

TEST(GrowingPeriod, CoversEveryMonthInBothSpellings) {
  GrowingPeriod period({});
  for (const char* date : {"20220511", "", "2022/03/01", "20221231", "202207"}) period.add(date);
  EXPECT_EQ(period.period(), (Period{"2022", "03", "2022", "12"}));
}

TEST(GrowingPeriod, OnlyWidensWhatTheBoxesHold) {
  GrowingPeriod within({"2020", "01", "2024", "12"});
  within.add("20220511");
  EXPECT_EQ(within.period(), (Period{"2020", "01", "2024", "12"}));
  GrowingPeriod beyond({"2022", "06", "2022", "07"});
  beyond.add("2022/05/31");
  beyond.add("2022/08/01");
  EXPECT_EQ(beyond.period(), (Period{"2022", "05", "2022", "08"}));
}

TEST(GrowingPeriod, ABlankYearLeavesItsEndOpenWhateverTheMonth) {
  GrowingPeriod period({"", "01", "", "12"});
  period.add("20220511");
  EXPECT_EQ(period.period(), (Period{"2022", "05", "2022", "05"}));
}

TEST(GrowingPeriod, AMonthOfOneDigitIsThatMonth) {
  GrowingPeriod period({"2022", "6", "2022", "9"});
  period.add("20220511");
  period.add("20221001");
  EXPECT_EQ(period.period(), (Period{"2022", "05", "2022", "10"}));
  EXPECT_EQ(GrowingPeriod({"2022", "5", "2022", "5"}).period(), (Period{"2022", "05", "2022", "05"}));
}

// Months are compared as texts, character by character: "2022/" lies before "202205", since "/" < "0".
TEST(GrowingPeriod, ComparesMonthsAsTexts) {
  GrowingPeriod period({"2022", "/1", "2022", "/1"});
  period.add("20220511");
  EXPECT_EQ(period.period(), (Period{"2022", "/1", "2022", "05"}));
}

TEST(StoredMonths, HaveTwoDigits) {
  EXPECT_EQ((Period{"2022", "5", "2022", "12"}.from()), "202205");
  EXPECT_EQ((Period{"2022", "5", "2022", "12"}.to()), "202212");
  EXPECT_EQ((Period{"2022", " 7 ", "", ""}.from()), "202207");
  EXPECT_EQ((Period{"2022", "", "", "x"}.from()), "2022") << "a blank month stays blank";
  EXPECT_EQ((Period{"2022", "", "", "x"}.to()), "x");
}

}  // namespace
