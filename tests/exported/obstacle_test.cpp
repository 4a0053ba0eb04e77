#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "platform/files.h"
#include "qt/page_writer.h"
#include "report/exporting.h"
#include "support/temporary_folder.h"

namespace {

/// A document of so many rows.
report::Document documentOf(int rows) {
  report::Document document{"正標高補正計算", {}, {}, {}};
  report::Table table{
      {}, {{"水準点", "", report::Side::Left, false}, {"標高", "m", report::Side::Point, false}}, {}};
  for (int i = 0; i < rows; ++i)
    table.rows.push_back(
        {{"A" + std::to_string(i), std::to_string(i * 7919 % 100000) + ".1234"}, false, false});
  document.parts.push_back({"", {}, {table}});
  return document;
}

/// A medium on which no file grows beyond a few thousand bytes.
class FullMedium {
 public:
  explicit FullMedium(rlim_t bytes) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &limit_);
    const rlimit small{bytes, limit_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FullMedium() {
    setrlimit(RLIMIT_FSIZE, &limit_);
    std::signal(SIGXFSZ, before_);
  }
  FullMedium(const FullMedium&) = delete;
  FullMedium& operator=(const FullMedium&) = delete;

 private:
  rlimit limit_{};
  void (*before_)(int);
};

/// A folder that nobody may write to, not even the administrator, who gives up his rights meanwhile.
class ReadOnlyFolder {
 public:
  explicit ReadOnlyFolder(std::filesystem::path folder) : folder_(std::move(folder)) {
    std::filesystem::permissions(folder_, readable);
    if (administrator_ && seteuid(nobody) != 0) throw std::runtime_error("cannot give up rights");
  }
  ~ReadOnlyFolder() {
    if (administrator_ && seteuid(0) != 0) std::abort();
    std::filesystem::permissions(folder_, readable | std::filesystem::perms::owner_write);
  }
  ReadOnlyFolder(const ReadOnlyFolder&) = delete;
  ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

 private:
  static constexpr uid_t nobody = 65534;
  static constexpr std::filesystem::perms readable{0555};
  std::filesystem::path folder_;
  bool administrator_ = geteuid() == 0;
};

class Obstacle : public testing::TestWithParam<const char*> {
 protected:
  Obstacle() { platform::writeFile(path_, "old"); }

  void write(int rows, const report::Progress& progress = {}) const {
    report::exportDocument(documentOf(rows), path_,
                           {.pageWriter = [] { return qt::pageWriter(); }, .progress = progress});
  }

  /// What an export to `path` is refused with.
  static std::string refusal(const std::string& path) {
    try {
      report::exportDocument(documentOf(3), path, {.pageWriter = [] { return qt::pageWriter(); }});
    } catch (const text::RuntimeError& error) {
      return error.what();
    }
    return "written";
  }

  /// The file that was there is what it was, and nothing else has been left.
  void expectOld() const {
    EXPECT_TRUE(platform::readFile(path_) == "old");
    const std::filesystem::directory_iterator entries(platform::nativePath(folder_.path()));
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
  }

  test::TemporaryFolder folder_;
  const std::string path_ = folder_.path(std::string("成果") + GetParam());
};

TEST_P(Obstacle, AFullMediumLeavesTheOldFileAndSaysSo) {
  qt::pageWriter();  // what the toolkit writes for itself is written before
  try {
    const FullMedium full(4096);
    write(3000);
    ADD_FAILURE() << "written";
  } catch (const text::RuntimeError& error) {
    EXPECT_TRUE(std::string(error.what()).starts_with("ファイル「" + path_ + "」に書き込めません。"))
        << error.what();
  }
  expectOld();
}

TEST_P(Obstacle, AReadOnlyFolderLeavesTheOldFileAndSaysSo) {
  qt::pageWriter();
  {
    const ReadOnlyFolder folder(platform::nativePath(folder_.path()));
    EXPECT_EQ(refusal(path_), "ファイル「" + path_ + "」に書き込めません。書き込む権限がありません。");
  }
  expectOld();
}

TEST_P(Obstacle, AFolderOfThatNameStays) {
  const std::string path = folder_.path(std::string("簿") + GetParam());
  platform::makeFolder(path);
  platform::writeFile(path + "/inside", "old");
  EXPECT_EQ(refusal(path), "ファイル「" + path + "」に書き込めません。同じ名前のフォルダーがあります。");
  EXPECT_TRUE(platform::readFile(path + "/inside") == "old");
  std::filesystem::remove_all(platform::nativePath(path));
  expectOld();
}

TEST_P(Obstacle, AFileIsNoFolder) {
  const std::string path = path_ + "/成果" + GetParam();
  EXPECT_EQ(refusal(path), "ファイル「" + path + "」に書き込めません。フォルダーがありません。");
  expectOld();
}

TEST_P(Obstacle, WhoHasTheOldFileOpenReadsItToItsEnd) {
  std::ifstream reader(platform::nativePath(path_));
  write(3);
  std::string words;
  reader >> words;
  EXPECT_EQ(words, "old");
  EXPECT_FALSE(platform::readFile(path_) == "old");
}

TEST_P(Obstacle, TheNewFileTakesThePlaceOfTheOld) {
  write(3);
  EXPECT_FALSE(platform::readFile(path_) == "old");
}

TEST_P(Obstacle, ACancelledOneLeavesTheOldFile) {
  const std::string suffix = GetParam();
  if (suffix != ".pdf" && suffix != ".xlsx") return;  // written at one go
  int told = 0;
  EXPECT_THROW(write(3000, [&](std::size_t, std::size_t) { return ++told < 2; }), report::Cancelled);
  expectOld();
}

INSTANTIATE_TEST_SUITE_P(Kinds, Obstacle, testing::Values(".pdf", ".xlsx", ".csv", ".svg", ".png"),
                         [](const auto& kind) { return std::string(kind.param + 1); });

}  // namespace
