#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "hksnb/columns.h"
#include "ui/grid.h"

namespace hksnb {

/// Where a bench mark stands: project, route, prefecture, county and town, spelt out; "" for one without a
/// name.
using Place = std::array<std::string, placeColumns>;

/// The cells of columns 0 to 4 of a bench mark at `place` below one at `above`: a name where it changes.
Place shownBelow(const Place& above, const Place& place);

/// What a book knows of the places of its bench marks.
///
/// The grid shows a name only where it changes, so a blank cell stands for the name above it or for no name
/// at all. This memory tells the two apart, in whatever order the bench marks come to stand.
class PlaceNames {
 public:
  /// Remembers a bench mark, where one of its names is missing; the others need no memory. One number may be
  /// remembered at several places, as where two routes meet.
  void add(std::string_view benchMark, const Place& place);

  /// The places of the bench marks of a book grid in its order, row 1 first. Of the places remembered for a
  /// number the first one that makes its cells read as they do counts; where there is none, a blank cell
  /// stands for the name above it.
  std::vector<Place> inOrder(const ui::Grid& grid) const;

  /// What the cells of a stored book tell. A name that is shown again after blank cells had ended above
  /// them: those have none. Any other blank cell stands for the name above it.
  static PlaceNames readFrom(const ui::Grid& grid);

 private:
  std::vector<std::pair<std::string, Place>> places_;  // bench mark and place, in the order of add
};

}  // namespace hksnb
