#pragma once

#include <optional>
#include <vector>

#include "job/context.h"
#include "ui/grid.h"

namespace hksnb {

/// The bench marks of a book in the grid's order.
struct BookPoint {
  int row = 0;          ///< grid row
  std::string project;  ///< of its route, carried down from where it is shown
  std::string route;
  std::string place;               ///< prefecture, county and town in one text, carried down too
  std::optional<double> distance;  ///< to the next bench mark (km), where the observations hold one
};

/// The bench marks of the book grid, without distances.
std::vector<BookPoint> bookPoints(const ui::Grid& Grid1);

/// The same with the distances that the observations of the job hold for their sections, whichever way these
/// are walked. Where the database cannot be read there are none.
std::vector<BookPoint> measuredPoints(const ui::Grid& Grid1, const job::JobContext& context);

}  // namespace hksnb
