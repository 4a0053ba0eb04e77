#pragma once

#include <string>
#include <string_view>

namespace platform {

/// A file that grows beside the one whose place it takes in the end; whoever writes it writes to path().
///
/// It has a name that no other program uses ("seikahyou-….part"), which tells for which file, on which
/// machine and by which process it was begun. So whatever else ends in ".part" stays as it is, and what a
/// killed process has left of the same file goes when the next one begins.
class GrowingFile {
 public:
  /// `path`: the file that is to be written or replaced. Nothing is made yet.
  explicit GrowingFile(std::string_view path);
  /// Deletes what has grown, with the journals that SQLite keeps beside it, where it was not finished; the
  /// file at the target is what it was.
  ~GrowingFile();
  GrowingFile(const GrowingFile&) = delete;
  GrowingFile& operator=(const GrowingFile&) = delete;

  /// Where the content grows.
  const std::string& path() const { return path_; }
  /// Puts the complete file, closed by its writer, in the target's place. Raises PathNotFound where that
  /// fails.
  void finish();
  /// The same where nothing stands at the target; false, and nothing done, where something does by now.
  bool finishNew();

 private:
  std::string target_;
  std::string path_;
  bool finished_ = false;
};

}  // namespace platform
