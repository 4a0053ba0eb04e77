#include "daen/screen.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "daen/checks.h"
#include "daen/columns.h"
#include "daen/data.h"
#include "daen/data_sections.h"
#include "daen/saving.h"
#include "daen/tables.h"
#include "route/picture_paste.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/grid_helpers.h"
#include "ui/grid_look.h"

namespace daen {
namespace {

// Sizes in twips.
constexpr float designWidth = 8955;
constexpr float designHeight = 6105;
constexpr int rowHeight = 260;
constexpr auto left = ui::Align::Left;
constexpr auto right = ui::Align::Right;
constexpr auto number = ui::Content::Number;
constexpr auto latitude = ui::Content::Latitude;
constexpr std::array<ui::ColumnLook, columnCount> columns = {{{"水準点", 1400, right},
                                                              {"距離(km)", 1134, right, number},
                                                              {"標高(m)", 1134, right, number},
                                                              {"楕円補(mm)", 1134, right, number},
                                                              {"結果(m)", 1134, right, number},
                                                              {"備考", 1701, left},
                                                              {"データ形式", 1134, right},
                                                              {"SaveOrder", 0, right},
                                                              {"DataEndMark", 0, right},
                                                              {"", 0, right}}};
constexpr std::array<ui::ColumnLook, sectionColumnCount> sectionColumns = {
    {{"自首末地", 1134, left, latitude},
     {"至首末地", 1134, left, latitude},
     {"自水準点", 1134},
     {"至水準点", 1134},
     {"B1", 1134, left, number},
     {"B2", 1134, left, number},
     {"B1-B2", 1134, left, number},
     {"B1 + B2", 1134, left, number},
     {"楕円補正値", 1134, left, number},
     {"平均標高", 1134, left, number},
     {"楕円計算値", 1134, left, number}}};

constexpr int resultPage = 0;
constexpr int sectionPage = 2;

}  // namespace

fDHsei::fDHsei(const job::JobContext& context, ui::Desktop& desktop)
    : RouteScreen({.screen = "fDHsei",
                   .caption = "楕円補正量の計算",
                   .openButton = "CmdKanSeiDataOpen",
                   .openCaption = "OK",
                   .reopenButton = "CmdKanDaenReOpen",
                   .reopenCaption = "OK",
                   .menuItem = "m1item",
                   .resultTable = context.tables.gTblKansokuSeikaDataDaen,
                   .resultColumn = 4,
                   .openRule = route::CategoryRule::WithNull,
                   .pages = 3},
                  context, desktop, designWidth, designHeight) {
  arrange();
  tieEvents();
}

void fDHsei::arrange() {
  SSTab1.put(resultPage, {&lblJigyobango, &lblRosenbango, &lblDatakubun, &Grid1, &cmdMap, &Label12});
  SSTab1.put(sectionPage, {&LstHyousekiNo1, &LstHyousekiNo2, &lblHyousekiNo1, &lblHyousekiNo2, &txtStartIdo,
                           &txtStartFun, &txtEndIdo, &txtEndFun, &LstSanshouDaen, &lblSanshouDaenHoseichi,
                           &CmdDaenCal, &lblH, &lblDaenHoseichi, &Grid2, &CmdGrid2RowDel});
}

void fDHsei::tieEvents() {
  on(LstHyousekiNo1.onClick, "LstHyousekiNo1_Click",
     [this] { lblHyousekiNo1.setText(LstHyousekiNo1.text()); });
  on(LstHyousekiNo2.onClick, "LstHyousekiNo2_Click",
     [this] { lblHyousekiNo2.setText(LstHyousekiNo2.text()); });
  on(LstSanshouDaen.onClick, "LstSanshouDaen_Click",
     [this] { lblSanshouDaenHoseichi.setText(referenceOf(LstSanshouDaen.text())); });
  for (ui::TextBox* box : {&txtStartIdo, &txtStartFun, &txtEndIdo, &txtEndFun})
    on(box->onChange, box->name() + "_Change", [this, box] { keepNumeric(*box); });
  for (ui::Grid* grid : {&Grid1, &Grid2})
    on(grid->onClick, grid->name() + "_Click", [grid] { ui::FcGridSelectRow(*grid); });
  CmdGrid2RowDel.setActName(ui::act::deleting);
  using Shown = std::pair<std::string, std::string>;
  history().keep<Shown>([this] { return Shown(lblH.text(), lblDaenHoseichi.text()); },
                        [this](const Shown& shown) {
                          lblH.setText(shown.first);
                          lblDaenHoseichi.setText(shown.second);
                        });
  on(CmdDaenCal.onClick, "CmdDaenCal_Click", [this] { CmdDaenCal_Click(); });
  on(CmdGrid2RowDel.onClick, "CmdGrid2RowDel_Click", [this] { CmdGrid2RowDel_Click(); });
  on(cmdMap.onClick, "cmdMap_Click", [this] { cmdMap_Click(); });
}

void fDHsei::Form_Resize() {
  const float across = width() / designWidth;
  const float down = height() / designHeight;
  SSTab1.setSize(across * 8610, down * 5295);
  Grid1.setSize(across * 7395, down * 3900);
}

/// Headers stand to the left, over right-aligned figures too. The route grid is as wide as its columns until
/// the window is laid out again.
void fDHsei::setUpGrids() {
  ui::headGrid(Grid1, columns, 3);
  for (int col = 0; col < columnCount; ++col) Grid1.setFixedAlign(col, left);
  Grid1.setSize(ui::widthOf(columns), Grid1.box().height);
  ui::headGrid(Grid2, sectionColumns);
  for (ui::Grid* grid : {&Grid1, &Grid2}) grid->setRowHeight(rowHeight);
  Grid2.setSize(6700, 1560);
}

/// The labels hold the keys themselves: of the category its code alone.
void fDHsei::showKeys(const route::Selection& selection) { lblDatakubun.setText(selection.dataKubun); }

bool fDHsei::openData(const route::Selection& selection) {
  showKeys(selection);
  bool whole = FcDHseiDBOpen(selection, context_, formats_, Grid1);
  whole = FcSetLstSanshouDaen(opened_.selection(), context_, LstSanshouDaen) && whole;
  return FcDaenSetLstHyouseki(Grid1, LstHyousekiNo1, LstHyousekiNo2) && whole;
}

bool fDHsei::reopenData(const route::Selection& selection) {
  showKeys(selection);
  bool whole = FcDHseiDBReOpen(selection, context_, formats_, Grid1);
  whole = FcSetLstSanshouDaen(opened_.selection(), context_, LstSanshouDaen) && whole;
  reopenSections(opened_.selection(), context_, Grid2);
  return FcDaenSetLstHyouseki(Grid1, LstHyousekiNo1, LstHyousekiNo2) && whole;
}

bool fDHsei::saveData(const route::Selection& selection) {
  return saveBoth(selection, context_, Grid1, Grid2);
}

void fDHsei::keepNumeric(ui::TextBox& box) {
  if (!text::isNumeric(box.text())) box.setText({});
}

Section fDHsei::section() const {
  return {lblHyousekiNo1.text(), lblHyousekiNo2.text(), txtStartIdo.text(),           txtStartFun.text(),
          txtEndIdo.text(),      txtEndFun.text(),      lblSanshouDaenHoseichi.text()};
}

route::SavedParts fDHsei::savedParts(const route::Selection& selection) const {
  return daen::savedParts(selection, context_, Grid1, Grid2, routeName());
}

/// The section whose latitudes are typed; an error of its calculation has been told.
bool fDHsei::takeEntries(const ui::Findings&) {
  CmdDaenCal_Click();
  const ui::Findings open = findings();
  return std::none_of(open.begin(), open.end(),
                      [](const ui::Finding& finding) { return finding.mark == ui::CellMark::NotTaken; });
}

ui::Findings fDHsei::findings() const {
  return check(Grid1, Grid2, {section(), LstSanshouDaen.text()}, context_.grade(), &checkMemory());
}

/// The latitudes of a section that is not computed yet.
int fDHsei::entriesBesideTable() const {
  const ui::Findings open = findings();
  const bool waits = std::any_of(open.begin(), open.end(), [](const ui::Finding& finding) {
    return finding.mark == ui::CellMark::NotTaken && finding.row < 0;
  });
  if (!waits) return 0;
  int boxes = 0;
  for (const ui::TextBox* box : {&txtStartIdo, &txtStartFun, &txtEndIdo, &txtEndFun})
    boxes += text::trimmed(box->text()).empty() ? 0 : 1;
  return boxes;
}

void fDHsei::CmdDaenCal_Click() {
  const ui::Hourglass wait(desktop());
  FcSeiDaenCal(Grid1, Grid2, section(), formats_, [this](const SectionValues& values) {
    lblH.setText(text::numberText(values.meanHeight));
    lblDaenHoseichi.setText(text::numberText(values.correction));
    SSTab1.setCurrent(resultPage);
    note("計算", "区間 " + lblHyousekiNo1.text() + " - " + lblHyousekiNo2.text());
  });
}

/// The empty row at the end stays.
void fDHsei::CmdGrid2RowDel_Click() {
  const int row = Grid2.row();
  if (row != 0 && row < Grid2.rows() - 1) Grid2.removeItem(row);
}

void fDHsei::cmdMap_Click() {
  route::FcPicturePaste(desktop(), context_, context_.gExeDir + "map_app\\PicturePaste.exe", pictureName());
}

std::string fDHsei::pictureName() const { return "成果表楕円補正.bmp"; }

std::unique_ptr<route::SelectionScreen> fDHsei::another(ui::Desktop& desktop) const {
  return std::make_unique<fDHsei>(context_, desktop);
}

report::Document fDHsei::tables(const std::string& route) const { return daen::tables(Grid1, Grid2, route); }

report::Diagram fDHsei::profile() const { return daen::profile(Grid1, context_.grade()); }

/// The headers of the route grid carry their units themselves.
std::string fDHsei::unit(const ui::Grid& grid, int col) const {
  if (&grid != &Grid2) return "";
  switch (col) {
    case secB1:
    case secB2:
    case secDifference:
    case secSum:
      return "分";
    case secAccumulated:
    case secCorrection:
      return "mm";
    case secMeanHeight:
      return "m";
    default:
      return "";
  }
}

std::string fDHsei::rowName(const ui::Grid& grid, int row) const {
  if (&grid != &Grid2 || row < Grid2.fixedRows()) return Screen::rowName(grid, row);
  const std::string& from = Grid2.text(row, secStartBenchMark);
  return from.empty() ? from : from + " → " + Grid2.text(row, secEndBenchMark);
}

}  // namespace daen
