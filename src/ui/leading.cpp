#include "ui/leading.h"

#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace ui {
namespace {

/// The column in which a row can be clicked, `col` where that is one; −1 for none.
int columnToGoTo(const Grid& grid, int row, int col) {
  if (col >= 0 && col < grid.cols() && grid.clickable(row, col)) return col;
  for (int other = 0; other < grid.cols(); ++other)
    if (grid.clickable(row, other)) return other;
  return -1;
}

}  // namespace

Grid* checkedGrid(const Screen& screen) {
  for (Control* control : screen.controls())
    if (auto* grid = dynamic_cast<Grid*>(control)) return grid;
  return nullptr;
}

void leadTo(const Screen& screen, const Finding& finding) {
  Grid* grid = checkedGrid(screen);
  if (grid == nullptr) return;
  if (grid->tab() != nullptr) grid->tab()->setCurrent(grid->page());
  if (finding.row < grid->fixedRows() || finding.row >= grid->rows()) return;
  const int col = columnToGoTo(*grid, finding.row, finding.col);
  if (col >= 0) grid->moveTo(finding.row, col);
}

}  // namespace ui
