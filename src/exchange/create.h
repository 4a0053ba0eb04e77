#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "job/schema.h"

namespace exchange {

/// Makes a new, empty job database with every table at `path` (an SQLite file). Raises db::Error where
/// something stands there already, where the name belongs to a database of another engine (.mdb, .accdb,
/// .dsn), or where the file cannot be made; then it leaves no file behind.
void createJob(const std::string& path);

/// Makes a new, empty database file without tables; raises as createJob does.
void createFile(const std::string& path);

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
