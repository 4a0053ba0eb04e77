#include "job/grade.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "text/error.h"

namespace {

using Slots = std::array<std::string_view, 13>;

void expectFormats(std::int16_t tokyu, const Slots& wanted) {
  const job::NumberFormats formats{job::Grade(tokyu)};
  for (int slot = 1; slot <= 13; ++slot)
    EXPECT_EQ(formats[slot].text(), wanted[static_cast<std::size_t>(slot) - 1]) << "gFmt" << slot;
}

TEST(NumberFormats, OfFirstGradeShowTenthsOfMillimetres) {
  expectFormats(1, {"###0.0000", "###0.0000", "###0.0000", "##0.0", "##0", "###0.0000", "###0.0000",
                    "###0.0000", "###0.0000", "#0.00", "###0.0", "#0.0", "###0.0000"});
}

TEST(NumberFormats, OfEveryOtherGradeShowMillimetres) {
  for (const std::int16_t tokyu : std::array<std::int16_t, 5>{2, 3, 0, -1, 11})
    expectFormats(tokyu, {"###0.000", "###0.000", "###0.000", "###0", "##0", "###0.000", "###0.000",
                          "###0.000", "###0.000", "#0.00", "###0.0", "#0.0", "###0.000"});
}

TEST(NumberFormats, HaveThirteenSlots) {
  const job::NumberFormats formats{job::Grade(1)};
  for (const int slot : {0, 14, -1}) EXPECT_THROW(formats[slot], text::RuntimeError) << slot;
}

TEST(Grade, FirstWorksInTenthsOfMillimetres) {
  const job::Grade grade(1);
  EXPECT_TRUE(grade.isFirst());
  EXPECT_EQ(grade.factor(), 10000);
  EXPECT_EQ(grade.heights().text(), "###0.0000");
  EXPECT_EQ(grade.heights().format(12.34565), "12.3457");
}

TEST(Grade, OtherThanFirstWorksInMillimetres) {
  const job::Grade grade(2);
  EXPECT_FALSE(grade.isFirst());
  EXPECT_EQ(grade.tokyu(), 2);
  EXPECT_EQ(grade.factor(), 1000);
  EXPECT_EQ(grade.heights().text(), "###0.000");
  EXPECT_EQ(grade.heights().format(12.3455), "12.346");
}

}  // namespace
