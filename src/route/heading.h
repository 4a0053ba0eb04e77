#pragma once

#include <string>
#include <vector>

#include "job/context.h"
#include "report/document.h"
#include "route/selection.h"

namespace route {

/// The heading of a job's printed pages, from table EditTextData and its three lists: 作業名, 計画機関,
/// 作業機関, 地区, 観測者, 器械, 標尺. What is missing or cannot be read is left out.
std::vector<report::Field> jobHeading(const job::JobContext& context);

/// The grade with the unit of its corrections, such as "1（補正の単位 0.1 mm）".
report::Field gradeField(job::Grade grade);

/// The unit of corrections: "0.1mm" in first grade, "mm" otherwise.
std::string correctionUnit(job::Grade grade);

/// The heading of a route: that of the job, project, category (`category`: its whole text), grade and today's
/// date.
std::vector<report::Field> routeHeading(const job::JobContext& context, const Selection& selection,
                                        const std::string& category);

}  // namespace route
