#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "job/grade.h"
#include "route/checks.h"
#include "route/finding.h"
#include "route/tolerance.h"
#include "ui/grid.h"

namespace tanrosen {

/// What is the matter with the routes in the single-route grid, in the order of ui::sortFindings:
///
/// - known points of the list that the calculation passes over (not in the grid, twice, out of order, on a
/// row
///   that is no point), that have no height, or a first one that is not the first bench mark;
/// - stretches between known points and pairs of runs that do not keep their tolerance, each with its
/// distance
///   and closure error;
/// - corrections and known heights that no calculation has taken up, corrections changed by hand, texts that
///   are no number;
/// - known points that a calculation has left off their known height, and what a second one would make of
///   them; the first bench mark of each route whose correction is not the one that follows from its known
///   points (lineCorrections);
/// - routes of a family that were left out while another was calculated; in categories 1 to 3 a route with an
///   even number of bench marks, whose end is no point of the calculation;
/// - sections without a difference, bench marks without a number or named twice.
///
/// `knownPoints`: bench-mark numbers in the order of the list; `dataKubun`: code of the data category. Raises
/// nothing for any text in the grid. `memory`: of the same grid, what earlier checks have kept.
ui::Findings checks(const ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
                    std::string_view dataKubun, const route::Tolerances& tolerances = {},
                    route::CheckMemory* memory = nullptr);

}  // namespace tanrosen
