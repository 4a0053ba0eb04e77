#include <gtest/gtest.h>

#include <cstdlib>

#include "db/database.h"
#include "open/open.h"
#include "platform/files.h"
#include "support/temporary_folder.h"

// What a path to another engine names, and what is told where the machine has no driver for it.

namespace {

class Source : public testing::Test {
 protected:
  std::string openFailure(const std::string& path) const {
    try {
      db::openDatabase(path);
    } catch (const db::Error& error) {
      return error.what();
    }
    return "no error";
  }
  test::TemporaryFolder folder_;
};

TEST_F(Source, AMissingDriverIsNamedWithItsBitness) {
  const std::string path = folder_.write("職場.dsn", "[ODBC]\r\nDRIVER={無い ドライバー}\r\nSERVER=s\r\n");
  EXPECT_EQ(openFailure(path),
            "データベース「" + path +
                "」を開くための ODBC ドライバー「無い ドライバー」がありません。このプログラムと同じ "
                "64 ビット版のドライバーが必要です。");
}

/// The driver manager looks for its drivers once in a process; ODBCSYSINI names a folder without any.
class NoDrivers : public Source {
 protected:
  void SetUp() override {
    if (std::getenv("ODBCSYSINI") == nullptr) GTEST_SKIP() << "ODBCSYSINI names no empty folder";
  }
};

TEST_F(NoDrivers, AnAccessFileIsLeftAsItIs) {
  for (const std::string mark : {"Standard Jet DB", "Standard ACE DB"}) {
    const std::string bytes = std::string("\0\1\0\0", 4) + mark + std::string(200, '\0');
    const std::string path = folder_.write("古い.mdb", bytes);
    EXPECT_EQ(openFailure(path),
              "データベース「" + path +
                  "」を開くための ODBC ドライバー「Microsoft Access Driver (*.mdb, *.accdb)」がありません。"
                  "このプログラムと同じ 64 ビット版のドライバーが必要です。");
    EXPECT_EQ(platform::readFile(path), bytes);
  }
}

TEST_F(Source, ATextWithoutTheSectionIsNoDataSource) {
  const std::string path = folder_.write("x.DSN", "DRIVER=SQLite3\nDATABASE=/nowhere\n");
  EXPECT_EQ(openFailure(path), "「" + path + "」は ODBC のファイルデータソースではありません。");
}

TEST_F(Source, AMissingDatabaseIsNotMade) {
  const std::string file = folder_.path("無い.sqlite");
  const std::string path = folder_.write("x.dsn", "[ODBC]\nDRIVER=SQLite3\nDATABASE=" + file + "\n");
  EXPECT_NE(openFailure(path), "no error");
  EXPECT_FALSE(platform::isFile(file));
}

}  // namespace
