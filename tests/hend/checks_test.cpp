#include "hend/checks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hend/calculation.h"
#include "hend/grid_maker.h"

namespace {

using Lines = std::vector<std::string>;
using test::VariationGrid;

const job::Grade first(1);
const char* const date = "2022/08/19";

/// "error 2,10 text" for each finding.
Lines found(const VariationGrid& route, const char* reference = date, const hend::CheckBounds& bounds = {}) {
  Lines lines;
  for (const ui::Finding& finding : hend::check(route.grid, reference, first, bounds)) {
    EXPECT_FALSE(finding.wayOut.empty() && finding.severity == ui::Severity::Error) << finding.text;
    lines.push_back(std::string(finding.severity == ui::Severity::Error ? "error " : "warning ") +
                    std::to_string(finding.row) + "," + std::to_string(finding.col) + " " + finding.text);
  }
  return lines;
}

/// E1 to E5 with the headers of the screen: E3 is new between E2 and E4. Rows: E1 1, E2 3, E3 5, E4 7, E5 9.
class VariationChecks : public testing::Test {
 protected:
  VariationChecks() {
    const char* headers[] = {"水準点", "新観測年月日", "新観測比高", "旧観測年月日", "旧観測比高", "比高差",
                             "新－旧", "比高変化",     "基－新",     "変動補正量",   "基準日比高", "備考"};
    for (int col = 0; col < 12; ++col) route.grid.setText(0, col, headers[col]);
  }

  void sound() {
    route.add("E1", "2022/05/11", "1.5000", "2019/08/15", "1.4900");
    route.add("E2", "2022/05/11", "1.2000", "2019/08/15", "2.0100");
    route.add("E3", "2022/05/21", "0.8000", "", "");
    route.add("E4", "2022/05/11", "-0.7000", "2019/08/15", "-0.7200");
    route.end("E5");
    calculate();
  }

  void calculate(const char* reference = date) { hend::FcHendCalc(route.grid, reference, first); }
  void set(int row, int col, const char* text) { route.grid.setText(row, col, text); }

  VariationGrid route;
};

TEST_F(VariationChecks, ASoundRouteHasNoFinding) {
  sound();
  EXPECT_EQ(found(route), Lines{});
}

TEST_F(VariationChecks, AnEmptyGridHasNoFinding) {
  route.grid.setRows(2);
  EXPECT_EQ(found(route), Lines{});
  EXPECT_EQ(found(route, ""), Lines{});
}

// RF 2.0000 − 1.9800 and RB 2.0021 − 1.9820: means 2.0011 (2.00105) and 1.9810, difference 0.0201 (0.02005),
// one unit off 2.0011 − 1.9810 = 0.0201 at most.
TEST_F(VariationChecks, ASoundPairHasNoFinding) {
  route.add("RF", "2022/05/11", "2.0000", "2019/08/15", "1.9800");
  route.add("R", "2022/05/11", "", "2019/08/15", "", "-2");
  route.add("RB", "2022/05/13", "2.0021", "2019/08/17", "1.9820");
  route.add("R", "2022/05/13", "", "2019/08/15", "", "-2");
  route.add("R", "2022/05/11", "1.0000", "2019/08/15", "0.9990");
  route.end("S");
  calculate();
  EXPECT_EQ(found(route), Lines{});
}

TEST_F(VariationChecks, AMissingReferenceDate) {
  sound();
  for (const char* none : {"", "  "})
    EXPECT_EQ(found(route, none),
              Lines{"error -1,-1 基準日がありません。変動補正量は 0 として計算されます。"});
}

TEST_F(VariationChecks, AReferenceDateThatIsNone) {
  sound();
  EXPECT_EQ(found(route, "2022/02/30"), Lines{"error -1,-1 基準日「2022/02/30」は日付ではありません。"});
  EXPECT_EQ(found(route, "2022-8-19"), Lines{}) << "another spelling";
}

TEST_F(VariationChecks, AReferenceDateThatIsNotTheOneComputedWith) {
  sound();
  EXPECT_EQ(
      found(route, "2022/08/20"),
      Lines{"error -1,-1 基準日 2022/08/20 ではまだ計算していません。表は基準日 2022/08/19 の値です。"});
  calculate("2022/08/20");
  EXPECT_EQ(found(route, "2022/08/20"), Lines{});
}

TEST_F(VariationChecks, AReferenceDateThatCameAfterTheCalculation) {
  route.add("E1", "2022/05/11", "1.5000", "2019/08/15", "1.4900");
  route.end("E2");
  calculate("");
  EXPECT_EQ(found(route),
            Lines{"error -1,-1 基準日 2022/08/19 ではまだ計算していません。表は基準日なしの値です。"});
}

// E1, E2 and E4 were observed on 05/11, E3's midpoint is 05/16.
TEST_F(VariationChecks, AReferenceDateBeforeObservations) {
  sound();
  calculate("2022/05/15");
  EXPECT_EQ(found(route, "2022/05/15"),
            Lines{"warning 5,8 基準日 2022/05/15 が新観測年月日より前の水準点が 1 点あります(水準点 E3から)。"
                  "補正の符号が逆になります。"});
  calculate("2022/05/16");
  EXPECT_EQ(found(route, "2022/05/16"), Lines{}) << "on the day itself";
}

TEST_F(VariationChecks, ATextThatIsNoDate) {
  sound();
  set(3, hend::colOldDate, "2019/13/01");
  EXPECT_EQ(found(route), Lines{"error 3,3 水準点 E2の旧観測年月日「2019/13/01」は日付ではありません。"});
  set(9, hend::colNewDate, "x");
  EXPECT_EQ(found(route)[1], "error 9,1 水準点 E5の新観測年月日「x」は日付ではありません。")
      << "at an end too";
}

TEST_F(VariationChecks, DatesInReversedOrder) {
  sound();
  set(1, hend::colNewDate, "2019/08/15");
  set(1, hend::colOldDate, "2022/05/11");
  calculate();
  const Lines lines = found(route);
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines[0], "error 1,3 水準点 E1の旧観測年月日 2022/05/11 が新観測年月日 2019/08/15 より後です。");
}

