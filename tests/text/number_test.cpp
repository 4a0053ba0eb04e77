#include "text/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <utility>

#include "text/error.h"

namespace {

text::ErrorCode codeOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const text::RuntimeError& error) {
    return error.code();
  }
  ADD_FAILURE() << "no error was raised";
  return {};
}

TEST(ReadNumber, TakesTheLongestNumericPrefix) {
  const std::pair<const char*, double> cases[] = {
      {"0", 0},
      {"12", 12},
      {"12.5", 12.5},
      {"+7", 7},
      {"-7.25", -7.25},
      {"12a", 12},
      {"1,234", 1},
      {"12.3.4", 12.3},
      {"12 34", 12},
      {"1-2", 1},
      {"35.", 35},
      {"35.m", 35},
      {".5", 0.5},
      {"-.5", -0.5},
      {"+.5", 0.5},
      {"007", 7},
      {"12.3456 m", 12.3456},
  };
  for (const auto& [words, number] : cases) EXPECT_EQ(text::readNumber(words), number) << words;
}

TEST(ReadNumber, TakesAnExponentOnlyWhereDigitsFollow) {
  const std::pair<const char*, double> cases[] = {
      {"1e3", 1000},   {"1E3", 1000}, {"1E+3", 1000}, {"1E-3", 0.001}, {"25E-1", 2.5},
      {"1.5e2x", 150}, {"1e", 1},     {"1E+", 1},     {"1E-", 1},      {"1Ex", 1},
      {"1e+x", 1},     {".5e1", 5},   {"5.e1", 50},   {"1E 3", 1},     {"1E3.5", 1000},
  };
  for (const auto& [words, number] : cases) EXPECT_EQ(text::readNumber(words), number) << words;
}

TEST(ReadNumber, SkipsLeadingBlanksOnly) {
  EXPECT_EQ(text::readNumber("   8.5"), 8.5);
  EXPECT_EQ(text::readNumber("8.5   "), 8.5);
  EXPECT_EQ(text::readNumber("- 5"), 0);
}

TEST(ReadNumber, IsZeroWithoutANumericPrefix) {
  for (const char* words :
       {"", " ", "abc", "-", "+", ".", "-.", "--5", "+-5", "e5", ".e5", "E", "標高 12", "１２", "-a1", "$5"})
    EXPECT_EQ(text::readNumber(words), 0) << words;
}

TEST(ReadNumber, DoesNotKnowNamesAndHexadecimals) {
  for (const char* words : {"inf", "nan", "Infinity", "0x1F", "&H1F"}) EXPECT_EQ(text::readNumber(words), 0);
}

TEST(ReadNumber, ReadsEveryDecimalAsTheNearestDouble) {
  std::mt19937_64 random(7);
  for (int turn = 0; turn < 200000; ++turn) {
    // 1 to 18 digits, leading zeros among them, the point before, within or behind them.
    std::string words;
    for (std::size_t digits = 1 + random() % 18; digits > 0; --digits)
      words += static_cast<char>('0' + random() % 10);
    words.insert(random() % (words.size() + 1), ".");
    if (random() % 2 == 0) words.insert(0, "-");
    EXPECT_EQ(text::readNumber(words), std::strtod(words.c_str(), nullptr)) << words;
  }
  EXPECT_TRUE(std::signbit(text::readNumber("-0.0")));
}

TEST(ReadNumber, ReadsEveryDigit) {
  EXPECT_EQ(text::readNumber("2.9999999999999996"), 2.9999999999999996);
  EXPECT_EQ(text::readNumber("123456789012345678901234567890"), 123456789012345678901234567890.0);
  EXPECT_EQ(text::readNumber("0.000000000000000000000000000001"), 1e-30);
}

TEST(ReadNumber, OverflowsBeyondDouble) {
  EXPECT_EQ(text::readNumber("1.7976931348623157E308"), std::numeric_limits<double>::max());
  for (const char* words :
       {"1E309", "-1E309", "1E99999999999999999999", "+2e308", "17976931348623159000000000000E280"})
    EXPECT_EQ(codeOf([&] { text::readNumber(words); }), text::ErrorCode::Overflow) << words;
  const std::string wide(400, '9');
  EXPECT_EQ(codeOf([&] { text::readNumber(wide); }), text::ErrorCode::Overflow);
}

