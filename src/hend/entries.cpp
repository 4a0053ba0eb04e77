#include "hend/entries.h"

#include "hend/columns.h"
#include "route/selection.h"

namespace hend {
namespace {

bool isBenchMarkRow(int row) { return row % 2 == 1; }

bool standsInBenchMarkRow(int col) {
  return col == colNewDate || col == colOldDate || col == colDaysNewOld || col == colDaysReference;
}

}  // namespace

bool isEntry(const ui::Grid& grid, int row, int col) {
  const int benchMarkRow = isBenchMarkRow(row) ? row : row - 1;
  if (grid.text(benchMarkRow, colMark) == route::routeEnd) return row == benchMarkRow && col == colRemark;
  return col == colRemark || standsInBenchMarkRow(col) == isBenchMarkRow(row);
}

int nextCorrectionRow(const ui::Grid& grid, int row) {
  for (int next = row + 1; next < grid.rows(); ++next)
    if (isEntry(grid, next, colCorrection)) return next;
  return row;
}

}  // namespace hend
