#include <gtest/gtest.h>

#include <sstream>

#include "exchange/copy.h"
#include "exchange/csv_file.h"
#include "random_job.h"

namespace {

using exchange::Encoding;
using test::fill;
using test::rows;

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
  test::fillJob(job.path(), 100);
  const std::string to = job.folder().path("移した.sqlite");
  std::ostringstream progress;
  exchange::copyJob(job.path(), to, false, progress);
  for (const job::TableSchema& table : job::schemaTables())
    EXPECT_EQ(rows(to, table.name), rows(job.path(), table.name)) << table.name;
}

}  // namespace
