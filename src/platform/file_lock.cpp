#include "platform/file_lock.h"

#include <chrono>
#include <thread>

#include "platform/files.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace platform {
namespace {

constexpr int attempts = 100;
constexpr std::chrono::milliseconds rest{10};

/// Asks again and again until it gets what it asks for.
template <typename Ask>
void insist(Ask ask) {
  for (int at = 0; at < attempts && !ask(); ++at) std::this_thread::sleep_for(rest);
}

}  // namespace

#ifdef _WIN32

FileLock::FileLock(std::string_view path) {
  const std::filesystem::path name = nativePath(path);
  insist([&] {
    HANDLE const file = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE) file_ = file;
    return file_ != nullptr || GetLastError() != ERROR_SHARING_VIOLATION;
  });
}

FileLock::~FileLock() {
  if (file_ != nullptr) CloseHandle(file_);
}

#else

FileLock::FileLock(std::string_view path)
    : file_(open(nativePath(path).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
  if (file_ >= 0) insist([this] { return flock(file_, LOCK_EX | LOCK_NB) == 0; });
}

FileLock::~FileLock() {
  if (file_ >= 0) close(file_);
}

#endif

}  // namespace platform
