#pragma once

#include <chrono>
#include <memory>
#include <string_view>

namespace platform {

/// What a process answers while it runs, instead of an exit code.
inline constexpr unsigned long stillActive = 259;

/// A program that this one has started. It runs on by itself: neither close nor the destructor ends it.
class Process {
 public:
  /// Starts the program at `path` (path text with "\" or "/" between folders; blanks and Japanese are
  /// welcome) without arguments, in a normal window that has the focus. The path, wrapped in double quotes,
  /// is the whole command text. The program gets no standard input and its standard output is dropped, so
  /// that it never writes into a transcript of ours. Raises FileNotFound where there is no such file, and the
  /// same code with a description of its own where the system refuses to run it.
  explicit Process(std::string_view path);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  /// stillActive while the program runs, then its exit code; 0 once closed. Never waits.
  unsigned long exitCode();

  /// Gives the process free. A second call does nothing.
  void close();

 private:
  struct Handle;
  std::unique_ptr<Handle> handle_;
};

/// Rests for this long, so that a loop that polls something does not keep a core busy.
void pause(std::chrono::milliseconds time);

}  // namespace platform
