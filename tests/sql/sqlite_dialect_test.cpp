#include "sql/sqlite_dialect.h"

#include <gtest/gtest.h>

#include <string>

#include "sql/tokens.h"

namespace {

using db::sqliteText;

TEST(SqliteDialect, MidBecomesSubstr) {
  EXPECT_EQ(sqliteText("SELECT MID(a,3,4) FROM t"), "SELECT substr(a,3,4) FROM t");
  EXPECT_EQ(sqliteText("SELECT mid (a,3) FROM t"), "SELECT substr (a,3) FROM t");
  EXPECT_EQ(sqliteText("SELECT Mid(MID(a,2),3) FROM t"), "SELECT substr(substr(a,2),3) FROM t");
}

TEST(SqliteDialect, MidAsANameStays) {
  EXPECT_EQ(sqliteText("SELECT MID, t.MID FROM MID"), "SELECT MID, t.MID FROM MID");
  EXPECT_EQ(sqliteText("INSERT INTO MID (a) VALUES(1)"), "INSERT INTO MID (a) VALUES(1)");
  EXPECT_EQ(sqliteText("SELECT [MID] FROM t"), "SELECT [MID] FROM t");
}

TEST(SqliteDialect, TextsAreNeverTouched) {
  EXPECT_EQ(sqliteText("SELECT 'MID(a,1) = b DISTINCTROW' FROM t"),
            "SELECT 'MID(a,1) = b DISTINCTROW' FROM t");
}

// A statement ends for SQLite at a character of code 0, so a text that holds one is written as a call. The
// stand-in is a character that the text does not hold: for one that holds all of ASCII, U+E000 (57344).
TEST(SqliteDialect, ATextThatHoldsZerosIsWrittenAsACall) {
  using std::string_literals::operator""s;
  EXPECT_EQ(sqliteText("SELECT 'a\0b\0'"s), "SELECT replace('a\1b\1',char(1),char(0))");
  EXPECT_EQ(sqliteText("SELECT '\1\2\0'"s), "SELECT replace('\1\2\3',char(3),char(0))");
  std::string ascii;
  for (char c = 1; c > 0 && c < 127; ++c)
    if (c != '\'') ascii += c;
  ascii += '\x7f';
  EXPECT_EQ(sqliteText("SELECT '" + ascii + "\0'"s),
            "SELECT replace('" + ascii + "\xEE\x80\x80',char(57344),char(0))");
}

TEST(SqliteDialect, DistinctRowIsDroppedBehindSelectOnly) {
  EXPECT_EQ(sqliteText(" SELECT DISTINCTROW a FROM t"), " SELECT  a FROM t");
  EXPECT_EQ(sqliteText("SELECT a, DISTINCTROW FROM t"), "SELECT a, DISTINCTROW FROM t");
}

TEST(SqliteDialect, ComparisonsLeaveTrailingBlanksOut) {
  EXPECT_EQ(sqliteText("SELECT * FROM t WHERE a ='x  '"), "SELECT * FROM t WHERE a ='x  ' COLLATE RTRIM");
  EXPECT_EQ(sqliteText("SELECT * FROM t WHERE t.a=u.b"), "SELECT * FROM t WHERE t.a=u.b COLLATE RTRIM");
  EXPECT_EQ(sqliteText("SELECT * FROM t WHERE (a <> \"b\")"),
            "SELECT * FROM t WHERE (a <> \"b\" COLLATE RTRIM)");
  EXPECT_EQ(sqliteText("SELECT * FROM t WHERE 'x'<MID(b,1,2)AND c>='y'"),
            "SELECT * FROM t WHERE 'x'<substr(b,1,2) COLLATE RTRIM AND c>='y' COLLATE RTRIM");
}

TEST(SqliteDialect, NumbersAndNullAreComparedAsTheyStand) {
  for (const char* sql : {"SELECT * FROM t WHERE a = 1", "SELECT * FROM t WHERE a = Null",
                          "SELECT * FROM t WHERE a = -1", "SELECT * FROM t WHERE a = NOT b"})
    EXPECT_EQ(sqliteText(sql), sql);
}

TEST(SqliteDialect, ASecondRuleIsNotWritten) {
  for (const char* sql : {"SELECT * FROM t WHERE a = b COLLATE NOCASE", "SELECT a = count(*) OVER () FROM t",
                          "SELECT * FROM t WHERE (a,b) = ('x','y')"})
    EXPECT_EQ(sqliteText(sql), sql);
}

TEST(SqliteDialect, AssignmentsAreNoComparisons) {
  EXPECT_EQ(sqliteText("UPDATE t SET a = 'x', b = c WHERE d = 'y'"),
            "UPDATE t SET a = 'x', b = c WHERE d = 'y' COLLATE RTRIM");
  EXPECT_EQ(sqliteText("UPDATE t SET a = (SELECT b FROM u WHERE c = 'y'), d = 'z'"),
            "UPDATE t SET a = (SELECT b FROM u WHERE c = 'y' COLLATE RTRIM), d = 'z'");
}

TEST(SqliteDialect, ComparisonsWithNumberColumnsStay) {
  const auto holdsNumbers = [](std::string_view qualifier, std::string_view column) {
    return column == "SaveOrder" && qualifier != "X";
  };
  EXPECT_EQ(
      sqliteText("SELECT * FROM A LEFT JOIN B ON A.SaveOrder = B.SaveOrder AND A.k = B.k", holdsNumbers),
      "SELECT * FROM A LEFT JOIN B ON A.SaveOrder = B.SaveOrder AND A.k = B.k COLLATE RTRIM");
  EXPECT_EQ(sqliteText("SELECT * FROM A WHERE SaveOrder = '1' AND '2' > SaveOrder", holdsNumbers),
            "SELECT * FROM A WHERE SaveOrder = '1' AND '2' > SaveOrder");
  EXPECT_EQ(sqliteText("SELECT * FROM A WHERE X.SaveOrder = '1'", holdsNumbers),
            "SELECT * FROM A WHERE X.SaveOrder = '1' COLLATE RTRIM");
  EXPECT_EQ(sqliteText("SELECT * FROM A WHERE SaveOrder('x') = '1'", holdsNumbers),
            "SELECT * FROM A WHERE SaveOrder('x') = '1' COLLATE RTRIM");
}

TEST(SqliteDialect, OrderNumbersDeclaredAsTextsAreReadAsNumbers) {
  EXPECT_EQ(sqliteText("SELECT * FROM t ORDER BY DataKubun,SaveOrder"),
            "SELECT * FROM t ORDER BY DataKubun,CAST(SaveOrder AS REAL)");
  EXPECT_EQ(sqliteText("SELECT * FROM a LEFT JOIN b ON (a.SaveOrder=b.SaveOrder) ORDER BY a.SaveOrder DESC;"),
            "SELECT * FROM a LEFT JOIN b ON (CAST(a.SaveOrder AS REAL)=CAST(b.SaveOrder AS REAL)) ORDER BY "
            "CAST(a.SaveOrder AS REAL) DESC;");
  const auto holdsNumbers = [](std::string_view, std::string_view column) { return column == "SaveOrder"; };
  EXPECT_EQ(sqliteText("SELECT * FROM t ORDER BY SaveOrder", holdsNumbers),
            "SELECT * FROM t ORDER BY SaveOrder");
}

TEST(SqliteDialect, DistinctTextsAreOneItemAndSorted) {
  EXPECT_EQ(sqliteText("SELECT DISTINCT a,b FROM t"),
            "SELECT DISTINCT a COLLATE RTRIM AS a,b COLLATE RTRIM AS b FROM t ORDER BY 1,2");
  EXPECT_EQ(sqliteText("SELECT DISTINCT t.a AS x FROM t ORDER BY x"),
            "SELECT DISTINCT t.a COLLATE RTRIM AS x FROM t ORDER BY x");
  const auto holdsNumbers = [](std::string_view, std::string_view column) { return column == "n"; };
  EXPECT_EQ(sqliteText("SELECT DISTINCT n FROM t", holdsNumbers),
            "SELECT DISTINCT n FROM t ORDER BY CAST(n AS TEXT)");
  EXPECT_EQ(sqliteText("SELECT DISTINCT * FROM t LIMIT 3"), "SELECT DISTINCT * FROM t LIMIT 3");
}

TEST(SqliteDialect, DefinitionsStay) {
  for (const char* sql : {"CREATE TABLE t(a TEXT(2) CHECK(a = 'x'))", "PRAGMA user_version = x",
                          "ALTER TABLE KansokuSeikaDataHKSNB ADD COLUMN RosenEndFlg TEXT(2)"})
    EXPECT_EQ(sqliteText(sql), sql);
}

TEST(SqliteDialect, NonsenseIsHandedOn) {
  for (const char* sql :
       {"", "  ", ";", "SELECT 'a", "SELECT * FROM t WHERE a =", "SELECT * FROM t WHERE a = (",
        "SELECT * FROM t WHERE a = b.", ")))", "SELECT MID", "= = =", "SELECT ] [ '"})
    EXPECT_EQ(db::significantTokens(sqliteText(sql)).size() >= db::significantTokens(sql).size(), true)
        << sql;
  EXPECT_EQ(sqliteText("SELECT 'a"), "SELECT 'a");
  EXPECT_EQ(sqliteText("SELECT * FROM t WHERE a = ("), "SELECT * FROM t WHERE a = (");
}

}  // namespace
