#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <sstream>

#include "exchange/command.h"
#include "exchange/csv_file.h"
#include "platform/files.h"
#include "support/job_file.h"

// Names that lead to something else than a file: a pipe may never end, and what a link or a device stands for
// is not put aside for a table.

namespace {

using exchange::Encoding;
using test::errorOf;
using test::holds;

class Devices : public testing::Test {
 protected:
  std::string importError(const std::string& file) const {
    return errorOf([&] { exchange::importCsv(job_.path(), "JobData", file, Encoding::Utf8); });
  }
  std::string exportError(const std::string& file) const {
    return errorOf([&] { exchange::exportCsv(job_.path(), "JobData", file, Encoding::Utf8); });
  }

  const test::JobFile job_;
  const std::string pipe_ = [this] {
    const std::string path = job_.folder().path("管");
    return mkfifo(path.c_str(), 0600) == 0 ? path : "";
  }();
};

constexpr const char* noFile = "は装置やパイプで、ファイルではありません。";

TEST_F(Devices, AreNotRead) {
  for (const std::string& name : {pipe_, std::string("/dev/zero")}) {
    EXPECT_EQ(importError(name), "CSV ファイル「" + name + "」" + noFile);
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(exchange::run({"check", name}, out, err), 1);
    EXPECT_EQ(err.str(), "「" + name + "」はファイルではありません。\n");
  }
}

TEST_F(Devices, AreNotReplaced) {
  for (const std::string& name : {pipe_, std::string("/dev/null")})
    EXPECT_EQ(exportError(name), "CSV ファイル「" + name + "」" + noFile);
  EXPECT_TRUE(std::filesystem::is_fifo(pipe_));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(Devices, LinksAreNotReplaced) {
  const std::string target = job_.folder().write("先.csv", "先の内容");
  const std::string link = job_.folder().path("リンク.csv");
  for (const std::string& to : {target, job_.folder().path("ない")}) {
    std::filesystem::remove(link);
    std::filesystem::create_symlink(to, link);
    EXPECT_EQ(exportError(link),
              "CSV ファイル「" + link + "」はリンクです。リンク先のファイルを指定してください。");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
  }
  EXPECT_EQ(platform::readFile(target), "先の内容");
  EXPECT_TRUE(holds(errorOf([&] { exchange::createJob(link); }), "すでにあるため"));
}

}  // namespace
