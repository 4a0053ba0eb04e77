#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "counting.h"
#include "exchange/copy.h"
#include "exchange/create.h"
#include "exchange/csv_file.h"
#include "failing_files.h"
#include "screen_work.h"
#include "support/database_test.h"
#include "support/recording_desktop.h"

// A process is killed at its k-th call of the system. The law: the file is sound and holds all that was there
// or all that is new; a file that was being made is there whole or not at all; the next call of the same kind
// succeeds and leaves nothing but what it makes.

namespace {

using test::Call;
using test::Fault;

class Kills : public testing::Test {
 protected:
  std::string path() const { return job_.context().gDbPath; }
  std::string place(const std::string& name) const { return job_.folder().path(name); }

  /// Works in a child that is killed at its k-th call of the kind; true where it was.
  bool isKilled(const std::function<void()>& act, Call call, std::int64_t k) {
    const pid_t child = fork();
    if (child == 0) {
      files_.arm({call, 0, false, true}, k);
      try {
        act();
      } catch (const std::exception&) {
        _exit(1);
      }
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << "call " << k;
    return WIFSIGNALED(status);
  }

  /// Kills `act` at one call after the other, each time after `before`, and has `check` look at what is left.
  void killEach(const std::function<void()>& before, const std::function<void()>& act,
                const std::function<void()>& check) {
    const std::int64_t step = test::isLong() ? 1 : 2;
    for (const Call call : {Call::Open, Call::Write, Call::Sync, Call::Delete, Call::Lock, Call::Access})
      for (std::int64_t k = 1;; k += step) {
        SCOPED_TRACE("kind " + std::to_string(static_cast<int>(call)) + ", call " + std::to_string(k));
        before();
        const bool killed = isKilled(act, call, k);
        if (killed) ++kills_;
        check();
        if (!killed || HasFailure()) break;
      }
    EXPECT_GT(kills_, 10);
    test::tellCount("kills", kills_);
  }

  /// The names of what stands in the folder besides `expected`.
  std::string others(const std::vector<std::string>& expected) const {
    std::string found;
    for (const auto& entry : std::filesystem::directory_iterator(job_.folder().path())) {
      const std::string name = entry.path().string();
      if (std::find(expected.begin(), expected.end(), name) == expected.end()) found += name + " ";
    }
    return found;
  }

  static std::string ask(const std::string& file, const std::string& sql) {
    return test::OtherProgram(file).ask(sql);
  }
  static void put(const std::string& from, const std::string& to) {
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
  }

  test::FailingFiles files_;
  test::WorkedJob job_;
  int kills_ = 0;
};

TEST_F(Kills, ASaveLeavesTheOldRouteOrTheNewOne) {
  const test::ScreenWork& work = test::screenWorks().front();
  const auto save = [&] {
    test::RecordingDesktop desktop;
    work.openAndSave(job_.context(), desktop);
  };
  save();
  job_.sql("UPDATE KansokuSeikaDataSeihyou SET JobId = '3 '");
  const std::string original = place("original");
  put(path(), original);
  killEach(
      [&] {
        std::filesystem::remove(path() + "-journal");
        put(original, path());
      },
      save,
      [&] {
        EXPECT_EQ(ask(path(), "PRAGMA integrity_check"), "ok");
        EXPECT_EQ(ask(path(), "SELECT count(*) FROM KansokuSeikaDataSeihyou"), "6");
        EXPECT_EQ(ask(path(), "SELECT count(DISTINCT length(JobId)) FROM KansokuSeikaDataSeihyou"), "1");
        save();
        EXPECT_EQ(ask(path(), "SELECT count(*) FROM KansokuSeikaDataSeihyou WHERE JobId = '3'"), "6");
        EXPECT_EQ(others({path(), original}), "");
      });
}

TEST_F(Kills, ACopyMakesTheWholeFileOrNone) {
  const std::string to = place("写し.sqlite");
  const auto copy = [&] {
    std::ostringstream progress;
    exchange::copyJob(path(), to, false, progress);
  };
  killEach([&] { std::filesystem::remove(to); }, copy,
           [&] {
             if (std::filesystem::exists(to)) {
               EXPECT_EQ(ask(to, "PRAGMA integrity_check"), "ok");
               EXPECT_EQ(ask(to, "SELECT count(*) FROM KansokuSeikaData"), "6");
               std::filesystem::remove(to);
             }
             copy();
             EXPECT_EQ(others({path(), to}), "");
           });
}

TEST_F(Kills, ACopyOverAJobLeavesTheOldOneOrTheNewOne) {
  const std::string to = place("先.sqlite");
  const std::string original = place("original");
  exchange::createJob(original);
  test::OtherProgram(original).run("INSERT INTO KansokuSeikaData (JobId) VALUES ('9')");
  const auto copy = [&] {
    std::ostringstream progress;
    exchange::copyJob(path(), to, true, progress);
  };
  killEach(
      [&] {
        std::filesystem::remove(to + "-journal");
        put(original, to);
      },
      copy,
      [&] {
        EXPECT_EQ(ask(to, "PRAGMA integrity_check"), "ok");
        const std::string jobs = ask(to, "SELECT count(*) || JobId FROM KansokuSeikaData GROUP BY JobId");
        EXPECT_TRUE(jobs == "19" || jobs == "63") << jobs;
        copy();
        EXPECT_EQ(others({path(), original, to}), "");
      });
}

TEST_F(Kills, AnImportAddsAllRecordsOrNone) {
  const std::string csv = job_.folder().write("表.csv", "JobId,標石番号\r\n8,A\r\n8,B\r\n8,C\r\n");
  const std::string original = place("original");
  put(path(), original);
  const auto import = [&] { exchange::importCsv(path(), "KansokuSeikaData", csv, exchange::Encoding::Utf8); };
  killEach(
      [&] {
        std::filesystem::remove(path() + "-journal");
        put(original, path());
      },
      import,
      [&] {
        EXPECT_EQ(ask(path(), "PRAGMA integrity_check"), "ok");
        const std::string count = ask(path(), "SELECT count(*) FROM KansokuSeikaData");
        EXPECT_TRUE(count == "6" || count == "9") << count;
        import();
        EXPECT_EQ(others({path(), original, csv}), "");
      });
}

}  // namespace
