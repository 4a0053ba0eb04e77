#include "platform/running.h"

#include <array>
#include <limits>

#ifdef _WIN32
#include <windows.h>

#include "platform/wide.h"
#else
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace platform {

#ifdef _WIN32

std::uint64_t processNumber() { return GetCurrentProcessId(); }

bool isRunning(std::uint64_t process) {
  if (process > std::numeric_limits<DWORD>::max()) return false;
  const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
  if (handle == nullptr) return GetLastError() == ERROR_ACCESS_DENIED;
  const bool lives = WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
  CloseHandle(handle);
  return lives;
}

std::string machineName() {
  std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
  auto length = static_cast<DWORD>(name.size());
  return GetComputerNameW(name.data(), &length) ? utf8(name.data()) : std::string();
}

#else

std::uint64_t processNumber() { return static_cast<std::uint64_t>(getpid()); }

bool isRunning(std::uint64_t process) {
  if (process == 0 || process > static_cast<std::uint64_t>(std::numeric_limits<pid_t>::max())) return false;
  return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

std::string machineName() {
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? std::string(name.data()) : std::string();
}

#endif

}  // namespace platform
