#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "failing_files.h"
#include "intake/command.h"
#include "platform/write_obstacle.h"
#include "screen_work.h"
#include "support/other_program.h"
#include "support/recording_desktop.h"

// What keeps a job from being read or written is told apart, whoever asks: a screen that opens, a screen that
// saves, each command of seikahyou-job. Nothing is changed where something is refused.

namespace {

/// Root is refused nothing: while it lives the test goes on as somebody without rights.
class WithoutRights {
 public:
  WithoutRights() : root_(geteuid() == 0) {
    if (root_ && seteuid(nobody) != 0) throw std::runtime_error("cannot give up rights");
  }
  ~WithoutRights() {
    if (root_ && seteuid(0) != 0) std::abort();
  }
  WithoutRights(const WithoutRights&) = delete;
  WithoutRights& operator=(const WithoutRights&) = delete;

 private:
  static constexpr uid_t nobody = 65534;
  bool root_;
};

class Refusals : public testing::Test {
 protected:
  Refusals() {
    job_.sql("INSERT INTO JobData VALUES ('3', '試験', 1, 1)");
    chmod(job_.folder().path().c_str(), 0777);
    chmod(path().c_str(), 0666);
  }
  ~Refusals() override { chmod(job_.folder().path().c_str(), 0777); }

  const std::string& path() const { return job_.context().gDbPath; }

  std::string rows() const { return test::OtherProgram(path()).ask("SELECT count(*) FROM KansokuSeikaData"); }

  /// What seikahyou-job says.
  static std::string said(const std::vector<std::string>& words) {
    std::ostringstream out;
    std::ostringstream errors;
    intake::run(words, out, errors);
    return out.str() + errors.str();
  }

  std::vector<std::string> readers() const {
    return {said({"check", path()}), said({"export-csv", path(), "KansokuSeikaData", folder_.path("出.csv")}),
            said({"copy", path(), folder_.path("写し.sqlite")})};
  }
  std::vector<std::string> writers() const {
    return {said({"import-csv", path(), "KansokuSeikaData", csv_}),
            said({"import-observations", path(), observations_, "--job", "3"}),
            said({"copy", source_.context().gDbPath, path(), "--over"})};
  }

  /// What the operator reads who opens in the first screen, and who saves there what was opened before `bar`.
  std::vector<std::string> screens(const std::function<void()>& bar) {
    test::RecordingDesktop desktop;
    desktop.guarded = true;
    const auto screen = test::screenWorks().front().choose(job_.context(), desktop);
    screen->open();
    bar();
    screen->save();
    std::vector<std::string> texts;
    for (const ui::Message& message : desktop.takeMessages()) texts.push_back(message.text);
    return texts;
  }

  test::WorkedJob job_;
  test::WorkedJob source_;
  test::TemporaryFolder folder_;
  std::string csv_ = folder_.write("表.csv", "JobId,標石番号\r\n8,A\r\n");
  std::string observations_ = folder_.write("観測.csv", "事業番号,路線番号,標石番号\n1,R9,A\n");
};

/// Each of `all` holds `words`.
void expectEach(const std::vector<std::string>& all, const std::string& words) {
  EXPECT_FALSE(all.empty());
  for (const std::string& one : all) EXPECT_NE(one.find(words), std::string::npos) << one;
}

TEST_F(Refusals, AReadOnlyFileIsReadAndNotWritten) {
  chmod(path().c_str(), 0444);
  const WithoutRights without;
  const std::string words = "は読み取り専用のため書き込めません";
  expectEach(screens([] {}), words);
  expectEach(screens([] {}), "保存前の成果はそのまま残っています。");
  expectEach(writers(), words);
  EXPECT_EQ(rows(), "6");
}

TEST_F(Refusals, AFolderThatIsNotOursIsTold) {
  chmod(job_.folder().path().c_str(), 0555);
  const WithoutRights without;
  const std::string words = "のフォルダーに書き込む権限がないため、データベースにも書き込めません";
  expectEach(screens([] {}), words);
  expectEach(writers(), words);
  const std::string file = job_.folder().path("新.sqlite");
  for (const auto& one : {said({"create", file}), said({"copy", path(), file})})
    EXPECT_EQ(one.substr(0, one.find('\n')),
              "データベース「" + file + "」を作れません。書き込む権限がありません。");
  const std::string csv = job_.folder().path("出.csv");
  EXPECT_EQ(platform::writeObstacle(csv, UINTMAX_MAX), platform::WriteObstacle::Denied)
      << "where nobody may write it does not matter how much room there is";
  EXPECT_EQ(said({"export-csv", path(), "JobData", csv}),
            "CSV ファイル「" + csv + "」に書き込めません。書き込む権限がありません。\n");
}

TEST_F(Refusals, AFileThatMayNotBeReadIsTold) {
  chmod(path().c_str(), 0);
  const WithoutRights without;
  for (const auto& all : {readers(), writers()}) expectEach(all, "を読む権限がありません。");
}

TEST_F(Refusals, AWriterMeetsAnotherOne) {
  test::OtherProgram other(path());
  other.run("BEGIN IMMEDIATE");
  const std::string words = "は他のプログラムが使用中です";
  expectEach(screens([] {}), words);
  expectEach({said({"import-csv", path(), "KansokuSeikaData", csv_})}, words);
  EXPECT_EQ(rows(), "6");
}

TEST_F(Refusals, AReaderMeetsOneWhoKeepsAllOut) {
  test::OtherProgram other(path());
  other.run("BEGIN EXCLUSIVE");
  expectEach({said({"check", path()})}, "は他のプログラムが使用中です");
}

TEST_F(Refusals, AFullMediumTakesNothing) {
  test::FailingFiles files;
  files.arm({test::Call::Write, SQLITE_FULL, true}, 1);
  const std::string words = "ディスクの空き容量が足りないため、データベース「";
  expectEach(screens([] {}), words);
  expectEach(writers(), words);
  const std::string file = folder_.path("新.sqlite");
  expectEach({said({"create", file}), said({"copy", path(), file})}, words + file);
  EXPECT_FALSE(std::filesystem::exists(file));
  files.disarm();
  EXPECT_EQ(rows(), "6");
}

TEST_F(Refusals, WhatIsNoJobIsCalledWhatItIs) {
  const auto meet = [this](const std::string& words) {
    for (const auto& all : {readers(), writers()}) expectEach(all, words);
  };
  std::filesystem::resize_file(path(), 3 * 4096 + 100);
  meet("は壊れています: ");
  std::ofstream(path()) << "words";
  meet("はデータベースではありません。");
  std::filesystem::resize_file(path(), 0);
  meet("は空のファイルで、データベースではありません。");
  std::filesystem::remove(path());
  expectEach(readers(), "が見つかりません。");
  expectEach({said({"import-csv", path(), "KansokuSeikaData", csv_})}, "が見つかりません。");
  std::filesystem::create_directory(path());
  meet("はフォルダです。");
}

}  // namespace
