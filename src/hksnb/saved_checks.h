#pragma once

#include "hksnb/checks.h"
#include "job/grade.h"
#include "route/finding.h"
#include "ui/grid.h"

namespace hksnb {

/// Holds a book against what the job holds of its routes: present heights against the saved results, the
/// months of the present observation against those of the observations. Nothing where these are not known.
void findDifferencesToSaved(const ui::Grid& Grid1, const BookState& state, job::Grade grade,
                            ui::Findings& findings);

}  // namespace hksnb
