#include "report/csv_writer.h"

#include "text/csv.h"
#include "text/error.h"

namespace report {
namespace {

/// The content of a file as it grows.
class Content {
 public:
  Content(const Table& table, platform::Encoding encoding) : table_(table), encoding_(encoding) {
    if (encoding == platform::Encoding::Utf8) bytes_ = platform::utf8Mark;
    for (std::size_t i = 0; i < table.columns.size(); ++i) add(i, table.columns[i].title());
    bytes_ += "\r\n";
    for (const Row& row : table.rows) add(row);
  }

  std::string take() { return std::move(bytes_); }

 private:
  void add(const Row& row) {
    ++row_;
    for (std::size_t i = 0; i < table_.columns.size(); ++i) add(i, row.cell(i));
    bytes_ += "\r\n";
  }

  void add(std::size_t column, const std::string& words) {
    const auto bytes = platform::encoded(words, encoding_);
    if (!bytes) refuse(column, words);
    if (column > 0) bytes_ += ',';
    text::appendField(bytes_, *bytes, false);
  }

  [[noreturn]] void refuse(std::size_t column, const std::string& words) const {
    throw text::RuntimeError(text::ErrorCode::TypeMismatch,
                             std::to_string(row_) + " 行目の列「" + table_.columns[column].heading +
                                 "」の文字「" + platform::firstLacking(words, encoding_) +
                                 "」は、この CSV の文字コードにありません。");
  }

  const Table& table_;
  platform::Encoding encoding_;
  std::string bytes_;
  int row_ = 0;
};

}  // namespace

std::string csvOf(const Document& document, platform::Encoding encoding) {
  const std::vector<Table> tables = gathered(document);
  if (tables.empty()) return {};
  return Content(tables.front(), encoding).take();
}

}  // namespace report
