#include "hksnb/screen.h"

#include <string>
#include <vector>

#include "hksnb/calculation.h"
#include "hksnb/checks.h"
#include "hksnb/columns.h"
#include "hksnb/distances.h"
#include "hksnb/grid_set_up.h"
#include "platform/files.h"
#include "route/giving_up.h"
#include "route/limits.h"
#include "route/picture_paste.h"
#include "route/safeguards.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/error_trap.h"
#include "ui/grid_helpers.h"

namespace hksnb {
namespace {

enum Page : int { pageChoice = 0, pageBook = 1, pageStore = 2 };

constexpr const char* stepNames[] = {"処理A", "処理B", "処理C"};

Kind kindOf(const ui::OptionButton& orthometric) {
  return orthometric.on() ? Kind::Orthometric : Kind::Ellipsoidal;
}

/// The chosen item goes to the end of the other list.
void moveItem(ui::ListBox& from, ui::ListBox& to) {
  if (from.listIndex() < 0) return;
  to.addItem(from.text());
  from.removeItem(from.listIndex());
}

}  // namespace

void fHHksb::tieRouteLists() {
  ui::OptionButton::group({&optSeika0, &optSeika1});
  ui::OptionButton::group({&optSeika20, &optSeika21});
  optSeika0.setOn(true);
  optSeika20.setOn(true);
  const auto routes = [this] { FcHHKSB_GetRosenNo(context_, kindOf(optSeika0), LstRosenNo1, LstRosenNo2); };
  const auto books = [this] { FcHHKSB_GetHksnbNo(context_, kindOf(optSeika20), LstHksnbNo); };
  for (ui::OptionButton* option : {&optSeika0, &optSeika1}) on(option->onClick, "optSeika_Click", routes);
  for (ui::OptionButton* option : {&optSeika20, &optSeika21}) on(option->onClick, "optSeika2_Click", books);
  on(CmdExeC3.onClick, "FcHHKSB_LstRosenNo1ToLstRosenNo2", [this] { moveItem(LstRosenNo1, LstRosenNo2); });
  on(CmdExeC4.onClick, "FcHHKSB_LstRosenNo2ToLstRosenNo1", [this] { moveItem(LstRosenNo2, LstRosenNo1); });
}

void fHHksb::tieSteps() {
  on(SSTab1.onChange, "SSTab1_Click", [this] { lblShoriShiji.setText(stepNames[SSTab1.current()]); });
  on(CmdExeC2.onClick, "CmdExeC2_Click", [this] { newBook(); });
  on(Command1.onClick, "Command1_Click", [this] { storedBook(); });
  on(CmdExeD1.onClick, "CmdExeD1_Click", [this] { SSTab1.setCurrent(pageChoice); });
  on(CmdExeD2.onClick, "CmdExeD2_Click", [this] { SSTab1.setCurrent(pageStore); });
  on(CmdExeE1.onClick, "CmdExeE1_Click", [this] { SSTab1.setCurrent(pageBook); });
  on(CmdExeE2.onClick, "CmdExeE2_Click", [this] { save(); });
  on(cmdMap.onClick, "cmdMap_Click", [this] { pastePicture(); });
  m1item.onClick.handle([this] { leave(); });
}

void fHHksb::tieOrder() {
  const auto chosen = [this] { return std::string(text::trimmed(LstHyousekiNo.text())); };
  on(CmdExeD3.onClick, "CmdExeD3_Click", [this, chosen] { lblStartNo.setText(chosen()); });
  on(CmdExeD4.onClick, "CmdExeD4_Click", [this, chosen] { lblEndNo.setText(chosen()); });
  on(CmdExeD5.onClick, "CmdExeD5_Click", [this] { turn(); });
}

void fHHksb::turn() {
  const ui::Hourglass wait(desktop());
  HKsnbSetFcSortToGrid1(Grid1, places_, lblStartNo.text(), lblEndNo.text(), kind_, context_.grade());
  HKsnbSetFcGrid1ToHyousekiNo(Grid1, LstHyousekiNo);
}

/// The list of bench marks after a step back or forward: as it is where the order is the same.
void fHHksb::showOrder() {
  ui::ListBox order{"order", nullptr};
  HKsnbSetFcGrid1ToHyousekiNo(Grid1, order);
  if (order.items() != LstHyousekiNo.items()) HKsnbSetFcGrid1ToHyousekiNo(Grid1, LstHyousekiNo);
}

void fHHksb::tieBook() {
  on(cmdSetNen.onClick, "cmdSetNen_Click",
     [this] { setYears(Grid1, txtKansokuNen.text(), txtHeikinNen.text()); });
  on(CmdHendryocal.onClick, "CmdHendryocal_Click", [this] { computeAmounts(); });
  on(txtHksnbNo.onChange, "txtHksnbNo_Change", [this] {
    if (!text::isNumeric(txtHksnbNo.text())) txtHksnbNo.setText({});
  });
  CmdExeD5.setActName("入れ替え");
  cmdSetNen.setActName("設定");
  history().whenMoved([this] { showOrder(); });
  on(Grid1.onClick, "Grid1_Click", [this] { ui::FcGridSelectRow(Grid1); });
  Grid1.setCellUse([this](int row, int col) { return cellUse(row, col); });
  onKeys(Grid1, [this](char32_t code) { Grid1_KeyPress(code); });
}

void fHHksb::computeAmounts() {
  const ui::Hourglass wait(desktop());
  FcHHKSB_HendryoCal(Grid1, context_.grade());
  note("計算", "変動量");
}

void fHHksb::Form_Load() {
  const ui::Hourglass wait(desktop());
  FcHHKSB_AddRosenEndFlg(context_, desktop());
  FcHHKSB_GetRosenNo(context_, Kind::Orthometric, LstRosenNo1, LstRosenNo2);
  FcHHKSB_InitGrid1(Grid1, kind_);
  FcHHKSB_GetHksnbNo(context_, Kind::Orthometric, LstHksnbNo);
}

/// The months of a new book grow out of what the boxes hold: nothing typed there is lost.
void fHHksb::newBook() {
  if (mayLoseBook(false)) showBook("読込", optSeika0, &fHHksb::fillFromRoutes);
}

void fHHksb::storedBook() {
  if (mayLoseBook(true)) showBook("再読込", optSeika20, &fHHksb::fillFromStore);
}

bool fHHksb::mayLeave() { return mayLoseBook(true); }

/// Asks before changes of the book in the grid go; with `periodToo` those of its months as well.
bool fHHksb::mayLoseBook(bool periodToo) {
  const int cells = history().unsavedCells() + (periodToo ? changedMonths() : 0);
  return route::mayLose(desktop(), watch_.name(), cells, [this] { return save(); });
}

/// How many boxes of the present observation's months have been changed; none before there is a book.
int fHHksb::changedMonths() const {
  if (Grid1.text(1, colBenchMark).empty()) return 0;
  const Period now = presentPeriod();
  return (now.yearFrom != keptPeriod_.yearFrom) + (now.monthFrom != keptPeriod_.monthFrom) +
         (now.yearTo != keptPeriod_.yearTo) + (now.monthTo != keptPeriod_.monthTo);
}

/// Where the operator gives it up, the book that stood there before stands there again.
void fHHksb::showBook(const char* what, const ui::OptionButton& orthometric, Fill fill) {
  const ui::Hourglass wait(desktop());
  const auto bringBack = [this, kind = kind_, places = places_, opening = opening_, watched = watch_,
                          period = keptPeriod_] {
    kind_ = kind;
    places_ = places;
    opening_ = opening;
    watch_ = watched;
    keptPeriod_ = period;
  };
  const auto work = [&] { layOut(orthometric, fill); };
  if (!route::runUnlessGivenUp(*this, "読み込んでいます", work, bringBack)) return note(what, "中止しました");
  SSTab1.setCurrent(pageBook);
  note(what, opening_.isWhole() ? countText() : "途中で終わりました");
}

void fHHksb::layOut(const ui::OptionButton& orthometric, Fill fill) {
  kind_ = kindOf(orthometric);
  history().restart();
  remembered_.forget();
  FcHHKSB_InitGrid1(Grid1, kind_);
  Form_Resize();
  opening_.run([&] { return (this->*fill)() == Status::Done; });
  HKsnbSetFcGrid1ToHyousekiNo(Grid1, LstHyousekiNo);
  keptPeriod_ = presentPeriod();
  ui::goToFirstEntry(Grid1);
}

/// How many bench marks the book has, and its number where it has one.
std::string fHHksb::countText() const {
  const std::string number = watch_.number().empty() ? "" : "番号 " + watch_.number() + "、";
  return number + "水準点 " + std::to_string(bookPoints(Grid1).size()) + " 点";
}

Status fHHksb::fillFromRoutes() {
  std::vector<RouteItem> routes;
  for (const std::string& item : LstRosenNo2.items()) routes.push_back(RouteItem::read(item));
  Period present = presentPeriod();
  places_ = {};
  watch_.disown(desktop());
  const Status status = FcHHKSB_SetGrid1FromSeikaData(context_, kind_, routes, present, places_, Grid1);
  showPresent(present);
  return status;
}

Status fHHksb::fillFromStore() {
  const std::string number = LstHksnbNo.text();
  txtHksnbNo.setText(number);
  watch_.own(desktop(), kind_, number);
  BookBoxes boxes{txtKansokuNen.text(), txtHeikinNen.text(), presentPeriod(),
                  Period{txtOldYearFr.text(), txtOldMonFr.text(), txtOldYearTo.text(), txtOldMonTo.text()}};
  const Status status = FcHHKSB_Reopen(context_, kind_, number, boxes, Grid1);
  places_ = PlaceNames::readFrom(Grid1);
  txtKansokuNen.setText(boxes.presentYear);
  txtHeikinNen.setText(boxes.previousYear);
  showPresent(boxes.present);
  showPrevious(boxes.previous);
  return status;
}

/// What an act of the operator begins is one act, the calculation before the save included.
bool fHHksb::save() {
  if (!opening_.maySave(desktop())) return false;
  const ui::History::Act act(&history(), ui::act::calculation);
  bool saved = false;
  ui::trapped(&desktop(), "CmdExeE2_Click", [&] { saved = replaceStored(); });
  return saved;
}

bool fHHksb::replaceStored() {
  const ui::Hourglass wait(desktop());
  const std::string number = txtHksnbNo.text();
  const auto found = [this] { return findings(); };
  const auto calculate = [this](const ui::Findings&) { return computeAmounts(), true; };
  if (!route::maySaveWith(desktop(), found, calculate)) return false;
  if (!watch_.mayStore(desktop(), kind_, number, Grid1)) return false;
  const Status status = FcHHKSB_HKSNBSave(context_, kind_, number, presentPeriod(), Grid1);
  remembered_.forget();
  if (status != Status::Done) return false;
  history().markSaved();
  watch_.own(desktop(), kind_, number);
  keptPeriod_ = presentPeriod();
  note("保存", countText());
  return true;
}

ui::Findings fHHksb::findings() const {
  BookState state{kind_, opening_.isWhole(), txtHksnbNo.text(), watch_.number()};
  state.farAway = route::limitsOf(desktop()).variation;
  state.present = presentPeriod();
  if (opening_.isWhole() && !Grid1.text(1, colBenchMark).empty())
    state.saved = &remembered_.saved(Grid1, kind_);
  if (kindOf(optSeika20) == kind_) state.stored = LstHksnbNo.items();
  return checks(Grid1, context_.grade(), state);
}

/// The tool stands beside the program or in the data folder.
void fHHksb::pastePicture() {
  const std::string tool = "map_app\\PicturePaste.exe";
  const std::string own = context_.gAppPath + tool;
  route::FcPicturePaste(desktop(), context_, platform::isFile(own) ? own : context_.gExeDir + tool,
                        pictureName());
}

Period fHHksb::presentPeriod() const {
  return {txtNewYearFr.text(), txtNewMonFr.text(), txtNewYearTo.text(), txtNewMonTo.text()};
}

void fHHksb::showPresent(const Period& period) {
  txtNewYearFr.setText(period.yearFrom);
  txtNewMonFr.setText(period.monthFrom);
  txtNewYearTo.setText(period.yearTo);
  txtNewMonTo.setText(period.monthTo);
}

void fHHksb::showPrevious(const Period& period) {
  txtOldYearFr.setText(period.yearFrom);
  txtOldMonFr.setText(period.monthFrom);
  txtOldYearTo.setText(period.yearTo);
  txtOldMonTo.setText(period.monthTo);
}

/// Previous results are typed at bench marks, remarks at bench marks and sections.
ui::CellUse fHHksb::cellUse(int row, int col) const {
  const bool onBenchMark = row % 2 == 1;
  if (Grid1.text(onBenchMark ? row : row - 1, colBenchMark).empty()) return ui::CellUse::Shown;
  if (col == colRemark) return ui::CellUse::Text;
  return col == colPrevious && onBenchMark ? ui::CellUse::Number : ui::CellUse::Shown;
}

void fHHksb::Grid1_KeyPress(char32_t code) {
  const int row = Grid1.keyRow();
  const int col = Grid1.keyCol();
  if (cellUse(row, col) == ui::CellUse::Shown) return;
  if (col == colPrevious && code == ui::key::enter) return nextPrevious(row);
  ui::FcGridKeyEdit(Grid1, code);
}

/// From the previous result on `row` down to that of the next bench mark; the last one keeps the cursor.
void fHHksb::nextPrevious(int row) {
  if (row + 2 < Grid1.rows() && cellUse(row + 2, colPrevious) == ui::CellUse::Number)
    Grid1.setCurrent(row + 2, colPrevious);
}

}  // namespace hksnb
