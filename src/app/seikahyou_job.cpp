#include <iostream>

#include "intake/command.h"
#include "platform/system.h"

/// seikahyou-job: makes, moves, exchanges and checks job databases.
int main(int argc, char** argv) {
  platform::useByteStreams();
  return intake::run(platform::commandLineWords(argc, argv), std::cout, std::cerr);
}
