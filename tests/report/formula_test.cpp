#include "report/formula.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using report::CellPlace;
using report::Formula;

/// Cells of one table: row 0 "10.0005" "2022/05/11" "36°15.5", row 1 "2.5", row 2 "x".
const std::string& given(CellPlace cell) {
  static const std::map<std::pair<int, int>, std::string> cells = {
      {{0, 0}, "10.0005"}, {{0, 1}, "2022/05/11"}, {{0, 2}, "36°15.5"}, {{1, 0}, "2.5"}, {{2, 0}, "x"}};
  static const std::string none;
  const auto found = cells.find({cell.row, cell.col});
  return found == cells.end() ? none : found->second;
}

double value(const Formula& formula) {
  return valueOf(formula, {given, [](CellPlace cell) { return cell.row * 100.0; }});
}

std::string words(const Formula& formula) {
  return spreadsheetText(formula, {[](CellPlace cell) { return "S!A" + std::to_string(cell.row + 1); },
                                   [](CellPlace cell) { return "B" + std::to_string(cell.row + 1); }});
}

const Formula high = Formula::given({0, 0, 0});
const Formula low = Formula::given({0, 1, 0});

TEST(Formula, ReckonsInItsOrder) {
  EXPECT_DOUBLE_EQ(value(high + low * 2), 15.0005);
  EXPECT_DOUBLE_EQ(value((high + low) * 2), 25.001);
  EXPECT_DOUBLE_EQ(value(high - low / 2), 8.7505);
  EXPECT_DOUBLE_EQ(value(Formula::reckoned({0, 3, 0}) + 1), 301);
}

TEST(Formula, TakesWhatIsNoNumberAsZero) {
  EXPECT_DOUBLE_EQ(value(Formula::given({0, 2, 0}) + Formula::given({0, 9, 9})), 0);
  EXPECT_DOUBLE_EQ(value(Formula::sum({0, 0, 0}, 2)), 12.5005);
}

TEST(Formula, SumsWhereAnotherColumnIsFilled) {
  EXPECT_DOUBLE_EQ(value(Formula::sumWhere(1, {0, 0, 0}, 1)), 10.0005);  // row 1 has no date
}

TEST(Formula, DividesByZeroToZero) { EXPECT_DOUBLE_EQ(value(high / 0), 0); }

TEST(Formula, RoundsAsTheCalculationsDo) {
  EXPECT_DOUBLE_EQ(value(high.rounded(3)), 10.001);  // a half, away from zero
  EXPECT_DOUBLE_EQ(value((Formula(0) - high).rounded(3)), -10.001);
  EXPECT_DOUBLE_EQ(value((Formula(0) - high).halfUp(3)), -10);  // −10.0005 upwards
  EXPECT_DOUBLE_EQ(value((Formula(0) - low).truncated()), -2);
  EXPECT_DOUBLE_EQ(value((Formula(0) - low).floored()), -3);
  EXPECT_DOUBLE_EQ(value((Formula(0) - low).absolute()), 2.5);
  EXPECT_DOUBLE_EQ(value(Formula(30).sine()), 0.5);
}

TEST(Formula, ReadsDatesAndLatitudes) {
  // From 2022/05/11 to 2022/08/19 there are 20 + 30 + 31 + 19 = 100 days: 1 January 1900 cancels out.
  EXPECT_DOUBLE_EQ(value(Formula::days({0, 0, 1})), 44690);      // 122 years of 365, 30 leap days, 130 days
  EXPECT_DOUBLE_EQ(value(Formula::minutes({0, 0, 2})), 2175.5);  // 36 × 60 + 15.5
}

TEST(Formula, IsWrittenAsSpreadsheetsReadIt) {
  EXPECT_EQ(words((high + low) * 2), "(N(S!A1)+N(S!A2))*2");
  EXPECT_EQ(words(high - low / 1000), "(N(S!A1)-N(S!A2)/1000)");
  EXPECT_EQ(words(high / low), "IF(N(S!A2)=0,0,N(S!A1)/N(S!A2))");
  EXPECT_EQ(words(high / (low / 2)), "IF(N(S!A2)/2=0,0,N(S!A1)/(N(S!A2)/2))");
  EXPECT_EQ(words(Formula::reckoned({0, 4, 0}).rounded(4)), "ROUND(ROUND(B5,13),4)");
  EXPECT_EQ(words(Formula::sum({0, 0, 0}, 2)), "SUM(S!A1:A3)");
  EXPECT_EQ(words(Formula::sumWhere(1, {0, 0, 0}, 2)), "SUMIF(S!A1:A3,\"<>\",S!A1:A3)");
  EXPECT_EQ(words(Formula(-0.5) + 1), "((-0.5)+1)");
}

TEST(Formula, MovesTheCellsOfEachSheetByItsOwnRows) {
  Formula formula = Formula::sum({0, 0, 0}, 2) + Formula::given({1, 1, 0}) + Formula::given({2, 1, 0});
  formula.shift({10, 20});
  EXPECT_EQ(words(formula), "((SUM(S!A11:A13)+N(S!A22))+N(S!A2))");
}

}  // namespace
