#include "db/sql.h"

#include <gtest/gtest.h>

#include <concepts>
#include <stdexcept>
#include <string>

namespace {

template <class Piece>
concept JoinsSql = requires(db::Sql sql, Piece piece) {
  sql + piece;
};

static_assert(JoinsSql<db::Sql> && JoinsSql<db::SourceText>);
static_assert(!JoinsSql<std::string> && !JoinsSql<std::string_view>,
              "what is only known at run time is a value or a name");
static_assert(!std::constructible_from<db::Sql, std::string>);
static_assert(!std::constructible_from<db::Sql, std::string_view>);

TEST(Sql, JoinsSourceNamesAndValuesInTheirOrder) {
  const std::string table = "KansokuSeikaData";
  const std::string route = "R001";
  EXPECT_EQ("SELECT * FROM " + db::sqlName(table) + " WHERE 路線番号 =" + db::sqlValue(route) + " ORDER BY a",
            "SELECT * FROM KansokuSeikaData WHERE 路線番号 ='R001' ORDER BY a");
  db::Sql text("a");
  text += db::Sql("b");
  EXPECT_EQ(text.text(), "ab");
}

TEST(Sql, AValueIsThatTextWhateverItHolds) {
  EXPECT_EQ(db::sqlValue(""), "''");
  EXPECT_EQ(db::sqlValue("'OR''='"), "'''OR''''='''");
  EXPECT_EQ(db::sqlValue("3-1';DELETE FROM JobData--"), "'3-1'';DELETE FROM JobData--'");
}

TEST(Sql, ANameNeedsNoQuotes) {
  EXPECT_EQ(db::sqlName("新設点Flg_2"), "新設点Flg_2");
  for (const char* broken : {"", "a b", "a;b", "a'b", "a\"b", "a.b", "a)"})
    EXPECT_THROW(db::sqlName(broken), std::invalid_argument) << broken;
}

}  // namespace
