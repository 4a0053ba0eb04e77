#include "intake/block.h"

#include <gtest/gtest.h>

#include "text/csv.h"

namespace {

using Cells = std::vector<std::string>;

TEST(Block, TakesTabsWhereTheFirstLineHoldsOne) {
  const auto block = intake::readBlock("標石番号\t中数\r\nA, 1\t1.5\r\n");
  EXPECT_EQ(block.headings.cells, (Cells{"標石番号", "中数"}));
  ASSERT_EQ(block.lines.size(), 1U);
  EXPECT_EQ(block.lines[0].cells, (Cells{"A, 1", "1.5"}));
  EXPECT_EQ(block.lines[0].number, 2U);
}

TEST(Block, TakesCommasElseAndPassesOverBlankLines) {
  const auto block = intake::readBlock("\xEF\xBB\xBF\n,,\n標石番号,備考\n\nA,\"二行\nの備考\"\n　,\nB,\n");
  EXPECT_EQ(block.headings.number, 3U);
  ASSERT_EQ(block.lines.size(), 2U);
  EXPECT_EQ(block.lines[0].cells[1], "二行\nの備考");
  EXPECT_EQ(block.lines[1].number, 8U);  // the cell with a line break counts for two
}

TEST(Block, CutsBlanksOfEveryKindOff) {
  EXPECT_EQ(intake::trimmedCell(" 　A 1\xC2\xA0\t"), "A 1");
  EXPECT_EQ(intake::trimmedCell("　"), "");
}

TEST(Block, RefusesAnEmptyTextAndAnOpenQuote) {
  EXPECT_THROW(intake::readBlock(""), text::RuntimeError);
  EXPECT_THROW(intake::readBlock(" \n,\n"), text::RuntimeError);
  EXPECT_THROW(intake::readBlock("標石番号\n\"A\n"), text::CsvFault);
}

}  // namespace
