#pragma once

#include <string_view>

namespace sample {

/// The SQL text of schema.sql: every table of a job database with its indexes, several statements.
std::string_view schemaSql();

}  // namespace sample
