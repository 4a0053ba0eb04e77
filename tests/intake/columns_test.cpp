#include "intake/columns.h"

#include <gtest/gtest.h>

namespace {

using intake::Field;
using intake::Source;

TEST(MatchByName, KnowsTheTemplatesOwnHeadingsAndColumnNames) {
  for (const intake::FieldInfo& info : intake::fields()) {
    EXPECT_EQ(intake::fieldNamed(info.heading), info.field) << info.heading;
    EXPECT_EQ(intake::fieldNamed(info.column), info.field) << info.column;
  }
}

TEST(MatchByName, LooksPastWidthCaseBlanksAndUnits) {
  const auto matching =
      intake::matchByName({"路　線 番号", "水準点", "距離（ｋｍ）", "比高[m]", "SAVEORDER", "距離"});
  EXPECT_EQ(matching.at(Field::Route).column, 0U);
  EXPECT_EQ(matching.at(Field::BenchMark).column, 1U);
  EXPECT_EQ(matching.at(Field::Distance), (Source{2, 1}));  // the first of two
  EXPECT_EQ(matching.at(Field::Difference), (Source{3, 1}));
  EXPECT_EQ(matching.at(Field::Order).column, 4U);
  EXPECT_EQ(matching.size(), 5U);
}

// 1,500 m / 1000 = 1.5 km; 1,234.5 mm / 1000 = 1.2345 m.
TEST(MatchByName, ConvertsUnits) {
  const auto matching = intake::matchByName({"距離(m)", "中数(mm)", "標高(フィート)"});
  EXPECT_EQ(matching.at(Field::Distance).divisor, 1000);
  EXPECT_EQ(matching.at(Field::Difference).divisor, 1000);
  EXPECT_FALSE(matching.contains(Field::Height));
}

TEST(MatchByName, LeavesUnknownHeadingsAlone) { EXPECT_TRUE(intake::matchByName({"温度", "", "X"}).empty()); }

}  // namespace
