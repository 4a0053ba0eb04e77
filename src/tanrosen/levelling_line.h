#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "job/grade.h"
#include "tanrosen/section_distances.h"
#include "ui/grid.h"

namespace tanrosen {

/// A point of a levelling line.
struct LinePoint {
  int row = 0;          ///< bench-mark row
  double distance = 0;  ///< of the section to the next point, as the database holds it
  double observed = 0;  ///< m
  bool fixed = false;   ///< a known point with a known height
  double closure = 0;  ///< at a fixed point: known height − observed height, m in the decimals of the grade
  bool shifted =
      false;  ///< at a fixed point: the cell shows no longer the known height, see closureAtKnownPoint
};

/// One route of the grid, from its first bench mark to its end.
struct LevellingLine {
  std::vector<LinePoint> points;
  int firstRow = 0;    ///< row of the first bench mark
  int lastRow = 0;     ///< row of the last bench mark
  int benchMarks = 0;  ///< rows with or without a number, points or not

  /// Fixed points of the line, as indices of `points`, downwards.
  std::vector<std::size_t> fixedPoints() const;
};

/// The routes that stand in the grid one below the other, each with its points: in every route every bench
/// mark with a number, or every second one from the first on; repeated ones ("-2") are none. A point is fixed
/// where its number is in `knownPoints`, in whatever order, and column 4 holds a height. A section whose runs
/// are recorded apart counts once. Raises Overflow where a number is too large for a double.
std::vector<LevellingLine> levellingLines(const ui::Grid& grid, const std::vector<std::string>& knownPoints,
                                          job::Grade grade, Points points);

/// The corrections of a line, m, for each of its points: linear in distance between two fixed points, so that
/// each of these comes out at its known height; as at the nearest fixed point above the first and below the
/// last one, and between two fixed points without any distance as at the upper one. This is the least-squares
/// solution of the line with its fixed points and weights 1 / distance (作業規程の準則, 第70条). None where
/// no point is fixed.
std::vector<double> lineCorrections(const LevellingLine& line);

/// The command 既知点ごとに閉合させて計算: writes the corrections of every route that has a fixed point into
/// column 3, rounded half away from zero to units of the grade, and the corrected heights into column 4 as
/// FcCalcTanrosen does; a fixed point gets its whole closure error and its known height. Routes without a
/// fixed point stay as they are. Calculating again changes nothing.
///
/// `knownPoints`: bench-mark numbers; `dataKubun`: code of the data category.
void calcOnKnownHeights(ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
                        std::string_view dataKubun);

}  // namespace tanrosen
