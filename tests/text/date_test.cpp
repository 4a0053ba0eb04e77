#include "text/date.h"

#include <gtest/gtest.h>

#include "text/error.h"

namespace {

using text::Date;

int days(const char* from, const char* to) { return daysBetween(Date::read(from), Date::read(to)); }

bool isDate(const char* text) { return Date::parse(text).has_value(); }

TEST(Date, CountsWholeDays) {
  EXPECT_EQ(days("2022/05/11", "2022/05/11"), 0);
  EXPECT_EQ(days("2022/05/11", "2022/05/12"), 1);
  EXPECT_EQ(days("2022/05/12", "2022/05/11"), -1);
  // 16 days to the end of August, 122 from September to December, then 2020 (366), 2021 (365), and from
  // January to April 31 + 28 + 31 + 30 = 120 and 11 days of May: 16 + 122 + 366 + 365 + 120 + 11 = 1000.
  EXPECT_EQ(days("2019/08/15", "2022/05/11"), 1000);
}

TEST(Date, FebruaryHas29DaysInLeapYears) {
  EXPECT_EQ(days("2020/02/28", "2020/03/01"), 2);
  EXPECT_EQ(days("2021/02/28", "2021/03/01"), 1);
  EXPECT_TRUE(isDate("2020/02/29"));
  EXPECT_FALSE(isDate("2021/02/29"));
}

TEST(Date, CenturiesAreLeapYearsOnlyWhenFourHundredDividesThem) {
  EXPECT_EQ(days("1900/02/28", "1900/03/01"), 1);
  EXPECT_EQ(days("2000/02/28", "2000/03/01"), 2);
  EXPECT_EQ(days("2100/02/28", "2100/03/01"), 1);
  EXPECT_FALSE(isDate("1900/02/29"));
  // Between 1900 and 2000 lie 25 leap years less the one of 1900 itself: 100 × 365 + 24 = 36524.
  EXPECT_EQ(days("1900/01/01", "2000/01/01"), 36524);
  // The four hundred years of a full round: 400 × 365 + 97 = 146097.
  EXPECT_EQ(days("1600/03/01", "2000/03/01"), 146097);
}

TEST(Date, TheCalendarGoesBackByItsOwnRules) {
  // October 1582 has all its 31 days.
  EXPECT_EQ(days("1582/10/04", "1582/10/15"), 11);
  EXPECT_TRUE(isDate("0001/01/01"));
  EXPECT_FALSE(isDate("0000/12/31"));
}

TEST(Date, TextsMayLackLeadingZerosAndUseEitherSeparator) {
  EXPECT_EQ(Date::read("2020/1/5").text(), "2020/01/05");
  EXPECT_EQ(Date::read("  2020/01/05 ").text(), "2020/01/05");
  EXPECT_EQ(Date::read("2020-01-05").text(), "2020/01/05");
  EXPECT_EQ(Date::read("0987/6/5").text(), "0987/06/05");
  EXPECT_EQ(Date::read("9999/12/31"), Date(9999, 12, 31));
}

TEST(Date, AnythingElseIsNoDate) {
  for (const char* text : {"",
                           " ",
                           "2020",
                           "2020/01",
                           "20200105",
                           "20/01/05",
                           "2020/13/01",
                           "2020/00/10",
                           "2020/04/31",
                           "2020/01/00",
                           "2020/01/32",
                           "2020/1-5",
                           "2020-1/5",
                           "2020.1.5",
                           "2020/01/05 0:00",
                           "2020/01/055",
                           "2020/ 1/5",
                           "02020/01/05",
                           "2020/01/05/",
                           "/2020/01/05",
                           "令和2年1月5日",
                           "２０２０/01/05",
                           "-2020/01/05",
                           "+2020/01/05"})
    EXPECT_FALSE(isDate(text)) << text;
}

TEST(Date, ReadingWhatIsNoDateIsATypeMismatch) {
  for (const char* text : {"2021/02/29", "abc", ""}) {
    try {
      Date::read(text);
      ADD_FAILURE() << text;
    } catch (const text::RuntimeError& error) {
      EXPECT_EQ(error.code(), text::ErrorCode::TypeMismatch);
      EXPECT_STREQ(error.what(), "型が一致しません。");
    }
  }
  EXPECT_THROW(Date(2021, 2, 29), text::RuntimeError);
  EXPECT_THROW(Date(2021, -1, 1), text::RuntimeError);
  EXPECT_THROW(Date(10000, 1, 1), text::RuntimeError);
}

TEST(Date, PlusStepsOverMonthsAndStopsAtTheEndsOfTheCalendar) {
  EXPECT_EQ(Date(2020, 2, 28).plus(2).text(), "2020/03/01");
  EXPECT_EQ(Date(2020, 1, 1).plus(-1).text(), "2019/12/31");
  EXPECT_EQ(Date(2022, 5, 11).plus(-1000).text(), "2019/08/15");
  EXPECT_THROW(Date(9999, 12, 31).plus(1), text::RuntimeError);
  EXPECT_THROW(Date(1, 1, 1).plus(-1), text::RuntimeError);
  EXPECT_THROW(Date(1, 1, 1).plus(2147483647), text::RuntimeError);
}

TEST(Date, EveryDayOfFourCenturiesReadsBackAsItself) {
  Date day(1800, 1, 1);
  for (int i = 0; i < 146097; ++i, day = day.plus(1)) {
    const auto read = Date::parse(day.text());
    ASSERT_TRUE(read.has_value()) << day.text();
    ASSERT_EQ(daysBetween(Date(1800, 1, 1), *read), i) << day.text();
  }
  EXPECT_EQ(day.text(), "2200/01/01");
}

}  // namespace
