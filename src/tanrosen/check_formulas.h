#pragma once

#include <string>
#include <vector>

#include "report/formula.h"
#include "tanrosen/tables.h"
#include "ui/grid.h"

namespace tanrosen {

/// Reckons the observed heights, corrections and corrected heights of the grid again.
///
/// The closure error at a known point is taken as its row shows it: the known height it comes from gives way
/// to the corrected one. Where a known point is not found, only what lies before is reckoned.
report::Check checkFormulas(const ui::Grid& grid, const TableInput& input);

}  // namespace tanrosen
