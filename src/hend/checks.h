#pragma once

#include <string_view>

#include "job/grade.h"
#include "route/checks.h"
#include "ui/finding.h"
#include "ui/grid.h"

namespace hend {

/// What operators may set for the checks of the variation correction.
struct CheckBounds {
  /// The daily change (m per day) beyond which a section is worth a look; 1.0E-04 is 37 mm in a year.
  double rate = 1e-4;
};

/// Looks through the variation grid (hend/columns.h) as it stands, with the text of the reference date as it
/// stands in its box. Nothing is calculated and nothing is changed. Found are
///
/// - no reference date, one that is none, one that the grid was not calculated with, one before observations;
/// - texts that are no date, missing dates, dates in reversed order, sections with no days between the
/// epochs,
///   days that differ from their dates;
/// - height differences that are missing, texts that are no number, bench marks without a number or named
///   twice in a route;
/// - two new points in one old section;
/// - entries that no calculation has taken up, results that are not the sum of their row, corrections other
///   than those computed, daily changes beyond the bound, results that no save keeps.
///
/// Returns the findings worst first. Raises nothing on any content of cells. `memory`: of the same grid, what
/// earlier checks have kept.
ui::Findings check(const ui::Grid& grid, std::string_view referenceDate, job::Grade grade,
                   const CheckBounds& bounds = {}, route::CheckMemory* memory = nullptr);

}  // namespace hend
