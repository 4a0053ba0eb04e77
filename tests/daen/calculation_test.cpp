#include "daen/calculation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "daen/route_maker.h"
#include "text/error.h"
#include "text/number.h"

namespace {

// At 45°30′ and 44°30′ the sine is sin 90° = 1 and the difference 1° = 0.0174533 rad, so a section at 100 m
// has 5.28 · 0.0174533 · 100 = 9.2153 mm, E = 9.2.
daen::Section section(const char* start, const char* end, const char* reference = "") {
  return {start, end, "45", "30", "44", "30", reference};
}

class DaenCalculation : public testing::Test, protected test::DaenGrids {
 protected:
  /// A at row 1, B 3, C 5, D 7, E 9; segments of 1, 1, 2 and 2 km; all at 100 m.
  void fiveBenchMarks() {
    benchMark("A", "100", "1");
    benchMark("B", "100", "1");
    benchMark("C", "100", "2");
    benchMark("D", "100", "2");
    benchMark("E", "100");
  }

  bool calculate(const daen::Section& chosen, std::int16_t grade = 1) {
    return daen::FcSeiDaenCal(route, sections, chosen, daen::FcDaenInit(job::Grade(grade)),
                              [this](const daen::SectionValues& values) {
                                shown.push_back(text::numberText(values.meanHeight) + " m " +
                                                text::numberText(values.correction) + " mm");
                              });
  }

