#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "support/temporary_folder.h"

namespace test {

/// Writes a shell script that can be started like any program, and returns its path.
inline std::string writeTool(const TemporaryFolder& folder, std::string_view name,
                             std::string_view commands) {
  const std::string path = folder.write(name, "#!/bin/sh\n" + std::string(commands) + "\n");
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  return path;
}

}  // namespace test
