#include "platform/files.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

#include "platform/write_obstacle.h"
#include "support/temporary_folder.h"
#include "text/error.h"

namespace {

using namespace std::string_literals;
using test::TemporaryFolder;

text::ErrorCode codeOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const text::RuntimeError& error) {
    return error.code();
  }
  ADD_FAILURE() << "no error was raised";
  return {};
}

TEST(NativePath, TakesEitherSeparator) {
  EXPECT_EQ(platform::nativePath("C:\\測量\\job.mdb"), platform::nativePath("C:/測量/job.mdb"));
  EXPECT_EQ(platform::nativePath("data\\map_app\\temp.bmp").filename(), "temp.bmp");
}

TEST(NativePath, KeepsJapaneseLetters) {
  EXPECT_EQ(platform::pathText(platform::nativePath("成果表/水準 路線.sqlite")), "成果表/水準 路線.sqlite");
}

TEST(Files, AreFoundUnderBackslashesAndJapaneseNames) {
  const TemporaryFolder folder;
  platform::makeFolder(folder.path() + "\\作業\\令和");
  EXPECT_TRUE(platform::isFolder(folder.path("作業/令和")));
  folder.write("作業/令和/路線.txt", "内容");
  EXPECT_TRUE(platform::isFile(folder.path() + "\\作業\\令和\\路線.txt"));
  EXPECT_EQ(platform::readFile(folder.path() + "\\作業\\令和\\路線.txt"), "内容");
}

TEST(Files, AndFoldersAreToldApart) {
  const TemporaryFolder folder;
  const std::string file = folder.write("a.txt", "");
  EXPECT_TRUE(platform::isFile(file));
  EXPECT_FALSE(platform::isFolder(file));
  EXPECT_FALSE(platform::isFile(folder.path()));
  EXPECT_TRUE(platform::isFolder(folder.path()));
  EXPECT_FALSE(platform::isFile(folder.path("missing")));
  EXPECT_FALSE(platform::isFolder(folder.path("missing")));
  EXPECT_FALSE(platform::isFile(file + "/below"));
  EXPECT_FALSE(platform::isFile(""));
}

TEST(FirstLine, EndsAtAnyLineEnd) {
  const TemporaryFolder folder;
  EXPECT_EQ(platform::firstLine(folder.write("unix", "A12\nB21\n")), "A12");
  EXPECT_EQ(platform::firstLine(folder.write("windows", "A12\r\nB21\r\n")), "A12");
  EXPECT_EQ(platform::firstLine(folder.write("old", "A12\rB21\r")), "A12");
  EXPECT_EQ(platform::firstLine(folder.write("none", "A12")), "A12");
}

TEST(FirstLine, MayBeEmpty) {
  const TemporaryFolder folder;
  EXPECT_EQ(platform::firstLine(folder.write("empty", "")), "");
  EXPECT_EQ(platform::firstLine(folder.write("line", "\nA12\n")), "");
  EXPECT_EQ(platform::firstLine(folder.write("windows", "\r\nA12\r\n")), "");
}

TEST(FirstLine, LeavesAUtf8MarkOut) {
  const TemporaryFolder folder;
  EXPECT_EQ(platform::firstLine(folder.write("mark",
                                             "\xEF\xBB\xBF"
                                             "A12\r\n")),
            "A12");
  EXPECT_EQ(platform::firstLine(folder.write("only", "\xEF\xBB\xBF")), "");
}

TEST(FirstLine, KeepsBytesAsTheyAre) {
  const TemporaryFolder folder;
  EXPECT_EQ(platform::firstLine(folder.write("binary", "\x00\xFF\x01 \x80"s)), "\x00\xFF\x01 \x80"s);
}

TEST(FirstLine, IsNothingWithoutAReadableFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(platform::firstLine(folder.path("missing")), std::nullopt);
  EXPECT_EQ(platform::firstLine(folder.path()), std::nullopt);
}

