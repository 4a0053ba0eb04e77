#include <iostream>

#include "intake/command.h"
#include "platform/system.h"
#include "tell_version.h"

/// seikahyou-job: makes, moves, exchanges and checks job databases.
int main(int argc, char** argv) {
  platform::useByteStreams();
  if (app::tellVersion(argc, argv, "seikahyou-job")) return 0;
  return intake::run(platform::commandLineWords(argc, argv), std::cout, std::cerr);
}
