#pragma once

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "route/tolerance.h"
#include "tanrosen/levelling_line.h"
#include "ui/grid.h"

namespace tanrosen {

/// A stretch of a route between two known points and how it closes.
struct ClosureSegment {
  int fromRow = 0;        ///< bench-mark row of the upper known point
  int toRow = 0;          ///< of the lower one
  std::string from;       ///< its bench-mark number
  std::string to;         ///< that of the lower one
  bool loop = false;      ///< both are the same bench mark
  double kilometres = 0;  ///< distance S
  double closure = 0;     ///< known difference in height − observed one, mm
  double allowed = 0;     ///< tolerance, mm

  /// False where there is no distance to measure the closure error by.
  bool measured() const { return kilometres > 0; }
  bool kept() const { return !measured() || std::abs(closure) <= allowed + 1e-6; }
};

/// The stretches between the known points of every route in the grid, downwards: the closure table that
/// stands under a calculation. `knownPoints`: bench-mark numbers; `dataKubun`: code of the data category.
/// Raises Overflow where a number is too large for a double.
std::vector<ClosureSegment> closureTable(const ui::Grid& grid, const std::vector<std::string>& knownPoints,
                                         job::Grade grade, std::string_view dataKubun,
                                         const route::Tolerances& tolerances);

/// The stretches of one route.
std::vector<ClosureSegment> segmentsOf(const ui::Grid& grid, const LevellingLine& line,
                                       const route::Tolerance& tolerance);

}  // namespace tanrosen
