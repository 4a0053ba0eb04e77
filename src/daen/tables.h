#pragma once

#include <string>

#include "job/grade.h"
#include "report/diagram.h"
#include "report/document.h"
#include "ui/grid.h"

namespace daen {

/// The two ellipsoidal grids as a document: a part for each route that `Grid1` holds, and the computed
/// sections of `Grid2` in a table under the last one. `route`: number of the opened route.
report::Document tables(const ui::Grid& Grid1, const ui::Grid& Grid2, const std::string& route);

/// The heights along the route (m), and the ellipsoidal corrections (mm).
report::Diagram profile(const ui::Grid& Grid1, job::Grade grade);

/// Reckons sections, corrections and heights again: from latitudes, heights and distances.
report::Check checkFormulas(const ui::Grid& Grid1, const ui::Grid& Grid2);

}  // namespace daen
