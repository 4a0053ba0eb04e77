#include "platform/growing_file.h"

#include <array>
#include <atomic>
#include <charconv>
#include <cstdint>
#include <filesystem>

#include "platform/files.h"
#include "platform/running.h"
#include "text/error.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>

#include <cerrno>
#endif

namespace platform {
namespace {

constexpr std::string_view ending = ".part";
constexpr std::array<const char*, 3> journals{"-journal", "-wal", "-shm"};

/// FNV-1a, http://www.isthe.com/chongo/tech/comp/fnv: the same on every machine and in every version.
std::uint32_t hashOf(std::string_view text) {
  std::uint32_t hash = 2166136261U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return hash;
}

std::string inHex(std::uint64_t number) {
  std::array<char, 16> digits;
  return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr};
}

/// How far the folder reaches in a path text.
std::size_t folderLength(std::string_view path) { return path.find_last_of("/\\") + 1; }

/// What the names of all files begin with that grow on this machine for the target.
std::string beginning(std::string_view target) {
  return "seikahyou-" + inHex(hashOf(target.substr(folderLength(target)))) + "-" +
         inHex(hashOf(machineName())) + "-";
}

void removeQuietly(const std::filesystem::path& path) {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

void removeWithJournals(const std::string& path) {
  removeQuietly(nativePath(path));
  for (const char* journal : journals) removeQuietly(nativePath(path + journal));
}

/// True where `name` is what a process has left that lives no more.
bool isLeft(std::string_view name, std::string_view start) {
  if (!name.starts_with(start) || name.find(ending) == std::string_view::npos) return false;
  std::uint64_t process = 0;
  const char* const digits = name.data() + start.size();
  const auto read = std::from_chars(digits, name.data() + name.size(), process, 16);
  return read.ec == std::errc() && !isRunning(process);
}

void removeLeft(std::string_view target, const std::string& start) {
  const std::string folder(target.substr(0, folderLength(target)));
  std::error_code error;
  std::filesystem::directory_iterator entry(nativePath(folder.empty() ? "." : folder), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
    if (isLeft(pathText(entry->path().filename()), start)) removeQuietly(entry->path());
}

#ifdef _WIN32

bool putInPlace(const std::filesystem::path& from, const std::filesystem::path& to) {
  return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE;
}

bool putInFreePlace(const std::filesystem::path& from, const std::filesystem::path& to) {
  return MoveFileExW(from.c_str(), to.c_str(), 0) != FALSE;
}

#else

bool putInPlace(const std::filesystem::path& from, const std::filesystem::path& to) {
  std::error_code error;
  std::filesystem::rename(from, to, error);
  return !error;
}

/// Not every file system can refuse to replace; there the place is looked at just before.
bool putInFreePlace(const std::filesystem::path& from, const std::filesystem::path& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  struct stat there {};
  return lstat(to.c_str(), &there) != 0 && putInPlace(from, to);
}

#endif

}  // namespace

GrowingFile::GrowingFile(std::string_view path) : target_(path) {
  static std::atomic<std::uint64_t> count{0};
  const std::string start = beginning(path);
  removeLeft(path, start);
  path_ = target_.substr(0, folderLength(path)) + start + inHex(processNumber()) + "-" + inHex(++count) +
          std::string(ending);
  removeWithJournals(path_);  // of a dead process that had this one's number
}

GrowingFile::~GrowingFile() {
  if (!finished_) removeWithJournals(path_);
}

void GrowingFile::finish() {
  if (!putInPlace(nativePath(path_), nativePath(target_)))
    throw text::RuntimeError(text::ErrorCode::PathNotFound);
  finished_ = true;
}

bool GrowingFile::finishNew() {
  if (putInFreePlace(nativePath(path_), nativePath(target_))) return finished_ = true;
  if (standingAt(target_) != Standing::Nothing) return false;
  throw text::RuntimeError(text::ErrorCode::PathNotFound);
}

}  // namespace platform
