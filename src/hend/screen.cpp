#include "hend/screen.h"

#include <algorithm>
#include <array>
#include <string>

#include "hend/calculation.h"
#include "hend/checks.h"
#include "hend/columns.h"
#include "hend/data.h"
#include "hend/entries.h"
#include "hend/tables.h"
#include "route/checks.h"
#include "route/picture_paste.h"
#include "route/records.h"
#include "text/date.h"
#include "text/padding.h"
#include "ui/error_trap.h"
#include "ui/grid_helpers.h"
#include "ui/grid_look.h"

namespace hend {
namespace {

/// How a column of the grid looks.
constexpr auto left = ui::Align::Left;
constexpr auto right = ui::Align::Right;
constexpr auto number = ui::Content::Number;
constexpr auto date = ui::Content::Date;
constexpr std::array<ui::ColumnLook, columnCount> columns = {{{"水準点", 1540, left},
                                                              {"新観測年月日", 1260, left, date},
                                                              {"新観測比高", 1120, right, number},
                                                              {"旧観測年月日", 1260, left, date},
                                                              {"旧観測比高", 1120, right, number},
                                                              {"比高差", 1120, right, number},
                                                              {"新－旧", 840, right, number},
                                                              {"比高変化", 1120, right, number},
                                                              {"基－新", 840, right, number},
                                                              {"変動補正量", 1120, right, number},
                                                              {"基準日比高", 1120, right, number},
                                                              {"備考", 1960, left},
                                                              {"SaveOrder", 0, left},
                                                              {"データ形式", 1120, left},
                                                              {"DataEndMark", 0, left}}};

// Sizes in twips. The width shows all columns at once.
constexpr float designWidth = 16500;
constexpr float designHeight = 9000;
constexpr float besideGrid = 300;   // left and right of the table, to the edges of the window
constexpr float aroundGrid = 1650;  // the tabs, what stands above the table and the line below it
constexpr float least = 300;        // a window may be made smaller than what stands in it

/// The picture of a route.
std::string pictureOf(std::string_view route) {
  return "成果表変動補正" + std::string(text::trimmed(route)) + ".bmp";
}

/// No date at all is fine: then nothing is carried to a reference date.
bool isDateOrBlank(std::string_view text) {
  return text::trimmed(text).empty() || text::Date::parse(text).has_value();
}

}  // namespace

fHHsei::fHHsei(const job::JobContext& context, ui::Desktop& desktop)
    : SelectionScreen({.screen = "fHHsei",
                       .caption = "変動補正計算",
                       .openButton = "CmdHendDataOpen",
                       .openCaption = "読込(&O)",
                       .reopenButton = "CmdHendReOpen",
                       .reopenCaption = "再読込(&R)",
                       .menuItem = "m1item",
                       .resultTable = context.tables.gTblKansokuSeikaDataHend},
                      {}, context, desktop, designWidth, designHeight) {
  SSTab1.put(0, {&Grid1, &txtKijunbi, &CmdSettei, &cmdMap});
  txtKijunbi.setValid(isDateOrBlank, "日付ではありません");
  openButton.onClick.handle([this] { guarded("CmdHendDataOpen_Click", [this] { openChosen(); }); });
  reopenButton.onClick.handle([this] { guarded("CmdHendReOpen_Click", [this] { openSaved(); }); });
  CmdSettei.onClick.handle([this] { guarded("CmdSettei_Click", [this] { calculateAgain(); }); });
  on(cmdMap.onClick, "cmdMap_Click", [this] { pastePicture(); });
  history().keep<std::string>([this] { return carriedTo_; },
                              [this](const std::string& day) { carryBackTo(day); });
  Grid1.setCellUse([this](int, int col) { return cellUse(col); });
  Grid1.setEntry([this](int row, int col) { return isEntry(Grid1, row, col); });
  onKeys(Grid1, [this](char32_t code) { Grid1_KeyPress(code); });
  onBlock(Grid1, [this](const std::vector<ui::CellPlace>& cells) {
    for (const auto& [row, col] : cells)
      if (col == colCorrection) FcHendCalcResult(Grid1, row, context_.grade());
    note("計算");
  });
}

void fHHsei::Form_Load() {
  const ui::Hourglass wait(desktop());
  setUpGrids();
  SSTab1.setCurrent(selectionPage);
  ui::trapped(&desktop(), "Form_Load", [this] {
    observed_.fillProjects();
    saved_.fillProjects();
  });
}

/// The table takes all the room that the window has.
void fHHsei::Form_Resize() {
  SSTab1.setSize(width(), height());
  Grid1.setSize(std::max(least, width() - besideGrid), std::max(least, height() - aroundGrid));
}

void fHHsei::setUpGrids() { ui::headGrid(Grid1, columns, 2, 1); }

bool fHHsei::openData(const route::Selection& selection) {
  source_ = Source::Observation;
  const bool whole = readObservations(selection);
  calculate();
  return whole;
}

bool fHHsei::reopenData(const route::Selection& selection) {
  source_ = Source::Saved;
  std::string referenceDate = txtKijunbi.text();
  const bool whole = FcHendDBReOpen(selection, context_, Grid1, referenceDate);
  txtKijunbi.setText(referenceDate);
  calculate();
  return whole;
}

bool fHHsei::saveData(const route::Selection& selection) {
  if (!FcHendDBSave(selection, context_, Grid1, txtKijunbi.text())) return false;
  route::reportSaved(desktop());
  return true;
}

void fHHsei::clear() {
  SelectionScreen::clear();
  source_ = Source::None;
}

std::function<void()> fHHsei::knowledge() {
  return [this, source = source_, carriedTo = carriedTo_] {
    source_ = source;
    carriedTo_ = carriedTo;
  };
}

/// The walk along the grid ends on its last bench mark, mostly a route end. Where it leaves the operator in a
/// cell that takes keys and is no entry, the next key would go astray: he stays where he was.
void fHHsei::calculateAgain() {
  const ui::Hourglass wait(desktop());
  const int row = Grid1.row();
  const int col = Grid1.col();
  calculate();
  note("計算", "基準日 " + txtKijunbi.text());
  const bool astray =
      Grid1.cellUse(Grid1.row(), col) != ui::CellUse::Shown && !Grid1.isEntry(Grid1.row(), col);
  if (astray) Grid1.setCurrent(row, col);
}

/// A calculation that is taken back takes the date with it by which it was made.
void fHHsei::carryBackTo(const std::string& day) {
  carriedTo_ = day;
  txtKijunbi.setText(day);
}

route::SavedParts fHHsei::savedParts(const route::Selection& selection) const {
  return {{routeName(), context_.tables.gTblKansokuSeikaDataHend, savedSql(context_, selection),
           route::countBenchMarks(Grid1, colMark)}};
}

ui::Findings fHHsei::findings() const {
  return source_ == Source::None
             ? ui::Findings()
             : check(Grid1, txtKijunbi.text(), context_.grade(), {limits().rate}, &checkMemory());
}

void fHHsei::pastePicture() {
  route::FcPicturePaste(desktop(), context_, context_.gExeDir + "map_app\\PicturePaste.exe",
                        pictureOf(cmbRosenBango1.text()));
}

std::string fHHsei::pictureName() const { return pictureOf(lblRosenbango.text()); }

ui::CellUse fHHsei::cellUse(int col) const {
  if (source_ == Source::None) return ui::CellUse::Shown;
  if (col == colRemark) return ui::CellUse::Text;
  if (col == colCorrection) return ui::CellUse::Number;
  const bool isObservation = (col >= colNewDate && col <= colDaysReference) || col == colResult;
  return source_ == Source::Saved && isObservation ? ui::CellUse::Number : ui::CellUse::Shown;
}

void fHHsei::takeCorrection(int row) {
  const ui::Hourglass wait(desktop());
  FcHendCalcResult(Grid1, row, context_.grade());
}

/// Enter takes a correction into the result of its row and goes on to the next section's.
void fHHsei::Grid1_KeyPress(char32_t code) {
  const int row = Grid1.keyRow();
  if (cellUse(Grid1.keyCol()) == ui::CellUse::Shown) return;
  if (Grid1.keyCol() == colCorrection && code == ui::key::enter) {
    takeCorrection(row);
    note("計算", route::placeName(Grid1, row));
    Grid1.setCurrent(nextCorrectionRow(Grid1, row), colCorrection);
  } else {
    ui::FcGridKeyEdit(Grid1, code);
  }
}

std::unique_ptr<route::SelectionScreen> fHHsei::another(ui::Desktop& desktop) const {
  return std::make_unique<fHHsei>(context_, desktop);
}

report::Document fHHsei::tables(const std::string& route) const {
  return hend::tables(Grid1, txtKijunbi.text(), context_.grade(), route);
}

report::Diagram fHHsei::profile() const { return hend::profile(Grid1, context_.grade()); }

std::string fHHsei::unit(const ui::Grid&, int col) const {
  switch (col) {
    case colNewHeight:
    case colOldHeight:
    case colDifference:
    case colCorrection:
    case colResult:
      return "m";
    case colRate:
      return "m/日";
    case colDaysNewOld:
    case colDaysReference:
      return "日";
    default:
      return "";
  }
}

}  // namespace hend
