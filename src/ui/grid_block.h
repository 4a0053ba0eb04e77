#pragma once

#include <string>
#include <string_view>

#include "ui/grid.h"

namespace ui {

// What the operator does to a block of cells. Each is one act: the entries are filled or emptied, then what
// Enter would do in each of them is done once (Grid::onBlock), and one step back takes all of it back. None
// does anything to a grid that is not enabled.

/// What became of the cells that a block act was about.
struct BlockCount {
  int taken = 0;       ///< entries that were filled or emptied
  int passedOver = 0;  ///< cells that are no entries, or lie outside the grid

  bool operator==(const BlockCount&) const = default;
};

/// The selected cells of visible columns as text: a line for each row, a tab between the cells of a row, with
/// the headings as first lines where they are selected. Tabs and line breaks within a cell become blanks. A
/// last line that is empty is ended by a line break, so that it counts as a line.
std::string copiedText(const Grid& grid);

/// Pastes a text of rows (line breaks) and columns (tabs) with its first cell at the top left cell of the
/// selection, or at the key cell where a click has highlighted its row and the text is no such row. Only
/// entries take their cell; a blank one empties them.
///
/// A row of the text goes to a row of the grid. The one exception is a single column of values that stand
/// without gaps, as a list of corrections in a spreadsheet: where a value would fall on a cell that is no
/// entry and shows something else, the values go to the column's entries one after another.
///
/// A line break at the end of the text ends its last line. The cells that the text covers become the
/// selection.
BlockCount paste(Grid& grid, std::string_view text);

/// Empties the entries of the selection.
BlockCount emptyBlock(Grid& grid);

/// Fills the entries of the selection with the topmost entry of their column in it; where only one row is
/// selected, with the next entry above.
BlockCount fillDown(Grid& grid);

/// Takes the last act on the grids of the screen back, or does it again. The act's name, empty for none.
std::string undo(Grid& grid);
std::string redo(Grid& grid);

}  // namespace ui
