#pragma once

#include <functional>

#include "job/context.h"
#include "qt/application.h"
#include "shell/start_up.h"
#include "ui/act_witness.h"

class QMainWindow;

namespace qt {

/// Every window is as large as the display's scale says, fractions included. To be called before the
/// application is made.
void scaleAsTheDisplay();

/// Adds to the main menu's window what is done with the open job as a whole.
using MenuDresser = std::function<void(QMainWindow& menu, const job::JobContext& context)>;

/// Runs the program in windows on one job until the operator ends it: from its menu to its menu. Returns 0,
/// or 1 where an error that nothing in the program trapped has ended it (the operator has been told).
/// `witness` is told what the operator does on the screens; null for nobody.
int runSession(Application& application, shell::CommandLine commandLine, MenuDresser dressMenu = {},
               ui::ActWitness* witness = nullptr);

}  // namespace qt
