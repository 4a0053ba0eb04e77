#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "exchange/copy.h"
#include "exchange/csv_file.h"
#include "exchange/tables.h"
#include "job_file.h"

namespace {

using exchange::Encoding;
using exchange::Kind;

/// Random values of every sort that a job may hold, made of characters that both encodings have.
class Values {
 public:
  explicit Values(unsigned seed) : random_(seed) {}

  db::Value next(Kind kind, bool mayBeNull) {
    if (mayBeNull && below(5) == 0) return {};
    if (kind == Kind::Number) return number();
    return words();
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

  std::string words() {
    static const char* const pieces[] = {"水", "ソ", "表", "～",  "ｶ", "①",  " ",  ",", "\"", "\r\n", "\n",
                                         "\r", "0",  "-1", "1E5", "a", "Ｂ", "\t", "'", ";",  "髙"};
    std::string result;
    for (unsigned left = below(7); left > 0; --left) result += pieces[below(std::size(pieces))];
    return result;
  }

  std::mt19937 random_;
};

void fill(const std::string& job, const std::string& table, unsigned seed) {
  Values values(seed);
  const auto database = db::openDatabase(job);
  const auto columns = database->tableDefinition(table);
  const auto records = database->openRecordset("SELECT * FROM " + table, db::Access::Edit);
  for (int i = 0; i < 40; ++i) {
    records->addNew();
    for (const auto& column : columns)
      records->set(column.name, values.next(exchange::kindOf(column.type), column.name != "JobId"));
    records->update();
  }
  records->close();
  database->close();
}

using Rows = std::vector<std::vector<db::Value>>;

/// Every value as the database holds it: numbers to their last bit.
Rows rows(const std::string& job, const std::string& table) {
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

TEST(RoundTrip, ThroughAFileGivesTheSameRecords) {
  for (const Encoding encoding : {Encoding::Utf8, Encoding::Cp932}) {
    const test::JobFile job;
    const test::JobFile other;
    unsigned seed = 1;
    for (const job::TableSchema& table : job::schemaTables()) {
      fill(job.path(), table.name, seed++);
      const std::string file = job.folder().path(table.name + ".csv");
      EXPECT_EQ(exchange::exportCsv(job.path(), table.name, file, encoding), 40);
      EXPECT_EQ(exchange::importCsv(other.path(), table.name, file, encoding), 40);
      EXPECT_EQ(rows(other.path(), table.name), rows(job.path(), table.name)) << table.name;
    }
  }
}

TEST(RoundTrip, ThroughACopyGivesTheSameRecords) {
  const test::JobFile job;
  unsigned seed = 100;
  for (const job::TableSchema& table : job::schemaTables()) fill(job.path(), table.name, seed++);
  const std::string to = job.folder().path("移した.sqlite");
  std::ostringstream progress;
  exchange::copyJob(job.path(), to, false, progress);
  for (const job::TableSchema& table : job::schemaTables())
    EXPECT_EQ(rows(to, table.name), rows(job.path(), table.name)) << table.name;
}

}  // namespace