TEST(ReadNumber, IsZeroBelowTheSmallestDouble) {
  for (const char* words : {"1E-400", "-1E-400", "1E-99999999999999999999", "0E999999", "0.0E309"})
    EXPECT_EQ(text::readNumber(words), 0) << words;
  EXPECT_EQ(text::readNumber("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(text::readNumber("4.9406564584124654E-324"), std::numeric_limits<double>::denorm_min());
  // 400 zeros behind the point and then E401: 0.00…01 × 10^401 = 1.
  EXPECT_EQ(text::readNumber("0." + std::string(400, '0') + "1E401"), 1);
}

TEST(NumberText, IsTheShortestFormOfFifteenDigits) {
  const std::pair<double, const char*> cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {-1, "-1"},
      {100, "100"},
      {0.5, "0.5"},
      {-0.5, "-0.5"},
      {12.34, "12.34"},
      {123.4567, "123.4567"},
      {0.1 + 0.2, "0.3"},
      {2.9999999999999996, "3"},
      {1.0 / 3, "0.333333333333333"},
      {2.0 / 3, "0.666666666666667"},
      {-100.0 / 3, "-33.3333333333333"},
      {123456789.123456789, "123456789.123457"},
      {99999999999999.95,
       "100000000000000"},  // 15 digits of 99999999999999.953… leave no decimals: …9 carries
      {999999999999999, "999999999999999"},
      {123456789012345, "123456789012345"},
  };
  for (const auto& [number, words] : cases) EXPECT_EQ(text::numberText(number), words);
}

TEST(NumberText, WritesAnExponentBeyondFifteenDigitsAndBelowFourZeros) {
  const std::pair<double, const char*> cases[] = {
      {0.1, "0.1"},
      {0.001, "0.001"},
      {0.0001, "0.0001"},
      {0.00012345, "0.00012345"},
      {0.00001, "1E-05"},
      {-0.00001, "-1E-05"},
      {0.000012345, "1.2345E-05"},
      {1e-10, "1E-10"},
      {1e15, "1E+15"},
      {1234567890123456, "1.23456789012346E+15"},  // the 16th digit, 6, rounds …345 up to …346
      {-2.5e20, "-2.5E+20"},
      {1e100, "1E+100"},
      {1.5e-300, "1.5E-300"},
      {std::numeric_limits<double>::max(), "1.79769313486232E+308"},
      {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
  };
  for (const auto& [number, words] : cases) EXPECT_EQ(text::numberText(number), words);
}

TEST(NumberText, AgreesWithTheCLibrary) {
  std::mt19937_64 random(6);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-25, 25);
  for (int i = 0; i < 100000; ++i) {
    const double number = mantissa(random) * std::pow(10.0, exponent(random));
    char printed[40];
    std::snprintf(printed, sizeof printed, "%.15G", number);
    ASSERT_EQ(text::numberText(number), printed);
  }
}

TEST(NumberText, OverflowsForWhatIsNotFinite) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double number : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(codeOf([&] { text::numberText(number); }), text::ErrorCode::Overflow);
}

TEST(NumberText, IsReadBackAsTheSameNumberWhereFifteenDigitsSuffice) {
  // Every multiple of 0.1 mm up to 4,000 m in steps of 0.3711 m has at most 8 digits.
  for (int unit = 0; unit < 40000000; unit += 3711) {
    const double height = unit / 10000.0;
    EXPECT_EQ(text::readNumber(text::numberText(height)), height);
    EXPECT_EQ(text::readNumber(text::numberText(-height)), -height);
  }
}

TEST(IsNumeric, TakesANumberAndNothingElse) {
  for (const char* words :
       {"0", "12", "-12", "+12", "35.", ".5", "-.5", "12.5", "1E5", "1e-5", "1.E+3", "  7  ", "007", "0.0"})
    EXPECT_TRUE(text::isNumeric(words)) << words;
}

TEST(IsNumeric, RefusesEverythingElse) {
  for (const char* words :
       {"",    "   ", "abc", "12a", "1,234", "1.2.3", "-",    "+",    ".",   "-.",  "1E",
        "1E+", "E5",  "1 2", "--1", "- 1",   "１２",  "12\t", "0x10", "inf", "nan", "1e5.0"})
    EXPECT_FALSE(text::isNumeric(words)) << words;
}

