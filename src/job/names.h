#pragma once

#include <string>

#include "job/context.h"

namespace job {

/// The unit in which corrections of a grade are written: "0.1 mm" for first grade, "mm" otherwise.
std::string correctionUnit(Grade grade);

/// The job as a window names it: "ジョブ 1"; "" while none is known.
std::string jobName(const JobContext& context);

/// Grade and unit of corrections: "1級  補正数 0.1 mm"; "" while no job is known.
std::string unitNames(const JobContext& context);

}  // namespace job
