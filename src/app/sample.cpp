#include <iostream>
#include <string>
#include <vector>

#include "platform/system.h"
#include "sample/sample.h"

/// seikahyou-sample: makes a job database with sample surveys.
int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return sample::run(arguments, platform::programFolder(), std::cout, std::cerr);
}
