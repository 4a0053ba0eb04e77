#include "jobs/recent.h"

#include <gtest/gtest.h>

#include <thread>

#include "platform/files.h"
#include "platform/settings.h"
#include "support/temporary_folder.h"

namespace {

using jobs::RecentJob;
using jobs::RecentJobs;

RecentJob job(const std::string& path, const std::string& opened) {
  return {path, "SQLite", "1", "2", opened};
}

TEST(RecentJobs, ComeBackTheLastOneFirst) {
  const test::TemporaryFolder folder;
  RecentJobs jobs(folder.path("settings.txt"));
  EXPECT_TRUE(jobs.list().empty());
  jobs.remember(job("/測量/一.sqlite", "2026-11-20 09:00:00"));
  jobs.remember(job("/測量/二\t.sqlite", "2026-11-21 09:00:00"));
  jobs.remember(job("/測量/一.sqlite", "2026-11-22 09:00:00"));
  const RecentJobs next(folder.path("settings.txt"));
  EXPECT_EQ(next.list(), (std::vector<RecentJob>{job("/測量/一.sqlite", "2026-11-22 09:00:00"),
                                                 job("/測量/二\t.sqlite", "2026-11-21 09:00:00")}));
}

TEST(RecentJobs, AreTakenOffForGood) {
  const test::TemporaryFolder folder;
  RecentJobs jobs(folder.path("settings.txt"));
  jobs.remember(job("/a", "2026-11-20 09:00:00"));
  jobs.remember(job("/b", "2026-11-20 09:00:01"));
  EXPECT_TRUE(jobs.forget("/b"));
  EXPECT_TRUE(jobs.forget("/never"));
  EXPECT_EQ(jobs.list(), std::vector<RecentJob>{job("/a", "2026-11-20 09:00:00")});
}

TEST(RecentJobs, AreTwentyAtMost) {
  const test::TemporaryFolder folder;
  RecentJobs jobs(folder.path("settings.txt"));
  for (int i = 10; i < 35; ++i)
    jobs.remember(job("/" + std::to_string(i), "2026-11-20 09:00:" + std::to_string(i)));
  ASSERT_EQ(jobs.list().size(), RecentJobs::most);
  EXPECT_EQ(jobs.list().front().path, "/34");
  EXPECT_EQ(jobs.list().back().path, "/15");
}

TEST(RecentJobs, OfSeveralProgramsAtOnceAreAllKept) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("settings.txt");
  std::vector<std::thread> programs;
  for (int program = 0; program < 4; ++program)
    programs.emplace_back([&file, program] {
      for (int i = 0; i < 4; ++i)
        RecentJobs(file).remember(
            job("/" + std::to_string(program) + std::to_string(i), "2026-11-20 09:00:00"));
    });
  for (std::thread& program : programs) program.join();
  EXPECT_EQ(RecentJobs(file).list().size(), 16U);
}

TEST(RecentJobs, SurviveADamagedFile) {
  const test::TemporaryFolder folder;
  RecentJobs jobs(folder.path("settings.txt"));
  jobs.remember(job("/a", "2026-11-20 09:00:00"));
  const std::string good = platform::readFile(folder.path("settings.txt")).value();
  folder.write("settings.txt", std::string("\0\xff\xfe\x80=\nrecent.12=kaputt\nrecent.0123456789abcdef=") +
                                   "2026-11-20 09:00:00\tSQLite\t1\t2\t/other\n" + good + "recent.");
  EXPECT_EQ(jobs.list(), std::vector<RecentJob>{job("/a", "2026-11-20 09:00:00")});
  EXPECT_TRUE(jobs.remember(job("/b", "2026-11-21 09:00:00")));
  EXPECT_EQ(jobs.list().size(), 2U);
}

TEST(RecentJobs, CarryTheTimeOfTheirOpening) {
  const std::string now = jobs::timeNow();
  ASSERT_EQ(now.size(), 19U);
  EXPECT_EQ(now[4], '-');
  EXPECT_EQ(now[13], ':');
}

}  // namespace
