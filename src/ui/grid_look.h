#pragma once

#include <span>
#include <string_view>

#include "ui/grid.h"

namespace ui {

/// A column as its screen sets it up.
struct ColumnLook {
  std::string_view header;
  int width = 0;              ///< twips; 0 hides the column
  Align align = Align::Left;  ///< of the cells and of the header over them
  Content content = Content::Anything;
};

/// Empties a grid to `rows` rows, the first of them the header, gives it these columns and makes its first
/// cell below the header current. `fixedCols` columns at the left are no place to click.
void headGrid(Grid& grid, std::span<const ColumnLook> columns, int rows = 2, int fixedCols = 0);

/// The width (twips) that shows all these columns at once.
float widthOf(std::span<const ColumnLook> columns);

}  // namespace ui
