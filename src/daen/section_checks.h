#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "job/grade.h"
#include "ui/finding.h"
#include "ui/grid.h"

namespace daen {

/// What is the matter with a latitude given as texts of degrees and minutes, in Japanese and without a full
/// stop ("分が空です"); "" for a sound one: both there, minutes below 60, 20° to 46° north.
std::string latitudeProblem(std::string_view degrees, std::string_view minutes);

/// Looks through the computed sections: their latitudes, whether they follow each other along the route, and
/// whether the route grid shows what they add up to.
class SectionChecks {
 public:
  /// All of them outlive this object.
  SectionChecks(const ui::Grid& Grid1, const ui::Grid& Grid2, job::Grade grade, ui::Findings& findings);

  void run();

 private:
  /// Rows of a section's ends in the route grid, 0 where the route has no such bench mark.
  struct Ends {
    int start = 0;
    int end = 0;
  };

  const std::string& cell(int row, int col) const { return Grid2_.text(row, col); }
  std::string name(int row) const;
  Ends endsOf(int row) const;
  void findRows();
  void section(int row);
  void latitude(int row, int col, int routeRow);
  bool inAnotherPlace(int row, const Ends& ends);
  bool backward(int row, const Ends& ends);
  void sum(int row, const Ends& ends);
  void withoutSection();
  std::vector<bool> covered() const;
  void add(ui::Severity severity, int row, std::string text, std::string wayOut);

  const ui::Grid& Grid1_;
  const ui::Grid& Grid2_;
  job::Grade grade_;
  ui::Findings& findings_;
  std::unordered_map<std::string_view, int> rows_;  // of the sections' ends in the route grid
};

}  // namespace daen
