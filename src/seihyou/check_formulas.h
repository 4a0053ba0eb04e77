#pragma once

#include "job/grade.h"
#include "report/formula.h"
#include "ui/grid.h"

namespace seihyou {

/// Reckons the corrected differences and heights of the grid again, as the calculation does from the observed
/// and typed values. Where the sections of a route have no corrected difference yet (it was loaded and not
/// computed), its heights are reckoned from the mean differences, up to its first repeated bench mark.
///
/// A height behind a pair of repeated bench marks that shows their mean is reckoned as the mean; the end of a
/// reopened route, which is not saved, as reopening reckons it.
report::Check checkFormulas(const ui::Grid& grid, job::Grade grade);

}  // namespace seihyou
