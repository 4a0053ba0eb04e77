#include "tanrosen/checks.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <vector>

#include "tanrosen/calculation.h"
#include "tanrosen/levelling_line.h"
#include "tanrosen/route_maker.h"

namespace {

using Texts = std::vector<std::string>;
using ui::Severity;

const job::Grade first(1);
const job::Grade second(2);

class SingleRouteChecks : public testing::Test {
 protected:
  /// Fills in the differences that lead from height to height, as loading does.
  void fillIn() {
    grid.setText(0, tanrosen::colCorrection, "補正数");
    grid.setText(0, tanrosen::colResult, "補正結果");
    for (int row = 1; row + 2 < grid.rows(); row += 2)
      if (grid.text(row, tanrosen::colFlag).empty()) grid.setText(row + 1, tanrosen::colHeight, "1.000");
  }

  void threeKnown() {
    test::RouteMaker(grid)
        .benchMark("A", "1", "50.000", "50.000")
        .benchMark("B", "1", "51.000")
        .benchMark("C", "2", "52.000", "52.004")
        .benchMark("D", "2", "53.000")
        .benchMark("E", "", "54.000", "54.002", "-1");
    fillIn();
  }

  ui::Findings find(const Texts& known, const char* category = "0", job::Grade grade = second) const {
    return tanrosen::checks(grid, known, grade, category);
  }

  Texts texts(const Texts& known, const char* category = "0", job::Grade grade = second) const {
    Texts found;
    for (const ui::Finding& finding : find(known, category, grade)) found.push_back(finding.text);
    return found;
  }

  ui::Grid grid;
};

TEST_F(SingleRouteChecks, ASoundRouteHasNoFindings) {
  threeKnown();
  EXPECT_EQ(texts({"A", "C", "E"}), Texts{}) << "before a calculation";
  tanrosen::FcCalcTanrosen(grid, {"A", "C"}, second, "0");
  EXPECT_EQ(texts({"A", "C"}), Texts{});
  tanrosen::calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
  EXPECT_EQ(texts({"A", "C", "E"}), Texts{});
  test::RouteMaker{grid};
  EXPECT_EQ(texts({}), Texts{}) << "nor has none";
}

// D 53.000 − 0.001 = 52.999 instead of 4 + (2 − 4) × 2/4 = 3: 53.003; E 53.998 instead of 54.002. A second
// calculation would take 53.998 − 54.000 = −2 mm for the closure error.
TEST_F(SingleRouteChecks, AThirdKnownPointIsNotReached) {
  threeKnown();
  tanrosen::FcCalcTanrosen(grid, {"A", "C", "E"}, second, "0");
  const auto found = find({"A", "C", "E"});
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].severity, Severity::Error);
  EXPECT_EQ(found[0].row, 7);
  EXPECT_EQ(found[0].text,
            "水準点 Dの補正結果 52.999 は、既知点に閉合させた標高 53.003 "
            "と違います。前の既知点の閉合差が足されていません。");
  EXPECT_EQ(found[0].wayOut, "「既知点ごとに閉合させて計算」を行ってください。");
  EXPECT_EQ(found[1].row, 9);
  EXPECT_EQ(found[1].text,
            "既知点 E の補正結果 53.998 は、既知の標高 54.002 "
            "に合いません。もう一度「計算」を押すと、閉合差が 2 mm から -2 mm "
            "に変わります。");
  tanrosen::calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
  EXPECT_EQ(texts({"A", "C", "E"}), Texts{});
}

// The corrections of the later segments typed as they should be, 3 and 2, with Enter behind each: sound
// again.
TEST_F(SingleRouteChecks, CorrectionsMendedByHandAreSound) {
  threeKnown();
  tanrosen::FcCalcTanrosen(grid, {"A", "C", "E"}, second, "0");
  grid.setText(7, tanrosen::colCorrection, "3");
  for (const int row : {7, 9}) tanrosen::heightFromCorrection(grid, row, second);
  EXPECT_EQ(texts({"A", "C", "E"}), Texts{});
}

// 31 mm over 4 km of grade 2: 15 √4 = 30 is allowed.
TEST_F(SingleRouteChecks, AToleranceThatIsNotKeptIsAWarning) {
  test::RouteMaker(grid).benchMark("A", "4", "10.000", "10.000").benchMark("B", "", "11.000", "11.031", "-1");
  fillIn();
  const auto found = find({"A", "B"});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].severity, Severity::Warning);
  EXPECT_EQ(found[0].row, 3);
  EXPECT_EQ(found[0].text, "A から B(4 km)の閉合差 31 mm は、許容 30 mm を超えています。");
  grid.setText(3, tanrosen::colResult, "11.030");
  EXPECT_EQ(texts({"A", "B"}), Texts{});
}