// E1 on one day in both epochs: its rate is the one before, 0 at first.
TEST_F(VariationChecks, NoDaysBetweenTheEpochs) {
  sound();
  set(1, hend::colOldDate, "2022/05/11");
  calculate();
  EXPECT_EQ(found(route), Lines{"warning 1,6 水準点 E1の新旧の観測日が同じです(2022/05/11)。"
                                "前の区間の比高変化 0.00E+00 m/日で計算されます。"});
  set(1, hend::colOldDate, "2022/05/10");
  calculate();
  EXPECT_EQ(found(route, date, {.rate = 1}), Lines{}) << "one day is enough";
}

TEST_F(VariationChecks, AMissingDate) {
  sound();
  set(3, hend::colNewDate, "");
  set(3, hend::colDaysNewOld, "");
  set(3, hend::colDaysReference, "");
  set(4, hend::colNewDate, "");
  calculate();
  EXPECT_EQ(found(route)[0],
            "warning 3,1 水準点 E2に新観測年月日がありません。前の日数(新－旧 1000 日、基－新 100 "
            "日)で計算されます。");
}

// 0.0100 / 1001 = 9.99E-06, which three digits hardly tell from 1.00E-05.
TEST_F(VariationChecks, DaysThatDifferFromTheirDates) {
  sound();
  set(1, hend::colDaysNewOld, "1001");
  set(7, hend::colDaysReference, "");
  EXPECT_EQ(found(route),
            (Lines{"error 1,6 水準点 E1の新－旧 1001 日は違います。日付から数えると 1000 日です。",
                   "error 7,8 水準点 E4の基－新が空です。日付から数えると 100 日です。"}));
}

// 0.0100 / 1000 = 1.00E-05.
TEST_F(VariationChecks, ARateTypedByHand) {
  sound();
  set(2, hend::colRate, "1.10E-05");
  EXPECT_EQ(
      found(route),
      Lines{"warning 2,7 区間 E1-E2の比高変化「1.10E-05」は手で直した値です。計算では 1.00E-05 です。"});
}

TEST_F(VariationChecks, AMidpointThatTheDatesHaveLeftBehind) {
  sound();
  set(5, hend::colNewDate, "2022/05/31");
  EXPECT_EQ(found(route), Lines{"error 4,1 水準点 E3の中間の日付 2022/05/16 は、新観測年月日 2022/05/11 と "
                                "2022/05/31 の中間ではありません。"});
  calculate();
  EXPECT_EQ(found(route), Lines{});
}

TEST_F(VariationChecks, AMissingHeightDifference) {
  sound();
  set(2, hend::colOldHeight, "");
  EXPECT_EQ(found(route), Lines{"error 2,4 区間 E1-E2に旧観測比高がありません。0 として計算されます。"});
  set(2, hend::colOldHeight, "1.4900");
  set(6, hend::colNewHeight, " ");
  EXPECT_EQ(found(route), Lines{"error 6,2 区間 E3-E4に新観測比高がありません。0 として計算されます。"});
}

TEST_F(VariationChecks, AHeightDifferenceThatNoCalculationHasTaken) {
  sound();
  set(2, hend::colNewHeight, "1.5100");
  EXPECT_EQ(found(route),
            Lines{"error 2,5 区間 E1-E2の比高差「0.0100」が新観測比高 − 旧観測比高 0.0200 と違います。"
                  "入力した値はまだ計算に入っていません。"});
  calculate();
  EXPECT_EQ(found(route), Lines{});
}

