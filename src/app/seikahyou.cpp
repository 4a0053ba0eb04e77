#include "platform/system.h"
#include "qt/program.h"

/// seikahyou: the program in its windows. The whole command-line text is the path of the job database.
int main(int argc, char** argv) {
  return qt::runProgram(argc > 0 ? argv[0] : "seikahyou", platform::commandLineText(argc, argv));
}
