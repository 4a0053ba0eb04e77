#include "jobs/template.h"

#include <gtest/gtest.h>

#include "intake/plan.h"
#include "platform/files.h"
#include "support/temporary_folder.h"
#include "support/xlsx_file.h"
#include "text/error.h"

namespace {

/// The first sheet as a spreadsheet puts it on the clipboard.
std::string copied(const test::XlsxFile& file) {
  const auto cells = file.cells(1);
  std::string block;
  for (int row = 1; row <= 6; ++row)
    for (char column = 'A'; column <= 'P'; ++column) {
      const auto cell = cells.find(column + std::to_string(row));
      block += (cell == cells.end() ? "" : cell->second.text) + (column == 'P' ? "\n" : "\t");
    }
  return block;
}

TEST(Template, CanBeTakenInAsItIs) {
  const test::TemporaryFolder folder;
  jobs::writeTemplate(folder.path("ひな形.xlsx"));
  const test::XlsxFile file(platform::readFile(folder.path("ひな形.xlsx")).value());
  EXPECT_EQ(file.sheets(), (std::vector<std::string>{"観測成果", "説明"}));
  EXPECT_EQ(file.cells(1).at("J1").text, "距離(km)");
  EXPECT_TRUE(file.cells(1).at("K2").isNumber);
  EXPECT_EQ(file.cells(1).at("K2").format, "0.0000");
  const intake::Block block = intake::readBlock(copied(file));
  const auto plan =
      intake::planObservations(block, intake::matchByName(block.headings.cells), {"1", "", "", "0"});
  EXPECT_TRUE(plan.refusals.empty()) << plan.refusals.front().why;
  EXPECT_TRUE(plan.remarks.empty()) << plan.remarks.front();
  ASSERT_EQ(plan.routes.size(), 1U);
  EXPECT_EQ(plan.routes[0].benchMarks, 5);
  EXPECT_EQ(plan.observations[4].end, "-1");
  EXPECT_EQ(plan.observations[1].date, "2026/04/10");
}

TEST(Template, IsNotWrittenWhereThereIsNoFolder) {
  const test::TemporaryFolder folder;
  EXPECT_THROW(jobs::writeTemplate(folder.path("none/a.xlsx")), text::RuntimeError);
}

}  // namespace
