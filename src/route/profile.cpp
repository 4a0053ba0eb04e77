#include "route/profile.h"

#include <utility>

#include "route/selection.h"
#include "text/number.h"
#include "text/padding.h"

namespace route {
namespace {

using Values = std::vector<std::optional<double>>;

std::optional<double> number(const ui::Grid& grid, int row, int col) {
  if (row >= grid.rows() || text::trimmed(grid.text(row, col)).empty()) return std::nullopt;
  return grid.number(row, col);
}

bool isSection(const ui::Grid& grid, int row, int benchMarkCol) {
  return row < grid.rows() && grid.text(row, benchMarkCol).empty();
}

}  // namespace

report::Diagram profileOf(const ui::Grid& grid, const ProfileLook& look) {
  report::Diagram diagram;
  Values heights;
  Values corrections;
  Values sections;
  double sum = 0;
  for (int row = grid.fixedRows(); row < grid.rows(); ++row) {
    if (grid.text(row, look.benchMarkCol).empty()) continue;
    const int section = isSection(grid, row + 1, look.benchMarkCol) ? row + 1 : grid.rows();
    const bool ends = look.endCol >= 0 && grid.text(row, look.endCol) == routeEnd;
    diagram.points.push_back({0, grid.text(row, look.benchMarkCol), "", row, ends});
    heights.push_back(look.sums ? std::optional(sum) : number(grid, row, look.heightCol));
    if (look.sums) sum = ends ? 0 : sum + number(grid, section, look.heightCol).value_or(0);
    corrections.push_back(number(grid, look.correctionOnSection ? section : row, look.correctionCol));
    if (corrections.back()) *corrections.back() *= look.correctionFactor;
    sections.push_back(look.distanceCol < 0
                           ? std::nullopt
                           : number(grid, look.distanceOnSection ? section : row, look.distanceCol));
  }
  if (!sections.empty()) sections.pop_back();
  report::layOut(diagram, sections);
  diagram.axis = look.heightName + "(m)";
  diagram.unit = "m";
  diagram.secondAxis = look.correctionName + "(" + look.correctionUnit + ")";
  diagram.secondUnit = look.correctionUnit;
  diagram.lines.push_back({look.heightName, std::move(heights), look.decimals, false});
  diagram.lines.push_back({look.correctionName, std::move(corrections), 1, true});
  return diagram;
}

}  // namespace route
