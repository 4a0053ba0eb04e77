#include "seihyou/checks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "seihyou/calculation.h"
#include "seihyou/grid_maker.h"
#include "seihyou/through_means.h"

namespace {

using Texts = std::vector<std::string>;
using ui::Severity;

const job::Grade first(1);

class OrthometricChecks : public testing::Test {
 protected:
  /// 10, 11, 13; known at its end 13.002, 2 mm off over 4 km.
  void plainRoute() {
    test::GridMaker(grid)
        .benchMark("A", "10.0000")
        .section("1.0000")
        .benchMark("B", "11.0000")
        .section("2.0000")
        .benchMark("C", "13.0000", "-1");
    grid.setText(0, seihyou::colCorrection, "正標高補正数");
    grid.setText(5, seihyou::colHeight, "13.0020");
  }

  void pairedRoute() {
    test::GridMaker(grid)
        .benchMark("A", "20.0000")
        .section("2.0000")
        .benchMark("B", "22.0000", "-2")
        .section("")
        .benchMark("A", "20.0000")
        .section("2.0020")
        .benchMark("B", "22.0020", "-2")
        .section("")
        .benchMark("B", "22.0010", "-1");
  }

  ui::Findings find() const { return seihyou::checks(grid, first); }

  Texts texts() const {
    Texts found;
    for (const ui::Finding& finding : find()) found.push_back(finding.text);
    return found;
  }

  ui::Grid grid;
};

TEST_F(OrthometricChecks, ASoundRouteHasNoFindings) {
  plainRoute();
  EXPECT_EQ(texts(), Texts{}) << "as loaded";
  grid.setText(2, seihyou::colCorrection, "5");
  seihyou::FcCalcSeihyou(grid, 2, first);
  EXPECT_EQ(texts(), Texts{});
  pairedRoute();
  EXPECT_EQ(texts(), Texts{}) << "the mean stands at the end";
  test::GridMaker{grid};
  grid.setRows(2);
  EXPECT_EQ(texts(), Texts{}) << "an empty grid";
}

TEST_F(OrthometricChecks, ACorrectionTypedWithoutEnter) {
  plainRoute();
  grid.setText(2, seihyou::colCorrection, "5");
  const auto found = find();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].severity, Severity::Error);
  EXPECT_EQ(found[0].row, 2);
  EXPECT_EQ(found[0].col, 2);
  EXPECT_EQ(found[0].text, "区間 A-Bの正標高補正数「5」は、まだ計算に入っていません。");
  seihyou::FcCalcSeihyou(grid, 2, first);
  grid.setText(2, seihyou::colCorrection, "");
  EXPECT_EQ(texts(), Texts{"区間 A-Bの正標高補正数「」は、まだ計算に入っていません。"}) << "taken out again";
}

// 22.0020 + 2.0020 = 24.0040 stands where (22.0008 + 22.0020) / 2 = 22.0014 belongs.
TEST_F(OrthometricChecks, AMeanThatTheCalculationWroteOver) {
  pairedRoute();
  grid.setText(2, seihyou::colCorrection, "8");
  seihyou::FcCalcSeihyou(grid, 2, first);
  const auto found = find();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].row, 9);
  EXPECT_EQ(found[0].text,
            "水準点 Bの補正結果 24.0040は、繰り返し観測の平均 22.0014 "
            "ではありません。計算で書き換えられています。");
  EXPECT_EQ(found[0].wayOut, "「繰り返し点の平均を通して計算」を行ってください。");
  seihyou::calcThroughMeans(grid, 2, first);
  EXPECT_EQ(texts(), Texts{});
}

// Loading goes on from 22.0020; from the mean, 22.0010, C is 23.5010: 1 mm less than the 23.5020 shown.
TEST_F(OrthometricChecks, HeightsBehindAPairThatDoNotFollowFromItsMean) {
  pairedRoute();
  grid.setText(9, seihyou::colFlag, "");
  grid.setRows(12);
  grid.setText(10, seihyou::colHeight, "1.5000");
  grid.setText(11, seihyou::colBenchMark, "C");
  grid.setText(11, seihyou::colResult, "23.5020");
  grid.setText(11, seihyou::colFlag, "-1");
  const auto found = find();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].row, 11);
  EXPECT_EQ(found[0].text,
            "水準点 Cの補正結果 23.5020は、繰り返し点の平均を通した標高 23.5010 と 1 mm 違います。");
}

