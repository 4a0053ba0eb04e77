#include <iostream>

#include "platform/system.h"
#include "sample/sample.h"
#include "tell_version.h"

/// seikahyou-sample: makes a job database with sample surveys.
int main(int argc, char** argv) {
  platform::useByteStreams();
  if (app::tellVersion(argc, argv, "seikahyou-sample")) return 0;
  return sample::run(platform::commandLineWords(argc, argv), platform::programFolder(), std::cout, std::cerr);
}
