#pragma once

#include "report/exporting.h"
#include "script/command.h"
#include "ui/screen.h"

namespace script {

/// Does what an export step says with the open screen. Raises LineError where the screen has no such thing,
/// RuntimeError where the file cannot be written.
report::Exported exported(const Export& step, const ui::Screen& screen, const report::Exporting& how);

}  // namespace script
