#pragma once

#include <string>
#include <string_view>

#include "db/database.h"

namespace db {

/// The Japanese description of what SQLite reports about the database file `file`: `code` is its result code,
/// `words` its own message, which ends the description and from which names of tables and columns are taken.
/// `table` is the table that was being written, "" where none was.
Error sqliteError(int code, std::string_view words, std::string_view file, std::string_view table = {});

/// True where the medium itself has failed: disk full, read or write error, damaged file; or
/// memory has run out.
bool isMediumFailure(int code);

}  // namespace db