// The runs of 1 km lead to 11.500 and 11.506: 6 mm, in grade 2 5 √1 = 5.
TEST_F(SingleRouteChecks, RunsThatDifferTooMuchAreAWarning) {
  test::RouteMaker(grid)
      .benchMark("PF", "1", "11.000", "11.000")
      .benchMark("Q", "", "11.500", "", "-2")
      .benchMark("PB", "1", "11.000", "11.000")
      .benchMark("Q", "", "11.506", "", "-2")
      .benchMark("Q", "", "11.503", "", "-1");
  fillIn();
  EXPECT_EQ(texts({"PF", "PB"}), Texts{"Q の往復観測値の較差 6 mm(1 km)は、許容 5 mm を超えています。"});
  grid.setText(7, tanrosen::colHeight, "11.505");
  EXPECT_EQ(texts({"PF", "PB"}), Texts{});
}

TEST_F(SingleRouteChecks, KnownPointsThatTheCalculationPassesOver) {
  threeKnown();
  EXPECT_EQ(texts({"A", "E", "C"}), Texts{"既知点「C」は計算で飛ばされます(路線の順になっていません)。"});
  EXPECT_EQ(texts({"A", "C", "C", "E"}), Texts{"既知点「C」は計算で飛ばされます(一覧に二度あります)。"});
  EXPECT_EQ(texts({"A", "X"}), Texts{"既知点「X」は計算で飛ばされます(表にありません)。"});
  EXPECT_EQ(
      texts({"C", "E"}),
      Texts{"既知点の一覧の最初「C」は、路線の最初の水準点「A」ではありません。計算はエラーになります。"});
  EXPECT_EQ(find({"A", "X"})[0].row, -1);
  EXPECT_EQ(find({"A", "X"})[0].col, -1);
}

TEST_F(SingleRouteChecks, AKnownPointNeedsAHeight) {
  threeKnown();
  const auto found = find({"A", "D"});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].text, "既知点 D に既知の標高がありません。0 として計算されます。");
  EXPECT_EQ(found[0].row, 7);
  EXPECT_EQ(found[0].col, 4);
}

TEST_F(SingleRouteChecks, ARouteOfAFamilyNamesTheNextOnesStartAgain) {
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("B", "", "11.000", "11.001", "-1")
      .benchMark("B", "1", "11.001", "11.001")
      .benchMark("C", "", "12.001", "12.001", "-1");
  fillIn();
  EXPECT_EQ(texts({"A", "B", "B", "C"}), Texts{});
}

// What is typed without Enter: 7 beside 51.002 (51.000 + 0.002). A known height typed anew: E 54.009.
TEST_F(SingleRouteChecks, EntriesThatNoCalculationHasTakenUp) {
  threeKnown();
  tanrosen::calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
  grid.setText(3, tanrosen::colCorrection, "7");
  grid.setText(9, tanrosen::colResult, "54.009");
  const auto found = find({"A", "C", "E"});
  ASSERT_GE(found.size(), 2U);
  EXPECT_EQ(found[0].text, "水準点 Bの補正数「7」は、まだ計算に入っていません。");
  EXPECT_EQ(found[0].severity, Severity::Error);
  EXPECT_EQ(found.back().text, "水準点 Eの補正結果「54.009」は、まだ計算に入っていません。");
}

TEST_F(SingleRouteChecks, ACorrectionChangedByHandIsAWarning) {
  threeKnown();
  tanrosen::FcCalcTanrosen(grid, {"A", "C"}, second, "0");
  grid.setText(3, tanrosen::colCorrection, "7");
  tanrosen::heightFromCorrection(grid, 3, second);
  const auto found = find({"A", "C"});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].severity, Severity::Warning);
  EXPECT_EQ(found[0].text, "水準点 Bの補正数「7」は手で直した値です。計算では 2 です。");
}

/// A family of two routes of every second bench mark.
void layFamily(ui::Grid& grid) {
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("a", "1", "10.500")
      .benchMark("B", "", "11.000", "11.006", "-1")
      .benchMark("B", "2", "11.006", "11.006")
      .benchMark("b", "2", "11.500")
      .benchMark("C", "", "12.000", "12.003", "-1");
}

TEST_F(SingleRouteChecks, ARouteOfAFamilyLeftOutOfACalculation) {
  layFamily(grid);
  fillIn();
  grid.setText(7, tanrosen::colRoute, "02A001");
  EXPECT_EQ(texts({"A", "B"}, "1"), Texts{}) << "before it";
  tanrosen::FcCalcTanrosen(grid, {"A", "B"}, second, "1");
  EXPECT_EQ(texts({"A", "B", "C"}, "1").back(), "路線 02A001(B から C)は計算されていません。");
  tanrosen::calcOnKnownHeights(grid, {"A", "B", "C"}, second, "1");
  for (const std::string& text : texts({"A", "B", "C"}, "1"))
    EXPECT_EQ(text.find("計算されていません"), std::string::npos);
}

TEST_F(SingleRouteChecks, AnEvenNumberOfBenchMarksLeavesTheEndOut) {
  test::RouteMaker(grid).benchMark("A", "1", "10.000", "10.000").benchMark("B", "", "11.000", "", "-1");
  fillIn();
  EXPECT_EQ(texts({"A"}, "1"),
            Texts{"水準点が 2 点(偶数)です。一つおきの計算では、終わりの B が計算されません。"});
  EXPECT_EQ(texts({"A"}, "0"), Texts{});
}

