#include <gtest/gtest.h>

#include <sstream>

#include "intake/command.h"
#include "support/job_file.h"

namespace {

using test::holds;
using test::JobFile;

class IntakeCommand : public testing::Test {
 protected:
  IntakeCommand() { job_.sql({"INSERT INTO JobData VALUES ('1', '試験', 2, 1)"}); }

  int run(std::vector<std::string> words) {
    out_.str("");
    err_.str("");
    return intake::run(words, out_, err_);
  }

  JobFile job_;
  std::ostringstream out_;
  std::ostringstream err_;
};

TEST_F(IntakeCommand, ImportsAFile) {
  const auto file =
      job_.folder().write("観測 1.csv", "事業番号,路線番号,標石番号,中数\n1001,R1,A,1.5\n,,B,\n");
  EXPECT_EQ(run({"import-observations", job_.path(), file, "--preview"}), 0);
  EXPECT_TRUE(job_.records("KansokuSeikaData").empty());
  EXPECT_EQ(run({"import-observations", job_.path(), file}), 0);
  EXPECT_EQ(out_.str(),
            "路線 1、水準点 2、取り込めない箇所 0\n"
            "事業 1001 路線 R1（区分 0）: 水準点 2\n"
            "事業 1001 路線 R1: 順番を 1 から 2 まで付けます。\n"
            "事業 1001 路線 R1: 終点の印を「B」に付けます。\n"
            "2 件を取り込みました。\n");
  EXPECT_EQ(run({"import-observations", job_.path(), file}), 1);
  EXPECT_TRUE(holds(err_.str(), "すでに 2 件あります。")) << err_.str();
  EXPECT_EQ(run({"import-observations", job_.path(), file, "--over"}), 0);
  EXPECT_EQ(job_.records("KansokuSeikaData").size(), 2U);
}

TEST_F(IntakeCommand, StoresNothingWhereALineIsBad) {
  const auto file = job_.folder().write("b.csv", "標石番号\tデータ区分\nA\t0\nB\t7\n");
  EXPECT_EQ(run({"import-observations", job_.path(), file, "--project", "P", "--route", "R"}), 1);
  EXPECT_TRUE(
      holds(out_.str(), "3 行目: データ区分「7」は 0 から 4 ではありません。\n何も取り込んでいません。"))
      << out_.str();
  EXPECT_TRUE(job_.records("KansokuSeikaData").empty());
}

TEST_F(IntakeCommand, NamesFilesAndJobsThatAreNotThere) {
  EXPECT_EQ(run({"import-observations", job_.path(), "/nowhere.csv"}), 1);
  EXPECT_TRUE(holds(err_.str(), "「/nowhere.csv」が見つかりません。")) << err_.str();
  job_.sql({"UPDATE JobData SET JikkouFlg = 0"});
  const auto file = job_.folder().write("c.csv", "標石番号\nA\n");
  EXPECT_EQ(run({"import-observations", job_.path(), file}), 1);
  EXPECT_TRUE(holds(err_.str(), "--job で指定してください。")) << err_.str();
}

TEST_F(IntakeCommand, RefusesAWrongCommandLine) {
  EXPECT_EQ(run({"import-observations", job_.path()}), 64);
  EXPECT_EQ(run({"import-observations", job_.path(), "x", "--category", "9"}), 64);
  EXPECT_EQ(run({"import-observations", job_.path(), "x", "--over", "--over"}), 64);
  EXPECT_EQ(run({"nonsense"}), 64);
  EXPECT_TRUE(holds(err_.str(), "import-observations"));
}

}  // namespace
