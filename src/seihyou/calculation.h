#pragma once

#include <vector>

#include "job/grade.h"
#include "ui/grid.h"

namespace seihyou {

/// Recalculates one route of the orthometric grid: the route that follows the nearest route end at or above
/// `row`, up to its own end. Each section's difference becomes its mean difference plus its correction, and
/// the corrected heights are the running sum of these from the height that stands at the route's first bench
/// mark. Only column 3 is written, in the grade's height pattern (m).
///
/// At the first of two repeated bench marks ("-2") the sum starts again from the height shown at the point
/// before; the mean of the first two repeated heights of a call is written two rows below the second, where
/// the walk may write over it. A section behind a repeated bench mark is not recomputed: the corrected
/// difference before it is used again.
///
/// Raises Overflow where the row counter passes 16 bits or a height is no number any more, Subscript where a
/// bench mark that does not end the route has no section row.
void FcCalcSeihyou(ui::Grid& grid, int row, job::Grade grade);

/// The row of the first bench mark behind the nearest route end at or above `row`; 1 where there is none.
int routeStart(const ui::Grid& grid, int row);

/// The same for the routes of all these rows, which ascend, each route once: what FcCalcSeihyou for one row
/// after another comes to.
void calculateRoutes(ui::Grid& grid, const std::vector<int>& rows, job::Grade grade);

/// True for a cell that takes a correction: column 2 of a section row that leads to a further bench mark and
/// does not follow a repeated one.
bool isCorrectionCell(const ui::Grid& grid, int row, int col);

/// True for the cell of the start height: column 3 of the first bench mark. It takes keys, yet no key leads
/// there: whoever goes from entry to entry never adds a digit to it unawares.
bool isStartHeightCell(int row, int col);

/// The section row with the next correction of the same route below `row`; `row` itself where it holds the
/// last one.
int nextCorrectionRow(const ui::Grid& grid, int row);

}  // namespace seihyou
