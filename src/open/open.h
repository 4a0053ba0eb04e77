#pragma once

#include <memory>
#include <string_view>

#include "db/database.h"

namespace db {

/// Opens the job database at `path` (text as in the job context, "\" or "/" between folders) for reading and
/// writing. Never creates one. Raises Error, naming the file, where it is missing, a folder, or no database.
std::unique_ptr<Database> openDatabase(std::string_view path);

/// Makes a new, empty database file at `path` and opens it. Raises Error where a file is there already or
/// cannot be made.
std::unique_ptr<Database> createDatabase(std::string_view path);

}  // namespace db
