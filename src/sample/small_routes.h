#pragma once

#include <string>
#include <vector>

#include "sample/route.h"

namespace sample {

/// The project number under which the small routes stand.
inline constexpr const char* smallProject = "1001";

/// Routes of 3 to 7 bench marks with round numbers, the same in every job, that can be worked by hand.
/// Operation scripts lean on them: see docs/sample-job.md before changing one.
std::vector<Route> smallRoutes(const std::string& jobId, Precision precision);

}  // namespace sample
