#include "jobs/safe_copy.h"

#include <gtest/gtest.h>

#include "platform/files.h"
#include "support/job_file.h"
#include "support/other_program.h"
#include "text/error.h"

namespace {

class SafeCopy : public testing::Test {
 protected:
  SafeCopy() {
    job_.sql({"INSERT INTO JobData VALUES ('1', '試験', 2, 1)"});
    job_.observed("R1", 1);
    job_.observed("R1", 2);
  }
  test::JobFile job_{"仕事 1.sqlite"};
};

TEST_F(SafeCopy, HoldsWhatTheJobHolds) {
  EXPECT_TRUE(jobs::copiesOf(job_.path()).empty());
  const std::string copy = jobs::keepCopy(job_.path());
  const std::string folder = job_.folder().path("仕事 1_控え");
  EXPECT_EQ(jobs::copyFolder(job_.path()), folder);
  EXPECT_TRUE(copy.starts_with(folder + "/仕事 1_2")) << copy;
  EXPECT_TRUE(copy.ends_with(".sqlite")) << copy;
  EXPECT_EQ(test::records(copy, "KansokuSeikaData"), job_.records("KansokuSeikaData"));
  EXPECT_TRUE(jobs::differences(job_.path(), copy).empty());
  const std::string next = jobs::keepCopy(job_.path());
  EXPECT_NE(next, copy) << "two copies in one second are two files";
  EXPECT_EQ(jobs::copiesOf(job_.path()).size(), 2U);
}

TEST_F(SafeCopy, IsMadeWhileOthersWork) {
  test::OtherProgram other(job_.path());
  other.run("BEGIN IMMEDIATE");
  other.run("DELETE FROM KansokuSeikaData");
  const std::string copy = jobs::keepCopy(job_.path());
  other.run("ROLLBACK");
  EXPECT_EQ(test::records(copy, "KansokuSeikaData").size(), 2U) << "what is not committed is no part of it";
}

TEST_F(SafeCopy, TellsWhatDiffers) {
  const std::string copy = jobs::keepCopy(job_.path());
  job_.sql({"UPDATE KansokuSeikaData SET 備考 = 'x' WHERE SaveOrder = 1",
            "INSERT INTO JobData VALUES ('2', '', 1, 0)"});
  // 観測成果: two records each, one of them changed; ジョブ: one record more than the copy.
  EXPECT_EQ(jobs::differences(job_.path(), copy),
            (std::vector<jobs::TableDifference>{{"ジョブ", 2, 1, 1, 0}, {"観測成果", 2, 2, 1, 1}}));
}

TEST_F(SafeCopy, ComesBackAfterTheJobWasKeptOnceMore) {
  const auto before = job_.records("KansokuSeikaData");
  const std::string copy = jobs::keepCopy(job_.path());
  job_.sql({"DELETE FROM KansokuSeikaData"});
  const std::string spoilt = jobs::restore(job_.path(), copy);
  EXPECT_EQ(job_.records("KansokuSeikaData"), before);
  EXPECT_TRUE(test::records(spoilt, "KansokuSeikaData").empty()) << "what was there before the restoring";
}

TEST_F(SafeCopy, ThatCannotBeReadLeavesTheJobAsItWas) {
  const auto before = job_.records("KansokuSeikaData");
  const std::string bad = job_.folder().write("bad.sqlite", "SQLite format 3");
  EXPECT_THROW(jobs::restore(job_.path(), bad), text::RuntimeError);
  EXPECT_EQ(job_.records("KansokuSeikaData"), before);
}

TEST_F(SafeCopy, IsNoneWhereTheJobCannotBeRead) {
  EXPECT_THROW(jobs::keepCopy(job_.folder().path("none.sqlite")), text::RuntimeError);
  EXPECT_TRUE(jobs::copiesOf(job_.folder().path("none.sqlite")).empty());
}

}  // namespace
