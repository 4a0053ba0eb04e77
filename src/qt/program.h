#pragma once

#include "qt/application.h"
#include "shell/start_up.h"

namespace qt {

/// Every window is as large as the display's scale says, fractions included. To be called before the
/// application is made.
void scaleAsTheDisplay();

/// Runs the program in windows on one job until the operator ends it: from its menu to its menu. Returns 0,
/// or 1 where an error that nothing in the program trapped has ended it (the operator has been told).
int runSession(Application& application, shell::CommandLine commandLine);

}  // namespace qt
