#pragma once

#include <string>

#include "measure.h"

namespace bench {

/// The measuring job through the ODBC driver of SQLite: the same file, which the bare side opens without the
/// driver. The file data source is written into `folder`. Raises std::exception where the driver is missing.
EngineJob sqliteOverOdbc(const Job& job, const std::string& folder);

/// A copy of the measuring job in a PostgreSQL server of its own, which runs as long as the returned job is
/// held; the bare side speaks to it through libpq. The file data source is written into `folder`. Raises
/// std::exception where server, driver or libpq are missing.
EngineJob onPostgres(const Job& job, const std::string& folder);

}  // namespace bench
