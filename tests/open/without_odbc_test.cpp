#include <gtest/gtest.h>

#include "db/database.h"
#include "open/open.h"
#include "platform/files.h"
#include "support/temporary_folder.h"

// The engines of a program that was built without ODBC.

namespace {

std::string openFailure(const std::string& path) {
  try {
    db::openDatabase(path);
  } catch (const db::Error& error) {
    return error.what();
  }
  return "no error";
}

TEST(WithoutOdbc, OtherEnginesAreNamedAndLeftAsTheyAre) {
  const test::TemporaryFolder folder;
  const std::string file = folder.path("無い.sqlite");
  const std::string sources[] = {
      folder.write("職場.dsn", "[ODBC]\nDRIVER=SQLite3\nDATABASE=" + file + "\n"),
      folder.write("古い.mdb", std::string("\0\1\0\0Standard Jet DB", 19) + std::string(100, '\0')),
      folder.write("新しい.accdb", std::string("\0\1\0\0Standard ACE DB", 19) + std::string(100, '\0'))};
  for (const std::string& path : sources) {
    const auto before = platform::readFile(path);
    EXPECT_EQ(openFailure(path),
              "データベース「" + path +
                  "」を開くには ODBC が必要ですが、このプログラムは ODBC なしで作られています。");
    EXPECT_EQ(platform::readFile(path), before);
  }
  EXPECT_FALSE(platform::isFile(file));
}

TEST(WithoutOdbc, FilesOfSqliteAreOpenedAndOthersAreNoDatabases) {
  const test::TemporaryFolder folder;
  const std::string path = folder.path("job.sqlite");
  db::createDatabase(path)->close();
  EXPECT_EQ(openFailure(path), "no error");
  const std::string words = folder.write("a.txt", "これは文章です。データベースではありません。");
  EXPECT_EQ(openFailure(words), "「" + words + "」はデータベースではありません。");
}

}  // namespace
