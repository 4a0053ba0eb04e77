#pragma once

#include <functional>

#include "job/grade.h"
#include "ui/grid.h"

namespace seihyou {

/// Gets the row of a bench mark with its height, or of a section with its corrected difference (m).
using TakeReckoned = std::function<void(int row, double metres)>;

/// Reckons the route of the orthometric grid that begins on row `start` (its first bench mark) and hands what
/// comes out to `take`, downwards. Nothing is written.
///
/// Each section's difference is its mean difference plus its correction, and heights are the running sum from
/// the height that stands at the first bench mark. Where a bench mark is observed a second time ("-2"), the
/// mean of both heights, rounded to 0.1 mm with halves upwards, is the height of the bench mark that follows,
/// and the heights behind it follow from that. The second run of a pair begins at the height at which the
/// first one began; where it begins elsewhere, the heights shown tell how far apart the two are.
///
/// This is the least-squares solution of a line whose sections are observed once or, with equal weights,
/// twice (Ghilani: Adjustment Computations, adjustment of levelling nets).
///
/// Returns the row below the route. Raises Overflow where a height is no number any more.
int reckonThroughMeans(const ui::Grid& grid, int start, job::Grade grade, const TakeReckoned& take);

/// The command 繰り返し点の平均を通して計算: writes what reckonThroughMeans gives into column 3 of the route
/// that holds `row`, as FcCalcSeihyou writes it, in the grade's height pattern (m).
void calcThroughMeans(ui::Grid& grid, int row, job::Grade grade);

/// The same for every route in the grid.
void calcThroughMeans(ui::Grid& grid, job::Grade grade);

}  // namespace seihyou
