#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace job {

/// A column as the schema declares it.
struct ColumnSchema {
  std::string name;
  std::string declaration;  ///< what stands behind the name, such as "TEXT(1) COLLATE RTRIM"
};

/// A table of a job database.
struct TableSchema {
  std::string name;
  std::vector<ColumnSchema> columns;
  std::vector<std::string> indexes;  ///< one CREATE INDEX statement each
};

/// The SQL text of schema.sql: every table of a job database with its indexes, several statements.
std::string_view schemaSql();

/// The tables that schemaSql makes, in its order.
const std::vector<TableSchema>& schemaTables();

}  // namespace job
