#include "platform/append.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "platform/files.h"
#include "support/temporary_folder.h"

namespace {

using platform::appendToFile;

TEST(AppendToFile, MakesTheFileWithItsHeadingAndGoesOn) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("新しい/記録.csv");
  EXPECT_TRUE(appendToFile(file, "heading\n", "one\n"));
  EXPECT_TRUE(appendToFile(file, "heading\n", "two\n"));
  EXPECT_EQ(platform::readFile(file), "heading\none\ntwo\n");
}

TEST(AppendToFile, WhatCannotBeWrittenIsToldAndNothingElse) {
  const test::TemporaryFolder folder;
  platform::makeFolder(folder.path("記録.csv"));
  EXPECT_FALSE(appendToFile(folder.path("記録.csv"), "h", "t"));
  platform::writeFile(folder.path("file"), "x");
  EXPECT_FALSE(appendToFile(folder.path("file/below/記録.csv"), "h", "t"));
  EXPECT_EQ(platform::readFile(folder.path("file")), "x");
}

/// Four writers of 200 lines each: 801 lines with the heading, none mixed with another.
TEST(AppendToFile, LinesOfSeveralWritersStandOneAfterAnother) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("記録.csv");
  std::vector<std::thread> writers;
  for (int writer = 0; writer < 4; ++writer)
    writers.emplace_back([&file, writer] {
      for (int line = 0; line < 200; ++line)
        appendToFile(file, "heading\n", std::string(60, static_cast<char>('a' + writer)) + "\n");
    });
  for (std::thread& writer : writers) writer.join();
  const std::string content = platform::readFile(file).value_or("");
  EXPECT_TRUE(content.starts_with("heading\n"));
  EXPECT_EQ(content.size(), 8U + 800U * 61U);
  for (std::size_t at = 8; at < content.size(); at += 61)
    EXPECT_EQ(content.substr(at, 61), std::string(60, content[at]) + "\n") << at;
}

TEST(LocalTime, IsADayAndATime) {
  const std::string now = platform::localTime();
  ASSERT_EQ(now.size(), 19U);
  EXPECT_EQ(std::string({now[4], now[7], now[10], now[13], now[16]}), "// ::");
}

}  // namespace
