#pragma once

#include <optional>
#include <string>

#include "jobs/examine.h"

namespace jobs {

/// What is the matter with a path that leads to no job database, as far as the file itself tells: no path, a
/// folder, nothing there, a text, a spreadsheet, a database of a version that no engine here reads … Nothing
/// where an engine may try it.
std::optional<Trouble> strangeFile(const std::string& path);

/// The first bytes of a file, at most 4096; "" where it cannot be read.
std::string beginningOf(const std::string& path);

}  // namespace jobs