TEST_F(SingleRouteChecks, BothRowsOfASectionHoldItsDistance) {
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("a", "3", "10.500")
      .benchMark("B", "", "11.000", "11.004", "-1");
  fillIn();
  EXPECT_EQ(texts({"A", "B"}, "2"),
            Texts{"A から B までの距離が、二つの行で違います(1 と 3)。補正数の配分が距離に比例しません。"});
  test::RouteMaker(grid)
      .benchMark("A", "1", "10.000", "10.000")
      .benchMark("a", "3", "10.500")
      .benchMark("B", "2", "11.000")
      .benchMark("b", "1", "11.500")
      .benchMark("C", "", "12.000", "12.004", "-1");
  fillIn();
  EXPECT_EQ(texts({"A", "C"}, "2"), Texts{"A から B までの距離が、二つの行で違います(1 と 3。ほかに 1 "
                                          "区間)。補正数の配分が距離に比例しません。"});
}

// The second route of the family begins on row 7, two rows off the points 1, 5, 9: B and C are points of the
// first route, or of none.
TEST_F(SingleRouteChecks, KnownPointsOfALaterRouteOfAFamilyArePassedOver) {
  layFamily(grid);
  fillIn();
  EXPECT_EQ(texts({"A", "B", "B", "C"}, "1"),
            (Texts{"既知点「B」は計算で飛ばされます(計算の点ではない行にあります)。",
                   "既知点「C」は計算で飛ばされます(計算の点ではない行にあります)。"}));
}

TEST_F(SingleRouteChecks, GapsAndTextsThatAreNoNumber) {
  threeKnown();
  grid.setText(3, tanrosen::colBenchMark, "");
  grid.setText(6, tanrosen::colHeight, "");
  grid.setText(7, tanrosen::colDistance, "2km");
  EXPECT_EQ(texts({"A", "C", "E"}),
            (Texts{"3行目の水準点に番号がありません。この行は計算も保存もされません。",
                   "区間 C-Dに比高がありません。0 として計算されます。",
                   "水準点 Dの「2km」は数ではありません。2 として計算されます。"}));
}

TEST_F(SingleRouteChecks, NoTextMakesThemFail) {
  threeKnown();
  for (const char* hostile : {"1E999", "-1E999", "abc", "1e308", "\t", "１"})
    for (int row = 0; row < grid.rows(); ++row)
      for (int col = 0; col < grid.cols(); ++col) {
        const std::string before = grid.text(row, col);
        grid.setText(row, col, hostile);
        EXPECT_NO_THROW(find({"A", "C", "E"}, "0")) << row << "," << col << " " << hostile;
        EXPECT_NO_THROW(find({"A", "C", "E"}, "1")) << row << "," << col << " " << hostile;
        grid.setText(row, col, before);
      }
}

// 16,000 bench marks, each 32nd known. What grows with the square of them would take minutes.
TEST_F(SingleRouteChecks, GrowWithTheLengthOfTheRouteAlone) {
  test::RouteMaker maker(grid);
  Texts known;
  for (int i = 0; i < 16000; ++i) {
    const bool isKnown = i % 32 == 0;
    maker.benchMark("N" + std::to_string(i), "1", "10.000", isKnown ? "10.000" : "");
    if (isKnown) known.push_back("N" + std::to_string(i));
  }
  fillIn();
  const auto secondsOf = [](const auto& act) {
    const std::clock_t begin = std::clock();
    act();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  };
  const double calculation = secondsOf([&] { tanrosen::FcCalcTanrosen(grid, known, second, "0"); });
  Texts found;
  const double checking = secondsOf([&] { found = texts(known); });
  EXPECT_EQ(found, Texts{});
  EXPECT_LT(checking, 20 * calculation + 0.05);
}

// Wherever the plain calculation ends on the heights of every segment closed by itself there is no finding;
// wherever it does not there is one.
TEST_F(SingleRouteChecks, TellThePlainCalculationFromOneOnKnownHeights) {
  int different = 0;
  for (int seed = 0; seed < 200; ++seed) {
    const auto shown = [](int mm) { return second.heights().format(mm / 1000.0); };
    const int atC = seed % 9 - 4;
    const int atE = seed / 9 % 7 - 3;
    test::RouteMaker(grid)
        .benchMark("A", "1", "50.000", "50.000")
        .benchMark("B", "1", "51.000")
        .benchMark("C", "2", "52.000", shown(52000 + atC))
        .benchMark("D", "2", "53.000")
        .benchMark("E", "", "54.000", shown(54000 + atE), "-1");
    fillIn();
    tanrosen::FcCalcTanrosen(grid, {"A", "C", "E"}, second, "0");
    const Texts found = texts({"A", "C", "E"});
    const Texts plain = test::results(grid);
    tanrosen::calcOnKnownHeights(grid, {"A", "C", "E"}, second, "0");
    EXPECT_EQ(found.empty(), plain == test::results(grid)) << seed;
    if (!found.empty()) ++different;
  }
  EXPECT_GT(different, 100);
}

}  // namespace
