#include "report/check.h"

#include <gtest/gtest.h>

#include <map>

#include "every_route.h"

namespace {

/// Each derived cell of a document, reckoned again, is what it shows. Returns how many there are.
int checkDocument(const report::Document& document, const std::string& name) {
  const auto tables = gathered(document);
  const auto results = report::checked(tables, document.check);
  int count = 0;
  for (std::size_t i = 0; i < results.size(); ++i) {
    const report::CheckCell& cell = document.check.cells[i];
    const report::CheckColumn& column = document.check.columns[static_cast<std::size_t>(cell.column)];
    count += column.column >= 0 ? 1 : 0;
    EXPECT_EQ(results[i].difference, 0)
        << name << ", " << column.heading << ", row " << cell.row + 1 << ": reckoned " << results[i].reckoned;
  }
  return count;
}

class Recalculation : public testing::TestWithParam<int> {};

TEST_P(Recalculation, ComesToWhatTheGridShowsAndToWhatWasSaved) {
  test::EveryRoute routes(GetParam(), 4);
  std::map<std::string, int> reckoned;  // cells with a difference, by screen
  int families = 0;
  routes.alsoSaved([&](const report::SavedResults& saved) {
    const report::Document document = test::savedDocument(saved);
    families += document.parts.size() > 1 ? 1 : 0;
    reckoned["saved"] += checkDocument(document, document.title);
  });
  routes.visit([&](const auto& look) {
    reckoned[look.name.substr(0, 6)] += checkDocument(look.source.document(), look.name);
  });
  for (const char* const screen : {"fSHsei", "fDHsei", "fHHsei", "fTHsei", "fHHksb", "saved"})
    EXPECT_GT(reckoned[screen], 100) << screen;
  EXPECT_GT(families, 10);
}

INSTANTIATE_TEST_SUITE_P(Grades, Recalculation, testing::Values(1, 2));

}  // namespace
