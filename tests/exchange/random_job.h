#pragma once

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "exchange/tables.h"
#include "open/open.h"
#include "support/job_file.h"

namespace test {

/// Random values of every sort that a job may hold, made of characters that both encodings have.
class Values {
 public:
  explicit Values(unsigned seed) : random_(seed) {}

  /// A value for a column of that declared type. Servers hold a column to its declaration: whole numbers to
  /// 32 bits, texts to so many letters.
  db::Value next(const std::string& type, bool mayBeNull) {
    if (mayBeNull && below(5) == 0) return {};
    if (type.starts_with("INTEGER")) return static_cast<double>(below(1000000)) - 500000;
    if (exchange::kindOf(type) == exchange::Kind::Number) return number();
    const std::size_t width = type.find('(');
    return words(
        width == std::string::npos ? 6 : std::min(6U, static_cast<unsigned>(std::atoi(&type[width + 1]))));
  }

 private:
  unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

  double number() {
    const double parts = static_cast<double>(random_()) - 2147483648.0;
    switch (below(4)) {
      case 0:
        return static_cast<double>(below(1000)) - 500;
      case 1:
        return parts / 10000;
      case 2:
        return parts / 3 * 1e-12;
      default:
        return parts * 1e200;
    }
  }

  /// At most so many letters.
  std::string words(unsigned most) {
    static const char* const pieces[] = {"水", "ソ", "表", "～",  "ｶ", "①",  " ",  ",", "\"", "\n",
                                         "\r", "0",  "-1", "1E5", "a", "Ｂ", "\t", "'", ";",  "髙"};
    std::string result;
    for (unsigned left = below(most + 1); left > 0;) {
      const std::string piece = pieces[below(std::size(pieces))];
      const auto letters = static_cast<unsigned>(
          std::count_if(piece.begin(), piece.end(), [](char c) { return (c & 0xC0) != 0x80; }));
      if (letters <= left) result += piece;
      left -= std::min(left, letters);
    }
    return result;
  }

  std::mt19937 random_;
};

/// Adds forty records to a table.
inline void fill(const std::string& job, const std::string& table, unsigned seed) {
  Values values(seed);
  const auto database = db::openDatabase(job);
  const auto columns = database->tableDefinition(table);
  const auto records = database->openRecordset("SELECT * FROM " + table, db::Access::Edit);
  for (int i = 0; i < 40; ++i) {
    records->addNew();
    for (const auto& column : columns)
      records->set(column.name, values.next(column.type, column.name != "JobId"));
    records->update();
  }
  records->close();
  database->close();
}

using Rows = std::vector<std::vector<db::Value>>;

/// Every value as the database holds it: numbers to their last bit.
inline Rows rows(const std::string& job, const std::string& table) {
  Rows all;
  const auto database = db::openDatabase(job);
  const auto columns = database->tableDefinition(table);
  const auto records = database->openRecordset("SELECT * FROM " + table);
  for (; !records->eof(); records->moveNext()) {
    all.emplace_back();
    for (const auto& column : columns) all.back().push_back(records->field(column.name));
  }
  return all;
}

/// A job with records in every table.
inline void fillJob(const std::string& job, unsigned seed) {
  for (const job::TableSchema& table : job::schemaTables()) fill(job, table.name, seed++);
}

}  // namespace test
