#include "exchange/create.h"
#include "exchange/csv_file.h"
#include "exchange/tables.h"
#include "open/open.h"
#include "platform/files.h"
#include "platform/write_obstacle.h"
#include "text/csv.h"

namespace exchange {
namespace {

/// Texts in a column without a kind of its own stand in quotes: without them they might pass for numbers.
bool needsQuotes(const db::Value& value, Kind kind) {
  return value.isText() && (value.text().empty() || kind == Kind::Other);
}

/// The content of a file as it grows.
class Content {
 public:
  Content(std::string table, std::vector<db::ColumnDefinition> columns, Encoding encoding)
      : table_(std::move(table)), columns_(std::move(columns)), encoding_(encoding) {
    if (encoding_ == Encoding::Utf8) bytes_ = platform::utf8Mark;
    for (std::size_t i = 0; i < columns_.size(); ++i) add(i, columns_[i].name, false);
    bytes_ += "\r\n";
  }

  void add(const db::Recordset& records, const std::vector<db::Column>& columns) {
    ++record_;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const db::Value value = records.value(columns[i]);
      if (value.isBytes()) throw db::Error(placeOf(i) + "はバイト列で、CSV ファイルには書けません。");
      add(i, exactText(value), needsQuotes(value, kindOf(columns_[i].type)));
    }
    bytes_ += "\r\n";
  }

  const std::string& bytes() const { return bytes_; }
  std::int64_t records() const { return record_; }

 private:
  void add(std::size_t column, const std::string& words, bool quoted) {
    const auto bytes = platform::encoded(words, encoding_);
    if (!bytes) refuse(column, words);
    if (column > 0) bytes_ += ',';
    text::appendField(bytes_, *bytes, quoted);
  }

  std::string placeOf(std::size_t column) const {
    return "テーブル「" + table_ + "」の " + std::to_string(record_) + " 件目の列「" + columns_[column].name +
           "」";
  }

  [[noreturn]] void refuse(std::size_t column, const std::string& words) const {
    const std::string place = placeOf(column);
    if (!platform::encoded(words, Encoding::Utf8))
      throw db::Error(place + "に文字として正しくないバイトがあります。");
    throw db::Error(place + "の文字「" + platform::firstLacking(words, encoding_) +
                    "」は CP932 にありません。");
  }

  std::string table_;
  std::vector<db::ColumnDefinition> columns_;
  Encoding encoding_;
  std::string bytes_;
  std::int64_t record_ = 0;
};

void save(const std::string& file, const std::string& bytes) {
  try {
    platform::writeFile(file, bytes);
  } catch (const text::RuntimeError&) {
    throw db::Error("CSV ファイル「" + file + "」に書き込めません。" +
                    platform::wordsFor(platform::writeObstacle(file, bytes.size())));
  }
}

/// Why nothing is put in the place of what stands at the file's path; "" where nothing stands in the way.
const char* replacingFault(const std::string& file) {
  switch (platform::standingAt(file)) {
    case platform::Standing::Nothing:
      return "";
    case platform::Standing::Link:
      return "はリンクです。リンク先のファイルを指定してください。";
    case platform::Standing::Folder:
      return "はフォルダです。";
    case platform::Standing::Other:
      return "は装置やパイプで、ファイルではありません。";
    case platform::Standing::File:
      break;
  }
  return db::isDatabase(file) ? "はデータベースです。CSV ファイルで置き換えることはしません。" : "";
}

void requireReplaceable(const std::string& file) {
  const std::string why = replacingFault(file);
  if (!why.empty()) throw db::Error("CSV ファイル「" + file + "」" + why);
}

}  // namespace

std::int64_t exportCsv(const std::string& job, const std::string& table, const std::string& file,
                       Encoding encoding) {
  if (platform::isSameFile(job, file))
    throw db::Error("CSV ファイル「" + file + "」はジョブデータベースそのものです。");
  requireReplaceable(file);
  const std::string& name = jobTable(table).name;
  const auto database = db::openDatabase(job);
  const auto definition = database->tableDefinition(name);
  const auto records = database->openRecordset("SELECT * FROM " + name);
  std::vector<db::Column> columns;
  for (const db::ColumnDefinition& column : definition) columns.push_back(records->column(column.name));
  Content content(name, definition, encoding);
  for (; !records->eof(); records->moveNext()) content.add(*records, columns);
  database->close();
  save(file, content.bytes());
  return content.records();
}

}  // namespace exchange
