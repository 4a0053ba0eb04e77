#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "text/pattern.h"

// The pattern formatter against a second, slow one that works on printed digits like a clerk with a pencil:
// it writes the number out with 15 significant digits, every place before and behind the point, and rounds
// that text digit by digit.

namespace {

/// The number of 15 significant digits written out with 340 places on both sides of the point.
struct WrittenOut {
  static constexpr int places = 340;
  std::string digits = std::string(2 * places, '0');  // digits[places − 1] is the ones digit

  explicit WrittenOut(double number) {
    char printed[40];
    std::snprintf(printed, sizeof printed, "%.14e", std::abs(number));
    const int exponent = std::atoi(printed + 17);
    const std::string figures = std::string(1, printed[0]) + std::string(printed + 2, 14);
    for (int i = 0; i < 15; ++i)
      digits[static_cast<std::size_t>(places - 1 - exponent + i)] = figures[static_cast<std::size_t>(i)];
  }

  /// Rounds to `decimals` digits behind the point, halves up (the sign stands elsewhere).
  void round(int decimals) {
    const auto cut = static_cast<std::size_t>(places + decimals);
    const bool up = digits[cut] >= '5';
    std::fill(digits.begin() + static_cast<std::ptrdiff_t>(cut), digits.end(), '0');
    for (std::size_t at = cut; up && at-- > 0;) {
      if (digits[at] != '9') {
        ++digits[at];
        break;
      }
      digits[at] = '0';
    }
  }

  bool isZero() const { return digits.find_first_not_of('0') == std::string::npos; }
  std::string whole() const {
    const std::string all = digits.substr(0, places);
    const std::size_t first = all.find_first_not_of('0');
    return first == std::string::npos ? std::string() : all.substr(first);
  }
  std::string fraction(int decimals) const {
    return digits.substr(places, static_cast<std::size_t>(decimals));
  }
};

struct Shape {
  const char* pattern;
  bool zeroBeforePoint;
  int always;  // decimals always shown
  int most;    // decimals at the most
};

constexpr Shape shapes[] = {
    {"###0.0000", true, 4, 4}, {"###0.000", true, 3, 3}, {"##0.0", true, 1, 1}, {"###0", true, 0, 0},
    {"##0", true, 0, 0},       {"#0.00", true, 2, 2},    {"#0.0", true, 1, 1},  {"#0", true, 0, 0},
    {"#0.0#", true, 1, 2},     {"###0.0", true, 1, 1},   {"#.00", false, 2, 2},
};

std::string slowly(const Shape& shape, double number) {
  WrittenOut written(number);
  written.round(shape.most);
  std::string out = number < 0 && !written.isZero() ? "-" : "";
  const std::string whole = written.whole();
  out += whole.empty() && shape.zeroBeforePoint ? "0" : whole;
  if (shape.most == 0) return out;
  std::string fraction = written.fraction(shape.most);
  while (static_cast<int>(fraction.size()) > shape.always && fraction.back() == '0') fraction.pop_back();
  return out + "." + fraction;
}

void compare(double number) {
  for (const Shape& shape : shapes) {
    const std::string shown = text::Pattern(shape.pattern).format(number);
    ASSERT_EQ(shown, slowly(shape, number)) << shape.pattern << " of " << testing::PrintToString(number);
  }
}

TEST(PatternProperty, AgreesOnRandomHeights) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> height(-4000, 4000);
  for (int i = 0; i < 60000; ++i) ASSERT_NO_FATAL_FAILURE(compare(height(random)));
}

TEST(PatternProperty, AgreesOnTies) {
  // n + 1/2 units of the last place shown, for 0 to 4 decimals.
  std::mt19937_64 random(2);
  std::uniform_int_distribution<std::int64_t> halves(-40'000'000, 40'000'000);
  for (int i = 0; i < 60000; ++i) {
    const double unit = std::pow(10.0, i % 5);
    ASSERT_NO_FATAL_FAILURE(compare((static_cast<double>(halves(random)) + 0.5) / unit));
  }
}

TEST(PatternProperty, AgreesNextToTies) {
  std::mt19937_64 random(3);
  std::uniform_int_distribution<std::int64_t> halves(-40'000'000, 40'000'000);
  for (int i = 0; i < 40000; ++i) {
    double number = (static_cast<double>(halves(random)) + 0.5) / std::pow(10.0, i % 5);
    for (int step = random() % 3 == 0 ? 60 : 1; step > 0; --step)
      number = std::nextafter(number, i % 2 == 0 ? 1e9 : -1e9);
    ASSERT_NO_FATAL_FAILURE(compare(number));
  }
}

TEST(PatternProperty, AgreesOnAllMagnitudes) {
  std::mt19937_64 random(4);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-320, 300);
  for (int i = 0; i < 40000; ++i)
    ASSERT_NO_FATAL_FAILURE(compare(mantissa(random) * std::pow(10.0, exponent(random))));
}

TEST(PatternProperty, AgreesWithPrintfOnPowersOfTen) {
  // Printed with 15 digits and then with three: where the first text is no tie, both roundings are one.
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> mantissa(1, 10);
  std::uniform_int_distribution<int> exponent(-290, 290);
  const text::Pattern pattern("0.00E+00");
  for (int i = 0; i < 50000; ++i) {
    const double number = (i % 2 == 0 ? 1 : -1) * mantissa(random) * std::pow(10.0, exponent(random));
    char printed[40];
    std::snprintf(printed, sizeof printed, "%.2E", number);
    ASSERT_EQ(pattern.format(number), printed);
  }
}

}  // namespace
