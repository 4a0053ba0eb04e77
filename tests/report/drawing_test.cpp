#include "report/drawing.h"

#include <gtest/gtest.h>

namespace {

using namespace report;

TEST(Place, MovesAndScalesEveryShape) {
  Drawing one{100, 50, {}};
  rule(one, {0, 0}, {10, 20}, Pen{2, black, Dash::Dashed});
  one.shapes.emplace_back(Area{{{1, 2}, 3, 4}, grey});
  one.shapes.emplace_back(Mark{{5, 6}, Sign::Square, 10, grey, 3, "note"});
  one.shapes.emplace_back(Words{{7, 8}, "words", 30});
  Drawing sheet{1000, 1000, {}};
  place(sheet, one, {100, 200}, 2);
  ASSERT_EQ(sheet.shapes.size(), 4U);
  EXPECT_EQ(std::get<Line>(sheet.shapes[0]), (Line{{{100, 200}, {120, 240}}, Pen{4, black, Dash::Dashed}}));
  EXPECT_EQ(std::get<Area>(sheet.shapes[1]), (Area{{{102, 204}, 6, 8}, grey}));
  EXPECT_EQ(std::get<Mark>(sheet.shapes[2]), (Mark{{110, 212}, Sign::Square, 20, grey, 3, "note"}));
  EXPECT_EQ(std::get<Words>(sheet.shapes[3]), (Words{{114, 216}, "words", 60}));
}

TEST(Outline, ComesBackToItsFirstCorner) {
  Drawing sheet;
  outline(sheet, {{10, 20}, 30, 40}, Pen{});
  EXPECT_EQ(std::get<Line>(sheet.shapes[0]).points,
            (std::vector<Point>{{10, 20}, {40, 20}, {40, 60}, {10, 60}, {10, 20}}));
}

}  // namespace
