#include "every_route.h"

#include <numeric>

#include "route/selection_screen.h"
#include "sample/sample.h"

namespace test {
namespace {

std::string jobIn(const TemporaryFolder& folder, int grade) {
  sample::Options options;
  options.folder = folder.path("sample");
  if (grade != 1) options.grade = grade;
  sample::makeSampleJob(options, folder.path());
  return options.folder + "/job.sqlite";
}

void typeIn(ui::Grid& grid, const std::string& text) {
  for (const char c : text) grid.pressKey(static_cast<unsigned char>(c));
}

}  // namespace

std::vector<std::string> visibleCells(const ui::Grid& grid, int row) {
  std::vector<std::string> cells;
  for (int col = 0; col < grid.cols(); ++col)
    if (grid.colWidth(col) > 0) cells.push_back(grid.text(row, col));
  return cells;
}

report::Document savedDocument(const report::SavedResults& saved) {
  std::vector<std::size_t> all(saved.savedRoutes().size());
  std::iota(all.begin(), all.end(), 0);
  return saved.savedDocument(all, {});
}

EveryRoute::EveryRoute(int grade, unsigned seed)
    : program_({jobIn(folder_, grade), folder_.path()}, desktop_), chance_(seed) {
  program_.start();
}

int EveryRoute::visit(const std::function<void(const Shown&)>& look) {
  visitScreen("Command1", "CmdDataOpen", look);
  visitScreen("Command2", "CmdKanSeiDataOpen", look);
  visitScreen("Command4", "CmdHendDataOpen", look);
  visitScreen("Command5", "CmdDataOpen", look);
  visitBook(look);
  return visited_;
}

void EveryRoute::visitScreen(const std::string& button, const std::string& open,
                             const std::function<void(const Shown&)>& look) {
  control<ui::Button>(button).press();
  const int categories = has("LstDataKubun") ? 5 : 1;
  for (int category = 0; category < categories; ++category) {
    if (has("LstDataKubun")) control<ui::ListBox>("LstDataKubun").choose(category);
    if (!has("LstDataKubun")) control<ui::TabControl>("SSTab1").setCurrent(1);
    const int projects = control<ui::ComboBox>("cmbJIgyoBango1").count();
    for (int project = 0; project < projects; ++project) {
      control<ui::ComboBox>("cmbJIgyoBango1").choose(project);
      visitRoutes(open, look);
    }
  }
  if (lookSaved_) visitSaved();
  program_.screen()->unload();
  program_.sweep();
}

void EveryRoute::visitRoutes(const std::string& open, const std::function<void(const Shown&)>& look) {
  const int routes = control<ui::ComboBox>("cmbRosenBango1").count();
  for (int route = 0; route < routes; ++route) {
    control<ui::ComboBox>("cmbRosenBango1").choose(route);
    control<ui::Button>(open).press();
    if (route % 3 == 0) tell(look);
    calculate();
    tell(look);
    if (lookSaved_ || program_.screen()->name() == "fSHsei") save();
  }
}

void EveryRoute::tell(const std::function<void(const Shown&)>& look) {
  const ui::Screen& screen = *program_.screen();
  std::string name = screen.name();
  if (has("lblRosenbango")) name += " " + control<ui::Label>("lblRosenbango").text();
  look({dynamic_cast<const report::Source&>(screen), control<ui::Grid>("Grid1"), name});
  ++visited_;
}

void EveryRoute::calculate() {
  const std::string name = program_.screen()->name();
  if (name == "fSHsei") typeCorrections();
  if (name == "fDHsei") computeSections();
  if (name == "fTHsei") control<ui::Button>("cmdCalc").press();
  if (name != "fHHsei") return;
  control<ui::TextBox>("txtKijunbi").edit("2022/08/" + std::to_string(random(10, 28)));
  control<ui::Button>("CmdSettei").press();
}

void EveryRoute::typeCorrections() {
  ui::Grid& grid = control<ui::Grid>("Grid1");
  for (int row = 1; row < grid.rows(); ++row) {
    if (!grid.clickable(row, 2) || grid.cellUse(row, 2) != ui::CellUse::Number) continue;
    grid.click(row, 2);
    typeIn(grid, std::to_string(random(-30, 30)) + (random(0, 2) == 0 ? ".5" : ""));
    grid.pressKey(ui::key::enter);
  }
}

/// Two or three sections that join, from the first bench mark to the last.
void EveryRoute::computeSections() {
  auto& starts = control<ui::ListBox>("LstHyousekiNo1");
  auto& ends = control<ui::ListBox>("LstHyousekiNo2");
  const int last = starts.count() - 1;
  int minutes = random(20, 50);
  for (int from = 0; from < last;) {
    const int to = std::min(last, from + random(1, 1 + last / 2));
    starts.choose(from);
    ends.choose(to);
    control<ui::TextBox>("txtStartIdo").edit("36");
    control<ui::TextBox>("txtStartFun").edit(std::to_string(minutes));
    minutes -= random(-1, 4);
    control<ui::TextBox>("txtEndIdo").edit("36");
    control<ui::TextBox>("txtEndFun").edit(std::to_string(minutes) + ".5");
    control<ui::Button>("CmdDaenCal").press();
    from = to;
  }
}

void EveryRoute::save() { dynamic_cast<route::SelectionScreen&>(*program_.screen()).saveItem.press(); }

void EveryRoute::visitSaved() {
  const int categories = has("LstDataKubun1") ? 5 : 1;
  for (int category = 0; category < categories; ++category) {
    if (has("LstDataKubun1")) control<ui::ListBox>("LstDataKubun1").choose(category);
    auto& projects = control<ui::ComboBox>("cmbJIgyoBango2");
    for (int project = 0; project < projects.count(); ++project) {
      projects.choose(project);
      const auto& saved = dynamic_cast<const report::SavedResults&>(*program_.screen());
      if (!saved.savedRoutes().empty()) lookSaved_(saved);
    }
  }
}

void EveryRoute::visitBook(const std::function<void(const Shown&)>& look) {
  control<ui::Button>("Command6").press();
  auto& offered = control<ui::ListBox>("LstRosenNo1");
  while (offered.count() > 0) {
    offered.choose(0);
    control<ui::Button>("CmdExeC3").press();
    control<ui::Button>("CmdExeC2").press();
    ui::Grid& grid = control<ui::Grid>("Grid1");
    for (int row = 1; row < grid.rows(); row += 2) {
      if (grid.cellUse(row, 9) != ui::CellUse::Number || random(0, 5) == 0) continue;
      grid.click(row, 9);
      typeIn(grid, std::to_string(random(0, 700)) + "." + std::to_string(random(1000, 9999)));
    }
    control<ui::Button>("CmdHendryocal").press();
    tell(look);
    control<ui::TabControl>("SSTab1").setCurrent(0);
    auto& chosen = control<ui::ListBox>("LstRosenNo2");
    if (random(0, 2) == 0) continue;  // the next book holds this route too
    while (chosen.count() > 0) {
      const int before = offered.count();
      chosen.choose(0);
      control<ui::Button>("CmdExeC4").press();
      offered.removeItem(before);
    }
  }
  program_.screen()->unload();
  program_.sweep();
}

}  // namespace test
