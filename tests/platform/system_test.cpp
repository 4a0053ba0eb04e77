#include "platform/system.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/files.h"

namespace {

std::string commandLineOf(std::vector<std::string> words) {
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  return platform::commandLineText(static_cast<int>(argv.size()), argv.data());
}

TEST(CommandLineText, IsEverythingBehindTheProgramsName) {
  EXPECT_EQ(commandLineOf({"seikahyou"}), "");
  EXPECT_EQ(commandLineOf({"seikahyou", "job.sqlite"}), "job.sqlite");
  EXPECT_EQ(commandLineOf({"seikahyou", "C:\\測量 作業\\job.sqlite"}), "C:\\測量 作業\\job.sqlite");
}

TEST(CommandLineText, IsLeftAsItStands) {
  EXPECT_EQ(commandLineOf({"seikahyou", "\"job.sqlite\""}), "\"job.sqlite\"");
  EXPECT_EQ(commandLineOf({"seikahyou", " job.sqlite "}), " job.sqlite ");
  EXPECT_EQ(commandLineOf({"seikahyou", ""}), "");
}

TEST(CommandLineText, JoinsPartedWordsWithOneBlank) {
  EXPECT_EQ(commandLineOf({"seikahyou", "my", "job.sqlite"}), "my job.sqlite");
  EXPECT_EQ(commandLineOf({"seikahyou", "my", "", "job"}), "my  job");
}

TEST(ProgramFolder, HoldsTheRunningProgram) {
  EXPECT_FALSE(platform::programFolder().ends_with("/"));
  EXPECT_TRUE(platform::isFile(platform::programFolder() + "\\platform_test"));
}

TEST(PeakMemory, GrowsWithWhatIsHeld) {
  const std::size_t before = platform::peakMemory();
  EXPECT_GT(before, 0U);
  std::vector<char> much(std::size_t{64} << 20U);
  for (std::size_t at = 0; at < much.size(); at += 4096) much[at] = 1;
  ASSERT_EQ(std::count(much.begin(), much.end(), 1), 16384);  // 64 MiB in pages of 4 KiB
  EXPECT_GE(platform::peakMemory(), before + (std::size_t{48} << 20U));
}

}  // namespace
