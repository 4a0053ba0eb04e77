#pragma once

#include <string>

#include "job/context.h"
#include "route/saved_watch.h"
#include "route/selection.h"
#include "ui/grid.h"

namespace daen {

/// Replaces what is saved of the selection, route and computed sections, by the two grids, and tells the
/// operator that it is safe on disk. Returns true where both tables are.
///
/// With safeguards both go to disk in one piece and the operator is told afterwards; an error leaves both
/// tables as they were and is reported under "FcDHseiSave". Without safeguards the route is saved and
/// confirmed first and the sections after it, each with its errors under its own name.
bool saveBoth(const route::Selection& selection, const job::JobContext& context, const ui::Grid& Grid1,
              const ui::Grid& Grid2);

/// The saved records that saveBoth replaces, those of the route first; `what` the route is called in
/// questions.
route::SavedParts savedParts(const route::Selection& selection, const job::JobContext& context,
                             const ui::Grid& Grid1, const ui::Grid& Grid2, const std::string& what);

}  // namespace daen
