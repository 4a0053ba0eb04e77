#include "exchange/csv_file.h"
#include "exchange/csv_records.h"
#include "exchange/table_writer.h"
#include "exchange/tables.h"
#include "open/open.h"
#include "platform/input_file.h"
#include "text/csv.h"
#include "text/error.h"

namespace exchange {
namespace {

std::string readCsv(const std::string& file) {
  try {
    return platform::readInput("CSV ファイル", file, platform::mostTextBytes);
  } catch (const text::RuntimeError& error) {
    throw db::Error(error.what());
  }
}

CsvRecords recordsOf(const std::string& file, const std::vector<db::ColumnDefinition>& table,
                     Encoding encoding) {
  const std::string content = readCsv(file);
  try {
    return readCsvRecords(content, table, encoding);
  } catch (const text::CsvFault& fault) {
    throw db::Error("CSV ファイル「" + file + "」の " + fault.what() + " 何も取り込んでいません。");
  }
}

}  // namespace

std::int64_t importCsv(const std::string& job, const std::string& table, const std::string& file,
                       Encoding encoding) {
  const std::string& name = jobTable(table).name;
  const auto database = db::openDatabase(job);
  const std::vector<db::ColumnDefinition> definition = database->tableDefinition(name);
  database->close();
  const CsvRecords records = recordsOf(file, definition, encoding);
  writeTable(job, name, records.columns, [&records](TableWriter& writer) {
    for (const Row& row : records.rows) writer.add(row);
  });
  return static_cast<std::int64_t>(records.rows.size());
}

}  // namespace exchange
