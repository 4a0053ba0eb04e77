#include "route/picture_paste.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "support/recording_desktop.h"
#include "support/temporary_folder.h"
#include "support/tool.h"

namespace {

using Messages = std::vector<ui::Message>;

const ui::Message hint{{}, "オプション「画像貼付ツール」をインストールしてください", ui::Icon::Information};
const ui::Message noPicture{"FcPicturePaste", "ファイルが見つかりません。", ui::Icon::Critical};

class PicturePaste : public testing::Test {
 protected:
  PicturePaste() {
    platform::makeFolder(folder.path("測量 データ/map_app"));
    context.gExeDir = folder.path("測量 データ") + "\\";
    context.gJobId = "3";
  }

  /// Installs a tool that carries out these steps.
  void install(const std::string& steps) {
    test::placeTool(folder, "測量 データ/map_app/PicturePaste.exe", steps);
  }

  bool paste() {
    return route::FcPicturePaste(desktop, context, context.gExeDir + "map_app\\PicturePaste.exe",
                                 "成果表楕円補正.bmp");
  }

  std::optional<std::string> filed() const {
    return platform::readFile(folder.path("測量 データ/3/bmp_data/成果表楕円補正.bmp"));
  }

  bool pictureLeft() const { return platform::isFile(folder.path("測量 データ/map_app/temp.bmp")); }

  test::TemporaryFolder folder;
  test::RecordingDesktop desktop;
  job::JobContext context;
};

TEST_F(PicturePaste, FilesThePictureInAFolderMadeForIt) {
  install("write temp.bmp|picture");
  EXPECT_FALSE(paste()) << "false always";
  EXPECT_EQ(filed(), "picture");
  EXPECT_FALSE(pictureLeft());
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(PicturePaste, MakesTheFolderInAnExistingJobFolder) {
  platform::makeFolder(folder.path("測量 データ/3"));
  install("write temp.bmp|picture");
  paste();
  EXPECT_EQ(filed(), "picture");
}

TEST_F(PicturePaste, ReplacesAPictureOfTheSameName) {
  install("write temp.bmp|first");
  paste();
  install("write temp.bmp|second");
  paste();
  EXPECT_EQ(filed(), "second");
  EXPECT_FALSE(pictureLeft());
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(PicturePaste, AMissingToolIsSaidFirstAndThenThatThereIsNoPicture) {
  EXPECT_FALSE(paste());
  EXPECT_EQ(desktop.messages, (Messages{hint, noPicture}));
  EXPECT_EQ(filed(), std::nullopt);
  EXPECT_EQ(desktop.breaths, 0) << "there is nothing to wait for";
}

TEST_F(PicturePaste, APictureThatLiesReadyIsFiledEvenWithoutTheTool) {
  folder.write("測量 データ/map_app/temp.bmp", "ready");
  paste();
  EXPECT_EQ(desktop.messages, Messages{hint});
  EXPECT_EQ(filed(), "ready");
}

TEST_F(PicturePaste, AToolThatLeavesNoPictureKeepsTheOneFiledBefore) {
  install("write temp.bmp|first");
  paste();
  install("exit 0");
  paste();
  EXPECT_EQ(desktop.messages, Messages{noPicture});
  EXPECT_EQ(filed(), "first");
}

TEST_F(PicturePaste, TheWindowBreathesWhileTheToolRuns) {
  install("sleep 2000\nwrite temp.bmp|late");
  const auto begun = std::chrono::steady_clock::now();
  paste();
  EXPECT_GE(std::chrono::steady_clock::now() - begun, std::chrono::seconds(2));
  EXPECT_GT(desktop.breaths, 10);
  EXPECT_LE(desktop.breaths, 400) << "it rests between two polls";
  EXPECT_EQ(filed(), "late");
}

TEST_F(PicturePaste, AToolThatCannotBeStartedIsReported) {
  folder.write("測量 データ/map_app/PicturePaste.exe", "no program");
  folder.write("測量 データ/map_app/temp.bmp", "old");
  paste();
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcPicturePaste");
  EXPECT_TRUE(desktop.messages[0].text.starts_with("プログラムを起動できません。"));
  EXPECT_EQ(filed(), std::nullopt);
}

TEST_F(PicturePaste, AFolderThatCannotBeMadeIsReported) {
  install("write temp.bmp|picture");
  folder.write("測量 データ/3", "a file in the way");
  paste();
  EXPECT_EQ(desktop.messages, (Messages{{"FcPicturePaste", "パスが見つかりません。", ui::Icon::Critical}}));
  EXPECT_TRUE(pictureLeft()) << "the picture is not lost";
}

}  // namespace
