#include "route/checks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "route/tolerance.h"

namespace {

using Texts = std::vector<std::string>;

constexpr int flagCol = 2;

/// A grid of three columns, 水準点, 標高 and the flag, with one row for each bench mark and one for its
/// section.
class RouteChecks : public testing::Test {
 protected:
  RouteChecks() {
    grid.setCols(3);
    grid.setRows(1);
    grid.setText(0, 0, "水準点");
    grid.setText(0, 1, "標高");
  }

  void benchMark(const char* name, const char* flag = "") {
    const int row = grid.rows();
    grid.setRows(row + 2);
    grid.setText(row, 0, name);
    grid.setText(row, flagCol, flag);
  }

  Texts twice() {
    ui::Findings findings;
    route::findNamesTwice(grid, flagCol, findings);
    Texts texts;
    for (const ui::Finding& finding : findings) texts.push_back(finding.text);
    return texts;
  }

  ui::Grid grid;
};

TEST_F(RouteChecks, CallRowsAsOperatorsDo) {
  benchMark("A");
  benchMark("B");
  EXPECT_EQ(route::placeName(grid, 1), "水準点 A");
  EXPECT_EQ(route::placeName(grid, 2), "区間 A-B");
  EXPECT_EQ(route::placeName(grid, 4), "区間 B-");
  grid.setText(3, 0, "");
  EXPECT_EQ(route::placeName(grid, 3), "3行目") << "without a number";
  EXPECT_EQ(route::placeName(grid, 4), "4行目");
}

TEST(RouteMillimetres, HaveADecimalWhereThereIsOne) {
  EXPECT_EQ(route::millimetres(4), "4");
  EXPECT_EQ(route::millimetres(-2.5), "-2.5");
  EXPECT_EQ(route::millimetres(-2.45), "-2.5");
  EXPECT_EQ(route::millimetres(10.04), "10");
  EXPECT_EQ(route::millimetres(-0.04), "0");
}

TEST_F(RouteChecks, FindTextsThatCountAsSomethingElse) {
  benchMark("A");
  benchMark("B");
  const char* texts[] = {"12a", " 1.5 ", "abc", ""};
  for (int row = 1; row < 5; ++row) grid.setText(row, 1, texts[row - 1]);
  ui::Findings findings;
  route::findTextsThatAreNoNumber(grid, {1}, findings);
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0], (ui::Finding{ui::Severity::Error, 1, 1,
                                      "水準点 Aの標高「12a」は数ではありません。12 として計算されます。",
                                      "数だけを入力してください。"}));
  EXPECT_EQ(findings[1].text, "水準点 Bの標高「abc」は数ではありません。0 として計算されます。");
  EXPECT_EQ(findings[1].row, 3);
}

TEST_F(RouteChecks, FindNumbersBeyondAnyCalculation) {
  benchMark("A");
  grid.setText(1, 1, "1E999");
  ui::Findings findings;
  route::findTextsThatAreNoNumber(grid, {1}, findings);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].text, "水準点 Aの標高「1E999」は大きすぎて計算できません。");
  EXPECT_EQ(route::numberIn(grid, 1, 1), 0);
}

TEST_F(RouteChecks, FindABenchMarkNamedTwiceInARoute) {
  benchMark("A");
  benchMark("B");
  benchMark("A");
  benchMark("C", "-1");
  EXPECT_EQ(twice(), Texts{"水準点「A」が同じ路線に二度あります(1行目と5行目)。"});
}

TEST_F(RouteChecks, ALoopAndTheNextRouteNameABenchMarkAgain) {
  benchMark("A");
  benchMark("B");
  benchMark("A", "-1");
  benchMark("A");
  benchMark("B", "-1");
  EXPECT_EQ(twice(), Texts{});
}

// A, B reached (-2), A again, B reached again (-2), B with the mean: one section observed twice.
TEST_F(RouteChecks, APairOfRunsNamesItsBenchMarksAgain) {
  benchMark("A");
  benchMark("B", "-2");
  benchMark("A");
  benchMark("B", "-2");
  benchMark("B");
  benchMark("C", "-1");
  EXPECT_EQ(twice(), Texts{});
  grid.setText(9, 0, "A");  // instead of B with the mean: A a third time, behind the run that began at A
  EXPECT_EQ(twice(), Texts{}) << "still where the run began";
  grid.setText(11, 0, "A");
  grid.setText(11, flagCol, "");
  EXPECT_EQ(twice(), Texts{"水準点「A」が同じ路線に二度あります(1行目と11行目)。"});
}

TEST_F(RouteChecks, ManyNamesAreToldApart) {
  for (int i = 0; i < 5000; ++i) benchMark(("N" + std::to_string(i % 4999)).c_str());
  EXPECT_EQ(twice(), Texts{"水準点「N0」が同じ路線に二度あります(1行目と9999行目)。"});
}

TEST_F(RouteChecks, SayWhatIsTheMatterWithACell) {
  benchMark("A");
  benchMark("B");
  grid.setText(2, 1, "1.5");
  EXPECT_EQ(route::nameless(3).text, "3行目の水準点に番号がありません。この行は計算も保存もされません。");
  EXPECT_EQ(route::withoutDifference(grid, 2, 1).text, "区間 A-Bに比高がありません。0 として計算されます。");
  EXPECT_EQ(route::notTaken(grid, 2, 1, "Enter").text, "区間 A-Bの標高「1.5」は、まだ計算に入っていません。");
  EXPECT_EQ(route::notTaken(grid, 2, 1, "Enter").wayOut, "Enter");
  EXPECT_EQ(route::changedByHand(grid, 2, 1, "2").severity, ui::Severity::Warning);
  EXPECT_EQ(route::changedByHand(grid, 2, 1, "2").text,
            "区間 A-Bの標高「1.5」は手で直した値です。計算では 2 です。");
}

TEST(RouteTolerances, AreThoseOfTheGrade) {
  const route::Tolerances table;
  EXPECT_EQ(table.of(job::Grade(1)), (route::Tolerance{15, 2, 2.5}));
  EXPECT_EQ(table.of(job::Grade(2)), (route::Tolerance{15, 5, 5}));
  EXPECT_EQ(table.of(job::Grade(3)), (route::Tolerance{15, 10, 10}));
  EXPECT_EQ(table.of(job::Grade(4)), (route::Tolerance{25, 20, 20}));
  EXPECT_EQ(table.of(job::Grade(9)), table.of(job::Grade(4)));
  EXPECT_EQ(table.of(job::Grade(0)), table.of(job::Grade(1)));
  EXPECT_FALSE(table.source.empty());
}

// 15 √4 = 30 mm; 2.5 √0.25 = 1.25 mm.
TEST(RouteTolerances, GrowWithTheRootOfTheLength) {
  EXPECT_DOUBLE_EQ(route::allowed(15, 4), 30);
  EXPECT_DOUBLE_EQ(route::allowed(2.5, 0.25), 1.25);
  EXPECT_DOUBLE_EQ(route::allowed(15, 0), 0);
  EXPECT_DOUBLE_EQ(route::allowed(15, -1), 0);
}

}  // namespace
