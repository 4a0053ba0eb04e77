#include "platform/settings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>
#include <vector>

#include "platform/files.h"
#include "support/temporary_folder.h"

namespace {

using platform::Settings;

TEST(Settings, ComeBackInTheNextRun) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("使う人/seikahyou/settings.txt");
  Settings first(file);
  EXPECT_EQ(first.text("look"), "");
  EXPECT_EQ(first.number("fSHsei.width", 640), 640);
  EXPECT_TRUE(first.set("look", "暗い\n二行目\\n"));
  EXPECT_TRUE(first.set("fSHsei.width", -12));
  EXPECT_TRUE(first.set("replaces", "1"));

  const Settings next(file);
  EXPECT_EQ(next.text("look"), "暗い\n二行目\\n");
  EXPECT_EQ(next.number("fSHsei.width", 640), -12);
  EXPECT_TRUE(next.flag("replaces", false));
  EXPECT_EQ(platform::readFile(file), "fSHsei.width=-12\nlook=暗い\\n二行目\\\\n\nreplaces=1\n");
}

TEST(Settings, OfTwoProgramsStandSideBySide) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("settings.txt");
  Settings one(file);
  Settings other(file);
  one.set("a", "1");
  other.set("b", "2");
  EXPECT_EQ(Settings(file).text("a"), "1");
  EXPECT_EQ(Settings(file).text("b"), "2");
}

TEST(Settings, TakenAwayStayAwayWhoeverWritesNext) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("settings.txt");
  Settings one(file);
  one.set("recent.a", "A");
  one.set("recent.b", "B");
  Settings other(file);
  EXPECT_TRUE(other.erase("recent.a"));
  EXPECT_TRUE(other.erase("recent.none"));
  EXPECT_EQ(other.keys("recent."), std::vector<std::string>{"recent.b"});
  Settings third(file);
  third.set("look", "dark");
  EXPECT_EQ(Settings(file).keys(""), (std::vector<std::string>{"look", "recent.b"}));
}

TEST(Settings, OfManyProgramsAtOnceAreAllKept) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("settings.txt");
  std::vector<std::thread> programs;
  for (int program = 0; program < 4; ++program)
    programs.emplace_back([&file, program] {
      for (int key = 0; key < 20; ++key)
        Settings(file).set("p" + std::to_string(program) + "." + std::to_string(key), key);
    });
  for (std::thread& program : programs) program.join();
  EXPECT_EQ(Settings(file).keys("p").size(), 80U);
}

TEST(Settings, WhatIsNoSettingIsPassedOver) {
  const test::TemporaryFolder folder;
  folder.write("settings.txt", "=1\nnonsense\n\nwidth=12px\nheight=99999999999\nlook=dark=no\nlast=\\");
  const Settings settings(folder.path("settings.txt"));
  EXPECT_EQ(settings.number("width", 7), 7);
  EXPECT_EQ(settings.number("height", 8), 8);
  EXPECT_TRUE(settings.flag("look", true)) << "neither 0 nor 1";
  EXPECT_EQ(settings.text("look"), "dark=no");
  EXPECT_EQ(settings.text("last"), "\\");
  EXPECT_EQ(settings.text("nonsense", "none"), "none");
}

TEST(Settings, ThatCannotBeWrittenLastAsLongAsTheProgram) {
  const test::TemporaryFolder folder;
  folder.write("file", "");
  Settings settings(folder.path("file/settings.txt"));
  EXPECT_FALSE(settings.set("look", "dark"));
  EXPECT_EQ(settings.text("look"), "dark");
  Settings nowhere;
  EXPECT_TRUE(nowhere.set("look", "dark"));
  EXPECT_EQ(nowhere.text("look"), "dark");
}

#ifndef _WIN32
class SettingsFile : public testing::Test {
 protected:
  ~SettingsFile() override {
    put("XDG_CONFIG_HOME", folder_);
    put("HOME", home_);
  }
  static void put(const char* name, const std::string& text) {
    text.empty() ? unsetenv(name) : setenv(name, text.c_str(), 1);
  }
  static std::string get(const char* name) {
    const char* const text = std::getenv(name);
    return text == nullptr ? "" : text;
  }

 private:
  std::string folder_ = get("XDG_CONFIG_HOME");
  std::string home_ = get("HOME");
};

TEST_F(SettingsFile, StandsInTheUsersOwnSettingsFolder) {
  put("HOME", "/home/測量");
  put("XDG_CONFIG_HOME", "");
  EXPECT_EQ(platform::settingsFile(), "/home/測量/.config/seikahyou/settings.txt");
  put("XDG_CONFIG_HOME", "/etc/mine");
  EXPECT_EQ(platform::settingsFile(), "/etc/mine/seikahyou/settings.txt");
  put("XDG_CONFIG_HOME", "mine");
  EXPECT_EQ(platform::settingsFile(), "/home/測量/.config/seikahyou/settings.txt");
  put("HOME", "");
  EXPECT_EQ(platform::settingsFile(), "") << "nowhere: nothing is remembered";
}
#endif

}  // namespace