TEST(ReadFile, GivesEveryByte) {
  const TemporaryFolder folder;
  EXPECT_EQ(platform::readFile(folder.write("empty", "")), "");
  const std::string bytes = "\x00\r\n\xFF"s + std::string(200000, 'x') + "\n";
  EXPECT_EQ(platform::readFile(folder.write("bytes", bytes)), bytes);
  const std::string block(65536, 'y');
  EXPECT_EQ(platform::readFile(folder.write("block", block)), block);
}

TEST(ReadFile, IsNothingWithoutAReadableFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(platform::readFile(folder.path("missing")), std::nullopt);
  EXPECT_EQ(platform::readFile(folder.path()), std::nullopt);
}

TEST(MakeFolder, MakesWhatIsMissingAndLeavesWhatIsThere) {
  const TemporaryFolder folder;
  platform::makeFolder(folder.path("a\\b/c"));
  EXPECT_TRUE(platform::isFolder(folder.path("a/b/c")));
  folder.write("a/b/c/kept", "1");
  platform::makeFolder(folder.path("a\\b\\c\\"));
  EXPECT_TRUE(platform::isFile(folder.path("a/b/c/kept")));
}

TEST(MakeFolder, RaisesPathNotFoundWhereItCannotBe) {
  const TemporaryFolder folder;
  folder.write("file", "");
  EXPECT_EQ(codeOf([&] { platform::makeFolder(folder.path("file")); }), text::ErrorCode::PathNotFound);
  EXPECT_EQ(codeOf([&] { platform::makeFolder(folder.path("file/below")); }), text::ErrorCode::PathNotFound);
}

TEST(CopyFile, WritesOverWhatIsThere) {
  const TemporaryFolder folder;
  const std::string from = folder.write("temp.bmp", "new picture");
  const std::string to = folder.write("成果表.bmp", "old");
  platform::copyFile(from, to);
  EXPECT_EQ(platform::readFile(to), "new picture");
  EXPECT_EQ(platform::readFile(from), "new picture");
}

TEST(CopyFile, RaisesWhatIsMissing) {
  const TemporaryFolder folder;
  const std::string from = folder.write("temp.bmp", "picture");
  EXPECT_EQ(codeOf([&] { platform::copyFile(folder.path("missing"), folder.path("to")); }),
            text::ErrorCode::FileNotFound);
  EXPECT_EQ(codeOf([&] { platform::copyFile(folder.path(), folder.path("to")); }),
            text::ErrorCode::FileNotFound);
  EXPECT_EQ(codeOf([&] { platform::copyFile(from, folder.path("no/such/folder")); }),
            text::ErrorCode::PathNotFound);
  EXPECT_FALSE(platform::isFile(folder.path("to")));
}

TEST(RemoveFile, DeletesAFile) {
  const TemporaryFolder folder;
  const std::string file = folder.write("temp.bmp", "picture");
  platform::removeFile(file);
  EXPECT_FALSE(platform::isFile(file));
  EXPECT_EQ(codeOf([&] { platform::removeFile(file); }), text::ErrorCode::FileNotFound);
}

TEST(RemoveFile, LeavesFoldersAlone) {
  const TemporaryFolder folder;
  platform::makeFolder(folder.path("empty"));
  EXPECT_EQ(codeOf([&] { platform::removeFile(folder.path("empty")); }), text::ErrorCode::FileNotFound);
  EXPECT_TRUE(platform::isFolder(folder.path("empty")));
}

TEST(Files, AreTheSameUnderTwoNames) {
  const TemporaryFolder folder;
  const std::string path = folder.write("一.txt", "1");
  folder.write("二.txt", "1");
  std::filesystem::create_hard_link(platform::nativePath(path), platform::nativePath(folder.path("三.txt")));
  EXPECT_TRUE(platform::isSameFile(path, folder.path() + "\\.\\一.txt"));
  EXPECT_TRUE(platform::isSameFile(path, folder.path("三.txt")));
  EXPECT_FALSE(platform::isSameFile(path, folder.path("二.txt")));
  EXPECT_FALSE(platform::isSameFile(path, folder.path("ない.txt")));
}

