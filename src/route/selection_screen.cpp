#include "route/selection_screen.h"

#include "job/names.h"
#include "report/measure.h"
#include "route/giving_up.h"
#include "route/heading.h"
#include "route/safeguards.h"
#include "text/padding.h"
#include "ui/error_trap.h"
#include "ui/grid_helpers.h"

namespace route {

SelectionScreen::SelectionScreen(const Names& names, const Categories& categories,
                                 const job::JobContext& context, ui::Desktop& desktop, float width,
                                 float height)
    : Screen(names.screen, names.caption, desktop, width, height),
      SSTab1("SSTab1", this, names.pages),
      openButton(names.openButton, this, names.openCaption),
      reopenButton(names.reopenButton, this, names.reopenCaption),
      clearItem(names.menuItem + "(0)", this, "クリア(&C)"),
      saveItem(names.menuItem + "(1)", this, "保存(&S)"),
      exitItem(names.menuItem + "(2)", this, "終了(&X)"),
      context_(context),
      menuProcedure_(names.menuItem + "_Click"),
      opened_(lblJigyobango, lblRosenbango, categories.opened),
      observed_(context_, context_.tables.gTblKansokuSeikaData, categories.observed, cmbJIgyoBango1,
                cmbRosenBango1, names.openRule),
      saved_(context_, names.resultTable, categories.saved, cmbJIgyoBango2, cmbRosenBango2),
      category_(categories.opened),
      resultTable_(names.resultTable),
      resultColumn_(names.resultColumn) {
  SSTab1.put(selectionPage, {&cmbJIgyoBango1, &cmbRosenBango1, &openButton, &cmbJIgyoBango2, &cmbRosenBango2,
                             &reopenButton});
  on(cmbJIgyoBango1.onClick, "cmbJIgyoBango1_Click", [this] { observed_.fillRoutes(); });
  on(cmbJIgyoBango2.onClick, "cmbJIgyoBango2_Click", [this] { saved_.fillRoutes(); });
  on(clearItem.onClick, menuProcedure_, [this] {
    if (mayLoseWork()) clear();
  });
  on(saveItem.onClick, menuProcedure_, [this] { save(); });
  exitItem.onClick.handle([this] { leave(); });
}

ui::Situation SelectionScreen::situation() const {
  const std::string project(text::trimmed(lblJigyobango.text()));
  const std::string route(text::trimmed(lblRosenbango.text()));
  return {job::jobName(context_), job::unitNames(context_),
          project.empty() || route.empty() ? project + route : project + " " + route, watch_.notice()};
}

/// Where the operator gives the opening up, what stood there before stands there again.
void SelectionScreen::open(const SelectionSet& set, Reader read) {
  if (!mayLoseWork()) return;
  const ui::Hourglass wait(desktop());
  const auto bringBack = [this, opening = opening_, watched = watch_, known = knowledge()] {
    opening_ = opening;
    watch_ = watched;
    known();
  };
  if (!runUnlessGivenUp(
          *this, "読み込んでいます", [&] { fill(set, read); }, bringBack))
    note(noteOf(set), "中止しました");
}

const char* SelectionScreen::noteOf(const SelectionSet& set) const {
  return &set == &saved_ ? "再読込" : "読込";
}

void SelectionScreen::fill(const SelectionSet& set, Reader read) {
  const Selection selection = set.selection();
  history().restart();
  watch(selection);
  opening_.run([&] {
    opened_.show(selection, set.categoryText());
    setUpGrids();
    return (this->*read)(selection);
  });
  ui::goToFirstEntry(Grid1);
  SSTab1.setCurrent(dataPage());
  note(noteOf(set), opening_.isWhole() ? countText() : "途中で終わりました");
}

std::string SelectionScreen::countText() const {
  int count = 0;
  for (int row = Grid1.fixedRows(); row < Grid1.rows(); ++row)
    if (!Grid1.text(row, 0).empty()) ++count;
  return "水準点 " + std::to_string(count) + " 点";
}

std::string SelectionScreen::categoryText() const { return category_ == nullptr ? "0" : category_->text(); }

Limits SelectionScreen::limits() const { return limitsOf(desktop()); }

report::Document SelectionScreen::document() const {
  report::Document document = contents();
  addPicture(document);
  return document;
}

report::Document SelectionScreen::contents() const {
  const Selection selection = opened_.selection();
  report::Document document = tables(selection.rosenBango);
  document.fields = routeHeading(context_, selection, categoryText());
  return document;
}

report::Figure SelectionScreen::diagram(const report::DiagramWish& wish) const {
  report::Diagram diagram = profile();
  if (wish.equalSteps) report::layOutEqually(diagram);
  const Selection selection = opened_.selection();
  diagram.remarks.push_back("事業番号 " + selection.jigyoBango + "　路線番号 " + selection.rosenBango);
  diagram.remarks.push_back(report::layOutText(diagram));
  return {caption() + "　縦断図", report::draw(diagram, report::fixedPitch)};
}

void SelectionScreen::clear() {
  history().restart();
  setUpGrids();
  Form_Resize();
  opened_.clear();
  opening_.clear();
  watch_.forget();
}

/// What an act of the operator begins is one act, the calculation before the save included.
bool SelectionScreen::save() {
  if (!opened_.isOpen() || !opening_.maySave(desktop())) return false;
  const ui::History::Act act(&history(), ui::act::calculation);
  bool saved = false;
  ui::trapped(&desktop(), menuProcedure_, [&] { saved = replaceSaved(); });
  return saved;
}

bool SelectionScreen::replaceSaved() {
  const ui::Hourglass wait(desktop());
  const Selection selection = opened_.selection();
  const auto found = [this] { return findings(); };
  const auto calculate = [this](const ui::Findings& untaken) { return takeEntries(untaken); };
  if (!maySaveWith(desktop(), found, calculate)) return false;
  if (!watch_.maySave(desktop(), context_.gDbPath, savedParts(selection))) return false;
  if (!saveData(selection)) return false;
  history().markSaved();
  watch(selection);
  note("保存", countText());
  return true;
}

/// Remembers what is saved of the route now.
void SelectionScreen::watch(const Selection& selection) {
  watch_.lookBehind(desktop(), context_.gDbPath, savedParts(selection));
}

std::string SelectionScreen::routeName() const {
  return "路線 " + std::string(text::trimmed(lblRosenbango.text()));
}

bool SelectionScreen::mayLoseWork(int besideTable) {
  if (!opened_.isOpen()) return true;
  return mayLose(desktop(), routeName(), history().unsavedCells() + besideTable, [this] { return save(); });
}

}  // namespace route
