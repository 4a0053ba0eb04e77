#pragma once

#include <memory>
#include <string>

#include "engine/reader.h"
#include "sqlite/connection.h"

namespace db {

/// The records that `sql`, a SELECT in SQLite's own form, yields.
std::unique_ptr<Recordset> sqliteReader(const std::shared_ptr<SqliteConnection>& connection,
                                        const std::string& sql);

}  // namespace db
