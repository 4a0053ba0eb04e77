#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/csv_records.h"
#include "exchange/tables.h"
#include "text/csv.h"

namespace {

const std::vector<db::ColumnDefinition>& table() {
  static const std::vector<db::ColumnDefinition> columns{
      {"JobId", "TEXT(2)"}, {"標高", "REAL"}, {"SaveOrder", "INTEGER"}, {"a,\"b\"", "BLOB"}};
  return columns;
}

void require(bool holds) {
  if (!holds) std::abort();
}

/// A number beyond a double's whole ones may come back as its digits.
bool isSame(const exchange::Row& one, const exchange::Row& other) {
  return std::equal(
      one.begin(), one.end(), other.begin(), other.end(), [](const db::Value& value, const db::Value& back) {
        return value.isNull() == back.isNull() && exchange::exactText(value) == exchange::exactText(back);
      });
}

/// The records as a file, in the way in which a table is exported.
std::string fileOf(const exchange::CsvRecords& records) {
  std::string bytes;
  for (std::size_t i = 0; i < records.columns.size(); ++i) {
    if (i > 0) bytes += ',';
    text::appendField(bytes, records.columns[i], false);
  }
  bytes += "\r\n";
  for (const exchange::Row& row : records.rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) bytes += ',';
      text::appendField(bytes, exchange::exactText(row[i]), row[i].isText());
    }
    bytes += "\r\n";
  }
  return bytes;
}

}  // namespace

/// Any bytes are taken as a file for a table. A fault has a line and a field; what is read fits the table,
/// and written out it reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const auto encoding = data[0] % 2 == 0 ? exchange::Encoding::Utf8 : exchange::Encoding::Cp932;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  exchange::CsvRecords records;
  try {
    records = exchange::readCsvRecords(bytes, table(), encoding);
  } catch (const text::CsvFault& fault) {
    require(fault.line() > 0 && fault.field() > 0);
    return 0;
  }
  for (const exchange::Row& row : records.rows) {
    require(row.size() == records.columns.size());
    for (std::size_t i = 0; i < row.size(); ++i)
      if (records.columns[i] == "標高") require(row[i].isNull() || row[i].isNumber());
  }
  const exchange::CsvRecords again =
      exchange::readCsvRecords(fileOf(records), table(), exchange::Encoding::Utf8);
  require(again.columns == records.columns && again.rows.size() == records.rows.size());
  for (std::size_t i = 0; i < again.rows.size(); ++i) require(isSame(again.rows[i], records.rows[i]));
  return 0;
}
