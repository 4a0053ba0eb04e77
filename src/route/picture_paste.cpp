#include "route/picture_paste.h"

#include <chrono>
#include <string>

#include "platform/files.h"
#include "platform/process.h"
#include "ui/error_trap.h"

namespace route {
namespace {

/// Between two polls: short for an eye, long for a processor.
constexpr std::chrono::milliseconds rest{10};

void runTool(ui::Desktop& desktop, std::string_view tool) {
  platform::Process process(tool);
  while (process.exitCode() == platform::stillActive) {
    desktop.breathe();
    platform::pause(rest);
  }
  process.close();
}

void filePicture(const job::JobContext& context, std::string_view file) {
  const std::string made = context.gExeDir + "map_app\\temp.bmp";
  const std::string folder = context.gExeDir + context.gJobId + "\\bmp_data\\";
  if (!platform::isFolder(folder)) platform::makeFolder(folder);
  platform::copyFile(made, folder + std::string(file));
  platform::removeFile(made);
}

}  // namespace

bool FcPicturePaste(ui::Desktop& desktop, const job::JobContext& context, std::string_view tool,
                    std::string_view file) {
  ui::trapped(&desktop, "FcPicturePaste", [&] {
    if (platform::isFile(tool))
      runTool(desktop, tool);
    else
      desktop.message({{}, "オプション「画像貼付ツール」をインストールしてください", ui::Icon::Information});
    filePicture(context, file);
  });
  return false;
}

}  // namespace route
