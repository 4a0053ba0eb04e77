#pragma once

#include "job/grade.h"
#include "route/checks.h"
#include "route/finding.h"
#include "route/tolerance.h"
#include "ui/grid.h"

namespace seihyou {

/// What the checks of an orthometric route go by; operators may set all of it.
struct CheckLimits {
  double correction = 30;  ///< a larger correction of a section (mm) is worth a look
  /// Length of a section (km) where an end height is held against its tolerance: the grid knows no distances,
  /// and bench marks of the national net stand about 2 km apart.
  double sectionKilometres = 2;
  route::Tolerances tolerances;
};

/// What is the matter with the routes in the grid, in the order of ui::sortFindings:
///
/// - corrections that no calculation has taken up, or that are no number;
/// - sections without a difference, bench marks without a number or named twice, a route without a start
///   height;
/// - the mean of a repeated pair that the calculation has written over;
/// - the first bench mark whose height is not the one that follows with the means of pairs carried on
///   (reckonThroughMeans). A route that no calculation has touched yet shows sums of differences with more
///   decimals than the cells; half a unit for each section is granted to it;
/// - an end height that differs from the known one by more than the tolerance;
/// - corrections beyond the limit.
///
/// Raises nothing for any text in the grid.
/// `memory`: of the same grid, what earlier checks have kept.
ui::Findings checks(const ui::Grid& grid, job::Grade grade, const CheckLimits& limits = {},
                    route::CheckMemory* memory = nullptr);

}  // namespace seihyou
