#include "text/padding.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using namespace std::string_literals;

TEST(Length, CountsCharacters) {
  EXPECT_EQ(text::length(""), 0U);
  EXPECT_EQ(text::length("R001"), 4U);
  EXPECT_EQ(text::length("水準点"), 3U);
  EXPECT_EQ(text::length("ﾃﾞｰﾀ"), 4U);  // the half-width voicing mark is a character of its own
  EXPECT_EQ(text::length("𠮷a"), 2U);   // four bytes
  EXPECT_EQ(text::length("é"), 1U);     // two bytes
}

TEST(Length, CountsAByteThatIsNoUtf8AsOneCharacter) {
  EXPECT_EQ(text::length("\x90\x85\x8F\x80"), 4U);  // another encoding
  EXPECT_EQ(text::length("\xE6\xB0"), 2U);          // 水 without its last byte
  EXPECT_EQ(text::length("a\xE6\xB0z"), 4U);        // the same between letters
  EXPECT_EQ(text::length("\xC0\x80"), 2U);          // overlong
  EXPECT_EQ(text::length("\xE0\x80\x80"), 3U);      // overlong
  EXPECT_EQ(text::length("\xF0\x80\x80\x80"), 4U);  // overlong
  EXPECT_EQ(text::length("\xED\xA0\x80"), 3U);      // surrogate
  EXPECT_EQ(text::length("\xF4\x90\x80\x80"), 4U);  // beyond U+10FFFF
  EXPECT_EQ(text::length("\xF4\x8F\xBF\xBF"), 1U);  // U+10FFFF
  EXPECT_EQ(text::length("\xFF\xFE"), 2U);
}

TEST(Mid, CountsCharactersFromOne) {
  EXPECT_EQ(text::mid("R1234567", 3, 4), "2345");
  EXPECT_EQ(text::mid("東京湾平均海面", 3, 2), "湾平");
  EXPECT_EQ(text::mid("ABC", 1, 3), "ABC");
  EXPECT_EQ(text::mid("ABC", 3, 9), "C");
  EXPECT_EQ(text::mid("ABC", 4, 1), "");
  EXPECT_EQ(text::mid("ABC", 9, 1), "");
  EXPECT_EQ(text::mid("ABC", 2, 0), "");
  EXPECT_EQ(text::mid("水準点", 2), "準点");
  EXPECT_EQ(text::mid("水準点", 4), "");
}

TEST(LeftAndRight, TakeCharactersFromTheEnds) {
  EXPECT_EQ(text::left("0:1往復", 4), "0:1往");
  EXPECT_EQ(text::left("ab", 9), "ab");
  EXPECT_EQ(text::left("ab", 0), "");
  EXPECT_EQ(text::right("1往復", 2), "往復");
  EXPECT_EQ(text::right("ab", 9), "ab");
  EXPECT_EQ(text::right("ab", 0), "");
  EXPECT_EQ(text::right("", 1), "");
}

TEST(Padded, FillsOrCutsToTheWidth) {
  EXPECT_EQ(text::padded("R001", 8), "R001    ");
  EXPECT_EQ(text::padded("", 8), "        ");
  EXPECT_EQ(text::padded("R0011234", 8), "R0011234");
  EXPECT_EQ(text::padded("R00112345", 8), "R0011234");
  EXPECT_EQ(text::padded("路線1", 8), "路線1     ");
  EXPECT_EQ(text::padded("東京湾平均海面水準点", 8), "東京湾平均海面水");
  EXPECT_EQ(text::padded("R001  ", 8), "R001    ");
  EXPECT_EQ(text::padded("x", 0), "");
  EXPECT_EQ(text::padded("\x90\x85", 4), "\x90\x85  ");
}

TEST(Padded, HasTheWidthWhateverTheBytes) {
  std::mt19937 random(3);
  for (int i = 0; i < 20000; ++i) {
    std::string bytes;
    for (auto n = random() % 14; n > 0; --n) {
      constexpr unsigned char kinds[] = {'a',  ' ',  0x80, 0xBF, 0xC3, 0xE3,
                                         0x81, 0xF0, 0x9F, 0xF4, 0xED, 0xFF};
      bytes += static_cast<char>(kinds[random() % sizeof kinds]);
    }
    const std::string padded = text::padded(bytes, 8);
    ASSERT_EQ(text::length(padded), 8U);
    ASSERT_EQ(text::padded(padded, 8), padded);
    ASSERT_EQ(text::left(bytes, 4).size() + text::mid(bytes, 5).size(), bytes.size());
  }
}

TEST(Trimmed, DropsBlanksAtTheEnds) {
  EXPECT_EQ(text::trimmed("  R 1  "), "R 1");
  EXPECT_EQ(text::trimmed("   "), "");
  EXPECT_EQ(text::trimmed(""), "");
  EXPECT_EQ(text::trimmed("　水　"), "　水　");  // only U+0020 is a blank here
  EXPECT_EQ(text::trimmed("\ta"), "\ta");
  EXPECT_EQ(text::trimmedRight("  R 1  "), "  R 1");
  EXPECT_EQ(text::trimmedRight("   "), "");
}

TEST(NextCharacter, WalksThroughAText) {
  const std::string words = "aé水𠮷"s + "\xE6\xB0";
  std::size_t at = 0;
  EXPECT_EQ(text::nextCharacter(words, at), U'a');
  EXPECT_EQ(text::nextCharacter(words, at), U'é');
  EXPECT_EQ(text::nextCharacter(words, at), U'水');
  EXPECT_EQ(text::nextCharacter(words, at), U'𠮷');
  EXPECT_EQ(text::nextCharacter(words, at), U'\uFFFD');
  EXPECT_EQ(text::nextCharacter(words, at), U'\uFFFD');
  EXPECT_EQ(at, words.size());
}

TEST(AppendCharacter, IsTheWayBack) {
  for (const char32_t character : {U'\0', U'a', U'\x7F', U'\x80', U'\u07FF', U'\u0800', U'水', U'\uFFFF',
                                   U'\U00010000', U'\U0010FFFF'}) {
    std::string words;
    text::appendCharacter(words, character);
    std::size_t at = 0;
    EXPECT_EQ(text::nextCharacter(words, at), character);
    EXPECT_EQ(at, words.size());
  }
}

TEST(EqualIgnoringCase, IgnoresTheCaseOfAsciiLetters) {
  EXPECT_TRUE(text::equalIgnoringCase("JobId", "JObID"));
  EXPECT_TRUE(text::equalIgnoringCase("路線番号", "路線番号"));
  EXPECT_FALSE(text::equalIgnoringCase("JobId", "JobI"));
  EXPECT_FALSE(text::equalIgnoringCase("JobId", "JobIe"));
  EXPECT_FALSE(text::equalIgnoringCase("a[", "A{"));  // 32 apart, and no letters
  EXPECT_TRUE(text::equalIgnoringCase("", ""));
}

}  // namespace
