#include "job/selection.h"

#include <gtest/gtest.h>

#include "text/error.h"

namespace {

/// The description of what keeps the line from being taken, "" where nothing does.
std::string fault(const std::string& line) {
  try {
    job::selectionOf(line, "C:\\JobSel.txt");
  } catch (const text::RuntimeError& error) {
    EXPECT_EQ(error.code(), text::ErrorCode::TypeMismatch);
    return error.what();
  }
  return {};
}

TEST(Selection, IsTheFirstCharacterAndTheLast) {
  const job::Selection usual = job::selectionOf("A12", "f");
  EXPECT_EQ(usual.jobId, "A");
  EXPECT_EQ(usual.grade, 2);
  const job::Selection one = job::selectionOf("3", "f");
  EXPECT_EQ(one.jobId, "3");
  EXPECT_EQ(one.grade, 3);
  EXPECT_EQ(job::selectionOf("仕事9", "f").jobId, "仕");
}

TEST(Selection, NamesTheFileAndWhatIsNoGrade) {
  EXPECT_EQ(fault(""), "型が一致しません。「C:\\JobSel.txt」の1行目が空です。");
  EXPECT_EQ(fault("1等"),
            "型が一致しません。「C:\\JobSel.txt」の1行目の最後の「等」は等級の数字ではありません。");
}

}  // namespace
