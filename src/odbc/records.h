#pragma once

#include <memory>
#include <string>

#include "engine/editor.h"
#include "odbc/connection.h"

namespace db {

/// The records of one table that `sql`, "SELECT * FROM table [WHERE …] [ORDER BY …]" in the engine's own
/// form, yields, for deleting, adding and changing them; their keys are kept. `table` is the table's name as
/// the caller wrote it.
std::unique_ptr<Recordset> odbcEditor(const std::shared_ptr<OdbcConnection>& connection,
                                      const std::string& sql, const std::string& table);

}  // namespace db
