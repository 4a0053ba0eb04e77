#include "platform/process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "platform/files.h"
#include "support/temporary_folder.h"
#include "support/tool_script.h"
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
  platform::Process process(test::writeTool(folder, "tool", "sleep 0.3; exit 7"));
  EXPECT_EQ(process.exitCode(), platform::stillActive);
  EXPECT_EQ(waitFor(process), 7U);
  EXPECT_EQ(process.exitCode(), 7U) << "the code stays, however often it is asked for";
}

TEST(Process, StartsAtPathsWithBlanksAndJapanese) {
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder.path("測量 データ"));
  const std::string tool = test::writeTool(folder, "測量 データ/画像 貼付.exe", "echo ok > \"$0.out\"");
  platform::Process process(tool);
  EXPECT_EQ(waitFor(process), 0U);
  EXPECT_EQ(platform::readFile(tool + ".out"), "ok\n");
}

TEST(Process, TakesPathsWithBackslashes) {
  const test::TemporaryFolder folder;
  std::string tool = test::writeTool(folder, "tool", "exit 3");
  std::replace(tool.begin(), tool.end(), '/', '\\');
  platform::Process process(tool);
  EXPECT_EQ(waitFor(process), 3U);
}

TEST(Process, TheProgramReadsNothingFromUsAndWritesNothingIntoOurOutput) {
  const test::TemporaryFolder folder;
  testing::internal::CaptureStdout();
  platform::Process process(test::writeTool(folder, "tool", "cat; echo chatter"));
  EXPECT_EQ(waitFor(process), 0U);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(Process, AProgramThatASignalEndsAnswersAsAShellSays) {
  const test::TemporaryFolder folder;
  platform::Process process(test::writeTool(folder, "tool", "kill -9 $$"));
  EXPECT_EQ(waitFor(process), 137U);  // 128 + signal 9
}

TEST(Process, ClosedItAnswersZero) {
  const test::TemporaryFolder folder;
  platform::Process process(test::writeTool(folder, "tool", "touch \"$0.on\"; sleep 0.2"));
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
