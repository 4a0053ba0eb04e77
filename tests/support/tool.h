#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/system.h"
#include "support/temporary_folder.h"

namespace test {

/// Places a program at `name` in the folder and returns its path. It carries out `steps`, one a line:
///
///     sleep MILLISECONDS      write FILE|TEXT      say TEXT      listen      exit CODE      abort
///
/// FILE counts from the program's own folder, "listen" says what standard input holds, "abort" ends the
/// program by a signal. The steps lie beside the program in "steps.txt", so a folder holds one tool.
inline std::string placeTool(const TemporaryFolder& folder, std::string_view name, std::string_view steps) {
  const std::string path = folder.path(name);
  const std::string place = path.substr(0, path.rfind('/'));
  platform::makeFolder(place);
  const std::string tool = platform::programFolder() + "/test_tool";
  platform::copyFile(platform::isFile(tool) ? tool : tool + ".exe", path);
  platform::writeFile(place + "/steps.txt", steps);
  return path;
}

}  // namespace test
