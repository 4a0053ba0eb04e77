#include "platform/process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "platform/files.h"
#include "support/temporary_folder.h"
#include "support/tool.h"
#include "text/error.h"

namespace {

using namespace std::chrono_literals;

unsigned long waitFor(platform::Process& process) {
  unsigned long code = process.exitCode();
  for (int i = 0; i < 2000 && code == platform::stillActive; ++i) {
    platform::pause(5ms);
    code = process.exitCode();
  }
  return code;
}

TEST(Process, AnswersStillActiveUntilTheProgramHasEnded) {
  const test::TemporaryFolder folder;
  platform::Process process(test::placeTool(folder, "tool", "sleep 300\nexit 7"));
  EXPECT_EQ(process.exitCode(), platform::stillActive);
  EXPECT_EQ(waitFor(process), 7U);
  EXPECT_EQ(process.exitCode(), 7U) << "the code stays, however often it is asked for";
}

TEST(Process, StartsAtPathsWithBlanksAndJapanese) {
  const test::TemporaryFolder folder;
  const std::string tool = test::placeTool(folder, "測量 データ/画像 貼付.exe", "write 結果.txt|ok");
  platform::Process process(tool);
  EXPECT_EQ(waitFor(process), 0U);
  EXPECT_EQ(platform::readFile(folder.path("測量 データ/結果.txt")), "ok");
}

TEST(Process, TakesPathsWithBackslashes) {
  const test::TemporaryFolder folder;
  std::string tool = test::placeTool(folder, "tool", "exit 3");
  std::replace(tool.begin(), tool.end(), '/', '\\');
  platform::Process process(tool);
  EXPECT_EQ(waitFor(process), 3U);
}

TEST(Process, TheProgramReadsNothingFromUsAndWritesNothingIntoOurOutput) {
  const test::TemporaryFolder folder;
  testing::internal::CaptureStdout();
  platform::Process process(test::placeTool(folder, "tool", "listen\nsay chatter"));
  EXPECT_EQ(waitFor(process), 0U);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(Process, AProgramThatASignalEndsAnswersAsItsSystemSays) {
  const test::TemporaryFolder folder;
  platform::Process process(test::placeTool(folder, "tool", "abort"));
#ifdef _WIN32
  EXPECT_EQ(waitFor(process), 3U);  // the C library's own code for it
#else
  EXPECT_EQ(waitFor(process), 134U);  // as a shell says: 128 + signal 6
#endif
}

TEST(Process, ClosedItAnswersZero) {
  const test::TemporaryFolder folder;
  platform::Process process(test::placeTool(folder, "tool", "write tool.on|\nsleep 200"));
  while (!platform::isFile(folder.path("tool.on"))) platform::pause(1ms);
  process.close();
  process.close();
  EXPECT_EQ(process.exitCode(), 0U);
}

TEST(Process, AMissingProgramRaisesFileNotFound) {
  const test::TemporaryFolder folder;
  try {
    platform::Process process(folder.path("tool"));
    FAIL() << "started nothing";
  } catch (const text::RuntimeError& error) {
    EXPECT_STREQ(error.what(), "ファイルが見つかりません。");
  }
}

TEST(Process, AFileThatMayNotBeRunIsNamed) {
  const test::TemporaryFolder folder;
  const std::string path = folder.write("絵.exe", "no program");
  try {
    platform::Process process(path);
    FAIL() << "started a text";
  } catch (const text::RuntimeError& error) {
    EXPECT_EQ(error.code(), text::ErrorCode::FileNotFound);
    EXPECT_TRUE(std::string(error.what()).starts_with("プログラムを起動できません。" + path)) << error.what();
  }
}

}  // namespace
