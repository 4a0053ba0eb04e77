#include "exchange/command.h"

#include <gtest/gtest.h>

#include <sstream>

#include "platform/files.h"
#include "support/job_file.h"

namespace {

using test::holds;
using Words = std::vector<std::string>;

/// What a run left on its streams.
struct Outcome {
  int status = 0;
  std::string out;
  std::string err;
};

Outcome run(const Words& words) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = exchange::run(words, out, err);
  return {status, out.str(), err.str()};
}

TEST(Command, AWrongCommandLineTellsTheUsage) {
  for (const Words& words :
       {Words{},
        {"move"},
        {"create"},
        {"create", "a", "b"},
        {"create", ""},
        {"create", "a", "--over"},
        {"copy", "a"},
        {"copy", "a", "b", "c"},
        {"copy", "a", "b", "--over", "--over"},
        {"copy", "a", "b", "--encoding", "utf-8"},
        {"check"},
        {"check", "a", "--all"},
        {"import-csv", "a", "JobData"},
        {"import-csv", "a", "JobData", "c", "--encoding"},
        {"import-csv", "a", "JobData", "c", "--encoding", "euc-jp"},
        {"export-csv", "a", "JobData", "c", "--over"},
        {"export-csv", "a", "JobData", "c", "--encoding", "utf-8", "--encoding", "utf-8"}}) {
    const Outcome outcome = run(words);
    EXPECT_EQ(outcome.status, 64) << testing::PrintToString(words);
    EXPECT_TRUE(outcome.out.empty());
    EXPECT_TRUE(holds(outcome.err, "コマンドの書き方が違います。\n使い方:\n  seikahyou-job create"));
  }
}

TEST(Command, MakesMovesAndChecksAJob) {
  const test::TemporaryFolder folder;
  const std::string first = folder.path("仕事 一.sqlite");
  const std::string second = folder.path("仕事 二.sqlite");
  Outcome outcome = run({"create", first});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "ジョブデータベースを作成しました: " + first + "\n");
  test::sql(first, {"INSERT INTO JobData VALUES ('1', '作業', 1, 1)"});
  EXPECT_EQ(run({"copy", first, second}).status, 0);
  outcome = run({"copy", "--over", first, second});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "ジョブを移しました: " + second + "\n");
  EXPECT_TRUE(outcome.err.starts_with("JobData: 1 件\nA_ExePath: 0 件\n"));
  outcome = run({"check", second});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "問題は見つかりませんでした。\n");
  test::sql(second, {"DROP TABLE A_ExePath"});
  outcome = run({"check", second});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "A_ExePath: テーブルがありません。\n");
  EXPECT_TRUE(outcome.err.empty());
}

TEST(Command, ExchangesFiles) {
  const test::JobFile job;
  job.sql({"INSERT INTO JobData VALUES ('1', '表', 1, 1)"});
  const std::string file = job.folder().path("表 1.csv");
  Outcome outcome = run({"export-csv", job.path(), "JobData", file, "--encoding", "CP932"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "JobData: 1 件を書き出しました。\n");
  EXPECT_TRUE(holds(*platform::readFile(file), "\x95\x5C"));
  outcome = run({"import-csv", "--encoding", "cp932", job.path(), "JobData", file});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "JobData: 1 件を取り込みました。\n");
  EXPECT_EQ(job.records("JobData"), Words({"'1'|'表'|1|1", "'1'|'表'|1|1"}));
  // Without a word on it a file is UTF-8.
  outcome = run({"import-csv", job.path(), "JobData", file});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(holds(outcome.err, "UTF-8 として正しくないバイトがあります。")) << outcome.err;
  EXPECT_EQ(job.records("JobData").size(), 2U);
}

TEST(Command, AnErrorIsToldAndEndsWithOne) {
  const test::TemporaryFolder folder;
  for (const Words& words : {Words{"check", folder.path("ない.sqlite")},
                             {"copy", folder.path("ない.sqlite"), folder.path("b.sqlite")},
                             {"create", folder.path("ない/job.sqlite")}}) {
    const Outcome outcome = run(words);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.out.empty());
    EXPECT_TRUE(holds(outcome.err, "ない")) << outcome.err;
  }
}

}  // namespace
