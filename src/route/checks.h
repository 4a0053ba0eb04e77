#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "route/finding.h"
#include "ui/grid.h"

namespace route {

// What every screen of a route looks for in its grid. Bench marks stand on rows of their own, the section to
// the next one on the row below; column 0 holds the number of a bench mark and is empty on section rows. A
// column is called by its header in row 0.

/// A row as operators name it: "水準点 A102", "区間 A102-A103" ("区間 A102-" where no bench mark follows),
/// "3行目" for a row that belongs to no bench mark.
std::string placeName(const ui::Grid& grid, int row);

/// A length or height difference in mm as findings tell it: at most one decimal, "4", "−2.5".
std::string millimetres(double mm);

/// The number a cell begins with; 0 where there is none or where it is too large to be reckoned with (which
/// findTextsThatAreNoNumber tells). Raises nothing.
double numberIn(const ui::Grid& grid, int row, int col);

/// What the searches below have found in a grid, kept for as long as the texts that they look at stay: most
/// acts change few columns.
class CheckMemory {
 public:
  /// Runs `search` where one of these columns of the grid has changed since it was run under the same `key`
  /// last, and adds what it found to `findings`.
  void search(int key, const ui::Grid& grid, std::initializer_list<int> columns, ui::Findings& findings,
              const std::function<void(ui::Findings&)>& search);

 private:
  struct Kept {
    const ui::Grid* grid = nullptr;
    std::uint64_t version = 0;  // of all its columns together
    ui::Findings found;
  };

  std::map<int, Kept> kept_;
};

/// Texts in these columns that are no number and would count as what they begin with, or as 0, and numbers
/// too large for any calculation.
/// With a `memory` of the same grid only columns that have changed are looked at anew.
void findTextsThatAreNoNumber(const ui::Grid& grid, std::initializer_list<int> columns,
                              ui::Findings& findings, CheckMemory* memory = nullptr);

/// Bench marks that come twice in one route. `flagCol` holds the route flags. A loop that ends on its first
/// bench mark is none of them, nor is a bench mark that is observed a second time: its repeated rows ("-2"),
/// and the row behind a repeated one on which the other run begins where the first began.
/// A `memory` as above.
void findNamesTwice(const ui::Grid& grid, int flagCol, ui::Findings& findings, CheckMemory* memory = nullptr);

/// A bench mark without a number on `row`: it is never saved.
ui::Finding nameless(int row);

/// A section without a difference on `row`, in column `col`: it counts as 0.
ui::Finding withoutDifference(const ui::Grid& grid, int row, int col);

/// An entry in (`row`, `col`) that no calculation has taken up yet. `wayOut`: how it is taken up.
ui::Finding notTaken(const ui::Grid& grid, int row, int col, std::string_view wayOut);

/// A value in (`row`, `col`) that was changed by hand since the calculation, which gave `computed`.
ui::Finding changedByHand(const ui::Grid& grid, int row, int col, std::string_view computed);

}  // namespace route
