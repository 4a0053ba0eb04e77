#pragma once

#include <memory>
#include <string>

#include "engine/reader.h"
#include "odbc/connection.h"

namespace db {

/// The records that `sql`, a SELECT in the engine's own form, yields, read from the driver as one goes
/// forward.
std::unique_ptr<Recordset> odbcReader(const std::shared_ptr<OdbcConnection>& connection,
                                      const std::string& sql);

}  // namespace db
