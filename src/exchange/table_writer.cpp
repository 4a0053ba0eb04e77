#include "exchange/table_writer.h"

#include <exception>

#include "exchange/tables.h"
#include "open/open.h"
#include "text/padding.h"
#include "text/reason.h"

namespace exchange {
namespace {

std::vector<db::Column> positions(const db::Recordset& records, const std::vector<std::string>& names) {
  std::vector<db::Column> columns;
  for (const std::string& name : names) columns.push_back(records.column(name));
  return columns;
}

Row presentRow(const db::Recordset& records, const std::vector<db::Column>& columns) {
  Row row;
  row.reserve(columns.size());
  for (const db::Column column : columns) row.push_back(records.value(column));
  return row;
}

void addTo(db::Recordset& records, const std::vector<std::string>& names, const Row& row) {
  records.addNew();
  for (std::size_t i = 0; i < names.size(); ++i) records.set(names[i], row[i]);
  records.update();
}

/// What stands in the table after a failure, in words.
std::string present(const std::string& path, const std::string& table, std::int64_t before) {
  const std::string named = "テーブル「" + table + "」";
  try {
    const auto database = db::openDatabase(path);
    const std::int64_t now = countRecords(*database, table);
    if (now == before) return named + "は元のままです。";
    return named + "には現在 " + std::to_string(now) + " 件あります（元は " + std::to_string(before) +
           " 件）。";
  } catch (const db::Error&) {
    return named + "が今どうなっているかを確かめられません。";
  }
}

}  // namespace

TableWriter::TableWriter(db::Database& database, std::string table, std::vector<std::string> columns)
    : database_(database),
      table_(std::move(table)),
      columns_(std::move(columns)),
      records_(database_.openRecordset("SELECT * FROM " + table_, db::Access::Edit)) {}

void TableWriter::empty() {
  for (; !records_->eof(); records_->moveNext()) records_->remove();
}

void TableWriter::add(const Row& row) {
  try {
    addTo(*records_, columns_, row);
  } catch (const std::exception& error) {
    throw db::Error("テーブル「" + table_ + "」の " + std::to_string(added_ + 1) + " 件目" + described(row) +
                    "を書き込めません。" + text::reasonOf(error));
  }
  ++added_;
  sum_ += std::hash<std::string>()(keyOf(row));
}

std::string TableWriter::described(const Row& row) const {
  std::string keys;
  for (std::size_t i = 0; i < columns_.size(); ++i)
    for (const char* key : {"JobId", "事業番号", "路線番号", "DataKubun", "SaveOrder"})
      if (text::equalIgnoringCase(columns_[i], key) && !row[i].isNull())
        keys += (keys.empty() ? "" : ", ") + columns_[i] + "=" + std::string(text::trimmed(row[i].text()));
  return keys.empty() ? "" : "（" + keys + "）";
}

std::string TableWriter::keyOf(const Row& row) {
  std::string key;
  for (const db::Value& value : row) {
    const std::string words = exactText(value);
    key += value.isNull() ? "-" : std::to_string(words.size()) + (value.isBytes() ? "x" : ":") + words;
  }
  return key;
}

void TableWriter::requireAsWritten() {
  std::size_t sum = 0;
  std::int64_t count = 0;
  const auto records = database_.openRecordset("SELECT * FROM " + table_);
  const std::vector<db::Column> columns = positions(*records, columns_);
  for (; !records->eof(); records->moveNext(), ++count)
    sum += std::hash<std::string>()(keyOf(presentRow(*records, columns)));
  if (sum == sum_ && count == added_) return;
  throw db::Error("テーブル「" + table_ + "」に書いた " + std::to_string(added_) +
                  " 件を読み返すと、書いたものと違っています（" + std::to_string(count) + " 件）。");
}

void writeTable(const std::string& path, const std::string& table, const std::vector<std::string>& columns,
                const std::function<void(TableWriter&)>& write) {
  const auto database = db::openDatabase(path);
  const std::int64_t before = countRecords(*database, table);
  std::string failure;
  try {
    TableWriter writer(*database, table, columns);
    write(writer);
    return database->close();
  } catch (const std::exception& error) {
    failure = text::reasonOf(error);
  }
  database->discard();
  throw db::Error(failure + " " + present(path, table, before));
}

}  // namespace exchange
