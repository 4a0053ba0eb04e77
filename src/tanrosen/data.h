#pragma once

#include "job/context.h"
#include "route/selection.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace tanrosen {

/// The two lists beside the grid. Both keep the order of the route when they are filled.
struct BenchMarkLists {
  ui::ListBox& lstSuijyun;  ///< every bench mark of the route
  ui::ListBox& lstKiti;     ///< the known points

  void clear() const {
    lstSuijyun.clear();
    lstKiti.clear();
  }
};

// The three database procedures of the single-route correction. Each opens the job database itself, closes it
// before it returns, and traps its errors under its own name on the grid's desktop, leaving grid and lists as
// far as they were built. The grid has been set up before: one header row, one empty row, the columns of
// tanrosen/columns.h.

/// Builds the grid from the observation results of a selection (table KansokuSeikaData, in SaveOrder): column
/// 2 shows the heights that follow from the route's start height and the mean differences, known points
/// included, so that a closure error shows. A bench mark with a height of its own (not 0) is a known point:
/// that height stands in column 4. Of two repeated bench marks the mean height, rounded to the grade's unit,
/// stands at the bench mark that follows them. Empties both lists first, then fills them. Returns true where
/// no error was reported.
bool FcDBOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid,
              const BenchMarkLists& lists);

/// Builds the grid from saved results (table KansokuSeikaDataTanrosen) with the observed heights as they were
/// saved. Known points are those that have a height in the observation results of today; where no corrected
/// height was saved for one, column 4 shows that height. Empties both lists first, then fills them. Returns
/// true where no error was reported.
bool FcDBReOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid,
                const BenchMarkLists& lists);

/// Replaces the saved records of the selection by the grid's bench marks, SaveOrder 1, 2, 3 … Records without
/// a category are never touched. Returns true when all is safe on disk.
bool FcDbSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& grid);

}  // namespace tanrosen
