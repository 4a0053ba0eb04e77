#include "daen/checks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "daen/calculation.h"
#include "daen/route_maker.h"
#include "daen/section_checks.h"

namespace {

using Lines = std::vector<std::string>;

const job::Grade first(1);
const char* const itemOfF103 = "1001     ;01F00101;F102      ;F103      ;2.7";

/// The route F103 to F108 with segments of 3.7 km, rows 1 to 11. Its three sections in their order come to
/// 1.4, 2.9 and 3.0 mm; with 2.7 mm taken over F103 to F108 have 2.7, 4.1, 5.6, 7.0, 8.5 and 10.0 mm.
class EllipsoidalChecks : public testing::Test, protected test::DaenGrids {
 protected:
  EllipsoidalChecks() {
    const char* heights[] = {"480.0000", "490.0000", "500.0000", "500.0000", "510.0000", "520.0000"};
    for (int i = 0; i < 6; ++i) benchMark("F" + std::to_string(103 + i), heights[i], i < 5 ? "3.700" : "");
    route.setText(11, daen::colEndMark, "-1");
    route.setText(11, daen::colFlag, "-1");
    conditions.section.reference = "2.7";
    conditions.referenceItem = itemOfF103;
  }

  void compute(const char* from, const char* to, const char* fromMinutes, const char* toMinutes) {
    conditions.section = {from, to, "36", fromMinutes, "36", toMinutes, conditions.section.reference};
    daen::FcSeiDaenCal(route, sections, conditions.section, daen::FcDaenInit(first),
                       [](const daen::SectionValues&) {});
  }
  void firstSection() { compute("F103", "F104", "10", "8"); }
  void secondSection() { compute("F104", "F106", "8", "4"); }
  void thirdSection() { compute("F106", "F108", "4", "0"); }
  void whole() { firstSection(), secondSection(), thirdSection(); }

  /// "error 3,3 text" for each finding.
  Lines found() const {
    Lines lines;
    for (const ui::Finding& finding : daen::check(route, sections, conditions, first)) {
      EXPECT_FALSE(finding.wayOut.empty() && finding.severity == ui::Severity::Error) << finding.text;
      lines.push_back(std::string(finding.severity == ui::Severity::Error ? "error " : "warning ") +
                      std::to_string(finding.row) + "," + std::to_string(finding.col) + " " + finding.text);
    }
    return lines;
  }

  daen::CheckConditions conditions;
};

TEST_F(EllipsoidalChecks, ASoundRouteHasNoFinding) {
  EXPECT_EQ(found(), Lines{}) << "nothing is computed yet";
  whole();
  EXPECT_EQ(sectionResult(3), "F106|F108|10.0|510.0|3.0");
  EXPECT_EQ(found(), Lines{});
}

TEST_F(EllipsoidalChecks, ARouteJustReopenedHasNoFinding) {
  whole();
  conditions = {};
  EXPECT_EQ(found(), Lines{});
}

TEST_F(EllipsoidalChecks, AnEmptyScreenHasNoFinding) {
  route.setRows(1);
  route.setRows(3);
  conditions = {};
  EXPECT_EQ(found(), Lines{});
}

TEST_F(EllipsoidalChecks, BenchMarksLeftWithoutACorrection) {
  firstSection();
  EXPECT_EQ(
      found(),
      Lines{"error 5,3 楕円補正のない水準点が 4 点あります(F105、F106、F107、F108)。空のまま保存されます。"});
  secondSection();
  EXPECT_EQ(found(),
            Lines{"error 9,3 楕円補正のない水準点が 2 点あります(F107、F108)。空のまま保存されます。"});
}

// The first section is left out: F106 starts the route's sums with 2.7 mm of a section that it does not
// follow.
TEST_F(EllipsoidalChecks, SectionsThatDoNotJoin) {
  firstSection();
  thirdSection();
  const Lines lines = found();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], "error 5,3 楕円補正のない水準点が 1 点あります(F105)。空のまま保存されます。");
  EXPECT_EQ(lines[1],
            "error 7,3 区間 F106-F108 が前の区間 F103-F104 の終わり F104 "
            "から始まっていません。出発点のほかの水準点に、"
            "前の区間の 4.1 mm が足されています。");
}

// Computed once more the first section stands after the second: 2.7 + 2.9 = 5.6, and F104 gets 5.6 + 1.4
// = 7.0.
TEST_F(EllipsoidalChecks, SectionsInAnotherOrderThanTheRoute) {
  route.setText(7, daen::colEndMark, "-1");
  route.setText(7, daen::colFlag, "-1");
  firstSection();
  secondSection();
  firstSection();
  EXPECT_EQ(route.text(3, daen::colCorrection), "7.0");
  const Lines lines = found();
  ASSERT_GE(lines.size(), 2U);
  EXPECT_EQ(lines[1],
            "error 1,3 区間 F103-F104 は F104-F106 より後に計算していますが、路線では前にあります。5.6 mm "
            "に足されています。");
}