// 1.3000 + 0.8000 = 2.1000 instead of 2.0000.
TEST_F(VariationChecks, AHeightDifferenceBesideANewPoint) {
  sound();
  set(4, hend::colNewHeight, "1.3000");
  EXPECT_EQ(found(route),
            Lines{"error 5,2 水準点 E3の新観測比高「2.0000」が前後の区間の和 2.1000 と違います。"
                  "入力した値はまだ計算に入っていません。"});
  set(4, hend::colNewHeight, "1.2000");
  set(4, hend::colOldHeight, "2.0200");
  EXPECT_EQ(found(route), Lines{"error 5,5 水準点 E3はまだ計算していません。"});
}

// 1.5000 + 0.0015 = 1.5015; the calculation gave 1.00E-05 × 100 = 0.0010.
TEST_F(VariationChecks, ACorrectionThatEnterHasNotTaken) {
  sound();
  set(2, hend::colCorrection, "0.0015");
  EXPECT_EQ(
      found(route),
      (Lines{
          "error 2,10 区間 E1-E2の基準日比高「1.5010」は、新観測比高 1.5000 と変動補正量 0.0015 の和 1.5015 "
          "ではありません。",
          "warning 2,9 区間 E1-E2の変動補正量「0.0015」は手で直した値です。計算では 0.0010 です。"}));
  hend::FcHendCalcResult(route.grid, 2, first);
  EXPECT_EQ(found(route),
            Lines{"warning 2,9 区間 E1-E2の変動補正量「0.0015」は手で直した値です。計算では 0.0010 です。"});
}

TEST_F(VariationChecks, AResultWithoutACorrection) {
  sound();
  hend::FcHendCalcResult(route.grid, 4, first);
  EXPECT_EQ(found(route),
            Lines{"error 4,10 区間 E2-E3には計算した補正がないのに、基準日比高「1.2000」があります。"
                  "このまま保存されます。"});
}

TEST_F(VariationChecks, AValueInARowThatNoSaveKeeps) {
  sound();
  hend::FcHendCalcResult(route.grid, 9, first);
  set(2, hend::colDaysReference, "3");
  EXPECT_EQ(found(route),
            (Lines{"error 2,8 区間 E1-E2の行の基－新「3」は計算にも保存にも使われません。",
                   "error 9,10 水準点 E5の行の基準日比高「0.0000」は計算にも保存にも使われません。"}));
}

TEST_F(VariationChecks, TheLineOfANewPointIsSavedAndMayBeTyped) {
  sound();
  set(5, hend::colCorrection, "-0.0010");
  hend::FcHendCalcResult(route.grid, 5, first);
  EXPECT_EQ(found(route),
            Lines{"warning 5,9 水準点 E3の変動補正量「-0.0010」は手で直した値です。計算では -0.0009 です。"});
}

TEST_F(VariationChecks, RatesBeyondTheBound) {
  sound();
  EXPECT_EQ(found(route, date, {.rate = 1.5e-5}),
            Lines{"warning 8,7 区間 E4-E5の比高変化 2.00E-05 m/日が限度 1.50E-05 m/日を超えています"
                  "(比高差 0.0200 m、新－旧 1000 日)。"});
  EXPECT_EQ(found(route, date, {.rate = 2e-5}), Lines{}) << "on the bound";
}

TEST_F(VariationChecks, TwoNewPointsInOneOldSection) {
  sound();
  set(7, hend::colOldDate, "");
  set(8, hend::colOldHeight, "");
  for (const int col : {5, 6, 7, 8, 9, 10}) set(7, col, ""), set(8, col, "");
  calculate();
  EXPECT_EQ(found(route), Lines{"error 5,0 旧区間 E2-E5 に新設点が 2 点あります(E3、E4)。E3 の行では、旧比高 "
                                "2.0100 m を新しい区間の"
                                "二つだけと比べています。"});
}

// A route that was never observed before has nothing to compare; its points are all new.
TEST_F(VariationChecks, ARouteWithoutAnOldEpochHasNoFinding) {
  route.add("E1", "2022/05/11", "1.5000", "", "");
  route.add("E2", "2022/05/11", "1.2000", "", "");
  route.end("E3");
  calculate();
  EXPECT_EQ(found(route), Lines{});
}

TEST_F(VariationChecks, NumbersAndNamesAreLookedAtAsInEveryScreen) {
  sound();
  set(2, hend::colNewHeight, "1.5000a");
  set(3, hend::colBenchMark, "E1");
  EXPECT_EQ(found(route).size(), 2U);
  set(7, hend::colBenchMark, "");
  EXPECT_EQ(found(route)[1], "error 7,0 7行目の水準点に番号がありません。この行は計算も保存もされません。");
}

// Nothing that a cell may hold ends the program.
TEST_F(VariationChecks, AnyTextInAnyCellIsRead) {
  for (const char* text : {"1e999", "-1e999", "日", "9999/12/31", "0001/01/01", "99999999999", "-"})
    for (int row = 1; row < 11; ++row)
      for (int col = 0; col < hend::columnCount; ++col) {
        route.grid.setRows(1);
        sound();
        set(row, col, text);
        EXPECT_NO_THROW(hend::check(route.grid, date, first)) << text << " in " << row << "," << col;
      }
}

}  // namespace
