#pragma once

#include <string_view>

namespace db {

/// Copies the SQLite database at `from` into a new file at `to` with SQLite's own safe copy: one state of the
/// database, whole, while other programs work on it. Raises Error where that fails; no file is left then.
void copySqliteDatabase(std::string_view from, std::string_view to);

}  // namespace db
