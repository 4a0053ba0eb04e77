#include "sql/tokens.h"

#include <gtest/gtest.h>

#include <random>

#include "sql/split_statements.h"

namespace {

/// The tokens as "kind:text", without the blanks.
std::vector<std::string> shown(std::string_view sql) {
  static const std::string kinds = "bcnqt#ou";
  std::vector<std::string> result;
  for (const db::Token& token : db::significantTokens(sql))
    result.push_back(kinds.substr(static_cast<std::size_t>(token.kind), 1) + ":" + std::string(token.text));
  return result;
}

using Shown = std::vector<std::string>;

TEST(SqlTokens, JapaneseNamesNeedNoQuotes) {
  EXPECT_EQ(shown("A.事業番号 ='1'"), (Shown{"n:A", "o:.", "n:事業番号", "o:=", "t:'1'"}));
}

TEST(SqlTokens, TwoQuotesInATextAreOneAndDoNotEndIt) {
  EXPECT_EQ(shown("'a''b' c"), (Shown{"t:'a''b'", "n:c"}));
  EXPECT_EQ(shown("''''"), (Shown{"t:''''"}));
}

TEST(SqlTokens, NamesMayStandInAnyQuotes) {
  EXPECT_EQ(shown("\"a b\" [c d] `e f`"), (Shown{"q:\"a b\"", "q:[c d]", "q:`e f`"}));
  EXPECT_EQ(db::nameOf(db::tokens("\"a\"\"b\"")[0]), "a\"b");
  EXPECT_EQ(db::nameOf(db::tokens("[c d]")[0]), "c d");
  EXPECT_EQ(db::nameOf(db::tokens("e")[0]), "e");
}

TEST(SqlTokens, NumbersOfEveryForm) {
  EXPECT_EQ(shown("12 .5 1. 1.5E-3 0x1F 1E"),
            (Shown{"#:12", "#:.5", "#:1.", "#:1.5E-3", "#:0x1F", "#:1", "n:E"}));
}

TEST(SqlTokens, OperatorsOfTwoSignsStayWhole) {
  EXPECT_EQ(shown("a<>b<=c>=d!=e==f||g<h"), (Shown{"n:a", "o:<>", "n:b", "o:<=", "n:c", "o:>=", "n:d", "o:!=",
                                                   "n:e", "o:==", "n:f", "o:||", "n:g", "o:<", "n:h"}));
}

TEST(SqlTokens, CommentsMeanNothing) {
  EXPECT_EQ(shown("a -- 'b\nc /* ; ' */ d"), (Shown{"n:a", "n:c", "n:d"}));
}

TEST(SqlTokens, QuotesWithoutAnEndAreUnfinished) {
  EXPECT_EQ(shown("a 'b"), (Shown{"n:a", "u:'b"}));
  EXPECT_EQ(shown("[b"), (Shown{"u:[b"}));
  EXPECT_EQ(shown("/* b"), (Shown{"u:/* b"}));
  EXPECT_EQ(shown("\""), (Shown{"u:\""}));
}

TEST(SqlTokens, BlobsAreTexts) { EXPECT_EQ(shown("x'41' X'42'"), (Shown{"t:x'41'", "t:X'42'"})); }

TEST(SqlTokens, PutTogetherTheyAreTheText) {
  std::mt19937 random(20240501);
  const std::string alphabet = "aMID'\"[]`()-/*;., \n=<>!|0x1E\xE6\xA8\x99\xFF";
  std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
  for (int round = 0; round < 20000; ++round) {
    std::string sql;
    for (int i = 0; i < 24; ++i) sql += alphabet[letter(random)];
    std::string together;
    for (const db::Token& token : db::tokens(sql)) together += token.text;
    ASSERT_EQ(together, sql);
  }
}

TEST(QuotedName, ReadsBackAsTheSameName) {
  EXPECT_EQ(db::quotedName("備考1"), "\"備考1\"");
  for (const char* name : {"a\"b", "", "a b", "[c]", "\"\""}) {
    const std::string written = db::quotedName(name);
    const auto read = db::tokens(written);
    ASSERT_EQ(read.size(), 1U) << written;
    EXPECT_EQ(db::nameOf(read[0]), name);
  }
}

TEST(SplitStatements, CutsAtSemicolonsOutsideQuotesAndComments) {
  EXPECT_EQ(
      db::splitStatements("CREATE TABLE a(b);; -- c;d\nINSERT INTO a VALUES('x;''y') /* ; */ ; SELECT [p;q]"),
      (std::vector<std::string>{"CREATE TABLE a(b)", "INSERT INTO a VALUES('x;''y')", "SELECT [p;q]"}));
}

TEST(SplitStatements, NothingInNothing) {
  EXPECT_TRUE(db::splitStatements("").empty());
  EXPECT_TRUE(db::splitStatements(" ;; -- only words\n").empty());
}

TEST(SplitStatements, ATriggerKeepsItsBody) {
  const std::string trigger =
      "CREATE TRIGGER t AFTER DELETE ON a BEGIN DELETE FROM b; SELECT CASE 1 WHEN 1 THEN 2 END; END";
  EXPECT_EQ(db::splitStatements(trigger + ";SELECT 1"), (std::vector<std::string>{trigger, "SELECT 1"}));
}

TEST(SplitStatements, ABlankStandsWhereACommentStood) {
  EXPECT_EQ(db::splitStatements("SELECT/* x */1"), (std::vector<std::string>{"SELECT 1"}));
}

}  // namespace
