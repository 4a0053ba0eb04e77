#pragma once

namespace qt {

/// Runs the program in windows until the operator ends it. The whole command line is the path of the job
/// database. Returns the exit status of the process: 0, or 1 where an error that nothing in the program
/// trapped has ended it (the operator has been told).
int runProgram(int argc, char** argv);

}  // namespace qt
