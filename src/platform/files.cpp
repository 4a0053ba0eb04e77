#include "platform/files.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>

#include "text/error.h"

#ifdef _WIN32
#include <windows.h>

#include "platform/wide.h"
#endif

namespace platform {
namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

}  // namespace

#ifdef _WIN32

namespace {

/// What stands at a path, as the system says it; without FILE_ATTRIBUTE_DIRECTORY it is a file.
std::optional<DWORD> attributesOf(std::string_view path) {
  const DWORD attributes = GetFileAttributesW(nativePath(path).c_str());
  return attributes == INVALID_FILE_ATTRIBUTES ? std::nullopt : std::optional(attributes);
}

bool copyOver(const std::filesystem::path& from, const std::filesystem::path& to) {
  return CopyFileW(from.c_str(), to.c_str(), FALSE) != FALSE;
}

bool removeNative(const std::filesystem::path& path) { return DeleteFileW(path.c_str()) != FALSE; }

/// True for the names that lead to a device in every folder, such as "NUL" and "COM1".
bool isDevice(const std::filesystem::path& path) {
  std::wstring full(32768, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full.starts_with(LR"(\\.\)");
}

/// True for links to files and folders; other reparse points are ordinary files, such as those that stand in
/// a cloud.
bool isLink(const std::filesystem::path& path) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(path.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         (found.dwReserved0 == IO_REPARSE_TAG_SYMLINK || found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
}

}  // namespace

std::filesystem::path nativePath(std::string_view path) { return {wide(path)}; }

std::string pathText(const std::filesystem::path& path) { return utf8(path.native()); }

bool isFile(std::string_view path) {
  const auto attributes = attributesOf(path);
  return attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool isFolder(std::string_view path) {
  const auto attributes = attributesOf(path);
  return attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

Standing standingAt(std::string_view path) {
  const std::filesystem::path native = nativePath(path);
  if (isDevice(native)) return Standing::Other;
  const auto attributes = attributesOf(path);
  if (!attributes) return Standing::Nothing;
  if (isLink(native)) return Standing::Link;
  return (*attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Standing::Folder : Standing::File;
}

#else

namespace {

bool copyOver(const std::filesystem::path& from, const std::filesystem::path& to) {
  std::error_code error;
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
  return !error;
}

bool removeNative(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::remove(path, error);
}

}  // namespace

std::filesystem::path nativePath(std::string_view path) {
  std::u8string text(path.begin(), path.end());
  std::replace(text.begin(), text.end(), u8'\\', u8'/');
  return {text};
}

std::string pathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool isFile(std::string_view path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(nativePath(path), ignored);
}

bool isFolder(std::string_view path) {
  std::error_code ignored;
  return std::filesystem::is_directory(nativePath(path), ignored);
}

Standing standingAt(std::string_view path) {
  std::error_code ignored;
  switch (std::filesystem::symlink_status(nativePath(path), ignored).type()) {
    case std::filesystem::file_type::none:
    case std::filesystem::file_type::not_found:
      return Standing::Nothing;
    case std::filesystem::file_type::regular:
      return Standing::File;
    case std::filesystem::file_type::symlink:
      return Standing::Link;
    case std::filesystem::file_type::directory:
      return Standing::Folder;
    default:
      return Standing::Other;
  }
}

#endif

std::optional<std::string> firstLine(std::string_view path) {
  std::ifstream file(nativePath(path), std::ios::binary);
  if (!file) return std::nullopt;
  std::string line;
  std::getline(file, line);
  if (file.bad()) return std::nullopt;
  if (line.starts_with(utf8Mark)) line.erase(0, utf8Mark.size());
  line.erase(std::min(line.find('\r'), line.size()));
  return line;
}

std::optional<std::string> readFile(std::string_view path) {
  std::ifstream file(nativePath(path), std::ios::binary);
  if (!file) return std::nullopt;
  std::string content;
  std::array<char, 65536> block;
  do {
    file.read(block.data(), block.size());
    content.append(block.data(), static_cast<std::size_t>(file.gcount()));
  } while (file);
  if (file.bad()) return std::nullopt;
  return content;
}

bool isSameFile(std::string_view path, std::string_view other) {
  std::error_code ignored;
  return std::filesystem::equivalent(nativePath(path), nativePath(other), ignored);
}

std::optional<FileState> fileState(std::string_view path) {
  if (!isFile(path)) return std::nullopt;
  std::error_code error;
  const std::filesystem::path native = nativePath(path);
  const FileState state{std::filesystem::last_write_time(native, error),
                        std::filesystem::file_size(native, error)};
  return error ? std::nullopt : std::optional(state);
}

void writeFile(std::string_view path, std::string_view content) {
  GrowingFile growing(path);
  std::ofstream file(nativePath(growing.path()), std::ios::binary);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
  if (!file) throw text::RuntimeError(text::ErrorCode::PathNotFound);
  growing.finish();
}

void makeFolder(std::string_view path) {
  std::error_code error;
  std::filesystem::create_directories(nativePath(path), error);
  if (!isFolder(path)) throw text::RuntimeError(text::ErrorCode::PathNotFound);
}

void copyFile(std::string_view from, std::string_view to) {
  if (!isFile(from)) throw text::RuntimeError(text::ErrorCode::FileNotFound);
  if (!copyOver(nativePath(from), nativePath(to))) throw text::RuntimeError(text::ErrorCode::PathNotFound);
}

void removeFile(std::string_view path) {
  if (isFolder(path) || !removeNative(nativePath(path)))
    throw text::RuntimeError(text::ErrorCode::FileNotFound);
}

}  // namespace platform
