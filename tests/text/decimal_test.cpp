#include "text/decimal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "text/error.h"

namespace {

std::string digits(const text::Decimal& decimal) {
  return {decimal.digits, static_cast<std::size_t>(decimal.count)};
}

TEST(Decimal, OfZeroHasNoDigitsAndNoSign) {
  for (const double zero : {0.0, -0.0}) {
    const text::Decimal decimal(zero);
    EXPECT_TRUE(decimal.isZero());
    EXPECT_FALSE(decimal.negative);
    EXPECT_EQ(decimal.value(), 0);
  }
}

TEST(Decimal, KeepsDigitsWithoutTrailingZeros) {
  const text::Decimal decimal(-1230.05);
  EXPECT_TRUE(decimal.negative);
  EXPECT_EQ(digits(decimal), "123005");
  EXPECT_EQ(decimal.exponent, 3);  // −1.23005 × 10^3
  EXPECT_EQ(decimal.value(), -1230.05);
}

TEST(Decimal, CarriesThroughNines) {
  const text::Decimal decimal(2.9999999999999996);
  EXPECT_EQ(digits(decimal), "3");
  EXPECT_EQ(decimal.exponent, 0);
  EXPECT_EQ(decimal.value(), 3);
}

TEST(Decimal, OverflowsForWhatIsNotFinite) {
  EXPECT_THROW(text::Decimal(std::numeric_limits<double>::infinity()), text::RuntimeError);
  EXPECT_THROW(text::Decimal(-std::numeric_limits<double>::infinity()), text::RuntimeError);
  EXPECT_THROW(text::Decimal(std::numeric_limits<double>::quiet_NaN()), text::RuntimeError);
}

/// What the C library prints with 15 digits, in the form of Decimal.
void expectAsPrinted(double number) {
  char printed[40];
  std::snprintf(printed, sizeof printed, "%.14e", std::abs(number));
  const std::string words(printed);
  std::string wanted = words.substr(0, 1) + words.substr(2, 14);
  wanted.erase(wanted.find_last_not_of('0') + 1);
  const text::Decimal decimal(number);
  ASSERT_EQ(digits(decimal), wanted) << printed;
  ASSERT_EQ(decimal.exponent, std::atoi(words.c_str() + 17)) << printed;
  ASSERT_EQ(decimal.negative, number < 0) << printed;
  ASSERT_EQ(decimal.value(), std::copysign(std::strtod(printed, nullptr), number)) << printed;
}

TEST(Decimal, AgreesWithThePrintedNumberAtEveryTenthOfAMillimetre) {
  for (int unit = 1; unit < 400000; ++unit) ASSERT_NO_FATAL_FAILURE(expectAsPrinted(unit / 10000.0));
}

TEST(Decimal, AgreesWithThePrintedNumberNextToShortDecimals) {
  std::mt19937_64 random(20240501);
  std::uniform_int_distribution<std::int64_t> units(1, 40'000'000);
  for (int i = 0; i < 100000; ++i) {
    double number = static_cast<double>(units(random)) / 10000.0;
    for (int step = 0; step < 4; ++step) {
      ASSERT_NO_FATAL_FAILURE(expectAsPrinted(number));
      number = std::nextafter(number, i % 2 == 0 ? 1e9 : -1e9);
    }
  }
}

TEST(Decimal, AgreesWithThePrintedNumberForSumsAndProducts) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> height(-4000, 4000);
  double sum = 0;
  for (int i = 0; i < 100000; ++i) {
    const double tenths = std::trunc(height(random) * 10000) / 10000;
    if (tenths == 0) continue;
    sum += tenths;
    ASSERT_NO_FATAL_FAILURE(expectAsPrinted(tenths));
    ASSERT_NO_FATAL_FAILURE(expectAsPrinted(sum));
    ASSERT_NO_FATAL_FAILURE(expectAsPrinted(tenths * 10000));
  }
}

TEST(Decimal, AgreesWithThePrintedNumberForAnyBits) {
  std::mt19937_64 random(11);
  for (int i = 0; i < 100000; ++i) {
    const std::uint64_t bits = random();
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    if (!std::isfinite(number) || number == 0) continue;
    ASSERT_NO_FATAL_FAILURE(expectAsPrinted(number));
  }
}

TEST(Decimal, AgreesWithThePrintedNumberAtThePowersOfTen) {
  for (int power = -320; power <= 307; ++power) {
    const double number = std::strtod(("1e" + std::to_string(power)).c_str(), nullptr);
    ASSERT_NO_FATAL_FAILURE(expectAsPrinted(number));
    ASSERT_NO_FATAL_FAILURE(expectAsPrinted(std::nextafter(number, 0)));
    ASSERT_NO_FATAL_FAILURE(expectAsPrinted(-std::nextafter(number, 1e308)));
  }
}

}  // namespace
