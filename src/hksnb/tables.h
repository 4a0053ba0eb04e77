#pragma once

#include <string>
#include <vector>

#include "hksnb/distances.h"
#include "hksnb/kind.h"
#include "job/grade.h"
#include "report/document.h"
#include "ui/grid.h"

namespace hksnb {

/// The book in the grid as a document: its rows as they stand, and in a second part the public form
/// 変動計算簿. `points`: the bench marks of the grid, with their distances. `fields`: book number and dates.
/// `referenceDates`: of the routes, for the public form.
report::Document tables(const ui::Grid& Grid1, Kind kind, job::Grade grade,
                        const std::vector<BookPoint>& points, const std::vector<report::Field>& fields,
                        const std::vector<std::string>& referenceDates);

}  // namespace hksnb
