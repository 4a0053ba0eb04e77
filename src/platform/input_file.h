#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// What keeps a file from being read.
enum class ReadObstacle {
  Missing,
  IsFolder,
  NoFile,  ///< a device, a pipe or the like, which may never come to an end
  Denied,  ///< the system does not let this user read it
  InUse,   ///< another program keeps it for itself
  Failed   ///< the medium fails
};

/// Why the file at `path` cannot be read; nothing where it can be opened.
std::optional<ReadObstacle> readObstacle(std::string_view path);

/// The largest file of texts that is read whole, in bytes: 256 MiB, some millions of records.
inline constexpr std::uintmax_t mostTextBytes = 256U << 20U;

/// The largest operation script, in bytes: 16 MiB.
inline constexpr std::uintmax_t mostScriptBytes = 16U << 20U;

/// Reads a whole file that an operator has named and that may have at most `most` bytes. Raises
/// text::RuntimeError with a sentence that begins with `what`, as the operator knows such files ("CSV
/// ファイル"), and the path, and tells apart what is missing, a folder, no file, too large, forbidden, in use
/// or beyond the memory.
std::string readInput(std::string_view what, std::string_view path, std::uintmax_t most);

}  // namespace platform
