#include "platform/process.h"

#include <string>
#include <thread>

#include "platform/files.h"
#include "text/error.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#endif

namespace platform {
namespace {

[[noreturn]] void raiseNotStarted(std::string_view path, const std::string& reason) {
  throw text::RuntimeError(text::ErrorCode::FileNotFound,
                           "プログラムを起動できません。" + std::string(path) + "（" + reason + "）");
}

}  // namespace

#ifdef _WIN32

struct Process::Handle {
  explicit Handle(std::string_view path) {
    std::wstring command = L"\"" + nativePath(path).wstring() + L"\"";
    STARTUPINFOW window{};  // of the standard streams none is handed on
    window.cb = sizeof window;
    window.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
    window.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &window,
                        &started))
      raiseNotStarted(path, "Windows error " + std::to_string(GetLastError()));
    CloseHandle(started.hThread);
    process = started.hProcess;
  }
  ~Handle() { CloseHandle(process); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  unsigned long exitCode() const {
    DWORD code = 0;
    return GetExitCodeProcess(process, &code) ? code : 0;
  }

  HANDLE process = nullptr;
};

#else

namespace {

/// Where the three standard streams of a started program lead: nowhere in, nowhere out, errors as ours.
class Streams {
 public:
  Streams() {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  }
  ~Streams() { posix_spawn_file_actions_destroy(&actions_); }
  Streams(const Streams&) = delete;
  Streams& operator=(const Streams&) = delete;

  const posix_spawn_file_actions_t* actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

/// The exit code as a shell reports it: 128 and the signal's number for a program that a signal has ended.
unsigned long codeOfStatus(int status) {
  return static_cast<unsigned long>(WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status));
}

}  // namespace

struct Process::Handle {
  explicit Handle(std::string_view path) {
    std::string program = nativePath(path).string();
    const std::array<char*, 2> arguments = {program.data(), nullptr};
    const Streams streams;
    const int error =
        posix_spawn(&id, program.c_str(), streams.actions(), nullptr, arguments.data(), environ);
    if (error != 0) raiseNotStarted(path, std::strerror(error));
  }

  unsigned long exitCode() {
    int status = 0;
    if (code != stillActive) return code;
    const pid_t answer = waitpid(id, &status, WNOHANG);
    if (answer == id) code = codeOfStatus(status);
    if (answer < 0 && errno != EINTR) code = 0;
    return code;
  }

  pid_t id = 0;
  unsigned long code = stillActive;  // kept, as the system tells the exit code once only
};

#endif

Process::Process(std::string_view path) {
  if (!isFile(path)) throw text::RuntimeError(text::ErrorCode::FileNotFound);
  handle_ = std::make_unique<Handle>(path);
}

Process::~Process() = default;

unsigned long Process::exitCode() { return handle_ ? handle_->exitCode() : 0; }

void Process::close() { handle_.reset(); }

void pause(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }

}  // namespace platform
