#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "job/grade.h"
#include "ui/grid.h"

namespace tanrosen {

/// Distributes the closure errors of a route over its bench marks in proportion to distance.
///
/// At each known point the closure error is known height (column 4, m) minus observed height (column 2, m).
/// Its change since the known point before is spread over the bench marks in between, each taking the share
/// of the distance it lies behind that point; every share is rounded half away from zero to whole correction
/// units (mm; 0.1 mm in first grade). Column 3 gets the correction, column 4 the corrected height in the
/// grade's pattern; at the known point column 3 gets its whole closure error, cut off to units.
///
/// `knownPoints`: bench-mark numbers in route order; the first must be the first bench mark of the route. One
/// that is not found behind the point before is passed over, but the distances looked through stay in the
/// next total. `dataKubun`: code of the data category. In "0" and "4" every bench mark is a point of the
/// calculation; those without a number and repeated ones ("-2") get no correction, and a point may come twice
/// as "…F" and "…B" (see docs/closure.md). In the other categories every second bench mark is a point.
///
/// With two known points, the first with its observed height at the known one, this is the least-squares
/// adjustment with weights 1 / distance. A total distance of 0 gives corrections of 0.
///
/// Its time grows with the number of bench marks, whatever the number and order of the known points. Raises
/// Subscript where the first known point is not the first bench mark, Overflow where a row counter passes 16
/// bits or a height is no number any more.
void FcCalcTanrosen(ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
                    std::string_view dataKubun);

/// Writes the corrected height of the bench mark on `row` that a correction of `units` leads to.
void writeCorrectedHeight(ui::Grid& grid, int row, double units, job::Grade grade);

/// Makes the corrected height of the bench mark on `row` anew from its correction: observed height (m) +
/// correction / units in a metre. A blank correction counts as 0.
void heightFromCorrection(ui::Grid& grid, int row, job::Grade grade);

/// True for a cell that takes a correction: column 3 of a bench mark.
bool isCorrectionCell(const ui::Grid& grid, int row, int col);

/// True for a cell that takes a known height: column 4 of a bench mark in `knownPoints`.
bool isKnownHeightCell(const ui::Grid& grid, int row, int col, const std::vector<std::string>& knownPoints);

/// True for a cell that takes a remark: column 5, but for the empty row below a route end, which is not
/// saved.
bool isRemarkCell(const ui::Grid& grid, int row, int col);

/// The row with the next correction of the same route below `row`; `row` itself where it holds the last one.
int nextCorrectionRow(const ui::Grid& grid, int row);

}  // namespace tanrosen