TEST(Files, AreWrittenWholeOverOlderOnes) {
  const TemporaryFolder folder;
  const std::string path = folder.path("成果 表.csv");
  platform::writeFile(path, "古い内容\n");
  platform::writeFile(path, "新\r\n\0"s);
  EXPECT_EQ(platform::readFile(path), "新\r\n\0"s);
  EXPECT_FALSE(platform::isFile(path + ".part"));
  EXPECT_EQ(codeOf([&] { platform::writeFile(folder.path("ない/a.csv"), ""); }),
            text::ErrorCode::PathNotFound);
  platform::makeFolder(folder.path("場所"));
  EXPECT_EQ(codeOf([&] { platform::writeFile(folder.path("場所"), "x"); }), text::ErrorCode::PathNotFound);
  EXPECT_FALSE(platform::isFile(folder.path("場所.part")));
}

TEST(GrowingFile, TakesTheTargetsPlaceWhenItIsFinished) {
  const test::TemporaryFolder folder;
  const std::string path = folder.write("成果.pdf", "old");
  platform::GrowingFile growing(path);
  EXPECT_NE(growing.path(), path);
  platform::writeFile(growing.path(), "new");
  EXPECT_EQ(platform::readFile(path), "old");
  growing.finish();
  EXPECT_EQ(platform::readFile(path), "new");
  EXPECT_FALSE(platform::isFile(growing.path()));
}

TEST(GrowingFile, LeavesTheOldFileWhereItIsNotFinished) {
  const test::TemporaryFolder folder;
  const std::string path = folder.write("成果.pdf", "old");
  std::string growingPath;
  {
    platform::GrowingFile growing(path);
    growingPath = growing.path();
    platform::writeFile(growingPath, "half");
  }
  EXPECT_EQ(platform::readFile(path), "old");
  EXPECT_FALSE(platform::isFile(growingPath));
}

TEST(GrowingFile, TakesAFreePlaceOnly) {
  const test::TemporaryFolder folder;
  const std::string path = folder.path("新.sqlite");
  {
    platform::GrowingFile growing(path);
    platform::writeFile(growing.path(), "new");
    EXPECT_TRUE(growing.finishNew());
  }
  EXPECT_EQ(platform::readFile(path), "new");
  platform::GrowingFile second(path);
  platform::writeFile(second.path(), "another");
  EXPECT_FALSE(second.finishNew());
  EXPECT_EQ(platform::readFile(path), "new");
}

TEST(Standing, TellsWhatIsAtAPath) {
  const test::TemporaryFolder folder;
  using platform::Standing;
  EXPECT_EQ(platform::standingAt(folder.path("ない")), Standing::Nothing);
  EXPECT_EQ(platform::standingAt(folder.path()), Standing::Folder);
  EXPECT_EQ(platform::standingAt(folder.write("a.csv", "")), Standing::File);
}

TEST(WriteObstacle, HasWordsOfItsOwn) {
  using platform::WriteObstacle;
  std::set<std::string> words;
  for (const auto obstacle :
       {WriteObstacle::NoFolder, WriteObstacle::IsFolder, WriteObstacle::Full, WriteObstacle::ReadOnly,
        WriteObstacle::Denied, WriteObstacle::InUse, WriteObstacle::Failed})
    words.insert(platform::wordsFor(obstacle));
  EXPECT_EQ(words.size(), 7U);
}

TEST(WriteObstacle, SaysWhatStandsInTheWay) {
  const test::TemporaryFolder folder;
  using platform::WriteObstacle;
  EXPECT_EQ(platform::writeObstacle(folder.path("nowhere/a.pdf"), 1), WriteObstacle::NoFolder);
  EXPECT_EQ(platform::writeObstacle(folder.path(), 1), WriteObstacle::IsFolder);
  EXPECT_EQ(platform::writeObstacle(folder.path("a.pdf"), UINTMAX_MAX), WriteObstacle::Full);
  EXPECT_EQ(platform::writeObstacle(folder.path("a.pdf"), 1), WriteObstacle::Failed);
}

}  // namespace
