#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "db/database.h"
#include "exchange/copy.h"
#include "exchange/create.h"
#include "open/open.h"
#include "support/database_steps.h"
#include "support/temporary_folder.h"

// Access files through MDBTools, which reads them only. The files are not part of the sources; the folder
// they stand in comes from outside.

namespace {

using test::failure;

std::filesystem::path accessFiles() {
  const char* folder = std::getenv("SEIKAHYOU_ACCESS_FILES");
  return folder == nullptr ? "" : folder;
}

class AccessFile : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(accessFiles() / "jet3-test.mdb"))
      GTEST_SKIP() << "no Access files in \"" << accessFiles().string() << "\" (SEIKAHYOU_ACCESS_FILES)";
  }

  /// A copy of the file that can be written as far as the system is concerned.
  std::string copy(const std::string& name) {
    const std::string path = folder_.path("作業 " + name);
    std::filesystem::copy_file(accessFiles() / name, path);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path;
  }
  static std::string content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// The tables that the file's own list names, those of Access itself ("MSys…", "f_…") left out.
  static std::string tables(const std::string& path) {
    std::string names;
    const auto database = db::openDatabase(path);
    for (const auto list = database->openRecordset("SELECT Name, Type FROM MSysObjects"); !list->eof();
         list->moveNext()) {
      const std::string name = list->field("Name").text();
      const bool own = name.starts_with("MSys") || name.starts_with("f_");
      if (list->field("Type").number() == 1 && !own) names += name + " ";
    }
    return names;
  }

  test::TemporaryFolder folder_;
};

TEST_F(AccessFile, FilesOfEveryKindListTheirTables) {
  EXPECT_EQ(tables(copy("jet3-test.mdb")), "Table1 Table2 Table3 Table4 ");
  EXPECT_EQ(tables(copy("jet4-numeric.mdb")), "test ");
  EXPECT_EQ(tables(copy("jet4-empty.mdb")), "");
  EXPECT_EQ(tables(copy("ace-empty.accdb")), "");
}

TEST_F(AccessFile, RecordsAreTextsNumbersAndNull) {
  const auto database = db::openDatabase(copy("jet3-test.mdb"));
  const auto records = database->openRecordset("SELECT * FROM Table1 WHERE A = 'abcdefg'");
  EXPECT_EQ(records->field("b"), db::Value("hijklmnop"));
  EXPECT_EQ(records->field("D"), db::Value(222.0));
  EXPECT_EQ(records->field("E"), db::Value(333333333.0));
  EXPECT_EQ(records->field("F"), db::Value(444.555));
  records->moveNext();
  EXPECT_TRUE(records->eof());
}

TEST_F(AccessFile, TableDefinitionsInTheirOrder) {
  const auto database = db::openDatabase(copy("jet4-numeric.mdb"));
  const auto columns = database->tableDefinition("TEST");
  ASSERT_EQ(columns.size(), 7U);
  EXPECT_EQ(columns[0].name + " " + columns[0].type, "col1 TEXT");
  EXPECT_EQ(columns[6].name + " " + columns[6].type, "col7 NUMERIC");
}

TEST_F(AccessFile, AMissingTableIsNamed) {
  const std::string path = copy("jet4-empty.mdb");
  const auto database = db::openDatabase(path);
  const std::string missing = "データベース「" + path + "」にテーブル「KansokuSeikaData」がありません。";
  EXPECT_EQ(failure([&] { database->openRecordset("SELECT * FROM KansokuSeikaData"); }), missing);
  EXPECT_EQ(failure([&] { database->tableDefinition("KansokuSeikaData"); }), missing);
}

// seikahyou-job on the files at hand: none of them holds a job, and none can be written.
TEST_F(AccessFile, AFileWithoutAJobIsNotCopied) {
  std::ostringstream progress;
  const std::string to = folder_.path("b.sqlite");
  for (const char* name : {"jet3-test.mdb", "jet4-empty.mdb", "jet4-numeric.mdb", "ace-empty.accdb"}) {
    const std::string from = copy(name);
    EXPECT_EQ(failure([&] { exchange::copyJob(from, to, false, progress); }),
              "「" + from + "」にはジョブのテーブルが一つもありません。");
    EXPECT_FALSE(std::filesystem::exists(to));
  }
}

TEST_F(AccessFile, AJobIsNotCopiedInto) {
  const std::string from = folder_.path("a.sqlite");
  exchange::createJob(from);
  const std::string to = copy("jet4-empty.mdb");
  const std::string before = content(to);
  std::ostringstream progress;
  const std::string error = failure([&] { exchange::copyJob(from, to, false, progress); });
  EXPECT_NE(error.find("MDBTools）は Access のファイルを読むことしかできません。"), std::string::npos)
      << error;
  EXPECT_EQ(content(to), before);
}

TEST_F(AccessFile, WritingIsRefusedAndLeavesTheFile) {
  const std::string path = copy("jet4-numeric.mdb");
  const std::string before = content(path);
  const std::string refused =
      "データベース「" + path +
      "」は読み取り専用のため書き込めません。使用中の ODBC ドライバー（MDBTools）は Access "
      "のファイルを読むことしかできません。";
  const auto database = db::openDatabase(path);
  EXPECT_EQ(failure([&] { database->execute("DELETE FROM test"); }), refused);
  EXPECT_EQ(failure([&] { database->openRecordset("SELECT * FROM test", db::Access::Edit); }), refused);
  EXPECT_EQ(failure([&] { database->close(); }), "no error");
  EXPECT_EQ(content(path), before);
}

}  // namespace
