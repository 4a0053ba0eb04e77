#include "text/search_form.h"

#include <gtest/gtest.h>

namespace {

using text::searchForm;

TEST(SearchForm, LettersFiguresAndSignsAreHalfWidthAndSmall) {
  EXPECT_EQ(searchForm("ＢＭ－１２．５　Ａ"), "bm-12.5 a");
  EXPECT_EQ(searchForm("−3"), "-3");
}

TEST(SearchForm, KanaAreFullWidth) {
  EXPECT_EQ(searchForm("ﾊﾞﾝﾊﾟ ｳﾞｧ｡｢ﾟ"), searchForm("バンパ ヴァ。「゜"));
  EXPECT_EQ(searchForm("ｶﾞｷﾞｸﾞｹﾞｺﾞﾀﾞﾁﾞﾂﾞﾃﾞﾄﾞ"), "ガギグゲゴダヂヅデド");
  EXPECT_EQ(searchForm("ﾊﾋﾌﾍﾎﾏﾝｯｰ"), "ハヒフヘホマンッー");
}

TEST(SearchForm, AMarkThatNothingTakesStaysByItself) {
  EXPECT_EQ(searchForm("ﾞｱﾞ"), "゛ア゛");
  EXPECT_EQ(searchForm("ｶﾟ"), "カ゜");
}

TEST(SearchForm, OtherCharactersStay) { EXPECT_EQ(searchForm("橋の上𠮷"), "橋の上𠮷"); }

}  // namespace
