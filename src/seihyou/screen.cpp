#include "seihyou/screen.h"

#include <array>

#include "job/names.h"
#include "route/records.h"
#include "seihyou/calculation.h"
#include "seihyou/checks.h"
#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "seihyou/tables.h"
#include "seihyou/through_means.h"
#include "ui/grid_helpers.h"
#include "ui/grid_look.h"

namespace seihyou {
namespace {

// Sizes in twips.
constexpr float designWidth = 8970;
constexpr float designHeight = 6075;
constexpr auto left = ui::Align::Left;
constexpr auto right = ui::Align::Right;
constexpr auto number = ui::Content::Number;
constexpr std::array<ui::ColumnLook, columnCount> columns = {{{"水準点", 1540, left},
                                                              {"標高", 1540, right, number},
                                                              {"正標高補正数", 1540, right, number},
                                                              {"補正結果", 1540, right, number},
                                                              {"備考", 1960, left},
                                                              {"", 0, left},
                                                              {"", 0, left}}};

}  // namespace

fSHsei::fSHsei(const job::JobContext& context, ui::Desktop& desktop)
    : RouteScreen({.screen = "fSHsei",
                   .caption = "正標高補正",
                   .openButton = "CmdDataOpen",
                   .openCaption = "読込(&O)",
                   .reopenButton = "CmdReOpen",
                   .reopenCaption = "再読込(&R)",
                   .menuItem = "mitem",
                   .resultTable = context.tables.gTblKansokuSeikaDataSeihyou,
                   .resultColumn = 3},
                  context, desktop, designWidth, designHeight) {
  SSTab1.put(0, {&Grid1});
  Grid1.setCellUse([this](int row, int col) { return cellUse(row, col); });
  Grid1.setEntry([](int row, int col) { return !isStartHeightCell(row, col); });
  on(throughMeansItem.onClick, "calcThroughMeans_Click", [this] { calculateThroughMeans(); });
  throughMeansItem.setActName("繰り返し点の平均を通して計算");
  onKeys(Grid1, [this](char32_t code) { Grid1_KeyPress(code); });
  onBlock(Grid1, [this](const std::vector<ui::CellPlace>& cells) { takeBlock(cells); });
}

void fSHsei::Form_Resize() {
  const float across = width() / designWidth;
  const float down = height() / designHeight;
  SSTab1.setSize(across * 8655, down * 5295);
  Grid1.setSize(across * 8400, down * 3700);
}

void fSHsei::setUpGrids() { ui::headGrid(Grid1, columns); }

bool fSHsei::openData(const route::Selection& selection) { return FcDBOpen(selection, context_, Grid1); }

bool fSHsei::reopenData(const route::Selection& selection) { return FcDBReOpen(selection, context_, Grid1); }

bool fSHsei::saveData(const route::Selection& selection) {
  if (!FcDbSave(selection, context_, Grid1)) return false;
  route::reportSaved(desktop());
  return true;
}

route::SavedParts fSHsei::savedParts(const route::Selection& selection) const {
  return {route::savedBenchMarks(context_, selection, routeName(),
                                 context_.tables.gTblKansokuSeikaDataSeihyou, Grid1, colFlag)};
}

/// A route with repeated bench marks keeps the means of its pairs; on any other this is what Enter does.
bool fSHsei::takeEntries(const ui::Findings& untaken) {
  int calculated = 0;  // first row of the route calculated last
  for (const ui::Finding& finding : untaken)
    if (const int start = routeStart(Grid1, finding.row); start != calculated) {
      calcThroughMeans(Grid1, finding.row, context_.grade());
      calculated = start;
    }
  return true;
}

ui::Findings fSHsei::findings() const {
  const route::Limits set = limits();
  return checks(Grid1, context_.grade(), {set.correction, set.sectionKilometres, set.tolerances},
                &checkMemory());
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
    calculateFrom(row);
  } else if (cellUse(row, col) != ui::CellUse::Shown) {
    ui::FcGridKeyEdit(Grid1, code);
  }
}

void fSHsei::calculateFrom(int row) {
  const ui::Hourglass wait(desktop());
  FcCalcSeihyou(Grid1, row, context_.grade());
  note("計算");
}

void fSHsei::calculateThroughMeans() {
  const ui::Hourglass wait(desktop());
  calcThroughMeans(Grid1, context_.grade());
  note("計算", throughMeansItem.actName());
}

/// Enter takes the correction into the heights and goes on to the next one; any other key is typed.
void fSHsei::correctionKey(int row, char32_t code) {
  if (code == ui::key::enter) {
    calculateFrom(row);
    Grid1.setCurrent(nextCorrectionRow(Grid1, row), colCorrection);
  } else {
    Grid1.setCurrent(row, colCorrection);
    ui::FcGridKeyEdit(Grid1, code);
  }
}

std::unique_ptr<route::SelectionScreen> fSHsei::another(ui::Desktop& desktop) const {
  return std::make_unique<fSHsei>(context_, desktop);
}

report::Document fSHsei::tables(const std::string& route) const {
  return seihyou::tables(Grid1, context_.grade(), route);
}

report::Diagram fSHsei::profile() const { return seihyou::profile(Grid1, context_.grade()); }

void fSHsei::takeBlock(const std::vector<ui::CellPlace>& cells) {
  std::vector<int> rows;
  for (const ui::CellPlace& cell : cells)
    if (isCorrectionCell(Grid1, cell.row, cell.col)) rows.push_back(cell.row);
  calculateRoutes(Grid1, rows, context_.grade());
  note("計算");
}

std::string fSHsei::unit(const ui::Grid&, int col) const {
  if (col == colCorrection) return job::correctionUnit(context_.grade());
  return col == colHeight || col == colResult ? "m" : "";
}

}  // namespace seihyou
