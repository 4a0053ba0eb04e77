#include "sql/select_shape.h"

#include <gtest/gtest.h>

namespace {

/// The tables of a SELECT as "table/alias" in one line.
std::string sources(std::string_view sql) {
  std::string result;
  const db::SelectShape shape = db::selectShape(sql).value();
  for (const db::SelectSource& source : shape.sources) result += source.table + "/" + source.alias + " ";
  return result;
}

/// The items of a SELECT as their qualifiers, stars marked.
std::string items(std::string_view sql) {
  std::string result;
  const db::SelectShape shape = db::selectShape(sql).value();
  for (const db::SelectItem& item : shape.items)
    result += (item.qualifier.empty() ? "-" : item.qualifier) + (item.all ? "* " : " ");
  return result;
}

TEST(SelectShape, ItemsKnowTheirTable) {
  EXPECT_EQ(items("SELECT A.*,B.標高, C, f(D.x, 2), * , main.E.y AS z FROM t"), "A* B - - -* E ");
}

TEST(SelectShape, TablesWithAndWithoutAlias) {
  EXPECT_EQ(sources("SELECT * FROM T A LEFT JOIN U AS B ON A.x = f(B.x, 1) AND A.y = B.y , [V W] WHERE 1"),
            "T/A U/B V W/ ");
  EXPECT_EQ(sources("SELECT * FROM (T LEFT JOIN U ON (T.x = U.x)) INNER JOIN main.V ON T.y = V.y ORDER BY 1"),
            "T/ U/ V/ ");
  EXPECT_EQ(sources("SELECT * FROM (SELECT 1, 2 FROM W) S, T"), "/S T/ ");
}

TEST(SelectShape, TellsWhetherRecordsStayRecords) {
  EXPECT_TRUE(
      db::selectShape("select * from T where a in (select b from U limit 1) order by c")->recordForRecord);
  EXPECT_TRUE(db::selectShape("SELECT DISTINCTROW * FROM T")->recordForRecord);
  EXPECT_FALSE(db::selectShape("SELECT DISTINCT * FROM T")->recordForRecord);
  EXPECT_FALSE(db::selectShape("SELECT * FROM T UNION SELECT * FROM U")->recordForRecord);
  EXPECT_FALSE(db::selectShape("SELECT * FROM T LIMIT 1")->recordForRecord);
}

TEST(SelectShape, OtherStatementsHaveNone) {
  EXPECT_FALSE(db::selectShape("DELETE FROM T"));
  EXPECT_FALSE(db::selectShape(""));
}

TEST(SelectShape, BrokenTextsEnd) {
  for (const char* sql :
       {"SELECT", "SELECT ,", "SELECT * FROM", "SELECT * FROM (", "SELECT * FROM T AS",
        "SELECT * FROM T JOIN", "SELECT a.", "SELECT * FROM a.", "SELECT ( FROM T", "SELECT * FROM ,,)"})
    EXPECT_TRUE(db::selectShape(sql)) << sql;
}

TEST(WithStarReplaced, OnlyTheListOfOneStar) {
  EXPECT_EQ(db::withStarReplaced(" SELECT  * FROM T", "_rowid_"), " SELECT  _rowid_ FROM T");
  EXPECT_FALSE(db::withStarReplaced("SELECT a FROM T", "_rowid_"));
  EXPECT_FALSE(db::withStarReplaced("SELECT", "_rowid_"));
}

}  // namespace
