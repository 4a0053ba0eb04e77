#include "ui/grid_helpers.h"

#include <gtest/gtest.h>

#include <utility>

#include <string>
#include <vector>

#include "support/recording_desktop.h"
#include "text/error.h"

namespace {

class GridHelpers : public testing::Test {
 protected:
  GridHelpers() {
    grid.setDesktop(&desktop);
    grid.setRows(3);
    grid.setCols(4);
  }

  void expectReport(const char* procedure, const char* description) {
    EXPECT_EQ(desktop.takeMessages(),
              (std::vector<ui::Message>{{procedure, description, ui::Icon::Critical}}));
  }

  test::RecordingDesktop desktop;
  ui::Grid grid;
};

TEST_F(GridHelpers, MoveRowGoesToARowThatIsThere) {
  EXPECT_TRUE(ui::FcGridMoveRow(grid, 2));
  EXPECT_EQ(grid.row(), 2);
  EXPECT_EQ(grid.rows(), 3);
}

TEST_F(GridHelpers, MoveRowAtTheRowCountAddsExactlyOneRow) {
  EXPECT_TRUE(ui::FcGridMoveRow(grid, 3));
  EXPECT_EQ(grid.rows(), 4);
  EXPECT_EQ(grid.row(), 3);
}

TEST_F(GridHelpers, MoveRowFarBeyondTheEndMakesTheGridAsLong) {
  EXPECT_TRUE(ui::FcGridMoveRow(grid, 10));
  EXPECT_EQ(grid.rows(), 11);
  EXPECT_EQ(grid.row(), 10);
}

TEST_F(GridHelpers, MoveRowBelowOneDoesNothing) {
  grid.setRow(2);
  EXPECT_FALSE(ui::FcGridMoveRow(grid, 0));
  EXPECT_FALSE(ui::FcGridMoveRow(grid, -1));
  EXPECT_EQ(grid.row(), 2);
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(GridHelpers, MoveRowReportsAnOverflowBeyond16Bits) {
  EXPECT_TRUE(ui::FcGridMoveRow(grid, 32766));
  EXPECT_FALSE(ui::FcGridMoveRow(grid, 32767));
  EXPECT_EQ(grid.rows(), 32767);
  expectReport("FcGridMoveRow", "オーバーフローしました。");
}

TEST_F(GridHelpers, SetDataAndGetDataReachACell) {
  EXPECT_TRUE(ui::FcGridSetData(grid, 1, 3, "備考"));
  std::string cell;
  EXPECT_FALSE(ui::FcGridGetData(grid, 1, 3, cell));  // false by nature
  EXPECT_EQ(cell, "備考");
}

TEST_F(GridHelpers, SetDataAndGetDataReportACellOutside) {
  EXPECT_FALSE(ui::FcGridSetData(grid, 3, 0, "x"));
  expectReport("FcGridSetData", "インデックスが有効範囲にありません。");
  std::string cell = "before";
  EXPECT_FALSE(ui::FcGridGetData(grid, 0, 4, cell));
  expectReport("FcGridGetData", "インデックスが有効範囲にありません。");
  EXPECT_EQ(cell, "before");
}

TEST_F(GridHelpers, PassTheErrorToTheCallerWithoutADesktop) {
  grid.setDesktop(nullptr);
  EXPECT_THROW(ui::FcGridSetData(grid, 3, 0, "x"), text::RuntimeError);
}

TEST_F(GridHelpers, SelectRowHighlightsTheWholeCurrentRow) {
  grid.setCurrent(2, 3);
  EXPECT_TRUE(ui::FcGridSelectRow(grid));
  EXPECT_EQ(grid.row(), 2);
  EXPECT_EQ(grid.rowSel(), 2);
  EXPECT_EQ(grid.col(), 0);
  EXPECT_EQ(grid.colSel(), 3);
  EXPECT_EQ(grid.keyCol(), 3);
}

TEST_F(GridHelpers, SelectRowEndsASelectionOfSeveralRows) {
  grid.setCurrent(1, 1);
  grid.selectTo(2, 2);
  EXPECT_TRUE(ui::FcGridSelectRow(grid));
  EXPECT_EQ(grid.row(), 1);
  EXPECT_EQ(grid.rowSel(), 1);
}

TEST_F(GridHelpers, KeyEditTypesIntoTheKeyCell) {
  grid.setCurrent(2, 3);
  for (const char32_t code : {U'-', U'1', U'.', U'5'}) EXPECT_TRUE(ui::FcGridKeyEdit(grid, code));
  EXPECT_EQ(grid.text(2, 3), "-1.5");
  ui::FcGridSelectRow(grid);
  EXPECT_TRUE(ui::FcGridKeyEdit(grid, U'水'));
  EXPECT_EQ(grid.text(2, 3), "-1.5水");
  EXPECT_EQ(grid.text(2, 0), "");
}

TEST_F(GridHelpers, KeyEditDropsTheLastCharacterUponBackspace) {
  grid.setCurrent(1, 1);
  grid.setText(1, 1, "a水𠮷");
  std::vector<std::string> texts;
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(ui::FcGridKeyEdit(grid, ui::key::backspace));
    texts.push_back(grid.text(1, 1));
  }
  EXPECT_EQ(texts, (std::vector<std::string>{"a水", "a", "", ""}));  // empty stays empty
}

TEST_F(GridHelpers, KeyEditLeavesEnterToOthers) {
  grid.setCurrent(1, 1);
  grid.setText(1, 1, "1.5");
  EXPECT_FALSE(ui::FcGridKeyEdit(grid, ui::key::enter));
  EXPECT_EQ(grid.text(1, 1), "1.5");
}

// Entries: text in (1,2), numbers in (2,1) and (3,1). The number in (2,1) is the first one; where no cell
// takes a number the text is; where none takes anything the first bench mark.
TEST_F(GridHelpers, FirstEntryIsTheFirstCellThatTakesANumber) {
  grid.setRows(4);
  grid.setCols(3);
  bool numbers = true;
  grid.setCellUse([&](int row, int col) {
    if (row == 1 && col == 2) return ui::CellUse::Text;
    return numbers && row >= 1 && col == 1 ? ui::CellUse::Number : ui::CellUse::Shown;
  });
  grid.setEntry([](int row, int) { return row >= 2; });
  ui::goToFirstEntry(grid);
  EXPECT_EQ(std::make_pair(grid.keyRow(), grid.keyCol()), std::make_pair(2, 1));
  EXPECT_FALSE(grid.isEntry(1, 1));
  EXPECT_TRUE(grid.isEntry(3, 1));
  grid.setEntry({});
  numbers = false;
  ui::goToFirstEntry(grid);
  EXPECT_EQ(std::make_pair(grid.keyRow(), grid.keyCol()), std::make_pair(1, 2));
  grid.setCellUse({});
  ui::goToFirstEntry(grid);
  EXPECT_EQ(std::make_pair(grid.keyRow(), grid.keyCol()), std::make_pair(1, 0));
}

TEST(FcGridKeyEdit, TypesIntoATextBox) {
  ui::TextBox box("txt", nullptr);
  int changes = 0;
  box.onChange.handle([&] { ++changes; });
  EXPECT_TRUE(ui::FcGridKeyEdit(box, ui::key::backspace));
  EXPECT_EQ(box.text(), "");
  EXPECT_EQ(changes, 0);
  EXPECT_TRUE(ui::FcGridKeyEdit(box, U'準'));
  EXPECT_TRUE(ui::FcGridKeyEdit(box, U'1'));
  EXPECT_FALSE(ui::FcGridKeyEdit(box, ui::key::enter));
  EXPECT_EQ(box.text(), "準1");
  EXPECT_TRUE(ui::FcGridKeyEdit(box, ui::key::backspace));
  EXPECT_EQ(box.text(), "準");
  EXPECT_EQ(changes, 3);
}

TEST(FcEditSetLstDataKubun, FillsBothListsWithTheFiveCategories) {
  ui::ListBox first("LstDataKubun", nullptr);
  ui::ListBox second("LstDataKubun1", nullptr);
  first.addItem("old");
  first.setListIndex(0);
  EXPECT_TRUE(ui::FcEditSetLstDataKubun(first, second));
  const std::vector<std::string> categories = {"0:1往復 本作業、検測、取付", "1:2往復 基準水準点取付",
                                               "2:1往復 電子基準点取付", "3: 片道 検測", "4:1往復 履歴ﾃﾞｰﾀ"};
  EXPECT_EQ(first.items(), categories);
  EXPECT_EQ(second.items(), categories);
  EXPECT_EQ(first.listIndex(), -1);
}

}  // namespace
