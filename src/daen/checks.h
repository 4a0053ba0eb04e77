#pragma once

#include <string>

#include "daen/calculation.h"
#include "job/grade.h"
#include "route/checks.h"
#include "ui/finding.h"
#include "ui/grid.h"

namespace daen {

/// What stands beside the grids on the screen of the ellipsoidal correction.
struct CheckConditions {
  Section section;            ///< chosen bench marks, latitudes and reference, as in labels and boxes
  std::string referenceItem;  ///< chosen item of the reference list; "" for none
};

/// Looks through the route grid and the section grid (daen/columns.h) as they stand. Nothing is calculated
/// and nothing is changed. Found are
///
/// - sections that do not join, that were computed in another order than the route, that run backwards, whose
///   sum is another than the correction at their end; latitudes with a blank degree or minute, with minutes
///   of 60 and more, or outside 20° to 46° north;
/// - bench marks left without a correction, corrections that belong to no section, missing heights and
///   distances, bench marks without a number or named twice in a route;
/// - a reference value of another bench mark, of another route, or other than the one computed with;
/// - a section whose latitudes are typed and not computed;
/// - a family of routes of which a save keeps the first one alone.
///
/// A finding about a section belongs to its start or end in the route grid. Returns the findings worst first.
/// Raises nothing on any content of cells. `memory`: of the same route grid, what earlier checks have kept.
ui::Findings check(const ui::Grid& Grid1, const ui::Grid& Grid2, const CheckConditions& conditions,
                   job::Grade grade, route::CheckMemory* memory = nullptr);

}  // namespace daen