  std::vector<std::string> shown;
};

// D = 1 + 1 + 2 = 4 km: B 1/4 · 9.2 = 2.3, C 2/4 · 9.2 = 4.6, D 9.2.
TEST_F(DaenCalculation, FirstGradeSharesTheCorrectionByDistance) {
  fiveBenchMarks();
  EXPECT_TRUE(calculate(section("A", "D")));
  EXPECT_EQ(shown, std::vector<std::string>{"100 m 9.2 mm"});
  EXPECT_EQ(result(1), "0.0|100.0000");
  EXPECT_EQ(result(3), "2.3|100.0023");
  EXPECT_EQ(result(5), "4.6|100.0046");
  EXPECT_EQ(result(7), "9.2|100.0092");
  EXPECT_EQ(result(9), "|");
}

// The same shares as whole millimetres, 2, 5 and 9; heights take the whole ones.
TEST_F(DaenCalculation, OtherGradesShowWholeMillimetresAndTakeThemIntoTheHeight) {
  fiveBenchMarks();
  EXPECT_TRUE(calculate(section("A", "D"), 2));
  EXPECT_EQ(result(1), "0|100.000");
  EXPECT_EQ(result(3), "2|100.002");
  EXPECT_EQ(result(5), "5|100.005");
  EXPECT_EQ(result(7), "9|100.009");
}

TEST_F(DaenCalculation, TheReferenceStandsAtTheStartOfTheFirstSectionAndGoesAlong) {
  fiveBenchMarks();
  calculate(section("A", "C", "-1.5"));
  EXPECT_EQ(result(1), "-1.5|99.9985");
  EXPECT_EQ(result(3), "3.1|100.0031");  // 1/2 · 9.2 − 1.5
  EXPECT_EQ(result(5), "7.7|100.0077");  // 9.2 − 1.5
  EXPECT_EQ(sectionResult(1), "A|C|7.7|100.0|9.2");
}

// Sections joined end to end add up: 9.2, then 9.2 + 9.2.
TEST_F(DaenCalculation, AJoiningSectionStartsFromTheAccumulatedCorrection) {
  fiveBenchMarks();
  calculate(section("A", "C", "0.5"));
  calculate(section("C", "E", "0.5"));
  EXPECT_EQ(result(5), "9.7|100.0097");
  EXPECT_EQ(result(7), "14.3|100.0143");  // 2/4 · 9.2 + 9.7
  EXPECT_EQ(result(9), "18.9|100.0189");
  EXPECT_EQ(sectionResult(1), "A|C|9.7|100.0|9.2");
  EXPECT_EQ(sectionResult(2), "C|E|18.9|100.0|9.2");
  EXPECT_EQ(sections.rows(), 4);
}

// The start shows 0, yet the shares are added to the 9.2 of the section before.
TEST_F(DaenCalculation, ASectionThatDoesNotJoinShowsZeroAtItsStartOnly) {
  fiveBenchMarks();
  calculate(section("A", "C"));
  calculate(section("D", "E"));
  EXPECT_EQ(result(7), "0.0|100.0000");
  EXPECT_EQ(result(9), "18.4|100.0184");
  EXPECT_EQ(sectionResult(2), "D|E|18.4|100.0|9.2");
}

// Down to row 1 the row beyond the end is the header: D = 1 + 1 = 2 km.
TEST_F(DaenCalculation, BackwardToTheFirstBenchMarkTheDistanceIsThatOfTheSection) {
  fiveBenchMarks();
  calculate(section("C", "A"));
  EXPECT_EQ(result(5), "0.0|100.0000");
  EXPECT_EQ(result(3), "4.6|100.0046");
  EXPECT_EQ(result(1), "9.2|100.0092");
}

// From row 9 to row 5, D = 2 + 2 + 1 km of row 4: D 2/5 · 9.2 = 3.68, C 4/5 · 9.2 = 7.36.
TEST_F(DaenCalculation, BackwardThePieceBeyondTheEndCountsToo) {
  fiveBenchMarks();
  calculate(section("E", "C", "1"));
  EXPECT_EQ(result(9), "1.0|100.0010");
  EXPECT_EQ(result(7), "4.7|100.0047");
  EXPECT_EQ(result(5), "8.4|100.0084");
  EXPECT_EQ(result(3), "|");
  EXPECT_EQ(sectionResult(1), "E|C|10.2|100.0|9.2") << "the section's own value is the whole of E";
}

TEST_F(DaenCalculation, EqualLatitudesLeaveTheStartingValueEverywhere) {
  fiveBenchMarks();
  calculate(section("A", "B", "2.5"));
  EXPECT_TRUE(calculate({"B", "D", "45", "30", "45", "30", "2.5"}));
  EXPECT_EQ(shown.back(), "100 m 0 mm");
  EXPECT_EQ(result(3), "11.7|100.0117");  // 2.5 + 9.2
  EXPECT_EQ(result(5), "11.7|100.0117");
  EXPECT_EQ(result(7), "11.7|100.0117");
}

TEST_F(DaenCalculation, AForwardSectionWithoutDistancesIsADivisionByZero) {
  benchMark("A", "100", "0");
  benchMark("B", "100", "");
  benchMark("C", "100");
  try {
    calculate(section("A", "C", "1"));
    FAIL() << "divided by 0";
  } catch (const text::RuntimeError& error) {
    EXPECT_STREQ(error.what(), "0 で除算しました。");
  }
  EXPECT_EQ(shown.size(), 1U);
  EXPECT_EQ(sectionResult(1), "A|C|10.2|100.0|9.2");
  EXPECT_EQ(result(1), "1.0|100.0010") << "what was written before stays";
  EXPECT_EQ(result(3), "|");
}

TEST_F(DaenCalculation, ABackwardSectionWithoutDistancesKeepsTheStartingValue) {
  benchMark("A", "100", "0");
  benchMark("B", "100", "");
  benchMark("C", "100");
  EXPECT_TRUE(calculate(section("C", "A", "1")));
  for (const int row : {5, 3, 1}) EXPECT_EQ(result(row), "1.0|100.0010") << row;
}

// At 1 m: 5.28 · 0.0174533 = 0.0922, E = 0.1; half of it is 0.05, away from zero 0.1. Southwards in the
// mirror −0.1.
TEST_F(DaenCalculation, SharesAreRoundedHalfAwayFromZero) {
  benchMark("A", "1", "1");
  benchMark("B", "1", "1");
  benchMark("C", "1");
  calculate(section("A", "C"));
  EXPECT_EQ(result(3), "0.1|1.0001");
  calculate({"A", "C", "44", "30", "45", "30", ""});
  EXPECT_EQ(shown.back(), "1 m -0.1 mm");
  EXPECT_EQ(result(3), "-0.1|0.9999");
}

// 0.0921534 mm for each metre: 0.5 m 0.046, 0.6 m 0.055, and their mirror images.
TEST_F(DaenCalculation, TheCorrectionIsRoundedToATenthOfAMillimetre) {
  benchMark("A", "0.5", "1");
  benchMark("B", "0.5", "1");
  benchMark("C", "0.7");
  calculate(section("A", "B"));
  calculate({"A", "B", "44", "30", "45", "30", ""});
  calculate(section("B", "C"));
  calculate({"B", "C", "44", "30", "45", "30", ""});
  EXPECT_EQ(shown, (std::vector<std::string>{"0.5 m 0 mm", "0.5 m 0 mm", "0.6 m 0.1 mm", "0.6 m -0.1 mm"}));
}

// Means: (100.2 + 100.3) / 2 = 100.25 → 100.3; (−3 − 3.1) / 2 = −3.05 → 3.1, without its sign.
TEST_F(DaenCalculation, TheMeanHeightIsRoundedToADecimetreWithoutSign) {
  benchMark("A", "100.2", "1");
  benchMark("B", "100.3", "1");
  benchMark("C", "-3", "1");
  benchMark("D", "-3.1");
  calculate(section("A", "B"));
  calculate(section("C", "D"));
  EXPECT_EQ(shown, (std::vector<std::string>{"100.3 m 9.2 mm", "3.1 m 0.3 mm"}));  // 0.2857 mm
  EXPECT_EQ(sectionResult(2), "C|D|9.5|3.1|0.3");
}

TEST_F(DaenCalculation, BlankAndUnreadableCellsCountAsZero) {
  benchMark("A", "", "1");
  benchMark("B", "x", "none");
  benchMark("C", "300", "1");
  EXPECT_TRUE(calculate(section("A", "C")));
  EXPECT_EQ(shown.back(), "100 m 9.2 mm");  // (0 + 0 + 300) / 3
  EXPECT_EQ(result(3), "9.2|0.0092");
  EXPECT_EQ(result(5), "9.2|300.0092");
}

TEST_F(DaenCalculation, UnknownOrEqualBenchMarksComputeNothing) {
  fiveBenchMarks();
  EXPECT_FALSE(calculate(section("A", "X")));
  EXPECT_FALSE(calculate(section("X", "C")));
  EXPECT_FALSE(calculate(section("B", "B")));
  EXPECT_FALSE(calculate(section("", "")));
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(sections.rows(), 2);
  for (const int row : {1, 3, 5, 7, 9}) EXPECT_EQ(result(row), "|");
}

TEST_F(DaenCalculation, BenchMarksAreFoundOnTheirFirstRowWhateverTheBlanksAroundThem) {
  benchMark(" A ", "100", "1");
  benchMark("B", "100", "1");
  benchMark("A", "100");
  EXPECT_TRUE(calculate(section("B ", "A")));
  EXPECT_EQ(result(1), "9.2|100.0092") << "row 5 is the second of that number";
  EXPECT_EQ(result(5), "|");
}

TEST_F(DaenCalculation, TheCurrentRowGoesAlongWithTheSearchForTheEnd) {
  fiveBenchMarks();
  calculate(section("A", "C"));
  EXPECT_EQ(route.row(), 5);
  calculate(section("A", "X"));
  EXPECT_EQ(route.row(), 9);
}

TEST_F(DaenCalculation, AGridWithoutBenchMarksComputesNothing) {
  route.setRows(1);
  EXPECT_FALSE(calculate(section("A", "C")));
}

TEST_F(DaenCalculation, ALongestRouteStaysWithinItsRows) {
  route.setRows(32767);
  route.setText(1, daen::colBenchMark, "A");
  route.setText(2, daen::colDistance, "4");
  route.setText(32765, daen::colBenchMark, "Z");
  EXPECT_TRUE(calculate({"A", "Z", "45", "30", "44", "30", "0.3"}));
  EXPECT_EQ(result(32765), "0.3|0.0003");
}

TEST_F(DaenCalculation, NumbersOutOfRangeAreAnOverflow) {
  fiveBenchMarks();
  const daen::Section far = {"A", "C", "1E308", "", "-1E308", "", ""};
  try {
    calculate(far);
    FAIL() << "no overflow";
  } catch (const text::RuntimeError& error) {
    EXPECT_EQ(error.code(), text::ErrorCode::Overflow);
  }
  EXPECT_EQ(result(1), "|");
}

TEST(FcDaenInit, PatternsByGrade) {
  const daen::Formats first = daen::FcDaenInit(job::Grade(1));
  EXPECT_EQ(first.correction.text() + " " + first.height.text() + " " + first.distance.text() + " " +
                first.loaded.text() + " " + first.difference.text(),
            "##0.0 ###0.0000 ###0.000 ###0.0000 ###0.0000");
  const daen::Formats other = daen::FcDaenInit(job::Grade(2));
  EXPECT_EQ(other.correction.text() + " " + other.height.text() + " " + other.distance.text() + " " +
                other.loaded.text() + " " + other.difference.text(),
            "##0 ###0.000 ###0.000 ###0.000 ###0.000");
}

}  // namespace
