#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sql/result_columns.h"

namespace db {

/// What tells whether SQLite may make up an index for the tables of a SELECT.
///
/// Before such an index SQLite 3.38 to 3.40 puts a Bloom filter that hashes texts by their length: texts that
/// differ in trailing blanks alone are equal here, yet would not be found. Where no compared text ends in a
/// blank, the filter does no harm.
struct JoinedTexts {
  bool joins = false;  ///< more than one table is read
  /// For each table a SELECT that yields a record where a text that the join may compare ends in a blank;
  /// nothing where the text of the SELECT is too involved to tell.
  std::optional<std::vector<std::string>> blanksSql;
};

/// Looks through a SELECT in the survey suite's SQL; `columnsOf` knows the tables.
JoinedTexts joinedTexts(std::string_view sql, const ColumnsOf& columnsOf);

}  // namespace db
