#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "support/small_job.h"

namespace {

constexpr int moments = 200;
const route::Selection selection{"1001", "R1", "0", ""};

/// A route of `benchMarks` bench marks, each with the same remark.
void fill(ui::Grid& grid, int benchMarks, const char* remark) {
  grid.setRows(2 * benchMarks + 1);
  grid.setCols(seihyou::columnCount);
  for (int row = 1; row < grid.rows(); row += 2) {
    grid.setText(row, seihyou::colBenchMark, "BM" + std::to_string(row));
    grid.setText(row, seihyou::colResult, "123.4567");
    grid.setText(row, seihyou::colRemark, remark);
    grid.setText(row + 1, seihyou::colHeight, "1.2345");
  }
}

/// A process that saves two versions of the route in turns until it is killed.
pid_t startSaving(const job::JobContext& context) {
  const pid_t process = fork();
  if (process != 0) return process;
  alarm(20);  // it must not outlive a test that failed
  ui::Grid older;
  ui::Grid newer;
  fill(older, 700, "旧");
  fill(newer, 900, "新");
  for (;;) {
    seihyou::FcDbSave(selection, context, older);
    seihyou::FcDbSave(selection, context, newer);
  }
}

/// How long a process may save before it is killed: long enough for both versions, however slow the machine
/// is.
std::chrono::microseconds longestLife(const job::JobContext& context) {
  ui::Grid grid;
  fill(grid, 900, "前");
  const auto start = std::chrono::steady_clock::now();
  seihyou::FcDbSave(selection, context, grid);
  const auto oneSave = std::chrono::steady_clock::now() - start;
  return std::max(std::chrono::microseconds(40000),
                  std::chrono::duration_cast<std::chrono::microseconds>(4 * oneSave));
}

std::set<std::string> remarksOf(const test::SmallJob& job, std::size_t& count) {
  const auto records = job.records("SELECT * FROM KansokuSeikaDataSeihyou WHERE 路線番号 = 'R1'", {"備考1"});
  count = records.size();
  return {records.begin(), records.end()};
}

TEST(KilledSave, LeavesAllOldOrAllNewRows) {
  const test::SmallJob job;
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号) "
      "VALUES"
      " ('3','1001','R2','0',1,'other'), ('3','1001','R1','0',1,'first')");
  const auto life = static_cast<std::uint32_t>(longestLife(job.context()).count());
  std::uint32_t state = 42;
  int olds = 0;
  int news = 0;
  for (int moment = 0; moment < moments; ++moment) {
    const pid_t process = startSaving(job.context());
    state = state * 1664525U + 1013904223U;
    std::this_thread::sleep_for(std::chrono::microseconds(500 + (state >> 8U) % life));
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);

    std::size_t count = 0;
    const std::set<std::string> remarks = remarksOf(job, count);
    ASSERT_EQ(remarks.size(), 1U) << "old and new rows mixed after moment " << moment;
    const std::string remark = *remarks.begin();
    if (remark == "旧") ++olds;
    if (remark == "新") ++news;
    ASSERT_EQ(count, remark == "旧" ? 700U : 900U) << "rows lost after moment " << moment;
    ASSERT_EQ(job.records("SELECT * FROM KansokuSeikaDataSeihyou WHERE 路線番号 = 'R2'", {"水準点番号"}),
              std::vector<std::string>{"other"});
  }
  EXPECT_GT(olds, 0);
  EXPECT_GT(news, 0);
}

}  // namespace
