#include "platform/system.h"
#include "start/program.h"
#include "tell_version.h"

/// seikahyou: the program in its windows. The whole command-line text is the path of the job database;
/// without one the operator chooses a job in a window.
int main(int argc, char** argv) {
  if (app::tellVersion(argc, argv, "seikahyou")) return 0;
  return start::runProgram(argc > 0 ? argv[0] : "seikahyou", platform::commandLineText(argc, argv));
}
