#include <gtest/gtest.h>

#include <cstdlib>

#include "sample/random.h"
#include "sample/route.h"

namespace {

using sample::DateForm;
using sample::Precision;

TEST(HeightText, FirstGradeHasFourDecimals) {
  EXPECT_EQ("1034.3896", sample::heightText(10'343'896, Precision(1)));
  EXPECT_EQ("0.0005", sample::heightText(5, Precision(1)));
  EXPECT_EQ("-1.0200", sample::heightText(-10'200, Precision(1)));
}

TEST(HeightText, OtherGradesHaveThree) {
  EXPECT_EQ("23.001", sample::heightText(230'010, Precision(2)));
  EXPECT_EQ("7.090", sample::heightText(70'900, Precision(3)));
}

TEST(DateText, StandsInBothForms) {
  using namespace std::chrono;
  EXPECT_EQ("20200229", sample::dateText(year{2020} / 2 / 29, DateForm::Plain));
  EXPECT_EQ("2020/03/01", sample::dateText(sys_days(year{2020} / 2 / 29) + days(1), DateForm::Slashed));
}

// The same numbers come from the same recipe worked with whole numbers of any length.
TEST(Random, GivesTheSameNumbersEverywhere) {
  sample::Random random(1);
  const int expected[] = {71, 51, 27, 39, 66};
  for (const int number : expected) EXPECT_EQ(number, random.between(1, 100));
}

TEST(Random, StaysInItsBounds) {
  sample::Random random(2);
  bool low = false;
  bool high = false;
  for (int i = 0; i < 1000; ++i) {
    const int number = random.between(-2, 2);
    ASSERT_LE(-2, number);
    ASSERT_GE(2, number);
    low |= number == -2;
    high |= number == 2;
    ASSERT_LE(std::abs(random.error(3)), 12);
  }
  EXPECT_TRUE(low && high);
}

}  // namespace
