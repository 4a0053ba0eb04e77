#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "failing_files.h"
#include "hksnb/book_job.h"
#include "screen_work.h"
#include "support/database_test.h"
#include "support/recording_desktop.h"

// Every call that a screen makes of the system from the press on "open" to the end of the save fails once,
// and from then on, with safeguards and without. The law: each table holds all of its old records or all of
// its new ones, with safeguards every table the same; where the operator has read "saved" they are the new
// ones; something is said where they are not; the file is sound, and no file is left beside it once the next
// save is through.

namespace {

using test::Call;
using test::Fault;
using test::ScreenWork;

const ui::Message saved{{}, "保存しました", ui::Icon::None};

class ScreenFaults : public testing::TestWithParam<std::size_t> {
 protected:
  ScreenFaults() {
    for (int order = 1; order <= 6; ++order)
      job_.observed(order, "R001", "B" + std::to_string(order), "100", "1.5", order == 6 ? "-1" : "");
    job_.place("R001", "20220511", "富士見町");
    for (int order = 1; order <= 6; ++order)
      job_.orthometric(order, "R001", "B" + std::to_string(order), "100", "2", "100.1");
    test::RecordingDesktop desktop;
    work().openAndSave(job_.context(), desktop, [] {});
    EXPECT_EQ(desktop.takeMessages(), std::vector{saved});
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
  std::vector<std::string> states() const {
    test::OtherProgram other(path());
    if (const std::string said = other.ask("PRAGMA integrity_check"); said != "ok") return {said};
    std::vector<std::string> found;
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
    work().openAndSave(job_.context(), desktop, [&] { files_.arm(fault, k); });
    const bool struck = files_.disarm();
    const std::vector<ui::Message> told = desktop.takeMessages();
    const std::vector<std::string> now = states();
    const std::string where = "call " + std::to_string(k) + ": " + (told.empty() ? "" : told.back().text);
    const bool isSaved = std::find(told.begin(), told.end(), saved) != told.end();
    for (const std::string& state : now) {
      EXPECT_TRUE(state == "old" || state == "new") << where << ": " << state;
      EXPECT_TRUE(!isSaved || state == "new") << where;
      EXPECT_TRUE(!guarded || state == now.front()) << where;
    }
    EXPECT_FALSE(told.empty()) << where;
    if (leavesFiles()) work().openAndSave(job_.context(), desktop, [] {});
    EXPECT_FALSE(leavesFiles()) << where;
    ++cases_;
    if (struck) ++struck_;
    return struck;
  }

  /// All calls where ./test runs with --long, else a share of them.
  void failEach(const Fault& fault, std::int64_t share) {
    const std::int64_t step = std::getenv("SEIKAHYOU_LONG") != nullptr ? 1 : share;
    for (const bool onwards : {false, true})
      for (const bool guarded : {false, true}) {
        SCOPED_TRACE("kind " + std::to_string(static_cast<int>(fault.call)) + ", code " +
                     std::to_string(fault.code) + (onwards ? " onwards" : "") +
                     (guarded ? ", with safeguards" : ""));
        const Fault one{fault.call, fault.code, onwards};
        // Different calls in each of the shares.
        std::int64_t k = 1 + (step > 1 ? (onwards ? 1 : 0) + (guarded ? 2 : 0) : 0);
        while (failOne(one, guarded, k) && !HasFailure()) k += step;
      }
  }

  test::FailingFiles files_;
  test::BookJob job_;
  std::string original_ = job_.folder().path("original");
  std::vector<std::string> counts_;
  int cases_ = 0;
  int struck_ = 0;
};

TEST_P(ScreenFaults, NoFailingFileCostsASavedRecord) {
  const std::vector<Fault> faults{
      {Call::Open, SQLITE_CANTOPEN, false},           {Call::Read, SQLITE_IOERR_READ, false},
      {Call::Write, SQLITE_IOERR_WRITE, false},       {Call::Write, SQLITE_FULL, false},
      {Call::Truncate, SQLITE_IOERR_TRUNCATE, false}, {Call::Sync, SQLITE_IOERR_FSYNC, false},
      {Call::Size, SQLITE_IOERR_FSTAT, false},        {Call::Lock, SQLITE_IOERR_LOCK, false},
      {Call::Delete, SQLITE_IOERR_DELETE, false},     {Call::Access, SQLITE_IOERR_ACCESS, false}};
  for (const Fault& fault : faults) failEach(fault, 9);
  EXPECT_GT(struck_, 30);
  RecordProperty("cases", cases_);
}

TEST_P(ScreenFaults, NoFailingAllocationCostsASavedRecord) {
  failEach({Call::Memory, SQLITE_NOMEM, false}, 197);
  EXPECT_GT(struck_, 30);
  RecordProperty("cases", cases_);
}

INSTANTIATE_TEST_SUITE_P(Screens, ScreenFaults, testing::Range<std::size_t>(0, 5),
                         [](const auto& one) { return test::screenWorks()[one.param].name; });

}  // namespace
