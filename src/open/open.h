#pragma once

#include <memory>
#include <string_view>

#include "db/database.h"

namespace db {

/// Opens the job database at `path` (text as in the job context, "\" or "/" between folders) for reading and
/// writing. Never creates one. Raises Error, naming the file, where it is missing, a folder, or no database.
std::unique_ptr<Database> openDatabase(std::string_view path);

/// The kinds of database file, as their first bytes or their name tell them.
enum class FileKind { Unknown, Sqlite, Access, DataSource };

/// The kind of the file at `path` that begins with the bytes `beginning`.
FileKind fileKind(std::string_view path, std::string_view beginning);

/// True where a file stands at `path` that openDatabase takes for a job database or the way to one, whether
/// it can be opened or not: a file that begins as an SQLite or Access file, or a file data source (.dsn).
bool isDatabase(std::string_view path);

/// The kind of the file at `path`. Raises Error, naming it, where it cannot be read.
FileKind kindOfFile(std::string_view path);

/// Makes a new, empty database file at `path` and opens it. Raises Error where a file is there already or
/// cannot be made.
std::unique_ptr<Database> createDatabase(std::string_view path);

}  // namespace db
