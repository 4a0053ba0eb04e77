#include "platform/write_obstacle.h"

#include <filesystem>
#include <system_error>

#include "platform/files.h"

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

WriteObstacle obstacleOf(DWORD error) {
  switch (error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return WriteObstacle::InUse;
    case ERROR_ACCESS_DENIED:
      return WriteObstacle::Denied;
    case ERROR_WRITE_PROTECT:
      return WriteObstacle::ReadOnly;
    default:
      return WriteObstacle::Failed;
  }
}

/// What the system says to opening `path` so that it can be written and replaced.
WriteObstacle refusalAt(const std::filesystem::path& path, DWORD how, DWORD flags) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE | DELETE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, how,
                                  FILE_ATTRIBUTE_NORMAL | flags, nullptr);
  if (file == INVALID_HANDLE_VALUE) return obstacleOf(GetLastError());
  CloseHandle(file);
  return WriteObstacle::Failed;
}

/// What the system says to a file at `path` and to another one in its folder.
WriteObstacle refusal(const std::filesystem::path& path, const std::filesystem::path& folder) {
  const WriteObstacle own = refusalAt(path, OPEN_EXISTING, 0);
  if (own != WriteObstacle::Failed) return own;
  return refusalAt(folder / L"seikahyou.try", CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE);
}

#else

/// A file is replaced by another one that grows beside it, so it is the folder that has to be written to.
WriteObstacle refusal(const std::filesystem::path&, const std::filesystem::path& folder) {
  if (faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0) return WriteObstacle::Failed;
  if (errno == EROFS) return WriteObstacle::ReadOnly;
  return errno == EACCES || errno == EPERM ? WriteObstacle::Denied : WriteObstacle::Failed;
}

#endif

/// The folder that a path leads into.
std::filesystem::path folderOf(const std::filesystem::path& path) {
  const std::filesystem::path folder = path.parent_path();
  return folder.empty() ? std::filesystem::path(".") : folder;
}

}  // namespace

WriteObstacle writeObstacle(std::string_view path, std::uintmax_t bytes) {
  std::error_code error;
  const std::filesystem::path native = nativePath(path);
  const std::filesystem::path folder = folderOf(native);
  if (!std::filesystem::is_directory(folder, error)) return WriteObstacle::NoFolder;
  if (isFolder(path)) return WriteObstacle::IsFolder;
  const WriteObstacle refused = refusal(native, folder);
  if (refused != WriteObstacle::Failed) return refused;  // a medium that is only read has no room either
  const std::filesystem::space_info room = std::filesystem::space(folder, error);
  return !error && room.available < bytes ? WriteObstacle::Full : WriteObstacle::Failed;
}

std::string wordsFor(WriteObstacle obstacle) {
  switch (obstacle) {
    case WriteObstacle::NoFolder:
      return "フォルダーがありません。";
    case WriteObstacle::IsFolder:
      return "同じ名前のフォルダーがあります。";
    case WriteObstacle::Full:
      return "ディスクの空き容量が足りません。";
    case WriteObstacle::ReadOnly:
      return "読み取り専用の媒体です。";
    case WriteObstacle::Denied:
      return "書き込む権限がありません。";
    case WriteObstacle::InUse:
      return "ほかのプログラムが使用中です。";
    case WriteObstacle::Failed:
      break;
  }
  return "書き込みの途中で失敗しました。";
}

}  // namespace platform
