#pragma once

#include <string>
#include <vector>

#include "report/formula.h"
#include "tanrosen/tables.h"
#include "ui/grid.h"

namespace tanrosen {

/// A segment between two known points, as the distribution of closure errors takes it.
struct Segment {
  int known = 0;     ///< grid row of the known point at its end
  std::string from;  ///< the known point before it, or the first bench mark
  std::string to;
  double distance = 0;  ///< S, as the distances stand in the grid (km)
  double closure = 0;   ///< known less observed height at its end, less the same at its beginning (m)
};

/// What a grid of closed segments shows: the segments, and how its corrections and heights come about.
///
/// The closure error at a known point is taken as its row shows it: the known height it comes from gives way
/// to the corrected one. Where a known point is not found, only what lies before is reckoned.
struct Closures {
  std::vector<Segment> segments;
  report::Check check;
};

Closures closuresOf(const ui::Grid& grid, const TableInput& input);

}  // namespace tanrosen
