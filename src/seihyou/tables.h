#pragma once

#include <string>

#include "job/grade.h"
#include "report/diagram.h"
#include "report/document.h"
#include "ui/grid.h"

namespace seihyou {

/// The orthometric grid as a document: a part for each route that it holds. `route`: number of the opened
/// route.
report::Document tables(const ui::Grid& grid, job::Grade grade, const std::string& route);

/// The corrected heights along the route (m), and the corrections of its sections (mm; 0.1 mm in first
/// grade).
report::Diagram profile(const ui::Grid& grid, job::Grade grade);

}  // namespace seihyou
