#include "tanrosen/distribution.h"

#include "route/runs.h"
#include "route/selection.h"
#include "tanrosen/calculation.h"
#include "tanrosen/closure_formula.h"
#include "tanrosen/columns.h"
#include "text/number.h"

namespace tanrosen {

Distribution::Distribution(ui::Grid& grid, job::Grade grade, Points points,
                           const std::vector<std::string>& knownPoints)
    : grid_(grid),
      grade_(grade),
      points_(points),
      search_(grid, points, knownPoints),
      distances_(grid.rows(), stride(points),
                 [&grid, points](int row) { return sectionDistance(grid, row, points); }) {}

void Distribution::knownPoint(const std::string& name) {
  if (points_ == Points::Every && isReturn(name)) {
    leaveAgain(name);
    return;
  }
  if (points_ == Points::Every && name.ends_with(route::forwardRun)) reached_ = name;
  if (const int row = walkTo(name); row > 0) close(row);
}

bool Distribution::isReturn(const std::string& name) const { return route::samePoint(reached_, name); }

int Distribution::below(int row) const { return text::toInt16(row + stride(points_)); }

/// Adds the distances up to the known point and returns its row; 0 where it does not stand below.
int Distribution::walkTo(const std::string& name) {
  const int found = search_.find(name, start_);
  if (found == 0) {
    total_ += distances_.toTheEnd(start_);
    return 0;
  }
  for (int row = start_; row < found; row = below(row)) total_ += distances_.of(row);
  return found;
}

/// Closes the segment at the known point on `known` and begins the next one.
void Distribution::close(int known) {
  const double closure = closureError(grid_.number(known, colResult), grid_.number(known, colHeight), grade_);
  if (known > 1) distribute(known, closure - closure_);
  closure_ = closure;
  grid_.setText(known, colCorrection, text::numberText(wholeUnits(closure, grade_)));
  total_ = distances_.of(known);
  start_ = below(known);
}

/// Above the first bench mark stands no distance (Subscript).
void Distribution::distribute(int known, double change) {
  double behind = 0;
  for (int row = start_; row <= known; row = below(row)) {
    behind += distances_.of(row - 2);
    if (!isCorrected(row)) continue;
    const double units = shareInUnits(change, behind, total_, grade_);
    grid_.setText(row, colCorrection, text::numberText(units));
    writeCorrectedHeight(grid_, row, units, grade_);
  }
}

bool Distribution::isCorrected(int row) const {
  return points_ != Points::Every ||
         (!grid_.text(row, colBenchMark).empty() && grid_.text(row, colFlag) != route::repeatedPoint);
}

/// The backward run from a known point: its correction is that of the forward run, and the next segment
/// begins there. Distances count from here; the closure error before stays that of the forward run. The
/// bench mark that follows two rows below is the segment's first, as behind every known point.
void Distribution::leaveAgain(const std::string& name) {
  const int row = search_.find(name, start_);
  if (row == 0) return;
  grid_.setText(row, colCorrection, grid_.text(row - runApart, colCorrection));
  reached_.clear();
  total_ = distances_.of(row);
  start_ = below(row);
}

}  // namespace tanrosen
