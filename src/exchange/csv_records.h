#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "exchange/table_writer.h"
#include "platform/text_encoding.h"

namespace exchange {

using platform::Encoding;

/// The records of a CSV file for one table.
struct CsvRecords {
  std::vector<std::string> columns;  ///< as the table names them, in the order of the file
  std::vector<Row> rows;
};

/// Reads the bytes of a file for a table with these columns. The first row names columns, in any order and
/// letter case; an empty field without quotes is Null. Raises text::CsvFault, naming line and column, for a
/// column that the table lacks or that comes twice, a wrong number of fields, a byte that is no character,
/// and a text in a column of numbers.
CsvRecords readCsvRecords(std::string_view bytes, const std::vector<db::ColumnDefinition>& table,
                          Encoding encoding);

}  // namespace exchange
