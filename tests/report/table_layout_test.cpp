#include "report/table_layout.h"

#include <gtest/gtest.h>

#include <cmath>

#include "sample_document.h"

namespace {

using namespace report;
using Lines = std::vector<std::string>;

const Measure measure = fixedPitch;

TEST(FixedPitch, CountsHalvesAndWholes) {
  EXPECT_DOUBLE_EQ(fixedPitch("A1"), 1);
  EXPECT_DOUBLE_EQ(fixedPitch("標高(m)"), 3.5);
  EXPECT_DOUBLE_EQ(fixedPitch("ｱ"), 0.5);
}

TEST(Wrapped, BreaksWhereTheWidthEnds) {
  EXPECT_EQ(wrapped("水準点標石", 2, fixedPitch), (Lines{"水準", "点標", "石"}));
  EXPECT_EQ(wrapped("水a準b", 2.5, fixedPitch), (Lines{"水a準", "b"}));
  EXPECT_EQ(wrapped("水準", 0.2, fixedPitch), (Lines{"水", "準"}));  // one character at least
  EXPECT_EQ(wrapped("a\nb", 9, fixedPitch), (Lines{"a", "b"}));
  EXPECT_EQ(wrapped("", 9, fixedPitch), Lines{""});
}

TEST(TableLayout, IsAsWideAsItsTextsNeed) {
  // Letters of 30: 水準点 takes 3 × 30 + 24; 101.1234 eight half letters, 4 × 30 + 24; 備考 its six letters
  // at least once the rest is shared out, and then all that is left.
  const Table table = test::routeTable(1);
  TableLayout layout(table, measure);
  EXPECT_TRUE(layout.fit(30, 1000, false));
  EXPECT_DOUBLE_EQ(layout.width(), 1000);
  EXPECT_FALSE(layout.fit(30, 300, false));  // 114 + 144 + at least 2 × 30 + 24 = 342
  EXPECT_TRUE(layout.fit(30, 342, false));
}

TEST(TableLayout, PutsDecimalPointsBelowEachOther) {
  Table table{"", {{"標高", "m", Side::Point, false}}, {{{"1.5"}}, {{"-120.25"}}, {{"7"}}, {{"2.0E-05"}}}};
  TableLayout layout(table, measure);
  ASSERT_TRUE(layout.fit(20, 1000, false));
  std::vector<double> points;
  for (const Row& row : table.rows) {
    Drawing page;
    layout.drawRow(page, {0, 0}, layout.lines(row), 0, 1);
    const Words words = test::wordsOn(page).front();
    EXPECT_EQ(words.anchor, Anchor::Left);
    const std::string whole = words.text.substr(0, words.text.find('.'));
    points.push_back(words.at.x + fixedPitch(whole) * 20);
  }
  for (const double point : points) EXPECT_NEAR(point, points.front(), 1e-9);
}

TEST(TableLayout, SqueezesTextsIntoLines) {
  Table table{"", {{"水準点", "", Side::Left, false}, {"備考", "", Side::Left, true}}, {}};
  table.rows.push_back({{std::string(40, 'A'), std::string(40, 'B')}, false, false});
  TableLayout layout(table, measure);
  EXPECT_FALSE(layout.fit(30, 400, false));
  ASSERT_TRUE(layout.fit(30, 400, true));
  EXPECT_LE(layout.width(), 400 + 1e-9);
  const auto lines = layout.lines(table.rows.front());
  EXPECT_GT(lines[0].size(), 1U);
  std::string all;
  for (const std::string& line : lines[0]) all += line;
  EXPECT_EQ(all, std::string(40, 'A'));
}

}  // namespace
