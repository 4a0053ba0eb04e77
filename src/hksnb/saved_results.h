#pragma once

#include <string>
#include <vector>

#include "hksnb/kind.h"
#include "job/context.h"
#include "ui/grid.h"

namespace hksnb {

/// What the job holds now of the routes of a book, to hold the book against.
struct SavedResults {
  /// For each bench mark of the book, in the order of bookPoints: what the correction has saved as its result
  /// in its route (m), once for each record that it has there. An orthometric one may be the corrected
  /// difference of the section instead of a height (see Filling).
  std::vector<std::vector<double>> results;
  std::string firstMonth;  ///< of the observations of these routes, "YYYYMM"; "" where none has a date
  std::string lastMonth;
};

/// Reads them. Where the database cannot be read there are none.
SavedResults savedResults(const ui::Grid& Grid1, Kind kind, const job::JobContext& context);

}  // namespace hksnb
