#include <algorithm>

#include "hend/calculation.h"
#include "hend/columns.h"
#include "hend/data.h"
#include "hend/screen.h"
#include "ui/error_trap.h"

// What the screen does with safeguards where it would end or lose what was typed.

namespace hend {

/// Without safeguards an error passes and ends the program.
void fHHsei::guarded(const std::string& procedure, const std::function<void()>& act) {
  if (!desktop().safeguards()) return act();
  trouble_.reset();
  ui::trapped(&desktop(), procedure, act);
  tellTrouble(procedure);
}

/// Leads to the cell, or to the page of the reference date.
void fHHsei::tellTrouble(const std::string& procedure) {
  if (!trouble_) return;
  const auto [row, col] = trouble_->place;
  SSTab1.setCurrent(dataPage());
  if (row > 0) Grid1.setCurrent(row, col);
  desktop().message({procedure, trouble_->text + "\n" + trouble_->wayOut, ui::Icon::Critical});
}

/// The cell that a date cannot be read from, or else the first one that is found to be wrong: an error of
/// numbers names none.
fHHsei::Trouble fHHsei::troubleOf(const text::RuntimeError& error) const {
  Trouble trouble{error.what(), "直してから「設定」を押してください。", {1, colBenchMark}};
  if (const auto* wrong = dynamic_cast<const WrongDate*>(&error)) {
    trouble.place = wrong->place();
  } else {
    const ui::Findings found = findings();
    const auto cell =
        std::find_if(found.begin(), found.end(), [](const ui::Finding& finding) { return finding.row > 0; });
    if (cell != found.end()) trouble.text += cell->text;
    if (cell != found.end()) trouble.place = {cell->row, cell->col};
  }
  const bool typed = trouble.place.row == 0 || cellUse(trouble.place.col) != ui::CellUse::Shown;
  if (!typed) trouble.wayOut = "観測成果を直してから、もう一度読み込んでください。";
  return trouble;
}

/// A reference date that is none is told before the route in the grid is given up.
void fHHsei::openChosen() {
  if (!desktop().safeguards() || txtKijunbi.looksValid()) return openObserved();
  trouble_ = {"基準日「" + txtKijunbi.text() + "」は日付ではありません。",
              "直してから、もう一度読み込んでください。",
              {}};
}

/// An error of numbers does not say whose record it met: the last bench mark in the grid is it.
bool fHHsei::readObservations(const route::Selection& selection) {
  try {
    return FcHendDBOpen(selection, context_, Grid1);
  } catch (const text::RuntimeError& error) {
    if (!desktop().safeguards() || error.code() == text::ErrorCode::Database) throw;
    int row = Grid1.rows() - 1;
    while (row > 1 && Grid1.text(row, colBenchMark).empty()) --row;
    throw text::RuntimeError(
        error.code(), "水準点 " + Grid1.text(row, colBenchMark) + " の観測成果を読めません。" + error.what());
  }
}

void fHHsei::calculate() {
  try {
    FcHendCalc(Grid1, txtKijunbi.text(), context_.grade());
    carriedTo_ = txtKijunbi.text();
  } catch (const text::RuntimeError& error) {
    if (!desktop().safeguards()) throw;
    history().takeBackAct();
    trouble_ = troubleOf(error);
  }
}

/// A correction waits for its own sum, anything else for the whole calculation. Corrections that were typed
/// stand, whatever that gives.
bool fHHsei::takeEntries(const ui::Findings& untaken) {
  const bool sumsAlone = std::all_of(untaken.begin(), untaken.end(),
                                     [](const ui::Finding& finding) { return finding.col == colResult; });
  const auto typed = typedCorrections();
  if (!sumsAlone) {
    trouble_.reset();
    calculateAgain();
    tellTrouble(menuProcedure_);
    if (trouble_) return false;
  }
  for (const auto& [row, correction] : typed) {
    Grid1.setText(row, colCorrection, correction);
    FcHendCalcResult(Grid1, row, context_.grade());
  }
  return true;
}

/// Corrections that are not the computed ones, and those without their sum: row and text.
std::vector<std::pair<int, std::string>> fHHsei::typedCorrections() const {
  std::vector<std::pair<int, std::string>> typed;
  for (const ui::Finding& finding : findings()) {
    const bool byHand = finding.col == colCorrection && finding.mark == ui::CellMark::ByHand;
    if (byHand || (finding.col == colResult && finding.mark == ui::CellMark::NotTaken))
      typed.emplace_back(finding.row, Grid1.text(finding.row, colCorrection));
  }
  return typed;
}

}  // namespace hend
