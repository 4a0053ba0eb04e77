#pragma once

#include "job/context.h"
#include "route/selection.h"
#include "ui/grid.h"

namespace seihyou {

// The three database procedures of the orthometric correction. Each opens the job database itself, closes it
// before it returns, and traps its errors under its own name on the grid's desktop, leaving the grid as far
// as it was built. The grid has been set up before: one header row, one empty row, the columns of
// seihyou/columns.h.

/// Builds the grid from the observation results of a selection (table KansokuSeikaData, in SaveOrder):
/// heights and mean differences as observed, and in column 3 the running heights from the route's start
/// height. A route that begins where the route listed before it has ended, and been saved, starts from the
/// saved height of that end. Of two repeated bench marks the mean height stands at the bench mark that
/// follows them. Returns true where no error was reported.
bool FcDBOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid);

/// Builds the grid from saved results (table KansokuSeikaDataSeihyou), with the observed heights as they are
/// now. Returns true where no error was reported.
bool FcDBReOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid);

/// Replaces the saved records of the selection by the grid's bench marks, SaveOrder 1, 2, 3 … Records without
/// a category are never touched. Returns true when all is safe on disk.
bool FcDbSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& grid);

}  // namespace seihyou
