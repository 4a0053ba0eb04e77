#include "seihyou/screen.h"

#include <array>

#include "route/records.h"
#include "seihyou/calculation.h"
#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "ui/error_trap.h"
#include "ui/grid_helpers.h"

namespace seihyou {
namespace {

// Sizes in twips.
constexpr float designWidth = 8970;
constexpr float designHeight = 6075;
constexpr std::array<int, columnCount> columnWidths = {1540, 1540, 1540, 1540, 1960, 0, 0};
constexpr std::array<const char*, 5> headers = {"水準点", "標高", "正標高補正数", "補正結果", "備考"};

}  // namespace

fSHsei::fSHsei(const job::JobContext& context, ui::Desktop& desktop)
    : RouteScreen({.screen = "fSHsei",
                   .caption = "正標高補正",
                   .openButton = "CmdDataOpen",
                   .openCaption = "読込(&O)",
                   .reopenButton = "CmdReOpen",
                   .reopenCaption = "再読込(&R)",
                   .menuItem = "mitem",
                   .resultTable = context.tables.gTblKansokuSeikaDataSeihyou},
                  context, desktop, designWidth, designHeight) {
  SSTab1.put(0, {&Grid1});
  SSTab1.put(1, {&LstDataKubun, &cmbJIgyoBango1, &cmbRosenBango1, &openButton, &LstDataKubun1,
                 &cmbJIgyoBango2, &cmbRosenBango2, &reopenButton});
  Grid1.setCellUse([this](int row, int col) { return cellUse(row, col); });
  Grid1.onKeyPress = [this](char32_t code) {
    ui::trapped(&this->desktop(), "Grid1_KeyPress", [&] { Grid1_KeyPress(code); });
  };
}

void fSHsei::Form_Load() {
  setUpGrids();
  SSTab1.setCurrent(1);
  ui::FcEditSetLstDataKubun(LstDataKubun, LstDataKubun1);
}

void fSHsei::Form_Resize() {
  const float across = width() / designWidth;
  const float down = height() / designHeight;
  SSTab1.setSize(across * 8655, down * 5295);
  Grid1.setSize(across * 8400, down * 3700);
}

void fSHsei::setUpGrids() {
  Grid1.setRows(2);
  Grid1.setCols(columnCount);
  Grid1.setFixed(1, 0);
  Grid1.clearText();
  Grid1.setCurrent(1, 0);
  for (int col = 0; col < columnCount; ++col) {
    Grid1.setColWidth(col, columnWidths[static_cast<std::size_t>(col)]);
    const bool isNumber = col == colHeight || col == colCorrection || col == colResult;
    Grid1.setAlign(col, isNumber ? ui::Align::Right : ui::Align::Left);
    Grid1.setFixedAlign(col, isNumber ? ui::Align::Right : ui::Align::Left);
  }
  for (std::size_t col = 0; col < headers.size(); ++col)
    Grid1.setText(0, static_cast<int>(col), headers[col]);
}

void fSHsei::openData(const route::Selection& selection) { FcDBOpen(selection, context_, Grid1); }

void fSHsei::reopenData(const route::Selection& selection) { FcDBReOpen(selection, context_, Grid1); }

void fSHsei::saveData(const route::Selection& selection) {
  if (FcDbSave(selection, context_, Grid1)) route::reportSaved(desktop());
}

ui::CellUse fSHsei::cellUse(int row, int col) const {
  if (col == colRemark) return ui::CellUse::Text;
  return isCorrectionCell(Grid1, row, col) || isStartHeightCell(row, col) ? ui::CellUse::Number
                                                                          : ui::CellUse::Shown;
}

void fSHsei::Grid1_KeyPress(char32_t code) {
  const int row = Grid1.keyRow();
  const int col = Grid1.keyCol();
  if (isCorrectionCell(Grid1, row, col)) {
    correctionKey(row, code);
  } else if (isStartHeightCell(row, col) && code == ui::key::enter) {
    FcCalcSeihyou(Grid1, row, context_.grade());
  } else if (cellUse(row, col) != ui::CellUse::Shown) {
    ui::FcGridKeyEdit(Grid1, code);
  }
}

/// Enter takes the correction into the heights and goes on to the next one; any other key is typed.
void fSHsei::correctionKey(int row, char32_t code) {
  if (code == ui::key::enter) {
    FcCalcSeihyou(Grid1, row, context_.grade());
    Grid1.setCurrent(nextCorrectionRow(Grid1, row), colCorrection);
  } else {
    Grid1.setCurrent(row, colCorrection);
    ui::FcGridKeyEdit(Grid1, code);
  }
}

}  // namespace seihyou