TEST(Int, IsTheGreatestIntegerNotAbove) {
  EXPECT_EQ(text::Int(2.7), 2);
  EXPECT_EQ(text::Int(-2.1), -3);
  EXPECT_EQ(text::Int(-2), -2);
  EXPECT_EQ(text::Int(2.9999999999999996), 2);  // a double as it stands, without its text
  EXPECT_EQ(text::Int(1e300), 1e300);
}

TEST(Fix, CutsOffTowardsZero) {
  EXPECT_EQ(text::Fix(2.7), 2);
  EXPECT_EQ(text::Fix(-2.7), -2);
  EXPECT_EQ(text::Fix(-0.9), 0);
}

TEST(Sign, IsMinusOneZeroOrOne) {
  EXPECT_EQ(text::sign(-0.001), -1);
  EXPECT_EQ(text::sign(0), 0);
  EXPECT_EQ(text::sign(-0.0), 0);
  EXPECT_EQ(text::sign(1e-300), 1);
}

TEST(FcIntOfText, LosesNoUnitToFloatingPointNoise) {
  EXPECT_EQ(text::FcIntOfText(2.9999999999999996), 3);
  EXPECT_EQ(text::FcIntOfText(3), 3);
  EXPECT_EQ(text::FcIntOfText(2.99999999999999), 2);  // 15 digits: its text is not "3"
  EXPECT_EQ(text::FcIntOfText(-2.9999999999999996), -3);
  EXPECT_EQ(text::FcIntOfText(-3.0000000000000004), -3);  // noise below a whole number costs no unit either
  EXPECT_EQ(text::FcIntOfText(0.29 * 100), 29);           // 28.999999999999996
  EXPECT_EQ(text::FcIntOfText(1.15 * 100), 115);          // 114.99999999999999
}

TEST(FcIntOfText, IsTheGreatestIntegerNotAbove) {
  EXPECT_EQ(text::FcIntOfText(-0.5), -1);
  EXPECT_EQ(text::FcIntOfText(0.5), 0);
  EXPECT_EQ(text::FcIntOfText(0), 0);
  EXPECT_EQ(text::FcIntOfText(-1), -1);
  EXPECT_EQ(text::FcIntOfText(-1.0001), -2);
  EXPECT_EQ(text::FcIntOfText(0.00001), 0);  // through "1E-05"
  EXPECT_EQ(text::FcIntOfText(-0.00001), -1);
  EXPECT_EQ(text::FcIntOfText(1e20), 1e20);  // through "1E+20"
  EXPECT_EQ(text::FcIntOfText(123456789.5), 123456789);
}

/// The sum of two readings of whole units, as a calculation forms it: each read from its decimal, then added.
double sumOfReadings(int first, int second, double unitsInOne) {
  return first / unitsInOne + second / unitsInOne;
}

// (1.0001 + 1.0002) / 2 = 1.00015 → 1.0002; −4.0005 / 2 = −2.00025 → −2.0002 (upwards) or −2.0003 (away from
// zero); 1.005 in 100 units is the double 1.00499999999999989…, its text in units "100.5", with the half 101
// → 1.01.
// Whole numbers, halves and what lies up to 64 units of the last place or 2 x 10^-5 beside them, from 10^-3
// to 10^12, both signs: the same as by way of the text itself.
TEST(FcIntOfText, AgreesWithTheTextBesideEveryWholeNumber) {
  const auto byText = [](double number) {
    return std::floor(std::strtod(text::numberText(number).c_str(), nullptr));
  };
  std::mt19937_64 random(20261122);
  for (int i = 0; i < 200000; ++i) {
    const double size = std::pow(10.0, std::uniform_real_distribution<double>(-3, 12)(random));
    const double whole = std::floor(size * 2) / 2;
    double near = whole;
    for (auto steps = static_cast<int>(random() % 65); steps > 0; --steps)
      near = std::nextafter(near, i % 2 == 0 ? 1e13 : -1e13);
    const double beside = whole + std::uniform_real_distribution<double>(-2e-5, 2e-5)(random);
    for (const double number : {near, -near, beside, -beside, size, -size})
      ASSERT_EQ(text::FcIntOfText(number), byText(number)) << text::numberText(number);
  }
}

