#include "route/selection.h"

#include <gtest/gtest.h>

namespace {

route::Selection routeOf(const char* rosenBango, const char* dataKubun) {
  return {"1001", rosenBango, dataKubun, ""};
}

TEST(CategoryCode, IsTheFirstCharacterOfTheItem) {
  EXPECT_EQ(route::categoryCode("0:1往復 本作業、検測、取付"), "0");
  EXPECT_EQ(route::categoryCode("4"), "4");
  EXPECT_EQ(route::categoryCode("往復"), "往");
  EXPECT_EQ(route::categoryCode(""), "");
}

TEST(PaddedKey, HasEightCharacters) {
  EXPECT_EQ(route::paddedKey("R001"), "R001    ");
  EXPECT_EQ(route::paddedKey("R001    "), "R001    ");
  EXPECT_EQ(route::paddedKey("01A001019"), "01A00101");
  EXPECT_EQ(route::paddedKey(""), "        ");
}

TEST(RouteFamily, IsCharactersThreeToSix) {
  EXPECT_EQ(route::routeFamily("01A00102"), "A001");
  EXPECT_EQ(route::routeFamily("R001"), "01  ");  // of "R001    "
  EXPECT_EQ(route::routeFamily("R"), "    ");
  EXPECT_EQ(route::routeFamily("一二三四五六七八"), "三四五六");
}

TEST(RouteCondition, NamesThePaddedRoute) {
  EXPECT_EQ(route::routeCondition(routeOf("R001", "0")), " AND 路線番号 ='R001    '");
  EXPECT_EQ(route::routeCondition(routeOf("R001", "4"), db::Sql("A.")), " AND A.路線番号 ='R001    '");
  EXPECT_EQ(route::routeCondition(routeOf("R001", "")), " AND 路線番号 ='R001    '");
}

TEST(RouteCondition, NamesTheFamilyInCategoryOne) {
  EXPECT_EQ(route::routeCondition(routeOf("01A00102", "1")), " AND MID(路線番号,3,4) ='A001'");
  EXPECT_EQ(route::routeCondition(routeOf("01A00102", "1"), db::Sql("KansokuSeikaData.")),
            " AND MID(KansokuSeikaData.路線番号,3,4) ='A001'");
}

TEST(CategoryConditions, NameNullInCategoryZeroOfALoadOnly) {
  EXPECT_EQ(route::plainCategoryCondition("0"), " AND DataKubun = '0'");
  EXPECT_EQ(route::plainCategoryCondition("3", db::Sql("A.")), " AND A.DataKubun = '3'");
  EXPECT_EQ(route::loadCategoryCondition("3", db::Sql("A.")), " AND A.DataKubun = '3'");
  EXPECT_EQ(route::loadCategoryCondition("0"), " AND (DataKubun = '0' OR DataKubun = Null)");
  EXPECT_EQ(route::loadCategoryCondition("0", db::Sql("A.")),
            " AND (A.DataKubun = '0' OR A.DataKubun = Null)");
}

}  // namespace
