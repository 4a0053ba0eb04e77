#pragma once

#include <string>
#include <string_view>

#include "job/grade.h"
#include "report/diagram.h"
#include "report/document.h"
#include "ui/grid.h"

namespace hend {

/// The variation grid as a document: a part for each route that it holds. `referenceDate`: the text that it
/// was computed with. `route`: number of the opened route.
report::Document tables(const ui::Grid& grid, std::string_view referenceDate, job::Grade grade,
                        const std::string& route);

/// The heights along the route, summed up from the new differences (m), and the variation corrections of its
/// sections (mm).
report::Diagram profile(const ui::Grid& grid, job::Grade grade);

/// Reckons what the calculation derives from the dates and height differences of the grid again.
report::Check checkFormulas(const ui::Grid& grid, std::string_view referenceDate, job::Grade grade);

}  // namespace hend
