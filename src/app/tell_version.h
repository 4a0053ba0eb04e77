#pragma once

#include <iostream>
#include <string_view>

#include "version.h"

namespace app {

/// Prints "NAME VERSION" where `--version` is all that stands on the command line after the program's own
/// name; true then, and the program has nothing more to do.
inline bool tellVersion(int argc, char** argv, const char* name) {
  if (argc != 2 || std::string_view(argv[1]) != "--version") return false;
  std::cout << name << ' ' << version << '\n';
  return true;
}

}  // namespace app
