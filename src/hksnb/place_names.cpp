#include "hksnb/place_names.h"

#include <algorithm>
#include <map>

#include "text/padding.h"

namespace hksnb {
namespace {

Place cells(const ui::Grid& grid, int row) {
  Place shown;
  for (std::size_t col = 0; col < shown.size(); ++col)
    shown[col] = text::trimmed(grid.text(row, static_cast<int>(col)));
  return shown;
}

/// Blank cells as the name above them.
Place carriedOn(const Place& above, const Place& shown) {
  Place place = shown;
  for (std::size_t col = 0; col < place.size(); ++col)
    if (place[col].empty()) place[col] = above[col];
  return place;
}

/// Empties the names of bench marks `from` to `to` (not included) in one column.
void clearNames(std::vector<Place>& places, std::size_t col, std::size_t from, std::size_t to) {
  for (std::size_t at = from; at < to; ++at) places[at][col].clear();
}

}  // namespace

Place shownBelow(const Place& above, const Place& place) {
  Place shown;
  for (std::size_t col = 0; col < shown.size(); ++col)
    if (place[col] != above[col]) shown[col] = place[col];
  return shown;
}

void PlaceNames::add(std::string_view benchMark, const Place& place) {
  if (std::any_of(place.begin(), place.end(), [](const std::string& name) { return name.empty(); }))
    places_.emplace_back(text::trimmed(benchMark), place);
}

std::vector<Place> PlaceNames::inOrder(const ui::Grid& grid) const {
  const std::multimap<std::string_view, Place> known(places_.begin(), places_.end());
  std::vector<Place> places;
  Place above;
  for (int row = 1; row < grid.rows(); row += 2) {
    const Place shown = cells(grid, row);
    const auto [first, last] = known.equal_range(text::trimmed(grid.text(row, colBenchMark)));
    const auto fitting =
        std::find_if(first, last, [&](const auto& each) { return shownBelow(above, each.second) == shown; });
    above = fitting != last ? fitting->second : carriedOn(above, shown);
    places.push_back(above);
  }
  return places;
}

PlaceNames PlaceNames::readFrom(const ui::Grid& grid) {
  std::vector<Place> places = PlaceNames().inOrder(grid);
  for (std::size_t col = 0; col < Place().size(); ++col) {
    std::size_t shownLast = 0;
    for (std::size_t at = 1; at < places.size(); ++at) {
      if (text::trimmed(grid.text(static_cast<int>(2 * at + 1), static_cast<int>(col))).empty()) continue;
      if (places[at][col] == places[shownLast][col]) clearNames(places, col, shownLast + 1, at);
      shownLast = at;
    }
  }
  PlaceNames names;
  for (std::size_t at = 0; at < places.size(); ++at)
    names.add(grid.text(static_cast<int>(2 * at + 1), colBenchMark), places[at]);
  return names;
}

}  // namespace hksnb
