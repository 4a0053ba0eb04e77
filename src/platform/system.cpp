#include "platform/system.h"

#include "platform/files.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// windows.h first: the others need its types.
#include <psapi.h>
#include <shellapi.h>

#include <cstdio>

#include "platform/wide.h"
#else
#include <sys/resource.h>
#endif

namespace platform {

std::string_view behindProgramName(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  std::size_t end = text.starts_with('"') ? text.find('"', 1) : text.find_first_of(blanks);
  if (end == std::string_view::npos) return {};
  end = text.find_first_not_of(blanks, text[end] == '"' ? end + 1 : end);
  return end == std::string_view::npos ? std::string_view() : text.substr(end);
}

#ifdef _WIN32

std::string commandLineText(int, char**) { return std::string(behindProgramName(utf8(GetCommandLineW()))); }

std::vector<std::string> commandLineWords(int, char**) {
  int count = 0;
  LPWSTR* const all = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> words;
  for (int i = 1; all != nullptr && i < count; ++i) words.push_back(utf8(all[i]));
  LocalFree(all);
  return words;
}

void useByteStreams() {
  for (std::FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);  // nothing happens without a console
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

void useByteStreams() {}

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
