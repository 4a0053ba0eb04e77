#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "hksnb/book_job.h"
#include "hksnb/columns.h"
#include "hksnb/data.h"
#include "hksnb/grid_set_up.h"
#include "support/recording_desktop.h"

namespace {

constexpr int moments = 60;

void fill(ui::Grid& grid, int benchMarks, const char* town) {
  FcHHKSB_InitGrid1(grid, hksnb::Kind::Orthometric);
  grid.setRows(2 * benchMarks + 1);
  for (int row = 1; row < grid.rows(); row += 2) {
    grid.setText(row, hksnb::colBenchMark, "BM" + std::to_string(row));
    grid.setText(row, hksnb::colTown, town);
  }
}

/// A process that saves two versions of a book with two periods in turns until it is killed.
pid_t startSaving(const job::JobContext& context) {
  const pid_t process = fork();
  if (process != 0) return process;
  alarm(20);  // it must not outlive a test that failed
  ui::Grid older;
  ui::Grid newer;
  fill(older, 400, "旧");
  fill(newer, 600, "新");
  for (;;) {
    hksnb::FcHHKSB_HKSNBSave(context, hksnb::Kind::Orthometric, "1", {"2002", "02", "2002", "02"}, newer);
    hksnb::FcHHKSB_HKSNBSave(context, hksnb::Kind::Orthometric, "1", {"2001", "01", "2001", "01"}, older);
  }
}

/// Saves the older version. Returns how long a process may save before it is killed: long enough for both
/// versions, however slow the machine is.
std::chrono::microseconds longestLife(const job::JobContext& context) {
  ui::Grid grid;
  fill(grid, 400, "旧");
  const auto start = std::chrono::steady_clock::now();
  hksnb::FcHHKSB_HKSNBSave(context, hksnb::Kind::Orthometric, "1", {"2001", "01", "2001", "01"}, grid);
  const auto oneSave = std::chrono::steady_clock::now() - start;
  return std::max(std::chrono::microseconds(60000),
                  std::chrono::duration_cast<std::chrono::microseconds>(4 * oneSave));
}

// Rows and period go together: all of one version, whenever the process dies.
TEST(KilledSave, LeavesOneWholeBookWithItsPeriod) {
  const test::BookJob job;
  test::RecordingDesktop desktop;
  hksnb::FcHHKSB_AddRosenEndFlg(job.context(), desktop);
  const auto life = static_cast<std::uint32_t>(longestLife(job.context()).count());
  std::uint32_t state = 5;
  int newBooks = 0;
  for (int moment = 0; moment < moments; ++moment) {
    const pid_t process = startSaving(job.context());
    state = state * 1664525U + 1013904223U;
    std::this_thread::sleep_for(std::chrono::microseconds(500 + (state >> 8U) % life));
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);

    const auto olds = job.records("SELECT * FROM KansokuSeikaDataHKSNB WHERE 町村 = '旧'", {"町村"}).size();
    const auto news = job.records("SELECT * FROM KansokuSeikaDataHKSNB WHERE 町村 = '新'", {"町村"}).size();
    const auto periods = job.records("SELECT * FROM KansokuKikan", {"新観測年月From"});
    if (news > 0) ++newBooks;
    ASSERT_TRUE((olds == 400 && news == 0) || (olds == 0 && news == 600)) << olds << " and " << news;
    ASSERT_EQ(periods, std::vector<std::string>{olds > 0 ? "200101" : "200202"}) << "after moment " << moment;
  }
  EXPECT_GT(newBooks, 0);
}

}  // namespace
