#pragma once

#include <memory>
#include <string>

#include "engine/editor.h"
#include "sqlite/connection.h"

namespace db {

/// The records of one table that `sql`, "SELECT * FROM one table [WHERE …] [ORDER BY …]" in SQLite's own
/// form, yields, for deleting, adding and changing them. Only their rowids are kept. Raises Error for any
/// other SELECT, and for a view or a table without rowids.
std::unique_ptr<Recordset> sqliteEditor(const std::shared_ptr<SqliteConnection>& connection,
                                        const std::string& sql);

}  // namespace db
