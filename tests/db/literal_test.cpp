#include "db/literal.h"

#include <gtest/gtest.h>

namespace {

TEST(Literal, QuotesAreDoubledAndNothingElseIsTouched) {
  EXPECT_EQ(db::literal(""), "''");
  EXPECT_EQ(db::literal("R001    "), "'R001    '");
  EXPECT_EQ(db::literal("R'1"), "'R''1'");
  EXPECT_EQ(db::literal("'OR''='"), "'''OR''''='''");
  EXPECT_EQ(db::literal("a\\'%;--"), "'a\\''%;--'");
}

}  // namespace
