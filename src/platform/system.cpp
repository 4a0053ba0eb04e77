#include "platform/system.h"

#include "platform/files.h"

#ifdef _WIN32
#include <windows.h>
// windows.h first: the others need its types.
#include <psapi.h>
#include <shellapi.h>
#else
#include <sys/resource.h>
#endif

namespace platform {

#ifdef _WIN32

namespace {

/// What follows the program's name in the text that the system keeps: the name ends at the closing quote
/// where it begins with one, else at the first blank or tab.
std::wstring behindProgramName(std::wstring text) {
  std::size_t end = text.starts_with(L'"') ? text.find(L'"', 1) : text.find_first_of(L" \t");
  if (end == std::wstring::npos) return {};
  end = text.find_first_not_of(L" \t", text[end] == L'"' ? end + 1 : end);
  return end == std::wstring::npos ? std::wstring() : text.substr(end);
}

}  // namespace

std::string commandLineText(int, char**) {
  return pathText(std::filesystem::path(behindProgramName(GetCommandLineW())));
}

std::vector<std::string> commandLineWords(int, char**) {
  int count = 0;
  LPWSTR* const all = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> words;
  for (int i = 1; all != nullptr && i < count; ++i) words.push_back(pathText(std::filesystem::path(all[i])));
  LocalFree(all);
  return words;
}

std::string programFolder() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return pathText(std::filesystem::path(path).parent_path());
}

std::size_t peakMemory() {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof counters;
  return GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) ? counters.PeakWorkingSetSize
                                                                               : 0;
}

#else

std::string commandLineText(int argc, char** argv) {
  std::string text;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) text += ' ';
    text += argv[i];
  }
  return text;
}

std::vector<std::string> commandLineWords(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

std::string programFolder() {
  return pathText(std::filesystem::read_symlink("/proc/self/exe").parent_path());
}

std::size_t peakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<std::size_t>(usage.ru_maxrss) * 1024U;
}

#endif

}  // namespace platform
