#pragma once

#include <string>
#include <vector>

#include "route/finding.h"
#include "tanrosen/section_distances.h"
#include "ui/grid.h"

namespace tanrosen {

/// What is the matter with the list of known points: those that the calculation passes over, those without a
/// height, and a first one that is not the first bench mark of the grid. `knownPoints`: bench-mark numbers in
/// the order of the list. Returns true where none is passed over.
bool findListFaults(const ui::Grid& grid, const std::vector<std::string>& knownPoints, Points points,
                    ui::Findings& findings);

}  // namespace tanrosen