TEST(RoundHalf, CountsAHalfAsItReads) {
  EXPECT_EQ(text::roundHalfUp((1.0001 + 1.0002) / 2, 10000), 1.0002);
  EXPECT_EQ(text::roundHalfUp(-4.0005 / 2, 10000), -2.0002);
  EXPECT_EQ(text::roundHalfAway(-4.0005 / 2, 10000), -2.0003);
  EXPECT_EQ(text::roundHalfUp(1.005, 100), 1.01);
  EXPECT_EQ(text::roundHalfUp(2.4999, 1), 2);
  EXPECT_EQ(text::roundHalfAway(-0.05, 10), -0.1);
  EXPECT_EQ(text::roundHalfAway(0.04, 10), 0);
}

// The mean of two readings whose sum is s units is ⌊(s + 1) / 2⌋ units with halves upwards and
// sign(s) · ⌊(|s| + 1) / 2⌋ with halves away from zero. Held against whole numbers for every sum from −50,000
// to 50,000, each parted in several ways of one sign (two readings of
// one height or one section), in tenths, in millimetres (other grades) and in tenths of a
// millimetre (grade 1).
TEST(RoundHalf, AgreesWithWholeNumbersForEverySum) {
  for (const double unitsInOne : {10.0, 1000.0, 10000.0})
    for (int sum = -50000; sum <= 50000; ++sum)
      for (const int first : {0, sum / 7, sum / 3, sum / 2}) {
        const double mean = sumOfReadings(first, sum - first, unitsInOne) / 2;
        const int upwards = (sum + 1 - (((sum + 1) % 2 + 2) % 2)) / 2;
        const int away = (sum < 0 ? -1 : 1) * ((std::abs(sum) + 1) / 2);
        ASSERT_EQ(text::roundHalfUp(mean, unitsInOne), upwards / unitsInOne) << sum << " from " << first;
        ASSERT_EQ(text::roundHalfAway(mean, unitsInOne), away / unitsInOne) << sum << " from " << first;
      }
}

TEST(FcDegToRad, TurnsDegreesIntoRadians) {
  EXPECT_EQ(text::FcDegToRad(0), 0);
  EXPECT_DOUBLE_EQ(text::FcDegToRad(180), 3.14159265358979323846);
  EXPECT_DOUBLE_EQ(text::FcDegToRad(-90), -1.57079632679489661923);
  EXPECT_DOUBLE_EQ(text::FcDegToRad(36), 0.62831853071795864769);
}

TEST(ToInt16, OverflowsInsteadOfWrapping) {
  EXPECT_EQ(text::toInt16(32767), 32767);
  EXPECT_EQ(text::toInt16(-32768), -32768);
  EXPECT_EQ(text::toInt16(0), 0);
  for (const long long number : {32768LL, -32769LL, 65536LL, 4294967296LL})
    EXPECT_EQ(codeOf([&] { text::toInt16(number); }), text::ErrorCode::Overflow) << number;
}

TEST(ReadInt16, RoundsHalvesToTheEvenOne) {
  const std::pair<const char*, int> cases[] = {
      {"1", 1},     {" 3 ", 3},    {"-1", -1},   {"1.5", 2},  {"2.5", 2},         {"-0.5", 0},
      {"-1.5", -2}, {"0.5001", 1}, {"1E2", 100}, {"35.", 35}, {"32767.4", 32767}, {"-32768.5", -32768},
  };
  for (const auto& [words, number] : cases) EXPECT_EQ(text::readInt16(words), number) << words;
}

TEST(ReadInt16, RaisesWhatIsWrong) {
  for (const char* words : {"", " ", "A", "1A", "１"})
    EXPECT_EQ(codeOf([&] { text::readInt16(words); }), text::ErrorCode::TypeMismatch) << words;
  for (const char* words : {"32768", "32767.5", "-32769", "40000", "1E10", "1E400"})
    EXPECT_EQ(codeOf([&] { text::readInt16(words); }), text::ErrorCode::Overflow) << words;
}

}  // namespace
