#include "exchange/csv_records.h"

#include <algorithm>

#include "exchange/tables.h"
#include "text/csv.h"
#include "text/number.h"
#include "text/padding.h"

namespace exchange {
namespace {

using text::CsvFault;
using text::CsvReader;

using Record = std::vector<text::CsvField>;

/// Reads a file's records for one table.
class Importer {
 public:
  Importer(std::vector<db::ColumnDefinition> table, Encoding encoding)
      : table_(std::move(table)), encoding_(encoding) {}

  /// Takes the row of column names.
  void readHeading(const Record& record) {
    for (std::size_t i = 0; i < record.size(); ++i) {
      const std::string name(text::trimmed(decodedField(record, i)));
      const db::ColumnDefinition* const column = findColumn(table_, name);
      if (column == nullptr) fail(record, i, "見出しの列「" + name + "」はテーブルにありません。");
      if (findColumn(columns_, name) != nullptr)
        fail(record, i, "見出しに列「" + name + "」が二度あります。");
      columns_.push_back(*column);
    }
  }

  Row read(const Record& record) const {
    if (record.size() != columns_.size())
      fail(record, std::min(record.size(), columns_.size() + 1) - 1,
           "項目の数が " + std::to_string(record.size()) + " で、見出しの " +
               std::to_string(columns_.size()) + " と違います。");
    Row row;
    row.reserve(record.size());
    for (std::size_t i = 0; i < record.size(); ++i) row.push_back(value(record, i));
    return row;
  }

  std::vector<std::string> names() const {
    std::vector<std::string> result;
    for (const db::ColumnDefinition& column : columns_) result.push_back(column.name);
    return result;
  }

 private:
  db::Value value(const Record& record, std::size_t at) const {
    const text::CsvField& field = record[at];
    if (field.bytes.empty() && !field.quoted) return {};
    std::string words = decodedField(record, at);
    const Kind kind = kindOf(columns_[at].type);
    if (kind == Kind::Text) return words;
    if (kind == Kind::Other && (field.quoted || !text::isNumeric(words))) return words;
    if (isWholeType(columns_[at].type) && db::isLongWhole(words)) return words;  // more than a double holds
    if (!text::isNumeric(words)) fail(record, at, "数値の列に「" + words + "」があります。");
    try {
      return text::readNumber(words);
    } catch (const text::RuntimeError&) {
      fail(record, at, "数値「" + words + "」は大きすぎます。");
    }
  }

  std::string decodedField(const Record& record, std::size_t at) const {
    auto words = platform::decoded(record[at].bytes, encoding_);
    if (!words) refuseBytes(record, at);
    return *words;
  }

  /// Names the line of the bad byte: a field in quotes may go over several.
  [[noreturn]] void refuseBytes(const Record& record, std::size_t at) const {
    std::size_t line = record[at].line;
    std::string_view rest = record[at].bytes;
    for (; platform::decoded(rest.substr(0, rest.find('\n')), encoding_); ++line)
      rest.remove_prefix(rest.find('\n') + 1);
    const char* const encoding = encoding_ == Encoding::Utf8 ? "UTF-8" : "CP932";
    fail(line, at, std::string(encoding) + " として正しくないバイトがあります。");
  }

  [[noreturn]] void fail(const Record& record, std::size_t at, const std::string& words) const {
    fail(record[at].line, at, words);
  }

  [[noreturn]] void fail(std::size_t line, std::size_t at, const std::string& words) const {
    const std::string column = at < columns_.size() ? "列「" + columns_[at].name + "」: " : "";
    throw CsvFault(line, at + 1, column + words);
  }

  std::vector<db::ColumnDefinition> table_;
  Encoding encoding_;
  std::vector<db::ColumnDefinition> columns_;  // as the file names them
};

}  // namespace

CsvRecords readCsvRecords(std::string_view bytes, const std::vector<db::ColumnDefinition>& table,
                          Encoding encoding) {
  if (encoding == Encoding::Utf8 && bytes.starts_with(platform::utf8Mark))
    bytes.remove_prefix(platform::utf8Mark.size());
  Importer importer(table, encoding);
  CsvReader reader(bytes);
  Record record;
  if (!reader.next(record)) throw CsvFault(1, 1, "見出しの行がありません。");
  importer.readHeading(record);
  CsvRecords result{importer.names(), {}};
  while (reader.next(record)) result.rows.push_back(importer.read(record));
  return result;
}

}  // namespace exchange
