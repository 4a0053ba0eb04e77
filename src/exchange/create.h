#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "job/schema.h"

namespace exchange {

/// Makes an empty job with every table: a new SQLite file at `path`, or tables in the database that the file
/// data source (.dsn) at `path` tells of. Raises db::Error where a file, or a job table behind the data
/// source, stands there already, where the name belongs to an Access file, or where it cannot be made; then
/// everything is as it was before. `fill` puts the first records into the tables; it belongs to the making,
/// which fails as a whole where `fill` does.
void createJob(const std::string& path, const std::function<void(db::Database&)>& fill = {});

/// Makes a new SQLite file at `path` with what `fill` writes into it, all of it in one piece: it grows beside
/// that path under a name of its own, so neither a full medium nor a killed process leaves a part of it
/// there. Raises db::Error where something stands there already, where the name belongs to another engine
/// (.mdb, .accdb, .dsn), and where `fill` raises anything.
void makeFile(const std::string& path, const std::function<void(db::Database&)>& fill);

/// True where something stands at `path`.
bool isThere(const std::string& path);

/// Makes `table` with its indexes in a database that lacks it. Where `like` holds the table's columns in
/// another database, a column that holds texts there and numbers here, or the other way round, takes the kind
/// it has there, and columns that the schema does not know are added, so that every value fits as it is.
void createTable(db::Database& database, const job::TableSchema& table,
                 const std::vector<db::ColumnDefinition>& like);

/// Adds the columns of `like` that the table lacks.
void addMissingColumns(db::Database& database, const std::string& table,
                       const std::vector<db::ColumnDefinition>& like);

}  // namespace exchange