// Backwards from F106 to F104 the 3.7 km beyond F104 count too: 7.4 of 11.1 km. H (490 + 500 + 500) / 3 =
// 496.7, φ 36°04′ to 36°08′: E = −2.9 mm; the end gets 7.4 / 11.1 · −2.9 = −1.93, −1.9 mm.
TEST_F(EllipsoidalChecks, ASectionThatRunsBackwards) {
  compute("F106", "F104", "4", "8");
  ASSERT_EQ(found().size(), 3U);
  EXPECT_EQ(found()[2],
            "error 7,3 区間 F106-F104 は逆方向です。区間の距離 7.400 km に一つ先の 3.700 km "
            "が加わり、終わりの F104 の"
            "配分が -2.9 mm でなく -1.9 mm になっています。");
}

// Beyond the first bench mark there is nothing: the shares are right, the direction is worth a look.
TEST_F(EllipsoidalChecks, ASectionThatRunsBackwardsToTheBeginning) {
  conditions.section.reference.clear();
  conditions.referenceItem.clear();
  compute("F108", "F103", "0", "10");
  EXPECT_EQ(found(),
            Lines{"warning 11,3 区間 F108-F103 は逆方向です。補正は F108 から前へ向けて足されます。"});
}

TEST_F(EllipsoidalChecks, ASumThatIsNotWhatTheRouteShows) {
  whole();
  route.setText(3, daen::colCorrection, "4.2");
  EXPECT_EQ(
      found(),
      Lines{"error 3,3 区間 F103-F104 までの合計は 4.1 mm ですが、成果表の F104 の楕円補正は「4.2」です。"});
}

TEST_F(EllipsoidalChecks, SumsAreComparedAsTheGradeShowsThem) {
  const job::Grade second(2);
  conditions.section = {"F103", "F104", "36", "10", "36", "8", "2.7"};
  daen::FcSeiDaenCal(route, sections, conditions.section, daen::FcDaenInit(second),
                     [](const daen::SectionValues&) {});
  EXPECT_EQ(route.text(3, daen::colCorrection), "4");
  EXPECT_EQ(daen::check(route, sections, conditions, second).size(), 1U) << "the rest of the route is left";
}

TEST_F(EllipsoidalChecks, ACorrectionWithoutASection) {
  whole();
  sections.removeItem(3);
  EXPECT_EQ(found(),
            (Lines{"warning -1,-1 区間 F106-F108 の緯度 36°4 と 36°0 は、まだ計算に入っていません。",
                   "warning 9,3 水準点 F107の楕円補正 8.5 mm は、区間の表のどの区間にも属しません。",
                   "warning 11,3 水準点 F108の楕円補正 10.0 mm は、区間の表のどの区間にも属しません。"}));
}

TEST_F(EllipsoidalChecks, ASectionOfAnotherRoute) {
  whole();
  route.setText(11, daen::colBenchMark, "F109");
  EXPECT_EQ(found()[0], "error -1,-1 区間 F106-F108 の水準点がこの路線にありません。");
}

TEST_F(EllipsoidalChecks, LatitudesOfComputedSections) {
  compute("F103", "F104", "", "65");
  const Lines lines = found();
  EXPECT_EQ(lines[0], "error 1,3 区間 F103-F104 の出発点 F103 の緯度「36°」は、分が空です。");
  EXPECT_EQ(lines[1], "error 3,3 区間 F103-F104 の終末点 F104 の緯度「36°65」は、分 65 が 60 以上です。");
}

TEST(LatitudeProblem, IsTheFirstThatAnOperatorWouldMend) {
  EXPECT_EQ(daen::latitudeProblem("", " "), "度と分が空です");
  EXPECT_EQ(daen::latitudeProblem(" ", "5"), "度が空です");
  EXPECT_EQ(daen::latitudeProblem("36", ""), "分が空です");
  EXPECT_EQ(daen::latitudeProblem("36", "60"), "分 60 が 60 以上です");
  EXPECT_EQ(daen::latitudeProblem("36", "59.999"), "");
  EXPECT_EQ(daen::latitudeProblem("19", "59.9"), "北緯 20° から 46° の間にありません");
  EXPECT_EQ(daen::latitudeProblem("20", "0"), "");
  EXPECT_EQ(daen::latitudeProblem("46", "0"), "");
  EXPECT_EQ(daen::latitudeProblem("46", "0.1"), "北緯 20° から 46° の間にありません");
  EXPECT_EQ(daen::latitudeProblem("36", "-1"), "北緯 20° から 46° の間にありません");
  EXPECT_EQ(daen::latitudeProblem("1e999", "0"), "北緯 20° から 46° の間にありません");
}

TEST_F(EllipsoidalChecks, ASectionThatWaitsForItsCalculation) {
  firstSection();
  conditions.section = {"F104", "F106", "36", "8", "", "61", "2.7"};
  const Lines lines = found();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1], "warning -1,-1 区間 F104-F106 の緯度 36°8 と °61 は、まだ計算に入っていません。");
  EXPECT_EQ(lines[2], "warning -1,-1 終末点 F106 の緯度「°61」は、度が空です。");
  conditions.section = {"F104", "X", "36", "8", "36", "4", "2.7"};
  EXPECT_EQ(found().size(), 1U) << "of another route";
  conditions.section = {"F104", "F106", "", "", "", "", "2.7"};
  EXPECT_EQ(found().size(), 1U) << "no latitude is typed";
}

