#include <gtest/gtest.h>

#include <filesystem>

#include "exchange/csv_file.h"
#include "support/job_file.h"

namespace {

using exchange::Encoding;
using test::errorOf;
using test::holds;
using test::JobFile;
using Lines = std::vector<std::string>;

class Import : public testing::Test {
 protected:
  /// Imports a file of these bytes; returns the error, "" where there is none.
  std::string import(std::string_view bytes, const std::string& table = "ComShiyouKIkaimeiMst",
                     Encoding encoding = Encoding::Utf8) {
    const std::string file = job_.folder().write("表 1.csv", bytes);
    return errorOf([&] { count_ = exchange::importCsv(job_.path(), table, file, encoding); });
  }

  /// The records of the table of instruments: JobId, 器械No (a number), 器械名, 器械番号.
  Lines instruments() const { return job_.records("ComShiyouKIkaimeiMst"); }

  /// The error of a file that must leave the table as it is.
  std::string refused(std::string_view bytes, Encoding encoding = Encoding::Utf8) {
    job_.sql(
        {"DELETE FROM ComShiyouKIkaimeiMst", "INSERT INTO ComShiyouKIkaimeiMst VALUES ('9', 1, '前', NULL)"});
    std::string error = import(bytes, "ComShiyouKIkaimeiMst", encoding);
    EXPECT_EQ(instruments(), Lines{"'9'|1|'前'|-"});
    EXPECT_TRUE(holds(error, "何も取り込んでいません。")) << error;
    return error;
  }

