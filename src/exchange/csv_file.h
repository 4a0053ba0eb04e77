#pragma once

#include <cstdint>
#include <string>

#include "platform/text_encoding.h"

namespace exchange {

using platform::Encoding;

/// Writes a job table into the file `file`, over one that is there: a row of column names, then a row for
/// each record. Null is an empty field, an empty text an empty field in quotes; numbers stand as they can be
/// read back exactly. A UTF-8 file begins with its mark. Returns how many records were written. Raises
/// db::Error, naming record and column, for a text that the encoding cannot hold, and then writes nothing.
std::int64_t exportCsv(const std::string& job, const std::string& table, const std::string& file,
                       Encoding encoding);

/// Adds the records of the file `file` to those of a job table. Its first row names columns of the table, in
/// any order and letter case; a column that it does not name stays what the table gives it. An empty field
/// without quotes is Null. The whole file is looked at first: a fault in it is raised as db::Error, naming
/// line and column, before anything is written. Returns how many records were added, all in one commit.
std::int64_t importCsv(const std::string& job, const std::string& table, const std::string& file,
                       Encoding encoding);

}  // namespace exchange
