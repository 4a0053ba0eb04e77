#pragma once

#include <functional>
#include <random>
#include <string>
#include <utility>

#include "report/saved_results.h"
#include "report/source.h"
#include "shell/program.h"
#include "support/recording_desktop.h"
#include "support/temporary_folder.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace test {

/// A sample job, and a hand that opens one route after another on every screen and calculates it with random
/// entries.
class EveryRoute {
 public:
  /// `grade`: of the executed job, 1 or 2. The same seed makes the same entries.
  EveryRoute(int grade, unsigned seed);

  /// What is shown: the screen with its grid, and which route of which screen it is.
  struct Shown {
    const report::Source& source;
    const ui::Grid& grid;
    std::string name;
  };

  /// Calls `look` for each route of each screen, calculated, and for some only loaded. Returns how many
  /// there were.
  int visit(const std::function<void(const Shown&)>& look);

  /// Lets every screen save what it calculates, and `visit` call `look` for the saved routes of each category
  /// and project of a screen, all of them chosen.
  void alsoSaved(std::function<void(const report::SavedResults&)> look) { lookSaved_ = std::move(look); }

 private:
  void visitScreen(const std::string& button, const std::string& open,
                   const std::function<void(const Shown&)>& look);
  void visitRoutes(const std::string& open, const std::function<void(const Shown&)>& look);
  void visitBook(const std::function<void(const Shown&)>& look);
  void tell(const std::function<void(const Shown&)>& look);
  void calculate();
  void typeCorrections();
  void computeSections();
  void save();
  void visitSaved();

  template <class Kind>
  Kind& control(const std::string& name) {
    return dynamic_cast<Kind&>(*program_.screen()->find(name));
  }
  bool has(const std::string& name) const { return program_.screen()->find(name) != nullptr; }
  int random(int low, int high) { return std::uniform_int_distribution(low, high)(chance_); }

  TemporaryFolder folder_;
  RecordingDesktop desktop_;
  shell::Program program_;
  std::mt19937 chance_;
  int visited_ = 0;
  std::function<void(const report::SavedResults&)> lookSaved_;
};

/// All saved routes in one document.
report::Document savedDocument(const report::SavedResults& saved);

/// The texts of a grid row's visible columns.
std::vector<std::string> visibleCells(const ui::Grid& grid, int row);

}  // namespace test
