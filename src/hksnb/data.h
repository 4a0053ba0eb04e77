#pragma once

#include <compare>
#include <string>
#include <vector>

#include "db/sql.h"
#include "hksnb/kind.h"
#include "hksnb/period.h"
#include "hksnb/place_names.h"
#include "job/context.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace hksnb {

// The database procedures of the variation book. Each opens the job database itself, closes it before it
// returns, and traps its errors under its own name, leaving as it is what was done so far.

/// How a database procedure ended; Failed where an error was reported, a grid that is full among them.
enum class Status : int { Done = 0, Failed = 1 };

/// A route as the operator chooses it.
struct RouteItem {
  std::string project;
  std::string route;

  /// By project, then route, as texts.
  auto operator<=>(const RouteItem&) const = default;

  /// As listed: the project number padded or cut to 9 characters, ";", and the route number to 8.
  std::string text() const;
  /// Taken back from an item of a list.
  static RouteItem read(std::string_view item);
};

/// What a book holds beside its rows, as the operator's boxes show it.
struct BookBoxes {
  std::string presentYear;   ///< label of the present results
  std::string previousYear;  ///< label of the previous or averaged results
  Period present;            ///< months of the present observation
  Period previous;           ///< months of the previous observation
};

/// Gives the book table its column RosenEndFlg where an older program made it without; else changes nothing.
Status FcHHKSB_AddRosenEndFlg(const job::JobContext& context, ui::Desktop& desktop);

/// Lists in `LstRosenNo1` the routes that have saved results of the correction, by project and route as
/// texts, each once, and empties `LstRosenNo2`.
Status FcHHKSB_GetRosenNo(const job::JobContext& context, Kind kind, ui::ListBox& LstRosenNo1,
                          ui::ListBox& LstRosenNo2);

/// Lists the numbers of the stored books of a kind in their order as texts, each once.
Status FcHHKSB_GetHksnbNo(const job::JobContext& context, Kind kind, ui::ListBox& LstHksnbNo);

/// Fills the grid, which has been set up, with the observations of `routes` and their corrections (see
/// Filling), and widens `present` over the months of all observations read. `places` takes the places of the
/// bench marks.
Status FcHHKSB_SetGrid1FromSeikaData(const job::JobContext& context, Kind kind,
                                     const std::vector<RouteItem>& routes, Period& present,
                                     PlaceNames& places, ui::Grid& Grid1);

/// Fills the grid, which has been set up, from the stored book `number`: every cell as it was saved, with the
/// years in the headers. `boxes` takes the years where the book has rows and the periods where those are
/// stored, and keeps what it held where not.
Status FcHHKSB_Reopen(const job::JobContext& context, Kind kind, const std::string& number, BookBoxes& boxes,
                      ui::Grid& Grid1);

/// The stored rows of a book, one to a bench mark, and its periods: what a save replaces.
db::Sql bookRowsSql(const job::JobContext& context, Kind kind, const std::string& number);
db::Sql bookPeriodsSql(const job::JobContext& context, Kind kind, const std::string& number);

/// Stores the grid as the book `number` in place of the one that had this kind and number, with the period of
/// the present observation (that of the previous one is not kept), and tells the operator when all is safe on
/// disk. Bench marks without a number are left out.
Status FcHHKSB_HKSNBSave(const job::JobContext& context, Kind kind, const std::string& number,
                         const Period& present, const ui::Grid& Grid1);

}  // namespace hksnb
