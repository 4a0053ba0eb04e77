#include <gtest/gtest.h>

#include "exchange/create.h"
#include "exchange/csv_file.h"
#include "platform/files.h"
#include "support/job_file.h"

namespace {

using exchange::Encoding;
using test::errorOf;
using test::holds;

class Export : public testing::Test {
 protected:
  std::string file() const { return job_.folder().path("書き 出し.csv"); }
  std::int64_t write(Encoding encoding) const {
    return exchange::exportCsv(job_.path(), "comshiyoukikaimeimst", file(), encoding);
  }

  std::string refusedFor(const std::string& name) const {
    return errorOf([&] { exchange::exportCsv(job_.path(), "JobData", name, Encoding::Utf8); });
  }

  test::JobFile job_;
};

TEST_F(Export, WritesHeadingAndRecords) {
  job_.sql({"INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 2.5, '', NULL)",
            "INSERT INTO ComShiyouKIkaimeiMst VALUES ('1 ', NULL, 'a,\"b\"', ' 007')"});
  EXPECT_EQ(write(Encoding::Utf8), 2);
  EXPECT_EQ(platform::readFile(file()),
            "\xEF\xBB\xBFJobId,器械No,器械名,器械番号\r\n1,2.5,\"\",\r\n1 ,,\"a,\"\"b\"\"\", 007\r\n");
}

TEST_F(Export, WritesCp932WithoutAMark) {
  job_.sql({"INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 1, '表', NULL)"});
  EXPECT_EQ(write(Encoding::Cp932), 1);
  // 器 8AED, 械 8A42, 名 96BC, 番 94D4, 号 8D86, 表 955C.
  EXPECT_EQ(platform::readFile(file()),
            "JobId,\x8A\xED\x8A\x42No,\x8A\xED\x8A\x42\x96\xBC,\x8A\xED\x8A\x42\x94\xD4\x8D\x86\r\n"
            "1,1,\x95\x5C,\r\n");
}

TEST_F(Export, NamesACharacterThatTheEncodingLacks) {
  job_.folder().write("書き 出し.csv", "前の内容");
  job_.sql({"INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 1, '良', NULL)",
            "INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 2, '土𠮷', NULL)"});
  EXPECT_EQ(errorOf([this] { write(Encoding::Cp932); }),
            "テーブル「ComShiyouKIkaimeiMst」の 2 件目の列「器械名」の文字「𠮷」は CP932 にありません。");
  EXPECT_EQ(platform::readFile(file()), "前の内容");
  EXPECT_EQ(write(Encoding::Utf8), 2);
}

TEST_F(Export, NamesATextThatIsNone) {
  job_.sql({"INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 1, CAST(x'41FF' AS TEXT), NULL)"});
  for (const Encoding encoding : {Encoding::Utf8, Encoding::Cp932})
    EXPECT_EQ(errorOf([&] { write(encoding); }),
              "テーブル「ComShiyouKIkaimeiMst」の 1 "
              "件目の列「器械名」に文字として正しくないバイトがあります。");
  EXPECT_FALSE(exchange::isThere(file()));
}

TEST_F(Export, NeverWritesOverTheJob) {
  EXPECT_TRUE(
      holds(errorOf([this] { exchange::exportCsv(job_.path(), "JobData", job_.path(), Encoding::Utf8); }),
            "ジョブデータベースそのものです。"));
  EXPECT_TRUE(job_.records("JobData").empty());
}

TEST_F(Export, NamesAFileThatCannotBeWritten) {
  const std::string nowhere = job_.folder().path("ない/a.csv");
  EXPECT_EQ(errorOf([&] { exchange::exportCsv(job_.path(), "JobData", nowhere, Encoding::Utf8); }),
            "CSV ファイル「" + nowhere + "」に書き込めません。フォルダーがありません。");
}

TEST_F(Export, ReplacesNothingButAFileOfTexts) {
  const test::TemporaryFolder& folder = job_.folder();
  const std::string other = folder.path("別の仕事.sqlite");
  exchange::createJob(other);
  const std::string database = *platform::readFile(other);
  const std::string access = folder.write("古い仕事", std::string("\0\1\0\0Standard Jet DB", 19));
  const std::string source = folder.write("職場.dsn", "[ODBC]\n");
  for (const std::string& name : {other, access, source})
    EXPECT_EQ(refusedFor(name),
              "CSV ファイル「" + name + "」はデータベースです。CSV ファイルで置き換えることはしません。");
  EXPECT_TRUE(refusedFor(folder.path()).ends_with("はフォルダです。"));
  EXPECT_EQ(platform::readFile(other), database);
  EXPECT_EQ(platform::readFile(source), "[ODBC]\n");
}

TEST_F(Export, LeavesOtherProgramsFilesAlone) {
  const std::string part = job_.folder().write("書き 出し.csv.part", "大切な内容");
  write(Encoding::Utf8);
  EXPECT_EQ(platform::readFile(part), "大切な内容");
}

TEST_F(Export, NamesBytesThatAreNoText) {
  job_.sql({"INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 1, x'4142', NULL)"});
  EXPECT_EQ(
      errorOf([&] { write(Encoding::Utf8); }),
      "テーブル「ComShiyouKIkaimeiMst」の 1 件目の列「器械名」はバイト列で、CSV ファイルには書けません。");
  EXPECT_FALSE(exchange::isThere(file()));
}

}  // namespace
