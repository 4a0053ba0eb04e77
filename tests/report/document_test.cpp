#include "report/document.h"

#include <gtest/gtest.h>

#include "report/check.h"
#include "sample_document.h"

namespace {

using namespace report;

Document two() {
  Document document = test::routeDocument(1);
  document.parts[0].items.emplace_back(Table{"閉合差", {{"区間", "", Side::Left, false}}, {{{"A1-A2"}}}});
  document.parts.push_back({"", {}, {test::routeTable(2)}});
  return document;
}

TEST(Gathered, PutsTheGridsRowsFirstAndInOneTable) {
  const std::vector<Table> tables = gathered(two());
  ASSERT_EQ(tables.size(), 2U);
  EXPECT_TRUE(tables[0].ofGrid());
  EXPECT_EQ(tables[0].rows.size(), 6U);  // 2 rows for 1 bench mark, 4 for 2
  EXPECT_EQ(tables[1].name, "閉合差");
  EXPECT_EQ(tables[1].rows.size(), 1U);
}

TEST(Append, ReckonsEachPartFromItsOwnRows) {
  Document document = test::routeDocument(1);
  document.check.columns = {{"標高", 0, 1}};
  document.check.cells.push_back({0, 1, Formula::given({0, 0, 1}) - 100.1234});
  append(document, Document(document));
  ASSERT_EQ(document.parts.size(), 2U);
  ASSERT_EQ(document.check.cells.size(), 2U);
  EXPECT_EQ(document.check.cells[1].row, 3);
  // A1 is 101.1234 in both, so both sections reckon to 1.0000 as they show.
  for (const Checked& result : checked(gathered(document), document.check)) EXPECT_EQ(result.difference, 0);
}

TEST(Row, MayEndBeforeItsTable) {
  const Row row{{"a"}, false, false};
  EXPECT_EQ(row.cell(0), "a");
  EXPECT_EQ(row.cell(5), "");
  EXPECT_FALSE(row.blank());
  EXPECT_TRUE((Row{{"", ""}, false, false}).blank());
}

TEST(Column, ShowsItsUnitBehindItsHeading) {
  EXPECT_EQ((Column{"標高", "m", Side::Point, false}).title(), "標高(m)");
  EXPECT_EQ((Column{"備考", "", Side::Left, true}).title(), "備考");
}

}  // namespace
