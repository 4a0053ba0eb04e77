#include "report/diagram.h"

#include <gtest/gtest.h>

#include <cmath>

#include "sample_document.h"

namespace {

using namespace report;

std::vector<Mark> marksOf(const Drawing& drawing) {
  std::vector<Mark> marks;
  for (const Shape& shape : drawing.shapes)
    if (const auto* mark = std::get_if<Mark>(&shape))
      if (mark->row >= 0) marks.push_back(*mark);
  return marks;
}

/// The lines of values: those drawn with the pen of the first look.
std::vector<Line> runsOf(const Drawing& drawing) {
  std::vector<Line> runs;
  for (const Shape& shape : drawing.shapes)
    if (const auto* line = std::get_if<Line>(&shape))
      if (line->pen == Pen{4, black, Dash::Solid}) runs.push_back(*line);
  return runs;
}

Diagram five() {
  Diagram diagram;
  diagram.axis = "変動量(mm)";
  diagram.unit = "mm";
  diagram.zeroLine = true;
  const std::vector<double> at = alongRoute({2.0, 1.0, std::nullopt, 3.0}, false);
  for (std::size_t i = 0; i < at.size(); ++i)
    diagram.points.push_back(
        {at[i], "A" + std::to_string(i), i < 3 ? "富士見町" : "原村", static_cast<int>(2 * i + 1)});
  diagram.lines.push_back({"変動量", {3.0, -5.0, std::nullopt, 10.0, 0.0}, 1, false});
  return diagram;
}

TEST(AlongRoute, AddsTheDistances) {
  EXPECT_EQ(alongRoute({2.0, 1.5}, false), (std::vector<double>{0, 2, 3.5}));
  EXPECT_EQ(alongRoute({2.0, std::nullopt, 4.0}, false), (std::vector<double>{0, 2, 5, 9}));  // mean 3
  EXPECT_EQ(alongRoute({2.0, 1.5}, true), (std::vector<double>{0, 1, 2}));
  EXPECT_EQ(alongRoute({std::nullopt, std::nullopt}, false), (std::vector<double>{0, 1, 2}));
  EXPECT_EQ(alongRoute({}, false), std::vector<double>{0});
}

TEST(Scale, HasRoundNumbers) {
  const Scale amounts = scaleFor(-5, 10, 8);  // 15 / 8 = 1.9, so steps of 2
  EXPECT_EQ(amounts.step, 2);
  EXPECT_EQ(amounts.low, -6);
  EXPECT_EQ(amounts.high, 10);
  EXPECT_EQ(amounts.decimals, 0);
  const Scale heights = scaleFor(10.0, 10.3, 8);  // 0.3 / 8 = 0.0375, so 0.05
  EXPECT_DOUBLE_EQ(heights.step, 0.05);
  EXPECT_EQ(heights.decimals, 2);
  const Scale large = scaleFor(0, 730, 8);
  EXPECT_EQ(large.step, 100);
  EXPECT_EQ(large.high, 800);
}

TEST(Scale, PutsASingleValueInItsMiddle) {
  const Scale zero = scaleFor(0, 0, 8);
  EXPECT_LT(zero.low, 0);
  EXPECT_GT(zero.high, 0);
  const Scale one = scaleFor(50, 50, 8);
  EXPECT_LE(one.low, 50);
  EXPECT_GT(one.high, 50);
}

TEST(Draw, PutsMarksAtTheirValues) {
  const auto marks = marksOf(draw(five(), fixedPitch));
  ASSERT_EQ(marks.size(), 4U);
  // Along the way 0, 2, 3, 5 (a missing section counts the mean of 2, 1 and 3), 8. Heights in proportion to
  // the values 3, −5, 10, 0.
  const double perKm = (marks[1].at.x - marks[0].at.x) / 2;
  EXPECT_NEAR(marks[2].at.x - marks[0].at.x, 5 * perKm, 1e-9);
  EXPECT_NEAR(marks[3].at.x - marks[0].at.x, 8 * perKm, 1e-9);
  const double perMillimetre = (marks[1].at.y - marks[0].at.y) / 8;
  EXPECT_GT(perMillimetre, 0);
  EXPECT_NEAR(marks[0].at.y - marks[2].at.y, 7 * perMillimetre, 1e-9);
  EXPECT_NEAR(marks[3].at.y - marks[0].at.y, 3 * perMillimetre, 1e-9);
  EXPECT_EQ(marks[1].row, 3);
  EXPECT_EQ(marks[1].note, "A1  変動量 -5.0 mm");
}

TEST(Draw, LeavesAGapWhereAValueIsMissing) {
  const auto runs = runsOf(draw(five(), fixedPitch));
  ASSERT_EQ(runs.size(), 2U);
  EXPECT_EQ(runs[0].points.size(), 2U);
  EXPECT_EQ(runs[1].points.size(), 2U);
}

TEST(Draw, LeavesAGapBetweenRoutes) {
  Diagram family = five();
  family.lines[0].values[2] = 1.0;
  family.points[1].ends = true;
  const auto runs = runsOf(draw(family, fixedPitch));
  ASSERT_EQ(runs.size(), 2U);
  EXPECT_EQ(runs[0].points.size(), 2U);
  EXPECT_EQ(runs[1].points.size(), 3U);
}

TEST(Draw, KeepsMarksOffTheFrame) {
  // −5 to 10 in steps of 2 is −6 to 10. The mark at 10 would stand on the frame, so the scale goes on to 12;
  // that at −5 is 1 above it, more than 4 percent of 16.
  const Drawing drawing = draw(five(), fixedPitch);
  EXPECT_EQ(test::wordsThatRead(drawing, "-6").text, "-6");
  EXPECT_EQ(test::wordsThatRead(drawing, "12").text, "12");
}

TEST(Draw, PutsTheZeroLineAtZero) {
  const Drawing drawing = draw(five(), fixedPitch);
  const double zero = marksOf(drawing)[3].at.y;
  bool found = false;
  for (const Shape& shape : drawing.shapes)
    if (const auto* line = std::get_if<Line>(&shape))
      found = found || (line->points.size() == 2 && line->pen.width == 3 && line->points[0].y == zero &&
                        line->points[1].x - line->points[0].x > 1000);
  EXPECT_TRUE(found);
}

TEST(Draw, WritesNamesUprightAndPlacesOnce) {
  const Drawing drawing = draw(five(), fixedPitch);
  EXPECT_TRUE(test::wordsThatRead(drawing, "A3").upright);
  int places = 0;
  for (const Words& words : test::wordsOn(drawing)) places += words.text == "富士見町" ? 1 : 0;
  EXPECT_EQ(places, 1);
  EXPECT_GT(test::wordsThatRead(drawing, "原村").at.y, test::wordsThatRead(drawing, "A3").at.y);
}

TEST(Draw, KeepsNamesApart) {
  Diagram diagram = five();
  for (DiagramPoint& point : diagram.points) point.at = point.at > 4 ? 8 : 0;  // two heaps
  std::vector<double> places;
  for (const Words& words : test::wordsOn(draw(diagram, fixedPitch)))
    if (words.upright) places.push_back(words.at.x);
  ASSERT_EQ(places.size(), 5U);
  for (std::size_t i = 1; i < places.size(); ++i) EXPECT_GE(places[i] - places[i - 1], 34 - 1e-9);
}

TEST(Draw, GrowsWiderWithManyBenchMarks) {
  Diagram diagram;
  for (int i = 0; i < 1000; ++i)
    diagram.points.push_back({static_cast<double>(i), "B" + std::to_string(i), "", i});
  diagram.lines.push_back({"", std::vector<std::optional<double>>(1000, 1.0), 0, false});
  EXPECT_GE(draw(diagram, fixedPitch).width, 34000);
}

TEST(Draw, ShowsLegendAndSecondScale) {
  Diagram diagram = five();
  diagram.secondAxis = "補正数(mm)";
  diagram.secondUnit = "mm";
  diagram.lines.push_back({"補正数", {1.0, 2.0, 3.0, 4.0, 5.0}, 0, true});
  const Drawing drawing = draw(diagram, fixedPitch);
  EXPECT_EQ(test::wordsThatRead(drawing, "補正数").text, "補正数");
  EXPECT_EQ(test::wordsThatRead(drawing, "補正数(mm)").anchor, Anchor::Right);
  EXPECT_EQ(marksOf(drawing).back().sign, Sign::Triangle);
}

TEST(Draw, DrawsNothingOfNothing) { EXPECT_TRUE(draw({}, fixedPitch).shapes.empty()); }

TEST(Draw, KeepsEverythingOnTheSheet) {
  const Drawing drawing = draw(five(), fixedPitch);
  for (const Words& words : test::wordsOn(drawing)) {
    EXPECT_GE(words.at.x, 0);
    EXPECT_LE(words.at.x, drawing.width);
    EXPECT_LE(words.at.y, drawing.height);
  }
}

}  // namespace
