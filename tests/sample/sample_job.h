#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "db/database.h"
#include "open/open.h"
#include "sample/sample.h"
#include "support/temporary_folder.h"

namespace test {

/// A sample job in a folder of its own, to be questioned in SQL.
class SampleJob {
 public:
  explicit SampleJob(std::vector<std::string> options = {}) {
    options.insert(options.begin(), folder_.path());
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(0, sample::run(options, folder_.path("program"), out, err)) << err.str();
    database_ = db::openDatabase(path());
  }

  const TemporaryFolder& folder() const { return folder_; }
  std::string path() const { return folder_.path("job.sqlite"); }
  db::Database& database() const { return *database_; }

  /// The first field of the first record, "(none)" where there is no record.
  std::string text(const std::string& sql) const {
    const auto records = database_->openRecordset(sql);
    return records->eof() ? "(none)" : records->value(db::Column{0}).text();
  }
  /// The same as a number.
  double number(const std::string& sql) const {
    const auto records = database_->openRecordset(sql);
    return records->eof() ? 0 : records->value(db::Column{0}).number();
  }
  /// How many records of the observation results meet a condition.
  int count(const std::string& condition) const {
    return static_cast<int>(number("SELECT COUNT(*) FROM KansokuSeikaData WHERE " + condition));
  }
  /// All records of a query, one a line, fields parted by "|", Null as "-".
  std::string dump(const std::string& sql, std::size_t columns) const {
    const auto records = database_->openRecordset(sql);
    std::string lines;
    for (; !records->eof(); records->moveNext()) {
      for (std::size_t i = 0; i < columns; ++i) {
        const db::Value value = records->value(db::Column{i});
        lines += (value.isNull() ? "-" : value.text()) + "|";
      }
      lines += '\n';
    }
    return lines;
  }

 private:
  TemporaryFolder folder_;
  std::unique_ptr<db::Database> database_;
};

/// The usual sample job, made once for all tests that only read it.
inline const SampleJob& usualJob() {
  static const SampleJob job;
  return job;
}

}  // namespace test
