#include "platform/encoding.h"

#include <gtest/gtest.h>

namespace {

using platform::fromCp932;
using platform::toCp932;

TEST(Cp932, TurnsJapaneseBothWays) {
  // 水 is 0x9085, 準 0x8F80, ｶ (half width) 0xB6, ～ (full width) 0x8160, ① 0x8740.
  const std::string bytes = "A\x90\x85\x8F\x80\xB6\x81\x60\x87\x40\\";
  const std::string words = "A水準ｶ～①\\";
  EXPECT_EQ(fromCp932(bytes), words);
  EXPECT_EQ(toCp932(words), bytes);
}

TEST(Cp932, TakesLettersWhoseSecondByteIsAnAsciiSign) {
  // 表 is 0x955C, ソ 0x835C: the second byte alone would be a backslash.
  EXPECT_EQ(fromCp932("\x95\x5C\x83\x5C"), "表ソ");
  EXPECT_EQ(toCp932("表ソ"), "\x95\x5C\x83\x5C");
}

TEST(Cp932, KeepsEmptyTextsAndControlSigns) {
  EXPECT_EQ(fromCp932(""), "");
  EXPECT_EQ(toCp932(""), "");
  const std::string withZero("\0\r\n\t水", 7);
  EXPECT_EQ(toCp932(withZero), std::string("\0\r\n\t\x90\x85", 6));
  EXPECT_EQ(fromCp932(std::string("\0\r\n\t\x90\x85", 6)), withZero);
}

TEST(Cp932, RefusesBytesOfNoCharacter) {
  for (const char* bytes : {"\x80", "\xA0", "\xFD", "\xFF", "\x90", "\x90\x20", "\x90\x7F", "\x85\x40"})
    EXPECT_FALSE(fromCp932(bytes)) << testing::PrintToString(bytes);
}

TEST(Cp932, RefusesCharactersThatItLacks) {
  // 𠮷 stands outside the first plane; 〜 (wave dash) would come back as ～; é and € have no place at all.
  for (const char* words : {"𠮷", "〜", "é", "€", "水\xFF", "\xE6\xB0"})
    EXPECT_FALSE(toCp932(words)) << words;
}

TEST(Cp932, GivesLongTextsBackWhole) {
  std::string words;
  for (int i = 0; i < 3000; ++i) words += "水準 路線";
  const auto bytes = toCp932(words);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->size(), 27000U);  // four letters of two bytes and a blank
  EXPECT_EQ(fromCp932(*bytes), words);
}

}  // namespace
