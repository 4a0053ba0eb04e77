#pragma once

#include <cstddef>

#include "db/database.h"
#include "db/sql.h"
#include "job/context.h"
#include "route/selection.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace daen {

// The computed sections (table DaenHoseiChiHyouData) and the database. Each procedure opens the job database
// itself and closes it before it returns.

/// The saved sections of a selection.
db::Sql savedSectionsSql(const job::JobContext& context, const route::Selection& selection);

/// How many computed sections the section grid holds, its final empty row left out.
std::size_t countSections(const ui::Grid& Grid2);

/// Replaces the saved sections of the selection by the section grid, its final empty row left out; empty
/// cells leave their fields Null. The database is open and stays so. Raises db::Error.
void replaceSections(db::Database& database, const route::Selection& selection,
                     const job::JobContext& context, const ui::Grid& Grid2);

/// The same in the job database of the context, where what was written before an error stays so. Returns true
/// when all is safe on disk. Errors are reported under "FcDaenHoseichiHyouSave".
bool FcDaenHoseichiHyouSave(const route::Selection& selection, const job::JobContext& context,
                            const ui::Grid& Grid2);

/// Lays the saved sections of the selection into the section grid, which is set up and empty, and keeps an
/// empty row at its end. Raises db::Error.
void reopenSections(const route::Selection& selection, const job::JobContext& context, ui::Grid& Grid2);

/// Fills the reference list with the accumulated corrections of the project's other routes and of the same
/// route in other categories. An item has 事業番号 in 9 characters, 路線番号 in 8, the two bench marks in 10
/// each, every one followed by ";", and from character 42 on the correction (mm); see referenceOf. Returns
/// true where no error was reported, under "FcSetLstSanshouDaen".
bool FcSetLstSanshouDaen(const route::Selection& selection, const job::JobContext& context,
                         ui::ListBox& LstSanshouDaen);

/// The bench mark at which the correction of a reference item stands: the end of its section, without blanks
/// around it, as far as the item shows it (10 characters).
std::string referenceEnd(std::string_view item);
/// The route number in a reference item, without blanks around it.
std::string referenceRoute(std::string_view item);

/// The correction in an item of the reference list; "" where the item is too short for one.
std::string referenceOf(std::string_view item);

}  // namespace daen