TEST_F(EllipsoidalChecks, AReferenceOfAnotherBenchMark) {
  conditions.referenceItem = "1001     ;01F00101;F101      ;F102      ;1.3";
  conditions.section.reference = "1.3";
  EXPECT_EQ(found(), Lines{}) << "no section is chosen yet";
  conditions.section.startBenchMark = "F103";
  EXPECT_EQ(found(),
            Lines{"warning -1,-1 参照補正値 1.3 mm は路線 01F00101 の F102 の値です。最初の区間は F103 から"
                  "始まります。"});
  whole();
  EXPECT_EQ(found(),
            Lines{"error -1,-1 参照補正値 1.3 mm は路線 01F00101 の F102 の値です。最初の区間は F103 から"
                  "始まります。"});
}

TEST_F(EllipsoidalChecks, AReferenceLeftFromAnotherRoute) {
  conditions.referenceItem.clear();
  EXPECT_EQ(
      found(),
      Lines{"warning -1,-1 参照補正値 2.7 mm は、この路線の一覧から選んだ値ではありません。前に開いた路線の"
            "値が残っています。"});
  whole();
  EXPECT_EQ(found(), Lines{}) << "it is what the sections were computed with";
}

TEST_F(EllipsoidalChecks, AReferenceOtherThanTheOneComputedWith) {
  whole();
  conditions.section.reference = "3.5";
  EXPECT_EQ(found(), Lines{"warning -1,-1 最初の区間 F103-F104 は参照補正値 2.7 mm で計算されています。"
                           "今の参照補正値は 3.5 mm です。"});
  conditions.section.reference.clear();
  EXPECT_EQ(found(), Lines{}) << "as after reopening";
  conditions.section.endMinutes = "0.5";
  EXPECT_EQ(found()[0], "warning -1,-1 区間 F106-F108 の緯度 36°4 と 36°0.5 は、まだ計算に入っていません。");
  EXPECT_EQ(found()[1],
            "warning -1,-1 最初の区間 F103-F104 は参照補正値 2.7 mm で計算されています。"
            "今の参照補正値は 0 mm です。");
}

TEST_F(EllipsoidalChecks, AReferenceThatIsNoNumber) {
  conditions.section.reference = "2.7x";
  EXPECT_EQ(found(), Lines{"error -1,-1 参照補正値「2.7x」は数ではありません。2.7 として計算されます。"});
}

TEST_F(EllipsoidalChecks, AMissingHeightOrDistance) {
  route.setText(3, daen::colHeight, " ");
  route.setText(6, daen::colDistance, "");
  EXPECT_EQ(found(), (Lines{"error 3,2 水準点 F104に標高がありません。0 m として計算されます。",
                            "warning 6,1 区間 F105-F106に距離がありません。0 km として配分されます。"}));
}

TEST_F(EllipsoidalChecks, NoSegmentLeavesARepeatedPointOrAnEnd) {
  route.setText(6, daen::colDistance, "");
  route.setText(5, daen::colFlag, "-2");
  EXPECT_EQ(found(), Lines{});
}

// F103 to F106 are the first route, F107 and F108 the second.
TEST_F(EllipsoidalChecks, AFamilyOfWhichASaveKeepsTheFirstRoute) {
  for (const int col : {daen::colEndMark, daen::colFlag}) route.setText(7, col, "-1");
  EXPECT_EQ(
      found(),
      Lines{"error 9,0 保存されるのは最初の路線 F103-F106 の 4 点だけです。後ろの 2 点(F107、F108)は保存"
            "されず、前に保存した分も消えます。"});
}

TEST_F(EllipsoidalChecks, NamesAndNumbersAreLookedAtAsInEveryScreen) {
  route.setText(9, daen::colBenchMark, "F104");
  EXPECT_EQ(found(), Lines{"warning 9,0 水準点「F104」が同じ路線に二度あります(3行目と9行目)。"});
  route.setText(9, daen::colBenchMark, "");
  EXPECT_EQ(found(), Lines{"error 9,0 9行目の水準点に番号がありません。この行は計算も保存もされません。"});
  route.setText(9, daen::colBenchMark, "F107");
  route.setText(9, daen::colHeight, "51O");
  EXPECT_EQ(found().size(), 1U);
}

// Nothing that a cell, a box or an item may hold ends the program.
TEST_F(EllipsoidalChecks, AnyTextIsRead) {
  whole();
  for (const char* text : {"1e999", "-1e999", "日", "°", "36°°", ""}) {
    for (int col = 0; col < daen::sectionColumnCount; ++col) {
      const std::string before = sections.text(2, col);
      sections.setText(2, col, text);
      EXPECT_NO_THROW(found()) << text << " in " << col;
      sections.setText(2, col, before);
    }
    conditions = {{text, text, text, text, text, text, text}, text};
    EXPECT_NO_THROW(found()) << text;
  }
}

}  // namespace
