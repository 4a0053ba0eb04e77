#include <iostream>

#include "platform/system.h"
#include "sample/sample.h"

/// seikahyou-sample: makes a job database with sample surveys.
int main(int argc, char** argv) {
  platform::useByteStreams();
  return sample::run(platform::commandLineWords(argc, argv), platform::programFolder(), std::cout, std::cerr);
}