  JobFile job_;
  std::int64_t count_ = 0;
};

TEST_F(Import, TakesColumnsInAnyOrderAndLetterCase) {
  EXPECT_EQ(import("器械名,jobid,器械NO\r\n電子レベル,1,2.5\r\nティルティング,\"1\",\"-3\"\r\n"), "");
  EXPECT_EQ(count_, 2);
  EXPECT_EQ(instruments(), (Lines{"'1'|2.5|'電子レベル'|-", "'1'|-3|'ティルティング'|-"}));
}

TEST_F(Import, TellsNullFromAnEmptyText) {
  EXPECT_EQ(import("JobId,器械No,器械名,器械番号\n1,,\"\", 007 \n"), "");
  EXPECT_EQ(instruments(), Lines{"'1'|-|''|' 007 '"});
}

TEST_F(Import, TakesAMarkAtTheFrontAndNoLineEndAtTheEnd) {
  EXPECT_EQ(import("\xEF\xBB\xBFJobId,器械名\n1,\"a\r\nb\""), "");
  EXPECT_EQ(instruments(), Lines{"'1'|-|'a\r\nb'|-"});
}

TEST_F(Import, ReadsCp932) {
  // 器 8AED, 械 8A42, 名 96BC; 表 955C, whose second byte is a backslash.
  EXPECT_EQ(
      import("JobId,\x8A\xED\x8A\x42\x96\xBC\r\n1,\x95\x5C\r\n", "comshiyoukikaimeimst", Encoding::Cp932),
      "");
  EXPECT_EQ(instruments(), Lines{"'1'|-|'表'|-"});
}

TEST_F(Import, AddsToWhatIsThere) {
  EXPECT_EQ(import("JobId\n1\n"), "");
  EXPECT_EQ(import("JobId\n1\n2\n"), "");
  EXPECT_EQ(instruments().size(), 3U);
}

TEST_F(Import, TakesAFileOfNothingButItsHeading) {
  EXPECT_EQ(import("JobId,器械No\r\n"), "");
  EXPECT_EQ(count_, 0);
}

TEST_F(Import, AnEmptyLineIsARecordOfAOneColumnTableAlone) {
  EXPECT_EQ(import("Exe_Dir\r\n\r\nC:\\data\\\r\n", "A_ExePath"), "");
  EXPECT_EQ(job_.records("A_ExePath"), (Lines{"-", "'C:\\data\\'"}));
  EXPECT_TRUE(holds(refused("JobId,器械No\r\n\r\n1,2\r\n"), "の 2 行目 1 列目: "));
}

TEST_F(Import, NamesAColumnThatIsNotThere) {
  EXPECT_TRUE(
      holds(refused("JobId,器械\n1,2\n"), "1 行目 2 列目: 見出しの列「器械」はテーブルにありません。"));
  EXPECT_TRUE(
      holds(refused("JobId,器械名,JOBID\n1,2,3\n"), "1 行目 3 列目: 見出しに列「JOBID」が二度あります。"));
  EXPECT_TRUE(holds(refused(""), "1 行目 1 列目: 見出しの行がありません。"));
}

TEST_F(Import, NamesALineWithTooManyOrTooFewFields) {
  EXPECT_TRUE(holds(refused("JobId,器械No\n1,2\n3\n"), "の 3 行目 1 列目: "));
  EXPECT_TRUE(holds(refused("JobId,器械No\n1,2\n3,4,5\n"), "の 3 行目 3 列目: "));
  EXPECT_TRUE(holds(refused("JobId,器械No\n1,2\n3,4,5\n"), "項目の数が 3 で、見出しの 2 と違います。"));
}

TEST_F(Import, NamesATextInAColumnOfNumbers) {
  EXPECT_TRUE(holds(refused("JobId,器械No\n1,2\n1,二\n"),
                    "3 行目 2 列目: 列「器械No」: 数値の列に「二」があります。"));
  EXPECT_TRUE(
      holds(refused("JobId,器械No\n1,\"\"\n"), "2 行目 2 列目: 列「器械No」: 数値の列に「」があります。"));
  EXPECT_TRUE(holds(refused("JobId,器械No\n1,1e999\n"),
                    "2 行目 2 列目: 列「器械No」: 数値「1e999」は大きすぎます。"));
  EXPECT_TRUE(holds(refused("JobId,器械No\n1,12a\n"), "「12a」"));
}

TEST_F(Import, NamesAStrayQuote) {
  EXPECT_TRUE(holds(refused("JobId,器械名\n1,a\"b\n"), "2 行目 2 列目: 引用符で始まらない"));
  EXPECT_TRUE(holds(refused("JobId,器械名\n1,\"b\n"), "2 行目 2 列目: 引用符が閉じられていません。"));
}

TEST_F(Import, NamesABadByte) {
  EXPECT_TRUE(holds(refused("JobId,器械名\n1,a\xFF\n"),
                    "2 行目 2 列目: 列「器械名」: UTF-8 として正しくないバイトがあります。"));
  EXPECT_TRUE(
      holds(refused("JobId,器械名\n1,\"a\nb\n\xE6\xB0\"\n"), "4 行目 2 列目: "));  // a letter cut short
  EXPECT_TRUE(holds(refused("JobId\n1\n\x90\n", Encoding::Cp932),
                    "3 行目 1 列目: 列「JobId」: CP932 として正しくないバイトがあります。"));
  EXPECT_TRUE(holds(refused("\xFF,JobId\n1,1\n"), "1 行目 1 列目: UTF-8"));
  // U+FFFD itself is a letter like others.
  EXPECT_EQ(import("JobId\n\xEF\xBF\xBD\n"), "");
}

TEST_F(Import, TakesBackWhatTheEngineRefuses) {
  job_.sql({"INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 1, 'a', NULL)",
            "INSERT INTO ComShiyouKIkaimeiMst VALUES ('1', 2, 'a', '前')"});
  const Lines before = instruments();
  // The first two records are like one that stands there; the last lacks the job, which the table asks for.
  const std::string error = import("器械No,JobId,器械名\n1,1,a\n1,1,a\n5,1,b\n7,,c\n");
  EXPECT_TRUE(holds(error, "テーブル「ComShiyouKIkaimeiMst」の 4 件目を書き込めません。")) << error;
  EXPECT_TRUE(holds(error, "テーブル「ComShiyouKIkaimeiMst」は元のままです。")) << error;
  EXPECT_EQ(instruments(), before);
}

TEST_F(Import, TakesBackWhereNothingMayBeDeleted) {
  job_.sql({"CREATE TRIGGER t BEFORE DELETE ON ComShiyouKIkaimeiMst BEGIN SELECT RAISE(ABORT, 'kept'); END"});
  const std::string error = import("JobId,器械No\n1,1\n,2\n");
  EXPECT_TRUE(holds(error, "の 2 件目を書き込めません。")) << error;
  EXPECT_TRUE(holds(error, "テーブル「ComShiyouKIkaimeiMst」は元のままです。")) << error;
  EXPECT_TRUE(instruments().empty());
}

TEST_F(Import, NamesFilesAndTablesThatAreNotThere) {
  EXPECT_TRUE(holds(errorOf([&] {
                      exchange::importCsv(job_.path(), "JobData", job_.folder().path("ない.csv"),
                                          Encoding::Utf8);
                    }),
                    "ない.csv」が見つかりません。"));
  EXPECT_TRUE(holds(
      errorOf([&] { exchange::importCsv(job_.path(), "JobData", job_.folder().path(), Encoding::Utf8); }),
      "」はフォルダです。"));
  EXPECT_TRUE(holds(import("a\n1\n", "sqlite_master"),
                    "「sqlite_master」はジョブデータベースのテーブルではありません。"));
  job_.sql({"DROP TABLE A_ExePath"});
  EXPECT_TRUE(holds(import("Exe_Dir\na\n", "A_ExePath"), "テーブル「A_ExePath」がありません。"));
}

TEST_F(Import, NamesAFileThatIsTooLarge) {
  const std::string file = job_.folder().write("大.csv", "JobId\n");
  std::filesystem::resize_file(file, (256U << 20U) + 1);  // of holes: it takes no room
  EXPECT_EQ(errorOf([&] { exchange::importCsv(job_.path(), "JobData", file, Encoding::Utf8); }),
            "CSV ファイル「" + file + "」は大きすぎます（257 MB）。読めるのは 256 MB までです。");
}

TEST_F(Import, KeepsWholeNumbersBeyondADouble) {
  job_.sql({"ALTER TABLE JobData ADD COLUMN 番号 INTEGER"});
  EXPECT_EQ(import("JobId,番号\n1,9007199254740993\n2,-9223372036854775808\n", "JobData"), "");
  EXPECT_EQ(job_.records("JobData"),
            Lines({"'1'|-|-|-|'9007199254740993'", "'2'|-|-|-|'-9223372036854775808'"}));
  job_.sql({"DELETE FROM JobData WHERE typeof(番号) = 'integer'"});  // numbers in the file itself
  EXPECT_TRUE(job_.records("JobData").empty());
}

}  // namespace
