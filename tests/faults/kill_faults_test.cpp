#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "counting.h"
#include "exchange/copy.h"
#include "exchange/create.h"
#include "exchange/csv_file.h"
#include "failing_files.h"
#include "intake/command.h"
#include "screen_work.h"
#include "support/database_test.h"
#include "support/recording_desktop.h"

// A process is killed at its k-th call of the system, or at a moment by chance. The law: the file is sound
// and holds all that was there or all that is new; a file that was being made is there whole or not at all;
// the next call of the same kind succeeds and leaves nothing but what it makes.

namespace {

using test::Call;
using test::Fault;

class Kills : public testing::Test {
 protected:
  std::string path() const { return job_.context().gDbPath; }
  std::string place(const std::string& name) const { return job_.folder().path(name); }

  /// Works in a child, `arm` first; true where it was killed. `meanwhile` gets the child's number.
  bool isKilled(const std::function<void()>& act, const std::function<void()>& arm,
                const std::function<void(pid_t)>& meanwhile) {
    const pid_t child = fork();
    if (child == 0) {
      arm();
      try {
        act();
      } catch (const std::exception&) {
        _exit(1);
      }
      _exit(0);
    }
    meanwhile(child);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
  }

  /// Kills `act` at one call after the other and at moments by chance, each time after `before`, and has
  /// `check` look at what is left.
  void killEach(const std::function<void()>& before, const std::function<void()>& act,
                const std::function<void()>& check) {
    killAtCalls(before, act, check);
    killAtMoments(before, act, check);
    EXPECT_GT(kills_, 10);
    test::tellCount("kills", kills_);
  }

  /// Kills an import of three records into the job, whose file is a copy of `original` each time. What is
  /// left must hold all of them or none, and take the import once more; `then` looks at what that has made.
  void killEachImport(const std::string& original, const std::string& file,
                      const std::function<void()>& import, const std::function<void()>& then) {
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
          then();
          EXPECT_EQ(others({path(), original, file}), "");
        });
  }

  void killAtCalls(const std::function<void()>& before, const std::function<void()>& act,
                   const std::function<void()>& check) {
    const std::int64_t step = test::isLong() ? 1 : 4;
    for (const Call call : {Call::Open, Call::Write, Call::Sync, Call::Delete, Call::Lock, Call::Access})
      for (std::int64_t k = 1;; k += step) {
        SCOPED_TRACE("kind " + std::to_string(static_cast<int>(call)) + ", call " + std::to_string(k));
        before();
        const bool killed = isKilled(
            act,
            [&] {
              files_.arm({call, 0, false, true}, k);
            },
            [](pid_t) {});
        if (killed) ++kills_;
        check();
        if (!killed || HasFailure()) break;
      }
  }

  void killAtMoments(const std::function<void()>& before, const std::function<void()>& act,
                     const std::function<void()>& check) {
    const auto now = [] { return std::chrono::steady_clock::now(); };
    before();
    const auto start = now();
    isKilled(
        act, [] {}, [](pid_t) {});
    // The machine has other work too: the span follows what it leaves for this, so that most are killed.
    double span = std::chrono::duration<double>(now() - start).count();
    for (int i = test::share(10, 1500); i > 0 && !HasFailure(); --i) {
      before();
      const std::chrono::duration<double> wait(std::uniform_real_distribution<double>(0, span)(chance_));
      SCOPED_TRACE("after " + std::to_string(wait.count()) + " seconds");
      const bool killed = isKilled(
          act, [] {},
          [wait](pid_t child) {
            std::this_thread::sleep_for(wait);
            kill(child, SIGKILL);
          });
      span *= killed ? 1.02 : 0.9;
      if (killed) ++kills_;
      check();
    }
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
  std::mt19937 chance_{20261122};
  int kills_ = 0;
};

class SaveKills : public Kills, public testing::WithParamInterface<std::size_t> {
 protected:
  const test::ScreenWork& work() const { return test::screenWorks()[GetParam()]; }

  void save() const {
    test::RecordingDesktop desktop;
    desktop.guarded = true;
    work().openAndSave(job_.context(), desktop);
  }

  std::string count(const std::string& table, const std::string& condition) const {
    return ask(path(), "SELECT count(*) FROM " + table + " WHERE " + condition);
  }
};

TEST_P(SaveKills, ASaveLeavesTheOldResultsOrTheNewOnes) {
  save();
  std::vector<std::string> counts;
  for (const std::string& table : work().tables) {
    job_.sql("UPDATE " + table + " SET JobId = '3 '");  // an old record is known by its blank
    counts.push_back(count(table, "length(JobId) = 2"));
  }
  const std::string original = place("original");
  put(path(), original);
  killEach(
      [&] {
        std::filesystem::remove(path() + "-journal");
        put(original, path());
      },
      [this] { save(); },
      [&] {
        EXPECT_EQ(ask(path(), "PRAGMA integrity_check"), "ok");
        const bool old = count(work().tables.front(), "length(JobId) = 2") != "0";
        for (std::size_t i = 0; i < counts.size(); ++i) {
          EXPECT_EQ(count(work().tables[i], old ? "length(JobId) = 2" : "length(JobId) = 1"), counts[i]);
          EXPECT_EQ(count(work().tables[i], "1"), counts[i]);
        }
        save();
        EXPECT_EQ(count(work().tables.front(), "length(JobId) = 1"), counts.front());
        EXPECT_EQ(others({path(), original}), "");
      });
}

INSTANTIATE_TEST_SUITE_P(Screens, SaveKills, testing::Range<std::size_t>(0, 5),
                         [](const auto& one) { return test::screenWorks()[one.param].name; });

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
  killEachImport(original, csv, import, [] {});
}

TEST_F(Kills, ObservationsAreTakenInWholeOrNotAtAll) {
  const std::string file = job_.folder().write(
      "観測.csv", "事業番号,路線番号,標石番号,中数\r\n1001,R9,A,1.5\r\n,,B,1.5\r\n,,C,\r\n");
  const std::string original = place("original");
  put(path(), original);
  const auto import = [&] {
    std::ostringstream out;
    EXPECT_EQ(intake::run({"import-observations", path(), file, "--job", "3", "--over"}, out, out), 0)
        << out.str();
  };
  killEachImport(original, file, import,
                 [&] { EXPECT_EQ(ask(path(), "SELECT count(*) FROM KansokuSeikaData"), "9"); });
}

}  // namespace
