#pragma once

#include "ui/grid.h"

namespace hend {

/// True for a cell that the operator is led to while a route is worked (hend/columns.h), as far as it takes
/// keys: dates and days on bench-mark rows, height differences, rates and corrections on section rows,
/// remarks on both, and at a route end its remark alone. Every value stands in one of the two rows of its
/// bench mark; the cell of its column in the other row is none.
bool isEntry(const ui::Grid& grid, int row, int col);

/// The row with the next section's correction below `row`; `row` itself where there is none.
int nextCorrectionRow(const ui::Grid& grid, int row);

}  // namespace hend
