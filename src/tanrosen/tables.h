#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "job/grade.h"
#include "report/diagram.h"
#include "report/document.h"
#include "route/tolerance.h"
#include "ui/grid.h"

namespace tanrosen {

/// What the single-route tables are made from beside the grid.
struct TableInput {
  job::Grade grade{0};
  std::string route;                     ///< number of the opened route
  std::string dataKubun;                 ///< code of its data category
  std::vector<std::string> knownPoints;  ///< in route order
  route::Tolerances tolerances{};
};

/// The single-route grid as a document: a part for each route that it holds, and under the last one the
/// closure table: each segment between known points with its distance S (km), closure error and tolerance
/// (mm), and whether it is kept.
report::Document tables(const ui::Grid& grid, const TableInput& input);

/// The corrected heights along the route (m), and the corrections (mm; 0.1 mm in first grade).
report::Diagram profile(const ui::Grid& grid, job::Grade grade);

}  // namespace tanrosen
