#include "tanrosen/screen.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "job/names.h"
#include "route/checks.h"
#include "route/records.h"
#include "tanrosen/calculation.h"
#include "tanrosen/checks.h"
#include "tanrosen/columns.h"
#include "tanrosen/data.h"
#include "tanrosen/levelling_line.h"
#include "tanrosen/tables.h"
#include "ui/grid_helpers.h"
#include "ui/grid_look.h"

namespace tanrosen {
namespace {

// Sizes in twips.
constexpr float designWidth = 8970;
constexpr float designHeight = 6075;
constexpr float tabWidth = 8655;
constexpr float tabHeight = 5295;
constexpr float gridWidth = 8295;
constexpr float gridHeight = 2295;
constexpr float gridTop = 525;
constexpr float belowGrid = 100;
constexpr float belowLists = 600;  // to the lower edge of the tab control, its tabs included
constexpr float listWidth = 1650;
constexpr float leastList = 600;
constexpr auto toLeft = ui::Align::Left;
constexpr auto toRight = ui::Align::Right;
constexpr auto number = ui::Content::Number;
constexpr std::array<ui::ColumnLook, columnCount> columns = {{{"水準点", 1540, toLeft},
                                                              {"距離", 1540, toRight, number},
                                                              {"標高", 1540, toRight, number},
                                                              {"補正数", 1540, toRight, number},
                                                              {"補正結果", 1540, toRight, number},
                                                              {"備考", 1540, toLeft},
                                                              {"", 0, toLeft},
                                                              {"", 0, toLeft}}};

}  // namespace

fTHsei::fTHsei(const job::JobContext& context, ui::Desktop& desktop)
    : RouteScreen({.screen = "fTHsei",
                   .caption = "単路線閉合差補正",
                   .openButton = "CmdDataOpen",
                   .openCaption = "読込(&O)",
                   .reopenButton = "CmdReOpen",
                   .reopenCaption = "再読込(&R)",
                   .menuItem = "mitem",
                   .resultTable = context.tables.gTblKansokuSeikaDataTanrosen,
                   .resultColumn = 4},
                  context, desktop, designWidth, designHeight) {
  SSTab1.put(0, {&Grid1, &lblSuijyun, &lstSuijyun, &Command1, &lblKiti, &lstKiti, &Command2, &cmdCalc});
  on(Command1.onClick, "Command1_Click", [this] { Command1_Click(); });
  on(Command2.onClick, "Command2_Click", [this] { Command2_Click(); });
  on(cmdCalc.onClick, "FcCalcTanrosen", [this] { cmdCalc_Click(); });
  on(onKnownHeightsItem.onClick, "calcOnKnownHeights_Click", [this] { calculateOnKnownHeights(); });
  onKnownHeightsItem.setActName("既知点ごとに閉合させて計算");
  Grid1.setCellUse([this](int row, int col) { return cellUse(row, col); });
  onKeys(Grid1, [this](char32_t code) { Grid1_KeyPress(code); });
  onBlock(Grid1, [this](const std::vector<ui::CellPlace>& cells) {
    for (const auto& [row, col] : cells)
      if (isCorrectionCell(Grid1, row, col)) takeCorrection(row);
    note("計算");
  });
}

void fTHsei::Form_Resize() {
  const float across = width() / designWidth;
  const float down = height() / designHeight;
  SSTab1.setSize(across * tabWidth, down * tabHeight);
  Grid1.setSize(across * gridWidth, down * gridHeight);
  const float top = gridTop + down * gridHeight + belowGrid;
  const float list = std::max(SSTab1.box().height - top - belowLists, leastList);
  for (ui::ListBox* marks : {&lstSuijyun, &lstKiti}) marks->setSize(listWidth, list);
}

void fTHsei::setUpGrids() { ui::headGrid(Grid1, columns); }

bool fTHsei::openData(const route::Selection& selection) {
  return FcDBOpen(selection, context_, Grid1, {lstSuijyun, lstKiti});
}

bool fTHsei::reopenData(const route::Selection& selection) {
  return FcDBReOpen(selection, context_, Grid1, {lstSuijyun, lstKiti});
}

bool fTHsei::saveData(const route::Selection& selection) {
  if (!FcDbSave(selection, context_, Grid1)) return false;
  route::reportSaved(desktop());
  return true;
}

void fTHsei::clear() {
  RouteScreen::clear();
  BenchMarkLists{lstSuijyun, lstKiti}.clear();
}

/// The operator keeps the known points in route order; nothing is sorted or checked. What the list holds
/// decides which heights can be typed.
void fTHsei::Command1_Click() {
  if (lstSuijyun.text().empty()) return;
  lstKiti.addItem(lstSuijyun.text());
  Grid1.usesChanged();
}

void fTHsei::Command2_Click() {
  if (lstKiti.text().empty()) return;
  lstKiti.removeItem(lstKiti.listIndex());
  Grid1.usesChanged();
}

void fTHsei::cmdCalc_Click() {
  const ui::Hourglass wait(desktop());
  FcCalcTanrosen(Grid1, lstKiti.items(), context_.grade(), opened_.selection().dataKubun);
  note("計算", "既知点 " + std::to_string(lstKiti.count()) + " 点");
}

void fTHsei::calculateOnKnownHeights() {
  const ui::Hourglass wait(desktop());
  calcOnKnownHeights(Grid1, lstKiti.items(), context_.grade(), opened_.selection().dataKubun);
  note("計算", onKnownHeightsItem.actName());
}

route::SavedParts fTHsei::savedParts(const route::Selection& selection) const {
  return {route::savedBenchMarks(context_, selection, routeName(),
                                 context_.tables.gTblKansokuSeikaDataTanrosen, Grid1, colFlag)};
}

/// A known height waits for the whole calculation, a correction for its own height alone. Corrections that
/// wait stand as they were typed, whatever the calculation gives.
bool fTHsei::takeEntries(const ui::Findings& untaken) {
  std::vector<std::pair<int, std::string>> corrections;
  for (const ui::Finding& finding : untaken)
    if (finding.col == colCorrection)
      corrections.emplace_back(finding.row, Grid1.text(finding.row, colCorrection));
  if (corrections.size() < untaken.size()) cmdCalc_Click();
  for (const auto& [row, correction] : corrections) {
    Grid1.setText(row, colCorrection, correction);
    takeCorrection(row);
  }
  return true;
}

ui::Findings fTHsei::findings() const {
  return checks(Grid1, lstKiti.items(), context_.grade(), opened_.selection().dataKubun, limits().tolerances,
                &checkMemory());
}

ui::CellUse fTHsei::cellUse(int row, int col) const {
  if (isRemarkCell(Grid1, row, col)) return ui::CellUse::Text;
  return isCorrectionCell(Grid1, row, col) || isKnownHeightCell(Grid1, row, col, lstKiti.items())
             ? ui::CellUse::Number
             : ui::CellUse::Shown;
}

/// A known point without a correction keeps its known height.
void fTHsei::takeCorrection(int row) {
  const ui::Hourglass wait(desktop());
  const bool known = isKnownHeightCell(Grid1, row, colResult, lstKiti.items());
  if (!known || !Grid1.text(row, colCorrection).empty()) heightFromCorrection(Grid1, row, context_.grade());
}

/// Enter on a correction takes it into the corrected height and goes on to the next one.
void fTHsei::Grid1_KeyPress(char32_t code) {
  const int row = Grid1.keyRow();
  const int col = Grid1.keyCol();
  if (code == ui::key::enter && isCorrectionCell(Grid1, row, col)) {
    takeCorrection(row);
    note("計算", route::placeName(Grid1, row));
    Grid1.setCurrent(nextCorrectionRow(Grid1, row), colCorrection);
  } else if (cellUse(row, col) != ui::CellUse::Shown) {
    ui::FcGridKeyEdit(Grid1, code);
  }
}

std::unique_ptr<route::SelectionScreen> fTHsei::another(ui::Desktop& desktop) const {
  return std::make_unique<fTHsei>(context_, desktop);
}

report::Document fTHsei::tables(const std::string& route) const {
  return tanrosen::tables(
      Grid1, {context_.grade(), route, opened_.selection().dataKubun, lstKiti.items(), limits().tolerances});
}

report::Diagram fTHsei::profile() const { return tanrosen::profile(Grid1, context_.grade()); }

std::string fTHsei::unit(const ui::Grid&, int col) const {
  if (col == colCorrection) return job::correctionUnit(context_.grade());
  return col == colHeight || col == colResult ? "m" : "";
}

}  // namespace tanrosen
