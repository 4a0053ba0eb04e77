#pragma once

#include <string>
#include <string_view>

#include "db/sql.h"
#include "job/context.h"
#include "route/selection.h"
#include "ui/grid.h"

namespace hend {

// The three database procedures of the variation correction. Each opens the job database itself and closes it
// before it returns. The grid has been set up before: one header row, one empty row, the columns of
// hend/columns.h.

/// Builds the grid from the observation results of a selection (table KansokuSeikaData): dates and height
/// differences of both observations. In category "1" all routes of the chosen route's family are laid in.
/// Traps nothing: db::Error passes to the caller. Returns true where all records have found room in the grid;
/// a full one has been reported.
bool FcHendDBOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid);

/// Builds the grid from saved results (table KansokuSeikaDataHend) and gives the reference date they were
/// saved with in `referenceDate`, which stays as it is where nothing was saved. Traps its errors under its
/// own name on the grid's desktop, leaving the grid as far as it was built. Returns true where no error was
/// reported.
bool FcHendDBReOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid,
                    std::string& referenceDate);

/// The saved records of a selection.
db::Sql savedSql(const job::JobContext& context, const route::Selection& selection);

/// Replaces the saved records of the selection by the grid's bench marks, with the reference date as it
/// stands in its box. The companion columns (新設点用…) hold the combined section of a newly established
/// point, at a route end the section that leads there; 新設点Flg is −1 on both and 0 elsewhere,
/// 新設点BrankFlg is −1 where all companion columns are Null, else 0. Traps its errors under its own name on
/// the grid's desktop. Returns true when all is safe on disk.
bool FcHendDBSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& grid,
                  std::string_view referenceDate);

}  // namespace hend
