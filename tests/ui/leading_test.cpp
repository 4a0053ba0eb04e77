#include "ui/leading.h"

#include <gtest/gtest.h>

#include "bench_screen.h"
#include "ui/finding.h"

namespace {

ui::Finding at(int row, int col) { return {ui::Severity::Error, row, col, "text", ""}; }

/// The bench screen with its first grid on the second of two pages, the first in front.
struct TwoPages {
  test::PlainDesktop desktop;
  test::BenchScreen screen{desktop};
  ui::TabControl tabs{"tabs", &screen, 2};
  TwoPages() { tabs.put(1, {&screen.Grid1}); }
};

TEST(Leading, TheCellComesToTheFrontAndTakesTheKeys) {
  TwoPages bench;
  ui::leadTo(bench.screen, at(4, 1));
  EXPECT_EQ(bench.tabs.current(), 1);
  EXPECT_EQ(bench.screen.Grid1.keyRow(), 4);
  EXPECT_EQ(bench.screen.Grid1.keyCol(), 1);
  EXPECT_EQ(ui::checkedGrid(bench.screen), &bench.screen.Grid1);
}

TEST(Leading, AHiddenColumnLeadsToTheFirstCellOfItsRow) {
  TwoPages bench;
  ui::leadTo(bench.screen, at(3, 2));
  EXPECT_EQ(bench.screen.Grid1.keyRow(), 3);
  EXPECT_EQ(bench.screen.Grid1.keyCol(), 0);
}

TEST(Leading, WithoutACellItLeadsToThePage) {
  for (const auto& [row, col] : {std::pair(-1, -1), std::pair(0, 1), std::pair(99, 1)}) {
    TwoPages bench;
    bench.screen.Grid1.setCurrent(2, 1);
    ui::leadTo(bench.screen, at(row, col));
    EXPECT_EQ(bench.tabs.current(), 1);
    EXPECT_EQ(bench.screen.Grid1.keyRow(), 2) << row;
  }
}

}  // namespace
