#include "route/picture_paste.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "support/asking_desktop.h"
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

TEST_F(PicturePaste, FilesAPictureOfTheProgramsOwn) {
  route::filePicture(desktop, context, "drawn", "成果表楕円補正.bmp");
  EXPECT_EQ(filed(), "drawn");
  EXPECT_EQ(desktop.messages,
            (Messages{{{}, "図を「成果表楕円補正.bmp」として登録しました", ui::Icon::None}}));
}

TEST_F(PicturePaste, AsksBeforeAPictureIsReplacedByADrawing) {
  test::AskingDesktop asking;
  route::filePicture(asking, context, "first", "成果表楕円補正.bmp");
  EXPECT_TRUE(asking.questions.empty());
  route::filePicture(asking, context, "second", "成果表楕円補正.bmp");
  ASSERT_EQ(asking.questions.size(), 1U);
  EXPECT_EQ(asking.questions[0].text,
            "画像「成果表楕円補正.bmp」はもう登録されています。\nこの図を登録すると、前の画像は失われます。");
  EXPECT_EQ(filed(), "first") << "the safe answer keeps it";
  asking.answers = {"置き換える"};
  route::filePicture(asking, context, "third", "成果表楕円補正.bmp");
  EXPECT_EQ(filed(), "third");
}

TEST_F(PicturePaste, TellsWhereADrawingCannotBeFiled) {
  platform::makeFolder(folder.path("測量 データ/3/bmp_data/成果表楕円補正.bmp"));
  route::filePicture(desktop, context, "drawn", "成果表楕円補正.bmp");
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "図を登録");
  EXPECT_TRUE(desktop.messages[0].text.ends_with("を保存できませんでした。前の画像は残っています。"));
  route::filePicture(desktop, context, "drawn", "図1/2.bmp");
  EXPECT_TRUE(desktop.messages[1].text.starts_with("「図1/2.bmp」という名前の画像は保存できません。"));
}

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

// The tool of the program folder leaves its picture there; what lies in the data folder is an old one.
TEST_F(PicturePaste, APictureThatTheToolLeavesBesideItselfIsTheOne) {
  folder.write("測量 データ/map_app/temp.bmp", "old");
  const std::string tool = test::placeTool(folder, "program/map_app/PicturePaste.exe", "write temp.bmp|new");
  route::FcPicturePaste(desktop, context, tool, "成果表楕円補正.bmp");
  EXPECT_EQ(filed(), "new");
  EXPECT_FALSE(platform::isFile(folder.path("program/map_app/temp.bmp")));
  EXPECT_TRUE(pictureLeft()) << "that of the data folder is nobody's business";
}

// What lay beside the tool before it was started is not its picture of today.
TEST_F(PicturePaste, AnOldPictureBesideTheToolStays) {
  platform::makeFolder(folder.path("program/map_app"));
  folder.write("program/map_app/temp.bmp", "old");
  const std::string tool = test::placeTool(folder, "program/map_app/PicturePaste.exe",
                                           "write " + folder.path("測量 データ/map_app/temp.bmp") + "|data");
  route::FcPicturePaste(desktop, context, tool, "成果表楕円補正.bmp");
  EXPECT_EQ(filed(), "data");
  EXPECT_TRUE(platform::isFile(folder.path("program/map_app/temp.bmp")));
  test::placeTool(folder, "program/map_app/PicturePaste.exe", "exit 0");
  route::FcPicturePaste(desktop, context, tool, "成果表楕円補正.bmp");
  EXPECT_EQ(desktop.messages, Messages{noPicture});
}

TEST_F(PicturePaste, ANameThatNoFileCanHaveIsRefusedBeforeTheToolIsStarted) {
  install("write temp.bmp|picture");
  for (const std::string bad : {"/", "\\", ":", "*", "?", "\"", "<", ">", "|", "\n"}) {
    desktop.messages.clear();
    route::FcPicturePaste(desktop, context, context.gExeDir + "map_app\\PicturePaste.exe",
                          "図R" + bad + "1.bmp");
    EXPECT_EQ(
        desktop.messages,
        (Messages{{"FcPicturePaste",
                   "「図R" + bad +
                       "1.bmp」という名前の画像は保存できません。番号に / \\ : * ? \" < > | は使えません。",
                   ui::Icon::Critical}}));
  }
  EXPECT_FALSE(pictureLeft()) << "the tool has not run";
}

TEST_F(PicturePaste, APictureThatIsCutShortKeepsTheOneFiledBefore) {
  install("write temp.bmp|first");
  paste();
  install("exit 0");
  // 2 × 2 pixels of 24 bits take 8 bytes a row: 54 + 16 bytes. One is missing.
  std::string cut("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0", 30);
  cut.resize(69);
  for (const std::string& left : {cut, std::string()}) {
    folder.write("測量 データ/map_app/temp.bmp", left);
    paste();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text,
              "画像「" + context.gExeDir +
                  "map_app\\temp.bmp」は空か、途中で切れています。画像貼付をもう一度行ってください。");
    desktop.messages.clear();
    EXPECT_EQ(filed(), "first");
  }
  cut.resize(70);
  folder.write("測量 データ/map_app/temp.bmp", cut);
  paste();
  EXPECT_EQ(filed(), cut);
  EXPECT_TRUE(desktop.messages.empty());
}

#ifndef _WIN32
/// No file of this process grows beyond `bytes` while it lives, as on a medium that is nearly full.
class NearlyFull {
 public:
  explicit NearlyFull(rlim_t bytes) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &limit_);
    const rlimit small{bytes, limit_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~NearlyFull() {
    setrlimit(RLIMIT_FSIZE, &limit_);
    std::signal(SIGXFSZ, before_);
  }
  NearlyFull(const NearlyFull&) = delete;
  NearlyFull& operator=(const NearlyFull&) = delete;

 private:
  rlimit limit_{};
  void (*before_)(int);
};

TEST_F(PicturePaste, WhereThereIsNoRoomTheOldPictureStaysWhole) {
  install("write temp.bmp|first");
  paste();
  install("exit 0");
  folder.write("測量 データ/map_app/temp.bmp", std::string(300000, 'x'));
  {
    const NearlyFull medium(100000);
    paste();
  }
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcPicturePaste");
  EXPECT_NE(desktop.messages[0].text.find("保存できませんでした。"), std::string::npos);
  EXPECT_EQ(filed(), "first");
  EXPECT_TRUE(pictureLeft());
  EXPECT_FALSE(platform::isFile(folder.path("測量 データ/3/bmp_data/成果表楕円補正.bmp.part")));
  paste();
  EXPECT_EQ(filed(), std::string(300000, 'x'));
}
#endif

}  // namespace
