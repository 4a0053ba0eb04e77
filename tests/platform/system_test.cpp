#include "platform/system.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/files.h"

namespace {

TEST(BehindProgramName, IsEverythingBehindTheName) {
  using platform::behindProgramName;
  EXPECT_EQ(behindProgramName("seikahyou.exe C:\\job.sqlite"), "C:\\job.sqlite");
  EXPECT_EQ(behindProgramName("\"C:\\成果 表\\seikahyou.exe\" C:\\測量 作業\\job.mdb"),
            "C:\\測量 作業\\job.mdb");
  EXPECT_EQ(behindProgramName("seikahyou  \t \"my job.sqlite\" "), "\"my job.sqlite\" ");
}

TEST(BehindProgramName, IsEmptyWithoutOne) {
  using platform::behindProgramName;
  for (const char* text : {"", "seikahyou", "seikahyou ", "\"my program\"", "\"my program\"\t ", "\"open"})
    EXPECT_EQ(behindProgramName(text), "") << text;
}

#ifndef _WIN32  // Windows keeps the text of the process; what is made of it is tested above
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

#endif

TEST(ProgramFolder, HoldsTheRunningProgram) {
  EXPECT_FALSE(platform::programFolder().ends_with("/"));
  const std::string program = platform::programFolder() + "\\platform_test";
  EXPECT_TRUE(platform::isFile(program) || platform::isFile(program + ".exe"));
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
