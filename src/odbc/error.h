#pragma once

#include <string_view>

#include "db/database.h"
#include "odbc/calls.h"

namespace db {

/// The Japanese description of what a driver reports about the database that `file` names; the engine's words
/// end it, and names of tables and columns are taken from them. `table` is the table that was being written,
/// "" where none was.
Error odbcError(const OdbcDiagnosis& diagnosis, std::string_view file, std::string_view table = {});

/// True where the way to the server has ended.
bool isConnectionLost(const OdbcDiagnosis& diagnosis);

/// True where the server or the medium itself has failed: connection lost, disk full, read or write error.
bool isMediumFailure(const OdbcDiagnosis& diagnosis);

}  // namespace db
