#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/growing_file.h"

// The file system as the rest of the house sees it. Path texts keep the form in which operators and databases
// write them ("\" or "/" between folders, UTF-8); they are turned into the platform's form here and nowhere
// else.

namespace platform {

/// The platform's path for a path text.
std::filesystem::path nativePath(std::string_view path);

/// The UTF-8 text of a platform path.
std::string pathText(const std::filesystem::path& path);

/// True where a normal file stands at `path`.
bool isFile(std::string_view path);

/// True where a folder stands at `path`.
bool isFolder(std::string_view path);

/// What stands at a path.
enum class Standing {
  Nothing,
  File,
  Link,  ///< wherever it leads
  Folder,
  Other  ///< a device, a pipe or the like
};

/// What stands at `path`; links are not followed.
Standing standingAt(std::string_view path);

/// The first line of a text file without its line end and without a UTF-8 mark at its front; "" for an empty
/// file, nothing where the file cannot be read.
std::optional<std::string> firstLine(std::string_view path);

/// The whole of a file; nothing where it cannot be read.
std::optional<std::string> readFile(std::string_view path);

/// True where both paths lead to one and the same file or folder that is there.
bool isSameFile(std::string_view path, std::string_view other);

/// What tells whether a file has been written anew.
struct FileState {
  std::filesystem::file_time_type written;
  std::uintmax_t size = 0;  ///< bytes

  bool operator==(const FileState&) const = default;
};

/// The state of the file at `path`; nothing where there is none.
std::optional<FileState> fileState(std::string_view path);

/// Writes a whole file in the place of whatever file is at `path`; one that was there stays until the new one
/// is complete. Raises PathNotFound where it cannot be written.
void writeFile(std::string_view path, std::string_view content);

/// Makes the folder at `path` and those above it that are missing. Raises PathNotFound where that fails.
void makeFolder(std::string_view path);

/// Copies a file over whatever file is at `to`. Raises FileNotFound where `from` is missing, PathNotFound
/// where `to` cannot be written.
void copyFile(std::string_view from, std::string_view to);

/// Deletes a file. Raises FileNotFound where there is none, or none that can be deleted; a folder is no file.
void removeFile(std::string_view path);

}  // namespace platform
