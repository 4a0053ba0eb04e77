#include "script/keys.h"

#include <gtest/gtest.h>

#include "script/line_error.h"

namespace {

using script::keysOf;
using script::typedCharacters;

std::string reasonOf(std::string_view keys) {
  try {
    keysOf(keys);
  } catch (const script::LineError& error) {
    return error.what();
  }
  return "understood";
}

TEST(Keys, CharactersStandForTheirKeys) {
  EXPECT_EQ(keysOf("-1.5 "), U"-1.5 ");
  EXPECT_EQ(keysOf("新点𠮷"), U"新点𠮷");
  EXPECT_EQ(keysOf(""), U"");
  EXPECT_EQ(keysOf("}"), U"}");
}

TEST(Keys, NamesInBraces) {
  EXPECT_EQ(keysOf("{Enter}"), (std::u32string{13}));
  EXPECT_EQ(keysOf("1{BackSpace}2"), (std::u32string{U'1', 8, U'2'}));
  EXPECT_EQ(keysOf("{BackSpace 3}"), (std::u32string{8, 8, 8}));
  EXPECT_EQ(keysOf("{BackSpace 9999}").size(), 9999U);
}

TEST(Keys, DoubledBraceIsABrace) {
  EXPECT_EQ(keysOf("{{"), U"{");
  EXPECT_EQ(keysOf("{{Enter}"), U"{Enter}");
  EXPECT_EQ(keysOf("{{{Enter}"), (std::u32string{U'{', 13}));
}

TEST(Keys, UnknownNamesAreRefused) {
  EXPECT_EQ(reasonOf("{Tab}"), "「{Tab}」というキーはありません。");
  EXPECT_EQ(reasonOf("{enter}"), "「{enter}」というキーはありません。");
  EXPECT_EQ(reasonOf("{}"), "「{}」というキーはありません。");
  EXPECT_EQ(reasonOf("{Enter 2}"), "「{Enter 2}」というキーはありません。");
}

TEST(Keys, RepetitionsAreCountedFromOneTo9999) {
  const char* const range = "「{BackSpace N}」の N は 1 から 9999 までの整数です。";
  for (const char* keys : {"{BackSpace 0}", "{BackSpace 10000}", "{BackSpace -1}", "{BackSpace 1.5}",
                           "{BackSpace }", "{BackSpace  2}", "{BackSpace 99999999999}"})
    EXPECT_EQ(reasonOf(keys), range) << keys;
}

TEST(Keys, OpenBraceIsRefused) {
  const char* const open = "「{」が閉じていません。「{」そのものは「{{」と書きます。";
  EXPECT_EQ(reasonOf("{"), open);
  EXPECT_EQ(reasonOf("1{Enter"), open);
  EXPECT_EQ(reasonOf("{{{"), open);
}

TEST(Keys, ControlCharactersAreRefused) {
  for (const char* keys : {"\t", "1\n", "\x08", "\x7F", "\xC2\x85"})
    EXPECT_EQ(reasonOf(keys), "制御文字は打てません。");
}

TEST(TypedCharacters, KnowNoNames) {
  EXPECT_EQ(typedCharacters("{Enter}東"), U"{Enter}東");
  EXPECT_THROW(typedCharacters("a\tb"), script::LineError);
}

}  // namespace
