#include "ui/grid_look.h"

namespace ui {

void headGrid(Grid& grid, std::span<const ColumnLook> columns, int rows, int fixedCols) {
  grid.setRows(rows);
  grid.setCols(static_cast<int>(columns.size()));
  grid.setFixed(1, fixedCols);
  grid.clearText();
  grid.setCurrent(1, fixedCols);
  for (int col = 0; col < grid.cols(); ++col) {
    const ColumnLook& look = columns[static_cast<std::size_t>(col)];
    grid.setText(0, col, look.header);
    grid.setColWidth(col, look.width);
    grid.setAlign(col, look.align);
    grid.setFixedAlign(col, look.align);
    grid.setContent(col, look.content);
  }
}

float widthOf(std::span<const ColumnLook> columns) {
  int width = 0;
  for (const ColumnLook& look : columns) width += look.width;
  return static_cast<float>(width);
}

}  // namespace ui
