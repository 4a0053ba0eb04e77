#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <set>
#include <string>
#include <vector>

#include "open/open.h"
#include "seihyou/calculation.h"
#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "support/postgres_server.h"
#include "support/temporary_folder.h"

// Several programs work on one job at once, each a process of its own with its own connections.

namespace {

constexpr int rounds = 100;
constexpr int benchMarks = 12;

/// A job with two observed routes of `benchMarks` bench marks, each 1.5 m above the one before.
class Job {
 public:
  explicit Job(std::string path) {
    context_.gDbPath = std::move(path);
    context_.gJobId = "3";
    context_.gTokyu = 1;
    job::FcSeiReadIni(context_.tables);
    job::FcSetNumberFormats(context_);
    const auto database = db::openDatabase(context_.gDbPath);
    database->execute(
        "CREATE TABLE KansokuSeikaData (JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT, SaveOrder "
        "INTEGER,"
        " 標石番号 TEXT, 標高 REAL, 中数 REAL, RosenEndDataFlg TEXT)");
    database->execute(
        "CREATE TABLE KansokuSeikaDataSeihyou (JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT, "
        "SaveOrder "
        "INTEGER, 水準点番号 TEXT, 標高 REAL, 備考1 TEXT, 備考2 TEXT, RosenEndDataFlg TEXT, 中数 REAL, "
        "正標高補正数 "
        "TEXT, 正標高結果 REAL)");
    for (const std::string route : {"R1", "R2"})
      for (int i = 1; i <= benchMarks; ++i)
        database->execute("INSERT INTO KansokuSeikaData VALUES('3','1001','" + route + "','0'," +
                          std::to_string(i) + ",'" + route + "-" + std::to_string(i) + "'," +
                          std::to_string(100 + i) + ",1.5," + (i == benchMarks ? "'-1'" : "''") + ")");
    database->close();
  }

  const job::JobContext& context() const { return context_; }

  /// What is saved of a route: bench mark, height (m) and remark, one record a line.
  std::vector<std::string> saved(const std::string& route) const {
    std::vector<std::string> lines;
    const auto database = db::openDatabase(context_.gDbPath);
    const auto records = database->openRecordset("SELECT * FROM KansokuSeikaDataSeihyou WHERE 路線番号 = '" +
                                                 route + "' ORDER BY SaveOrder");
    for (; !records->eof(); records->moveNext())
      lines.push_back(records->field("水準点番号").text() + " " + records->field("正標高結果").text() + " " +
                      records->field("備考1").text());
    return lines;
  }

 private:
  job::JobContext context_;
};

/// Loads a route, gives it a start height (m) and a remark, calculates and saves it.
bool workOn(const Job& job, const std::string& route, int startHeight, const std::string& remark) {
  const route::Selection selection{"1001", route, "0", ""};
  ui::Grid grid;
  grid.setRows(2);
  grid.setCols(seihyou::columnCount);
  if (!seihyou::FcDBOpen(selection, job.context(), grid)) return false;
  grid.setText(1, seihyou::colResult, std::to_string(startHeight));
  seihyou::FcCalcSeihyou(grid, 1, job.context().grade());
  for (int row = 1; row < grid.rows(); row += 2) grid.setText(row, seihyou::colRemark, remark);
  return seihyou::FcDbSave(selection, job.context(), grid);
}

/// What must stand there after workOn: bench mark i lies 1.5 m × (i − 1) above the start. The calculation
/// gives a route end no height.
std::vector<std::string> expected(const std::string& route, int startHeight, const std::string& remark) {
  std::vector<std::string> lines;
  for (int i = 1; i <= benchMarks; ++i) {
    const int tenths = 10 * startHeight + 15 * (i - 1);
    std::string height = std::to_string(tenths / 10);
    if (tenths % 10 != 0) height += "." + std::to_string(tenths % 10);
    if (i == benchMarks) height.clear();
    lines.push_back(route + "-" + std::to_string(i) + " " + height + " " + remark);
  }
  return lines;
}

/// Runs `work` in a process of its own; it answers how many rounds went wrong.
template <typename Work>
pid_t inProcess(Work work) {
  const pid_t child = fork();
  if (child != 0) return child;
  alarm(200);  // it must not outlive a test that failed
  int failures = 0;
  try {
    failures = work();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    failures = rounds;
  }
  _exit(failures > 100 ? 100 : failures);
}

int answerOf(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class SeveralOperators : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (std::string(GetParam()) == "PostgresServer") {
      if (test::PostgresServer::programs().empty())
        GTEST_SKIP() << "SKIPPED: no PostgreSQL server here (Debian: postgresql)";
      server_ = std::make_unique<test::PostgresServer>();
      path_ = folder_.write("職場.dsn", server_->newDatabase());
    } else {
      path_ = folder_.path("職場.sqlite");
      db::createDatabase(path_)->close();
    }
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<test::PostgresServer> server_;
  std::string path_;
};

TEST_P(SeveralOperators, DifferentRoutesLoseNoRecordAndMixNone) {
  const Job job(path_);
  const auto operate = [&job](const std::string& route) {
    int failures = 0;
    for (int round = 1; round <= rounds; ++round) {
      const std::string remark = route + " " + std::to_string(round);
      if (!workOn(job, route, 100 + round, remark)) ++failures;
      if (job.saved(route) != expected(route, 100 + round, remark)) ++failures;
    }
    return failures;
  };
  const pid_t first = inProcess([&] { return operate("R1"); });
  const pid_t second = inProcess([&] { return operate("R2"); });
  EXPECT_EQ(answerOf(first), 0);
  EXPECT_EQ(answerOf(second), 0);
  for (const std::string route : {"R1", "R2"})
    EXPECT_EQ(job.saved(route), expected(route, 100 + rounds, route + " " + std::to_string(rounds)));
}

TEST_P(SeveralOperators, OfTwoSavesOfOneSelectionAWholeOneStands) {
  const Job job(path_);
  ASSERT_TRUE(workOn(job, "R1", 500, "前"));
  const auto operate = [&job](int startHeight, const std::string& remark) {
    int failures = 0;
    for (int round = 0; round < rounds; ++round)
      if (!workOn(job, "R1", startHeight, remark)) ++failures;
    return failures;
  };
  const pid_t first = inProcess([&] { return operate(200, "甲"); });
  const pid_t second = inProcess([&] { return operate(300, "乙"); });
  const std::set<std::vector<std::string>> whole{expected("R1", 500, "前"), expected("R1", 200, "甲"),
                                                 expected("R1", 300, "乙")};
  for (int look = 0; look < 50; ++look) EXPECT_EQ(whole.count(job.saved("R1")), 1U) << "look " << look;
  EXPECT_EQ(answerOf(first), 0);
  EXPECT_EQ(answerOf(second), 0);
  EXPECT_EQ(whole.count(job.saved("R1")), 1U);
}

INSTANTIATE_TEST_SUITE_P(Jobs, SeveralOperators, testing::Values("SqliteFile", "PostgresServer"),
                         [](const auto& one) { return std::string(one.param); });

}  // namespace
