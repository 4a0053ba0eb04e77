#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

/// What keeps a file from being written.
enum class WriteObstacle {
  NoFolder,  ///< the folder that it should stand in is not there
  IsFolder,  ///< a folder of that name is there
  Full,      ///< the medium has no room for it
  ReadOnly,  ///< the medium is not written to at all
  Denied,    ///< the system does not let this user write there
  InUse,     ///< another program keeps the file for itself
  Failed     ///< nothing that could be told afterwards
};

/// Why a file of `bytes` bytes could not be written to `path`, looked at after the attempt has failed.
WriteObstacle writeObstacle(std::string_view path, std::uintmax_t bytes);

/// The obstacle as an operator is told of it: a sentence that stands behind the one that names the file.
std::string wordsFor(WriteObstacle obstacle);

}  // namespace platform
