#include "platform/input_file.h"

#include <new>

#include "platform/files.h"
#include "text/error.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace platform {
namespace {

#ifdef _WIN32

/// What the system says on opening the file for reading.
std::optional<ReadObstacle> openingObstacle(std::string_view path) {
  const HANDLE file = CreateFileW(nativePath(path).c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    CloseHandle(file);
    return std::nullopt;
  }
  switch (GetLastError()) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return ReadObstacle::InUse;
    case ERROR_ACCESS_DENIED:
      return ReadObstacle::Denied;
    default:
      return ReadObstacle::Failed;
  }
}

#else

/// What the system says on opening the file for reading.
std::optional<ReadObstacle> openingObstacle(std::string_view path) {
  const int file = open(nativePath(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file >= 0) {
    close(file);
    return std::nullopt;
  }
  if (errno == EACCES || errno == EPERM) return ReadObstacle::Denied;
  return errno == EBUSY || errno == ETXTBSY || errno == EWOULDBLOCK ? ReadObstacle::InUse
                                                                    : ReadObstacle::Failed;
}

#endif

const char* wordsFor(ReadObstacle obstacle) {
  switch (obstacle) {
    case ReadObstacle::Missing:
      return "が見つかりません。";
    case ReadObstacle::IsFolder:
      return "はフォルダです。";
    case ReadObstacle::NoFile:
      return "は装置やパイプで、ファイルではありません。";
    case ReadObstacle::Denied:
      return "を読む権限がありません。";
    case ReadObstacle::InUse:
      return "は他のプログラムが使用中です。";
    case ReadObstacle::Failed:
      break;
  }
  return "を読み込めません。";
}

std::string inMegabytes(std::uintmax_t bytes) {
  constexpr std::uintmax_t megabyte = 1U << 20U;
  return std::to_string((bytes + megabyte - 1) / megabyte) + " MB";
}

[[noreturn]] void refuse(std::string_view what, std::string_view path, std::string_view why) {
  std::string sentence(what);
  sentence.append("「").append(path).append("」").append(why);
  throw text::RuntimeError(text::ErrorCode::FileNotFound, sentence);
}

}  // namespace

std::optional<ReadObstacle> readObstacle(std::string_view path) {
  if (isFolder(path)) return ReadObstacle::IsFolder;
  if (isFile(path)) return openingObstacle(path);
  return standingAt(path) == Standing::Nothing ? ReadObstacle::Missing : ReadObstacle::NoFile;
}

std::string readInput(std::string_view what, std::string_view path, std::uintmax_t most) {
  if (const auto obstacle = readObstacle(path)) refuse(what, path, wordsFor(*obstacle));
  const auto state = fileState(path);
  if (state && state->size > most)
    refuse(what, path,
           "は大きすぎます（" + inMegabytes(state->size) + "）。読めるのは " + inMegabytes(most) +
               " までです。");
  std::optional<std::string> content;
  try {
    content = readFile(path);
  } catch (const std::bad_alloc&) {
    refuse(what, path, "を読み込むにはメモリが足りません。");
  }
  if (!content) refuse(what, path, wordsFor(ReadObstacle::Failed));
  return *std::move(content);
}

}  // namespace platform
