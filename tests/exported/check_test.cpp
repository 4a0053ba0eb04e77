#include "report/check.h"

#include <gtest/gtest.h>

#include <map>

#include "every_route.h"

namespace {

class Recalculation : public testing::TestWithParam<int> {};

TEST_P(Recalculation, ComesToWhatTheGridShows) {
  test::EveryRoute routes(GetParam(), 4);
  std::map<std::string, int> reckoned;  // cells with a difference, by screen
  routes.visit([&](const auto& look) {
    const report::Document document = look.source.document();
    const auto tables = gathered(document);
    const auto results = report::checked(tables, document.check);
    for (std::size_t i = 0; i < results.size(); ++i) {
      const report::CheckCell& cell = document.check.cells[i];
      const report::CheckColumn& column = document.check.columns[static_cast<std::size_t>(cell.column)];
      reckoned[look.name.substr(0, 6)] += column.column >= 0 ? 1 : 0;
      EXPECT_EQ(results[i].difference, 0) << look.name << ", " << column.heading << ", row " << cell.row + 1
                                          << ": reckoned " << results[i].reckoned;
    }
  });
  for (const char* const screen : {"fSHsei", "fDHsei", "fHHsei", "fTHsei", "fHHksb"})
    EXPECT_GT(reckoned[screen], 100) << screen;
}

INSTANTIATE_TEST_SUITE_P(Grades, Recalculation, testing::Values(1, 2));

}  // namespace
