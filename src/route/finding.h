#pragma once

#include "ui/finding.h"

namespace route {

using ui::Finding;
using ui::Findings;
using ui::Severity;

}  // namespace route