// The start was typed anew without Enter: 10.1 + 1 = 11.1.
TEST_F(OrthometricChecks, HeightsThatDoNotFollowFromTheStart) {
  plainRoute();
  seihyou::FcCalcSeihyou(grid, 2, first);
  grid.setText(1, seihyou::colResult, "10.1");
  EXPECT_EQ(
      texts(),
      Texts{"水準点 Bの補正結果 11.0000は、始めの標高から順に足した標高 11.1000 と -100 mm 違います。"});
}

// Two sections, 4 km: 15 √4 = 30 mm are allowed.
TEST_F(OrthometricChecks, AnEndThatIsFarFromItsKnownHeight) {
  plainRoute();
  grid.setText(5, seihyou::colHeight, "13.0300");
  EXPECT_EQ(texts(), Texts{});
  grid.setText(5, seihyou::colHeight, "13.0301");
  const auto found = find();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].severity, Severity::Warning);
  EXPECT_EQ(found[0].text,
            "水準点 Cの補正結果 13.0000は、観測成果の標高 13.0301 と -30.1 mm 違います(路線長を 4 km "
            "と見て許容 30 mm)。");
}

// 301 units of 0.1 mm are 30.1 mm.
TEST_F(OrthometricChecks, ACorrectionBeyondTheLimit) {
  plainRoute();
  grid.setText(5, seihyou::colHeight, "");
  for (const char* correction : {"300", "301"}) {
    grid.setText(2, seihyou::colCorrection, correction);
    seihyou::FcCalcSeihyou(grid, 2, first);
    const Texts wanted = correction == std::string("300")
                             ? Texts{}
                             : Texts{"区間 A-Bの正標高補正数 301 は 30.1 mm です(目安 30 mm)。"};
    EXPECT_EQ(texts(), wanted);
  }
}

TEST_F(OrthometricChecks, GapsInARoute) {
  plainRoute();
  grid.setText(4, seihyou::colHeight, "");
  EXPECT_EQ(texts()[0], "区間 B-Cに比高がありません。0 として計算されます。");
  plainRoute();
  grid.setText(3, seihyou::colBenchMark, "");
  EXPECT_EQ(texts()[0], "3行目の水準点に番号がありません。この行は計算も保存もされません。");
  plainRoute();
  grid.setText(1, seihyou::colResult, "");
  EXPECT_EQ(texts()[0], "水準点 Aに始めの標高がありません。0 から計算されます。");
}

TEST_F(OrthometricChecks, ATextThatIsNoNumber) {
  plainRoute();
  grid.setText(2, seihyou::colCorrection, "abc");
  EXPECT_EQ(texts(), Texts{"区間 A-Bの正標高補正数「abc」は数ではありません。0 として計算されます。"});
}

// Differences of 0.00004 m more than the cells show: 60 of them are 2.4 mm, less than half a unit each.
TEST_F(OrthometricChecks, ARouteAsLoadedMayHoldMoreDecimalsThanItShows) {
  test::GridMaker maker(grid);
  for (int i = 0; i <= 60; ++i) {
    maker.benchMark("P" + std::to_string(i), first.heights().format(10 + i * 0.50004), i == 60 ? "-1" : "");
    if (i < 60) maker.section("0.5000");
  }
  EXPECT_EQ(texts(), Texts{});
}

TEST_F(OrthometricChecks, EveryRouteIsLookedAtByItself) {
  test::GridMaker(grid)
      .benchMark("A", "10.0000")
      .section("1.0000")
      .benchMark("B", "11.0000", "-1")
      .benchMark("B", "20.0000")
      .section("1.0000", "4")
      .benchMark("C", "21.0000", "-1");
  const auto found = find();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].row, 5);
}

TEST_F(OrthometricChecks, NoTextMakesThemFail) {
  pairedRoute();
  for (const char* hostile : {"1E999", "-1E999", "abc", "1e308", "-2", "-1", ""})
    for (int row = 0; row < grid.rows(); ++row)
      for (int col = 0; col < grid.cols(); ++col) {
        const std::string before = grid.text(row, col);
        grid.setText(row, col, hostile);
        EXPECT_NO_THROW(find()) << row << "," << col << " " << hostile;
        grid.setText(row, col, before);
      }
}

}  // namespace
