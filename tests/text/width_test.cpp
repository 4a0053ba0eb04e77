#include "text/width.h"

#include <gtest/gtest.h>

namespace {

TEST(HalfWidth, TurnsFullWidthFiguresSignsAndPoints) {
  EXPECT_EQ(text::halfWidth("－１２．３４５"), "-12.345");
  EXPECT_EQ(text::halfWidth("＋０。５　ｋｍ"), "+0.5 km");
  EXPECT_EQ(text::halfWidth("−4"), "-4");
  EXPECT_EQ(text::halfWidth(U'９'), U'9');
}

TEST(HalfWidth, LeavesOtherTextAlone) {
  EXPECT_EQ(text::halfWidth("水準点 A-1"), "水準点 A-1");
  EXPECT_EQ(text::halfWidth("ｶﾀｶﾅ ー"), "ｶﾀｶﾅ ー");
  EXPECT_EQ(text::halfWidth(""), "");
  EXPECT_EQ(text::halfWidth("\xFF\x80１"),
            "\xFF\x80"
            "1");  // bytes of no character stay
}

}  // namespace
