#include "platform/append.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include "platform/files.h"
#include "text/error.h"

#ifdef _WIN32
#include <windows.h>

#include "platform/wide.h"
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace platform {
namespace {

#ifdef _WIN32
bool write(const std::filesystem::path& path, DWORD how, std::string_view text) {
  const HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  how, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  DWORD written = 0;
  const bool done = WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != FALSE;
  CloseHandle(file);
  return done && written == text.size();
}

bool writeNew(const std::filesystem::path& path, std::string_view text) {
  return write(path, CREATE_NEW, text);
}
bool writeMore(const std::filesystem::path& path, std::string_view text) {
  return write(path, OPEN_EXISTING, text);
}

std::string folderOfVariable(const wchar_t* name) {
  const wchar_t* const folder = _wgetenv(name);
  return folder == nullptr ? std::string() : utf8(folder);
}

std::string dataFolder() { return folderOfVariable(L"LOCALAPPDATA"); }

std::tm localTimeOf(std::time_t now) {
  std::tm parts{};
  localtime_s(&parts, &now);
  return parts;
}
#else
bool write(const std::filesystem::path& path, int how, std::string_view text) {
  constexpr mode_t mode = 0644;
  const int file = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | how, mode);
  if (file < 0) return false;
  const ssize_t written = ::write(file, text.data(), text.size());
  return ::close(file) == 0 && written == static_cast<ssize_t>(text.size());
}

bool writeNew(const std::filesystem::path& path, std::string_view text) {
  return write(path, O_CREAT | O_EXCL, text);
}
bool writeMore(const std::filesystem::path& path, std::string_view text) { return write(path, 0, text); }

/// The system's rule: a relative path in $XDG_DATA_HOME does not count.
std::string dataFolder() {
  const char* const folder = std::getenv("XDG_DATA_HOME");
  if (folder != nullptr && *folder == '/') return folder;
  const char* const home = std::getenv("HOME");
  return home == nullptr || *home == '\0' ? std::string() : std::string(home) + "/.local/share";
}

std::tm localTimeOf(std::time_t now) {
  std::tm parts{};
  localtime_r(&now, &parts);
  return parts;
}
#endif

}  // namespace

bool appendToFile(std::string_view path, std::string_view heading, std::string_view text) {
  const std::filesystem::path file = nativePath(path);
  if (writeMore(file, text)) return true;
  if (isFile(path)) return false;
  try {
    makeFolder(pathText(file.parent_path()));
  } catch (const text::RuntimeError&) {
    return false;
  }
  // Another program may have made the file in between.
  return writeNew(file, std::string(heading) + std::string(text)) || writeMore(file, text);
}

std::string userDataFolder() {
  const std::string folder = dataFolder();
  return folder.empty() ? folder : folder + "/seikahyou";
}

std::string localTime() {
  const std::tm parts = localTimeOf(std::time(nullptr));
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y/%m/%d %H:%M:%S", &parts);
  return {text.data(), length};
}

}  // namespace platform
