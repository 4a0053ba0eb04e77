#pragma once

#include <string>
#include <vector>

#include "hksnb/kind.h"
#include "hksnb/period.h"
#include "hksnb/saved_results.h"
#include "job/grade.h"
#include "route/finding.h"
#include "ui/grid.h"

namespace hksnb {

/// What the checks of a book go by beside its grid.
struct BookState {
  Kind kind = Kind::Orthometric;
  bool whole = true;                    ///< the last filling or reopening has come to its end
  std::string number;                   ///< under which the book is to be stored
  std::string reopened;                 ///< the number it was reopened from; "" for a new book
  std::vector<std::string> stored{};    ///< numbers of the stored books of its kind
  double farAway = 500;                 ///< an amount (mm) beyond this is worth a look
  Period present{};                     ///< months of the present observation, as the boxes hold them
  const SavedResults* saved = nullptr;  ///< of the bench marks in the grid; null where they are not known
};

/// What is the matter with a book, in the order of ui::sortFindings:
///
/// - a filling or reopening that broke off;
/// - sections of an orthometric book and bench marks of an ellipsoidal one without a saved correction,
/// sections
///   without a difference;
/// - previous results that are no heights, or lie further than the limit from the present ones;
/// - amounts that are not those of the results beside them: they have not been worked out since;
/// - present heights that differ from the saved results of the correction by more than its rounding, told
/// once a
///   route: in an orthometric book a unit and half a unit for each section since the walk began;
/// - months of the present observation that reach beyond those of the observations;
/// - for a book with bench marks, a number that another stored book has.
///
/// Raises nothing for any text in the grid.
ui::Findings checks(const ui::Grid& Grid1, job::Grade grade, const BookState& state);

}  // namespace hksnb
