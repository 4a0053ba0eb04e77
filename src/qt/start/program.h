#pragma once

#include <string>

namespace start {

/// Runs the program in windows until the operator ends it. `name`: the program's own; `commandLine`: the text
/// behind it, whole and as it stands. With a text the program starts on the job at that path and ends with
/// it. Without one it begins with the window ジョブを開く and comes back to it when the operator leaves a
/// job, or where a job ended in an error. Returns the exit status of the process.
int runProgram(std::string name, std::string commandLine);

}  // namespace start
