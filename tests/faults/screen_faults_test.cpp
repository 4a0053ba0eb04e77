#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "counting.h"
#include "failing_files.h"
#include "save_law.h"
#include "screen_work.h"
#include "support/database_test.h"
#include "support/recording_desktop.h"

// Every call that a screen makes of the system from the press on "open" to the end of the save fails once,
// and from then on, with safeguards and without. The law of saves holds; the file is sound, and no file is
// left beside it once the next save is through.

namespace {

using test::Call;
using test::Fault;
using test::ScreenWork;

class ScreenFaults : public testing::TestWithParam<std::size_t> {
 protected:
  ScreenFaults() {
    test::RecordingDesktop desktop;
    work().openAndSave(job_.context(), desktop);
    EXPECT_EQ(desktop.takeMessages(), std::vector{test::savedMessage});
    test::OtherProgram other(path());
    for (const std::string& table : work().tables) {
      other.run("UPDATE " + table + " SET JobId = '3 '");  // an old record is known by its blank
      counts_.push_back(other.ask("SELECT count(*) FROM " + table));
      EXPECT_NE(counts_.back(), "0") << table;
    }
    std::filesystem::copy_file(path(), original_);
  }

  const ScreenWork& work() const { return test::screenWorks()[GetParam()]; }
  std::string path() const { return job_.context().gDbPath; }

  void restore() const {
    std::filesystem::remove(path() + "-journal");
    std::filesystem::copy_file(original_, path(), std::filesystem::copy_options::overwrite_existing);
  }

  /// "old" or "new" for each table; what is there where it is neither.
  test::TableStates states() const {
    test::OtherProgram other(path());
    if (const std::string said = other.ask("PRAGMA integrity_check"); said != "ok") return {said};
    test::TableStates found;
    for (std::size_t i = 0; i < counts_.size(); ++i) {
      const std::string& table = work().tables[i];
      const std::string olds = other.ask("SELECT count(*) FROM " + table + " WHERE length(JobId) = 2");
      const std::string all = other.ask("SELECT count(*) FROM " + table);
      if (all == counts_[i] && olds == all)
        found.emplace_back("old");
      else if (all == counts_[i] && olds == "0")
        found.emplace_back("new");
      else
        found.push_back(table + " with " + olds + " old of " + all);
    }
    return found;
  }

  bool leavesFiles() const {
    return std::filesystem::exists(path() + "-journal") || std::filesystem::exists(path() + "-wal");
  }

  /// Lets the k-th call fail; false where the work needs fewer.
  bool failOne(const Fault& fault, bool guarded, std::int64_t k) {
    restore();
    test::RecordingDesktop desktop;
    desktop.guarded = guarded;
    const auto screen = work().choose(job_.context(), desktop);
    files_.arm(fault, k);
    screen->open();
    screen->save();
    const bool struck = files_.disarm();
    const std::string where = "call " + std::to_string(k);
    test::judge(states(), desktop.takeMessages(), guarded, where);
    if (leavesFiles()) work().openAndSave(job_.context(), desktop);
    EXPECT_FALSE(leavesFiles()) << where;
    if (struck) ++struck_;
    return struck;
  }

  /// All calls where ./test runs with --long, else a share of them.
  void failEach(const Fault& fault, std::int64_t share) {
    const std::int64_t step = test::isLong() ? 1 : share;
    for (const bool onwards : {false, true})
      for (const bool guarded : {false, true}) {
        SCOPED_TRACE("kind " + std::to_string(static_cast<int>(fault.call)) + ", code " +
                     std::to_string(fault.code) + (onwards ? " onwards" : "") +
                     (guarded ? ", with safeguards" : ""));
        const Fault one{fault.call, fault.code, onwards, false, fault.given};
        // Different calls in each of the shares.
        std::int64_t k = 1 + (step > 1 ? (onwards ? 1 : 0) + (guarded ? 2 : 0) : 0);
        while (failOne(one, guarded, k) && !HasFailure()) k += step;
      }
  }

  test::FailingFiles files_;
  test::WorkedJob job_;
  std::string original_ = job_.folder().path("original");
  std::vector<std::string> counts_;
  int struck_ = 0;
};

TEST_P(ScreenFaults, NoFailingFileCostsASavedRecord) {
  const std::vector<Fault> faults{
      {Call::Open, SQLITE_CANTOPEN, false},           {Call::Read, SQLITE_IOERR_READ, false},
      {Call::Write, SQLITE_IOERR_WRITE, false},       {Call::Write, SQLITE_FULL, false},
      {Call::Truncate, SQLITE_IOERR_TRUNCATE, false}, {Call::Sync, SQLITE_IOERR_FSYNC, false},
      {Call::Size, SQLITE_IOERR_FSTAT, false},        {Call::Lock, SQLITE_IOERR_LOCK, false},
      {Call::Delete, SQLITE_IOERR_DELETE, false},     {Call::Delete, SQLITE_IOERR_DIR_FSYNC, false},
      {Call::Access, SQLITE_IOERR_ACCESS, false}};
  for (const Fault& fault : faults) failEach(fault, 9);
  EXPECT_GT(struck_, 30);
  test::tellCount("faults", struck_);
}

/// A file that ends while it is read: whole pages are missing. Half of one is a page of other content, which
/// nobody can tell from a damaged file.
TEST_P(ScreenFaults, NoShortReadCostsASavedRecord) {
  failEach({Call::Read, SQLITE_IOERR_SHORT_READ}, 5);
  EXPECT_GT(struck_, 10);
  test::tellCount("faults", struck_);
}

TEST_P(ScreenFaults, NoFailingAllocationCostsASavedRecord) {
  failEach({Call::Memory, SQLITE_NOMEM, false}, 197);
  EXPECT_GT(struck_, 30);
  test::tellCount("faults", struck_);
}

INSTANTIATE_TEST_SUITE_P(Screens, ScreenFaults, testing::Range<std::size_t>(0, 5),
                         [](const auto& one) { return test::screenWorks()[one.param].name; });

}  // namespace
