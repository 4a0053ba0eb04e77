#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "job/schema.h"

namespace exchange {

/// What a column is declared to hold.
enum class Kind {
  Text,
  Number,
  Other  ///< dates, raw bytes, columns without a type
};

/// The kind of a declared type, whichever engine's words it uses ("TEXT(2)", "character varying", "LONGCHAR",
/// "DOUBLE", "int4" …).
Kind kindOf(std::string_view type);

/// True for a declared type whose columns hold whole numbers ("INTEGER", "int8", "BIGINT").
bool isWholeType(std::string_view type);

/// The columns of a table in their order; nothing where the database has no such table. Any other trouble
/// raises db::Error: a table that cannot be looked at must not pass for one that is not there.
std::optional<std::vector<db::ColumnDefinition>> definitionOf(db::Database& database, std::string_view table);

/// The column of that name whatever its letter case; null where there is none.
const db::ColumnDefinition* findColumn(const std::vector<db::ColumnDefinition>& columns,
                                       std::string_view name);

/// The job table of that name whatever its letter case. Raises db::Error, naming it, where a job has none.
const job::TableSchema& jobTable(std::string_view name);

/// How many records a table holds.
std::int64_t countRecords(db::Database& database, const std::string& table);

/// A value as text from which it can be read back exactly: a number in the shortest form that does so. Null
/// is "".
std::string exactText(const db::Value& value);

}  // namespace exchange
