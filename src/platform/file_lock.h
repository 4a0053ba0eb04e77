#pragma once

#include <string_view>

namespace platform {

/// Keeps other programs of the house out of a file while it lives: each takes the lock before it reads the
/// file and writes it anew. Where the lock cannot be had within a second (its folder is not writable, a
/// program hangs) the work goes on without it.
class FileLock {
 public:
  /// `path`: the lock's own file (path text), which is made and stays.
  explicit FileLock(std::string_view path);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

 private:
#ifdef _WIN32
  void* file_ = nullptr;
#else
  int file_ = -1;
#endif
};

}  // namespace platform
