#include "route/profile.h"

#include <gtest/gtest.h>

namespace {

using Values = std::vector<std::optional<double>>;

enum Column : int { name, distance, height, correction, flag, columns };

/// Two routes of a family: A, B, C with sections of 2 km and one without a distance; C and D.
class Profile : public testing::Test {
 protected:
  Profile() {
    grid.setRows(10);
    grid.setCols(columns);
    grid.setFixed(1, 0);
    benchMark(1, "A", "10.5", "0");
    section(2, "2", "1.5", "3");
    benchMark(3, "B", "", "");
    section(4, "", "-0.25", "-4");
    benchMark(5, "C", "11.75", "-12");
    grid.setText(5, flag, "-1");
    benchMark(6, "C", "11.75", "5");
    section(7, "4", "2", "");
    benchMark(8, "D", "13.75", "7");
    grid.setText(8, flag, "-1");
    look.distanceCol = distance;
    look.distanceOnSection = true;
    look.endCol = flag;
    look.heightCol = height;
    look.correctionCol = correction;
  }

  void benchMark(int row, const char* number, const char* metres, const char* corrected) {
    grid.setText(row, name, number);
    grid.setText(row, height, metres);
    grid.setText(row, correction, corrected);
  }

  void section(int row, const char* kilometres, const char* metres, const char* corrected) {
    grid.setText(row, distance, kilometres);
    grid.setText(row, height, metres);
    grid.setText(row, correction, corrected);
  }

  Values values(std::size_t line) const { return profileOf(grid, look).lines.at(line).values; }

  ui::Grid grid{"Grid1", nullptr};
  route::ProfileLook look;
};

// 2 km, then the mean of 2 and 4 for the section without a distance and for the way to the next route,
// then 4.
TEST_F(Profile, StandsBenchMarksByTheirDistances) {
  std::vector<double> at;
  for (const report::DiagramPoint& point : profileOf(grid, look).points) at.push_back(point.at);
  EXPECT_EQ(at, (std::vector<double>{0, 2, 5, 8, 12}));
}

TEST_F(Profile, ShowsHeightsAndCorrectionsWithGaps) {
  EXPECT_EQ(values(0), (Values{10.5, std::nullopt, 11.75, 11.75, 13.75}));
  EXPECT_EQ(values(1), (Values{0.0, std::nullopt, -12.0, 5.0, 7.0}));
  const report::Diagram diagram = profileOf(grid, look);
  EXPECT_EQ(diagram.axis, "標高(m)");
  EXPECT_EQ(diagram.secondAxis, "補正数(mm)");
  EXPECT_TRUE(diagram.lines[1].secondAxis);
}

TEST_F(Profile, TellsWhereARouteOfAFamilyEnds) {
  std::vector<bool> ends;
  for (const report::DiagramPoint& point : profileOf(grid, look).points) ends.push_back(point.ends);
  EXPECT_EQ(ends, (std::vector<bool>{false, false, true, false, true}));
}

// 0, 1.5, 1.5 − 0.25; anew 0, 2. Corrections stand at the start of their section, here in metres: 3 is 3000
// mm.
TEST_F(Profile, SumsDifferencesFromTheStartOfEachRoute) {
  look.sums = true;
  look.correctionOnSection = true;
  look.correctionFactor = 1000;
  EXPECT_EQ(values(0), (Values{0.0, 1.5, 1.25, 0.0, 2.0}));
  EXPECT_EQ(values(1), (Values{3000.0, -4000.0, std::nullopt, std::nullopt, std::nullopt}));
}

TEST_F(Profile, WithoutDistancesStandsInEqualSteps) {
  look.distanceCol = -1;
  const report::Diagram diagram = profileOf(grid, look);
  EXPECT_FALSE(diagram.kilometres);
  EXPECT_EQ(diagram.points.back().at, 4);
}

}  // namespace
