#pragma once

#include "daen/calculation.h"
#include "db/database.h"
#include "db/sql.h"
#include "job/context.h"
#include "route/selection.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace daen {

// The route of the ellipsoidal correction and the database. Each procedure opens the job database itself,
// closes it before it returns, and traps its errors under its own name on the grid's desktop. Grids have been
// set up before, with the columns of daen/columns.h.

/// Lays the observation results of a selection (table KansokuSeikaData) into the route grid: a bench mark and
/// its segment to each record. A bench mark without a height of its own, or with height 0, gets the height of
/// the one before it plus the mean difference between them (m), or the mean of the two runs that end at it
/// just above (daen/loaded_heights.h). Returns true where no error was reported.
bool FcDHseiDBOpen(const route::Selection& selection, const job::JobContext& context, const Formats& formats,
                   ui::Grid& Grid1);

/// Lays the saved results of a selection (table KansokuSeikaDataDaen) into the route grid, in table order.
/// Returns true where no error was reported.
bool FcDHseiDBReOpen(const route::Selection& selection, const job::JobContext& context,
                     const Formats& formats, ui::Grid& Grid1);

/// The saved results of a selection that a save replaces.
db::Sql savedRouteSql(const job::JobContext& context, const route::Selection& selection);

/// Replaces the saved results of the selection by the route grid, up to the bench mark that ends the route,
/// in a database that is open and stays so. Raises db::Error.
void replaceRoute(db::Database& database, const route::Selection& selection, const job::JobContext& context,
                  const ui::Grid& Grid1);

/// The same in the job database of the context, where what was written before an error stays so,
/// and tells the operator when they are safe on disk. Returns true then.
bool FcDHseiSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& Grid1);

/// Fills both lists with the bench marks of the route grid. Returns true.
bool FcDaenSetLstHyouseki(const ui::Grid& Grid1, ui::ListBox& LstHyousekiNo1, ui::ListBox& LstHyousekiNo2);

}  // namespace daen
