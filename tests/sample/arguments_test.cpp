#include <gtest/gtest.h>

#include <sstream>

#include "sample/sample.h"

namespace {

TEST(Arguments, FolderAloneLeavesTheRestOpen) {
  const auto options = sample::readArguments({"job"});
  ASSERT_TRUE(options);
  EXPECT_EQ("job", options->folder);
  EXPECT_FALSE(options->benchMarks);
  EXPECT_FALSE(options->grade);
  EXPECT_EQ("", options->sqlFile);
}

TEST(Arguments, OptionsStandBeforeOrBehindTheFolder) {
  const auto options =
      sample::readArguments({"--grade", "2", "job", "--benchmarks", "16000", "--sql", "x.sql"});
  ASSERT_TRUE(options);
  EXPECT_EQ("job", options->folder);
  EXPECT_EQ(16000, options->benchMarks);
  EXPECT_EQ(2, options->grade);
  EXPECT_EQ("x.sql", options->sqlFile);
}

class WrongArguments : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(WrongArguments, GiveUsageAndStatus64) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(64, sample::run(GetParam(), "program", out, err));
  EXPECT_NE(std::string::npos, err.str().find("使い方: seikahyou-sample"));
  EXPECT_EQ("", out.str());
}

using Texts = std::vector<std::string>;
INSTANTIATE_TEST_SUITE_P(All, WrongArguments,
                         testing::Values(Texts{}, Texts{""}, Texts{"a", "b"}, Texts{"a", "--benchmarks"},
                                         Texts{"a", "--benchmarks", "1"}, Texts{"a", "--benchmarks", "12x"},
                                         Texts{"a", "--benchmarks", "-5"}, Texts{"a", "--grade", "0"},
                                         Texts{"a", "--grade", "10"}, Texts{"a", "--sql", ""},
                                         Texts{"a", "--unknown", "1"}, Texts{"--grade", "1"}));

}  // namespace
