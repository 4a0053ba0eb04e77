#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "counting.h"
#include "failing_files.h"
#include "route/records.h"
#include "support/database_test.h"
#include "support/small_job.h"

// Every call of a load and a save fails once, and from then on. Whatever fails: the job is sound afterwards,
// holds all of the old results or all of the new ones, the new ones where the save has told no error, and no
// file is left beside it.

namespace {

using test::Call;
using test::Fault;

constexpr int recordCount = 40;
const db::Sql corrected("SELECT * FROM KansokuSeikaDataDaen WHERE JobId ='3'");
const db::Sql sections("SELECT * FROM KansokuSeikaDataSeihyou WHERE JobId ='3'");

/// Writes the records 1 to recordCount of a table whose remarks all read `words`.
void writeRecords(db::Recordset& records, const std::string& words) {
  for (int i = 1; i <= recordCount; ++i) {
    records.addNew();
    records.set("JobId", "3");
    records.set("路線番号", "01A00101");
    records.set("SaveOrder", i);
    records.set("備考1", words + std::string(300, '.'));
    records.update();
  }
}

class SaveFaults : public testing::Test {
 protected:
  SaveFaults() {
    save("old", route::Extent::AllOrNothing);
    original_ = job_.folder().path("original");
    copyFile(path(), original_);
  }

  std::string path() const { return job_.context().gDbPath; }

  static void copyFile(const std::string& from, const std::string& to) {
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
  }

  /// Reads the old records, as a screen does before it saves.
  void load() const {
    const auto database = db::openDatabase(path());
    const auto records = database->openRecordset(corrected.text() + " ORDER BY SaveOrder");
    for (; !records->eof(); records->moveNext()) records->field("備考1");
    database->close();
  }

  void save(const std::string& words, route::Extent extent) const {
    route::save(path(), extent, [&](db::Database& database) {
      for (const db::Sql& table : {corrected, sections})
        route::replaceRecords(database, table, [&](db::Recordset& records) { writeRecords(records, words); });
    });
  }

  /// "old" or "new" where each table holds that and nothing else, else what is there.
  std::string state() const {
    test::OtherProgram other(path());
    if (const std::string said = other.ask("PRAGMA integrity_check"); said != "ok") return said;
    std::string found;
    for (const char* table : {"KansokuSeikaDataDaen", "KansokuSeikaDataSeihyou"}) {
      const std::string rest = " FROM " + std::string(table);
      const std::string words = other.ask("SELECT group_concat(DISTINCT rtrim(備考1,'.'))" + rest) +
                                other.ask("SELECT count(*)" + rest);
      if (words == found) continue;
      if (!found.empty()) return found + " and " + words;
      found = words;
    }
    const std::string count = std::to_string(recordCount);
    return found == "old" + count ? "old" : found == "new" + count ? "new" : found;
  }

  bool leavesFiles() const {
    return std::filesystem::exists(path() + "-journal") || std::filesystem::exists(path() + "-wal");
  }

  /// Fails one call after the other until the save needs no more of them. With `step` above 1 only each so
  /// many-th.
  void failEach(const Fault& fault, route::Extent extent, std::int64_t step) {
    for (std::int64_t k = 1;; k += step) {
      std::filesystem::remove(path() + "-journal");
      copyFile(original_, path());
      files_.arm(fault, k);
      std::string refused;
      try {
        load();
        save("new", extent);
      } catch (const db::Error& error) {
        refused = error.what();
      } catch (const std::bad_alloc&) {
        refused = "bad_alloc";
      }
      const bool struck = files_.disarm();
      const std::string now = state();
      const std::string where = "call " + std::to_string(k) + ": " + refused;
      EXPECT_TRUE(now == "old" || now == "new") << where << ": " << now;
      if (refused.empty()) {
        EXPECT_EQ(now, "new") << where;
      }
      if (leavesFiles())
        save("next", extent);  // a medium that fails for good keeps even its journal from going
      EXPECT_FALSE(leavesFiles()) << where;
      ++cases_;
      if (!struck || HasFailure()) break;
    }
  }

  test::FailingFiles files_;
  test::SmallJob job_;
  std::string original_;
  int cases_ = 0;
};

/// All calls where ./test runs with --long, else each so many-th of them.
std::int64_t stepOf(std::int64_t step) { return test::isLong() ? 1 : step; }

TEST_F(SaveFaults, NoFailingFileCostsASavedRecord) {
  const std::vector<Fault> faults{
      {Call::Open, SQLITE_CANTOPEN, false},           {Call::Read, SQLITE_IOERR_READ, false},
      {Call::Write, SQLITE_IOERR_WRITE, false},       {Call::Write, SQLITE_FULL, false},
      {Call::Truncate, SQLITE_IOERR_TRUNCATE, false}, {Call::Sync, SQLITE_IOERR_FSYNC, false},
      {Call::Size, SQLITE_IOERR_FSTAT, false},        {Call::Lock, SQLITE_IOERR_LOCK, false},
      {Call::Delete, SQLITE_IOERR_DELETE, false},     {Call::Delete, SQLITE_IOERR_DIR_FSYNC, false},
      {Call::Access, SQLITE_IOERR_ACCESS, false}};
  for (Fault fault : faults)
    for (const bool onwards : {false, true})
      for (const auto extent : {route::Extent::AllOrNothing, route::Extent::AsFarAsItCame}) {
        SCOPED_TRACE("kind " + std::to_string(static_cast<int>(fault.call)) + ", code " +
                     std::to_string(fault.code) + (onwards ? " onwards" : "") +
                     (extent == route::Extent::AllOrNothing ? ", whole" : ""));
        fault.onwards = onwards;
        failEach(fault, extent, stepOf(5));
      }
  test::tellCount("faults", cases_);
}

TEST_F(SaveFaults, NoFailingAllocationCostsASavedRecord) {
  for (const bool onwards : {false, true})
    for (const auto extent : {route::Extent::AllOrNothing, route::Extent::AsFarAsItCame})
      failEach({Call::Memory, SQLITE_NOMEM, onwards}, extent, stepOf(41));
  test::tellCount("faults", cases_);
}

}  // namespace
