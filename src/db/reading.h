#pragma once

#include <functional>

namespace db {

/// For as long as it lives, each record that is read on this thread is told to `each`; what that raises ends
/// the reading. Of several the innermost one is told. What an engine takes before its first record is not
/// told of.
class ReadingWatch {
 public:
  explicit ReadingWatch(std::function<void()> each);
  ~ReadingWatch();
  ReadingWatch(const ReadingWatch&) = delete;
  ReadingWatch& operator=(const ReadingWatch&) = delete;

  /// A record has been read. Raises what the watch raises.
  static void tell();

 private:
  std::function<void()> each_;
  ReadingWatch* outer_;
};

}  // namespace db
