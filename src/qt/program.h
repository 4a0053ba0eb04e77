#pragma once

#include <string>

namespace qt {

/// Runs the program in windows until the operator ends it. `name`: the program's own; `commandLine`: the text
/// behind it, whole and as it stands, which is the path of the job database. Returns the exit status of the
/// process: 0, or 1 where an error that nothing in the program trapped has ended it (the operator has been
/// told).
int runProgram(std::string name, std::string commandLine);

}  // namespace qt
