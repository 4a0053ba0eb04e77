#include "text/pattern.h"

#include <gtest/gtest.h>

#include <limits>

#include "text/error.h"

namespace {

struct Case {
  const char* pattern;
  double number;
  const char* shown;
};

template <std::size_t N>
void expectShown(const Case (&cases)[N]) {
  for (const Case& c : cases)
    EXPECT_EQ(text::Pattern(c.pattern).format(c.number), c.shown) << c.pattern << " of " << c.number;
}

TEST(Pattern, ShowsHeightsOfFirstGrade) {
  expectShown({{"###0.0000", 0, "0.0000"},
               {"###0.0000", 12.3456, "12.3456"},
               {"###0.0000", 12.3, "12.3000"},
               {"###0.0000", 0.00005, "0.0001"},
               {"###0.0000", 0.00004999, "0.0000"},
               {"###0.0000", -0.00005, "-0.0001"},
               {"###0.0000", -0.00004, "0.0000"},
               {"###0.0000", -0.5, "-0.5000"},
               {"###0.0000", 9.99995, "10.0000"},
               {"###0.0000", 9999.99995, "10000.0000"},
               {"###0.0000", 123456.7, "123456.7000"},
               {"###0.0000", 0.1 + 0.2, "0.3000"}});
}

TEST(Pattern, ShowsHeightsOfOtherGrades) {
  expectShown({{"###0.000", 1.0005, "1.001"},    // the double is 1.00049999…; its decimal text is a tie
               {"###0.000", -1.0005, "-1.001"},  // away from zero
               {"###0.000", 1.0004, "1.000"},
               {"###0.000", 1.00049999999999, "1.000"},
               {"###0.000", -0.0004, "0.000"},
               {"###0.000", -0.0005, "-0.001"},
               {"###0.000", 0.0005, "0.001"},
               {"###0.000", 999.9995, "1000.000"},
               {"###0.000", 35, "35.000"}});
}

TEST(Pattern, ShowsCorrections) {
  expectShown({{"##0.0", 0.25, "0.3"},
               {"##0.0", -0.25, "-0.3"},
               {"##0.0", 0.04, "0.0"},
               {"##0.0", -0.04, "0.0"},
               {"##0.0", 1234.56, "1234.6"},
               {"###0", 0.5, "1"},
               {"###0", 1.5, "2"},
               {"###0", 2.5, "3"},
               {"###0", -0.5, "-1"},
               {"###0", 0.4999, "0"},
               {"###0", -0.4999, "0"},
               {"###0", 12345.5, "12346"},
               {"##0", 0, "0"},
               {"##0", 99.5, "100"},
               {"##0", -7, "-7"}});
}

TEST(Pattern, ShowsOneAndTwoDecimals) {
  expectShown({{"#0.00", 2.675, "2.68"},  // the double is 2.67499999…
               {"#0.00", -2.675, "-2.68"},
               {"#0.00", 1.005, "1.01"},
               {"#0.00", 0.005, "0.01"},
               {"#0.00", 0.0049, "0.00"},
               {"#0.00", 100, "100.00"},
               {"#0.0", 0.05, "0.1"},
               {"#0.0", 9.95, "10.0"},
               {"#0.0", 0.449, "0.4"},
               {"#0", 0.5, "1"},
               {"#0", -0.4, "0"},
               {"###0.0", 1234.55, "1234.6"},
               {"###0.0", 0, "0.0"}});
}

TEST(Pattern, DropsADecimalThatIsNotNeeded) {
  expectShown({{"#0.0#", 0, "0.0"},
               {"#0.0#", 1.5, "1.5"},
               {"#0.0#", 1.25, "1.25"},
               {"#0.0#", 1.255, "1.26"},
               {"#0.0#", 1.204, "1.2"},
               {"#0.0#", 1.295, "1.3"},
               {"#0.0#", -0.004, "0.0"},
               {"#0.0#", -0.05, "-0.05"},
               {"#0.0#", 12.999, "13.0"}});
}

TEST(Pattern, ShowsNoDigitBeforeThePointWhereNoneIsAskedFor) {
  expectShown({{"#.00", 0.5, ".50"},
               {"#.00", -0.5, "-.50"},
               {"#.00", 0, ".00"},
               {"#.00", -0.001, ".00"},
               {"#.00", 0.005, ".01"},
               {"#.00", 0.995, "1.00"},
               {"#.00", 1.5, "1.50"},
               {"#.00", 12.345, "12.35"}});
}

TEST(Pattern, ShowsPowersOfTen) {
  expectShown({{"0.00E+00", 0, "0.00E+00"},
               {"0.00E+00", 1, "1.00E+00"},
               {"0.00E+00", 123456, "1.23E+05"},
               {"0.00E+00", -123456, "-1.23E+05"},
               {"0.00E+00", 0.00123, "1.23E-03"},
               {"0.00E+00", -0.00123, "-1.23E-03"},
               {"0.00E+00", 1.005, "1.01E+00"},
               {"0.00E+00", 9.995, "1.00E+01"},      // the carry makes another digit
               {"0.00E+00", 0.0009995, "1.00E-03"},  // 9.995E-04
               {"0.00E+00", 9.994, "9.99E+00"},
               {"0.00E+00", 1e100, "1.00E+100"},
               {"0.00E+00", 2.5e-300, "2.50E-300"},
               {"0.00E+00", 1e-5, "1.00E-05"}});
}

TEST(Pattern, ShowsHugeAndTinyNumbers) {
  expectShown(
      {{"###0.000", 1e15, "1000000000000000.000"},
       {"###0.000", 123456789012345678.0, "123456789012346000.000"},  // 15 digits, then zeros
       {"###0", 1e22, "10000000000000000000000"},
       {"###0.0000", 99999999999.99995, "100000000000.0000"},  // 15 digits: 99999999999.9999|5 → …10000
       {"###0.0000", 1e-20, "0.0000"},
       {"###0.0000", -1e-300, "0.0000"},
       {"###0.0000", std::numeric_limits<double>::denorm_min(), "0.0000"}});
  EXPECT_EQ(text::Pattern("##0").format(std::numeric_limits<double>::max()).size(), 309U);
}

TEST(Pattern, OverflowsForWhatIsNotFinite) {
  const text::Pattern pattern("###0.000");
  EXPECT_THROW(pattern.format(std::numeric_limits<double>::infinity()), text::RuntimeError);
  EXPECT_THROW(pattern.format(std::numeric_limits<double>::quiet_NaN()), text::RuntimeError);
}

TEST(Pattern, AppendsToWhatIsThere) {
  std::string out = "H=";
  text::Pattern("#0.00").appendTo(out, 1.5);
  text::Pattern("0.00E+00").appendTo(out, 20);
  EXPECT_EQ(out, "H=1.502.00E+01");
}

TEST(Pattern, LeavesBlankTextBlank) {
  const text::Pattern pattern("###0.000");
  EXPECT_EQ(pattern.formatText(""), "");
  EXPECT_EQ(pattern.formatText("    "), "");
  EXPECT_EQ(pattern.formatText("0"), "0.000");
}

TEST(Pattern, ReadsTextAsANumber) {
  const text::Pattern pattern("###0.000");
  EXPECT_EQ(pattern.formatText(" 12.3456 "), "12.346");
  EXPECT_EQ(pattern.formatText("1,234"), "1.000");
  EXPECT_EQ(pattern.formatText("abc"), "0.000");
  EXPECT_EQ(pattern.formatText("-.5"), "-0.500");
}

TEST(Pattern, KeepsItsOwnText) { EXPECT_EQ(text::Pattern("###0.0000").text(), "###0.0000"); }

TEST(Pattern, RefusesWhatIsNoPattern) {
  for (const char* words : {"x", "0.0.0", "#,##0", "0E", "0E+", "0E+x", "0.00E-00", "0 ", "0.0E+00x"})
    EXPECT_THROW(text::Pattern{words}, text::RuntimeError) << words;
}

}  // namespace
