#pragma once

#include <string>
#include <vector>

#include "sample/route.h"

namespace sample {

/// The routes of a job as they come from the field: three projects (hills, a plain, a coast) with routes of
/// 20 to 60 bench marks in every data category. `seed` chooses the job's land; the same seed gives the same
/// routes everywhere.
std::vector<Route> longRoutes(const std::string& jobId, Precision precision, unsigned seed);

/// One route of `benchMarks` (2 or more) bench marks in category "0" for measuring: known points at both ends
/// and at every 32nd bench mark of a long one, an epoch before at every section.
Route measuringRoute(const std::string& jobId, Precision precision, int benchMarks);

}  // namespace sample
