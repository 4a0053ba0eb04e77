#pragma once

#include <string>
#include <vector>

#include "report/document.h"
#include "ui/grid.h"

namespace route {

/// What a grid looks like on paper, and which of its columns tell its rows apart.
struct RouteGrid {
  const ui::Grid& grid;
  std::vector<report::Column> columns;  ///< the visible columns of the grid, from its first one
  int benchMarkCol = 0;                 ///< empty on section rows
  int flagCol = 0;                      ///< route flag
  int routeCol = -1;                    ///< route number of a bench mark, −1 where the grid has none
  std::vector<int> places = {};  ///< the grid columns behind `columns`; empty: the first ones in their order
};

/// The rows of a grid as a table, cell by cell. A bench mark stays with its section, a route end gets a rule.
report::Table gridTable(const RouteGrid& look);

/// The same in parts, one for each route that the grid holds. Each part names its route (that of its rows,
/// else `route`) and its first and last bench mark.
std::vector<report::Part> gridParts(const RouteGrid& look, const std::string& route);

/// The place that a grid cell has in the document's first sheet.
inline report::CellPlace cellPlace(int row, int col) { return {0, row - 1, col}; }

}  // namespace route
