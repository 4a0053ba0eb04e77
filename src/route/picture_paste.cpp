#include "route/picture_paste.h"

#include <chrono>
#include <string>
#include <utility>

#include "platform/bitmap_file.h"
#include "platform/files.h"
#include "platform/process.h"
#include "platform/write_obstacle.h"
#include "route/safeguards.h"
#include "text/error.h"
#include "ui/error_trap.h"

namespace route {
namespace {

/// Between two polls: short for an eye, long for a processor.
constexpr std::chrono::milliseconds rest{10};

/// What the file systems of Windows keep for themselves.
constexpr std::string_view forbidden = "/\\:*?\"<>|";

text::RuntimeError failure(const std::string& description) {
  return {text::ErrorCode::PathNotFound, description};
}

/// The name is the suite's, which looks for the picture under it: it is never changed to fit.
void checkName(const std::string& file) {
  for (const char character : file)
    if (forbidden.find(character) != std::string_view::npos || (character >= 0 && character < ' '))
      throw failure("「" + file +
                    "」という名前の画像は保存できません。番号に / \\ : * ? \" < > | は使えません。");
}

void run(ui::Desktop& desktop, std::string_view tool) {
  platform::Process process(tool);
  while (process.exitCode() == platform::stillActive) {
    desktop.breathe();
    platform::pause(rest);
  }
  process.close();
}

/// Runs the tool. Returns where its picture is: beside itself, where it has left one there, else at `usual`.
std::string pictureOf(ui::Desktop& desktop, std::string_view tool, const std::string& usual) {
  const std::string beside = std::string(tool.substr(0, tool.find_last_of("/\\") + 1)) + "temp.bmp";
  const auto before = platform::fileState(beside);
  run(desktop, tool);
  const auto after = platform::fileState(beside);
  return after && after != before ? beside : usual;
}

/// Writes a picture with `write` in the place of whatever is at `target`. `wanted`: its bytes. `left`: what
/// is still there where that fails.
template <class Write>
void put(const std::string& target, std::uintmax_t wanted, const std::string& left, const Write& write) {
  try {
    write();
  } catch (const text::RuntimeError&) {
    throw failure(platform::wordsFor(platform::writeObstacle(target, wanted)) + "画像「" + target +
                  "」を保存できませんでした。" + left);
  }
}

/// Where the pictures of the job are filed.
std::string pictureFolder(const job::JobContext& context) {
  return context.gExeDir + context.gJobId + "\\bmp_data\\";
}

/// The same, made where it is missing.
std::string madeFolder(const job::JobContext& context) {
  std::string folder = pictureFolder(context);
  if (!platform::isFolder(folder)) platform::makeFolder(folder);
  return folder;
}

void file(const job::JobContext& context, const std::string& made, const std::string& name) {
  const std::string target = madeFolder(context) + name;
  if (!platform::isFile(made)) throw text::RuntimeError(text::ErrorCode::FileNotFound);
  if (platform::isCutShort(made))
    throw failure("画像「" + made + "」は空か、途中で切れています。画像貼付をもう一度行ってください。");
  const auto state = platform::fileState(made);
  put(target, state ? state->size : 0, "前の画像と、今つくった画像「" + made + "」は残っています。", [&] {
    platform::GrowingFile filed(target);
    platform::copyFile(made, filed.path());
    filed.finish();
  });
  platform::removeFile(made);
}

}  // namespace

bool FcPicturePaste(ui::Desktop& desktop, const job::JobContext& context, std::string_view tool,
                    std::string_view file) {
  ui::trapped(&desktop, "FcPicturePaste", [&] {
    const std::string name(file);
    checkName(name);
    std::string made = context.gExeDir + "map_app\\temp.bmp";
    if (platform::isFile(tool))
      made = pictureOf(desktop, tool, made);
    else
      desktop.message({{}, "オプション「画像貼付ツール」をインストールしてください", ui::Icon::Information});
    route::file(context, made, name);
  });
  return false;
}

std::optional<report::Figure> filedPicture(const job::JobContext& context, const std::string& file) {
  auto bytes = platform::readFile(pictureFolder(context) + file);
  if (!bytes || bytes->empty()) return std::nullopt;
  return report::pictureFigure("図", std::move(*bytes));
}

void filePicture(ui::Desktop& desktop, const job::JobContext& context, const std::string& picture,
                 std::string_view file) {
  ui::trapped(&desktop, "図を登録", [&] {
    const std::string name(file);
    checkName(name);
    const std::string target = madeFolder(context) + name;
    if (platform::isFile(target) && !mayReplacePicture(desktop, name)) return;
    put(target, picture.size(), "前の画像は残っています。", [&] { platform::writeFile(target, picture); });
    desktop.message({{}, "図を「" + name + "」として登録しました", ui::Icon::None});
  });
}

}  // namespace route
