#include "script/words.h"

#include <gtest/gtest.h>

#include "script/line_error.h"

namespace {

using script::splitWords;
using script::Word;
using Words = std::vector<Word>;

std::string reasonOf(std::string_view line) {
  try {
    splitWords(line);
  } catch (const script::LineError& error) {
    return error.what();
  }
  return "understood";
}

TEST(Words, ArePartedByBlanksAndTabs) {
  EXPECT_EQ(splitWords("  cell \t Grid1  2 3 "), (Words{{"cell"}, {"Grid1"}, {"2"}, {"3"}}));
  EXPECT_EQ(splitWords(" \t "), Words{});
  EXPECT_EQ(splitWords(""), Words{});
}

TEST(Words, QuotesHoldBlanksAndMayBeEmpty) {
  EXPECT_EQ(splitWords(R"(enter "a b" "")"), (Words{{"enter"}, {"a b", true}, {"", true}}));
  EXPECT_EQ(splitWords("\"a\tb\""), (Words{{"a\tb", true}}));
}

TEST(Words, EveryEscapeStandsForItsCharacter) {
  EXPECT_EQ(splitWords(R"("\"\\\t\n")"), (Words{{"\"\\\t\n", true}}));
  EXPECT_EQ(splitWords(R"("\\n")"), (Words{{"\\n", true}}));
}

TEST(Words, BackslashOutsideQuotesIsItself) {
  EXPECT_EQ(splitWords(R"(C:\temp\n)"), (Words{{"C:\\temp\\n"}}));
}

TEST(Words, OtherBlanksBelongToTheWord) { EXPECT_EQ(splitWords("正標高　補正"), (Words{{"正標高　補正"}})); }

TEST(Words, MalformedLinesSayWhy) {
  EXPECT_EQ(reasonOf(R"(a "b)"), "引用符が閉じていません。");
  EXPECT_EQ(reasonOf(R"(a "b\")"), "引用符が閉じていません。");
  EXPECT_EQ(reasonOf(R"("a"b)"), "閉じる引用符のあとには空白が要ります。");
  EXPECT_EQ(reasonOf(R"(a"b")"), "引用符は語の初めにだけ書けます。");
  const char* const escapes = R"(引用符の中の「\」のあとに書けるのは " \ t n だけです。)";
  EXPECT_EQ(reasonOf(R"("\r")"), escapes);
  EXPECT_EQ(reasonOf("\"\\"), escapes);
}

TEST(Words, BytesThatAreNotUtf8AreRefused) {
  EXPECT_EQ(reasonOf("show \x83\x89"), "UTF-8 でない文字があります。");
  EXPECT_EQ(reasonOf("show \xE3\x81"), "UTF-8 でない文字があります。");
  EXPECT_EQ(reasonOf("show \xEF\xBF\xBD"), "understood") << "the replacement character itself is UTF-8";
}

}  // namespace
