#include <cmath>

#include "sample_job.h"

namespace {

using test::usualJob;

/// Condition on one small route of a job.
std::string route(const std::string& number, const std::string& job = "1") {
  return "JobId = '" + job + "' AND 事業番号 = '1001' AND 路線番号 = '" + number + "'";
}

/// Sum of the mean differences of the categorised records of a route, mm.
long rise(const std::string& number, const std::string& job = "1") {
  return std::lround(1000 * usualJob().number("SELECT SUM(中数) FROM KansokuSeikaData WHERE " +
                                              route(number, job) + " AND DataKubun = '0'"));
}

std::string records(const std::string& number, const std::string& columns, std::size_t count) {
  return usualJob().dump(
      "SELECT " + columns + " FROM KansokuSeikaData WHERE " + route(number) + " ORDER BY SaveOrder", count);
}

TEST(SmallRoutes, HaveTheSumsThatTheirCommentsPromise) {
  for (const char* job : {"1", "2"}) {
    EXPECT_EQ(4000, rise("01A00101", job));  // +1.0 +2.0 −0.5 +1.5
    EXPECT_EQ(3002, rise("01A00201", job));  // +2.0 −2.0 +2.002 +1.5 −0.5
    EXPECT_EQ(2000, rise("01A00301", job));  // +1.0 +1.5 −0.5
    EXPECT_EQ(5000, rise("01A00401", job));  // +1.0 +2.0, then +1.0 +1.0
    EXPECT_EQ(1500, rise("01A00501", job));  // +1.0 +1.0 −0.5
    EXPECT_EQ(3918, rise("01D00101", job));  // 4.362 + 2.413 − 3.121 + 1.263 + 2.716 − 3.715; 11.885 − 7.967
    EXPECT_EQ(40000, rise("01F00201", job));
  }
}

TEST(SmallRoutes, HaveTheDecimalsOfTheirJob) {
  const std::string first = "SELECT 標高 FROM KansokuSeikaData WHERE 標石番号 = 'D101' AND ";
  EXPECT_EQ("7.9670", usualJob().text(first + route("01D00101", "1")));
  EXPECT_EQ("7.967", usualJob().text(first + route("01D00101", "2")));
}

TEST(SmallRoutes, ClosureLineIsSixPointSevenKilometres) {
  EXPECT_NEAR(6.7, usualJob().number("SELECT SUM(距離) FROM KansokuSeikaData WHERE " + route("01D00101")),
              1e-12);
  EXPECT_EQ(
      "D101|7.9670|1.5|4.362|\nD102|-|0.6|2.413|\nD103|-|0.8|-3.121|\nD104|-|1|1.263|\nD105|-|1.2|2.716|\n"
      "D106|-|1.6|-3.715|\nD107|11.8190|-|-|\n",
      records("01D00101", "標石番号, 標高, 距離, 中数", 4));
}

TEST(SmallRoutes, PairIsReachedTwice) {
  EXPECT_EQ("A201|-|2|\nA202|-2|-2|\nA201|-|2.002|\nA202|-2|-|\nA202|-|1.5|\nA203|-|-0.5|\nA204|-1|-|\n",
            records("01A00201", "標石番号, RosenEndDataFlg, 中数", 3));
}

TEST(SmallRoutes, OneRouteBeginsWhereTheOneBeforeEndsWithAnOlderHeight) {
  EXPECT_EQ(1, usualJob().count(route("01A00201") +
                                " AND 標石番号 = 'A204' AND RosenEndDataFlg = '-1' AND 標高 = '23.0010'"));
  EXPECT_EQ(1, usualJob().count(route("01A00301") +
                                " AND 標石番号 = 'A204' AND SaveOrder = 1 AND 標高 = '23.0000'"));
}

TEST(SmallRoutes, OneHasTwoRouteEnds) {
  EXPECT_EQ("A401|-|\nA402|-|\nA403|-1|\nA303|-|\nA404|-|\nA405|-1|\n",
            records("01A00401", "標石番号, RosenEndDataFlg", 2));
}

TEST(SmallRoutes, OneHasRecordsWithoutCategory) {
  EXPECT_EQ("A501|0|\nA502|0|\nA502N|-|\nA503|0|\nA504|0|\nA504N|-|\n",
            records("01A00501", "標石番号, DataKubun", 2));
}

TEST(SmallRoutes, FamilyIsNumberedThrough) {
  const std::string family =
      "JobId = '1' AND 事業番号 = '1001' AND DataKubun = '1' AND MID(路線番号,3,4) ='B001'";
  EXPECT_EQ(15, usualJob().count(family));
  EXPECT_EQ("01B00101|1|5|\n02B00101|6|10|\n03B00101|11|15|\n",
            usualJob().dump("SELECT 路線番号, MIN(SaveOrder), MAX(SaveOrder) FROM KansokuSeikaData WHERE " +
                                family + " GROUP BY 路線番号 ORDER BY 路線番号",
                            3));
}

TEST(SmallRoutes, EveryCategoryHasOne) {
  for (const char* category : {"0", "1", "2", "3", "4"})
    EXPECT_LT(0, usualJob().count("JobId = '2' AND 事業番号 = '1001' AND DataKubun = '" +
                                  std::string(category) + "'"));
}

TEST(SmallRoutes, KnownPointsBesideHeightsThatAreNone) {
  EXPECT_EQ("D301|50.0000|\nD302|0|\nD303|52.0040|\nD304||\nD305|54.0020|\n",
            records("01D00301", "標石番号, 標高", 2));
}

TEST(SmallRoutes, ForwardAndBackwardRunsStandApart) {
  EXPECT_EQ(
      "D201|-|10.0000|\nD202|-|-|\nD203F|-|12.0040|\nD204|-2|-|\nD203B|-|12.0040|\nD204|-2|-|\nD204|-1|-|\n",
      records("01D00201", "標石番号, RosenEndDataFlg, 標高", 3));
  EXPECT_EQ(2, usualJob().count(route("01E00201") + " AND (標石番号 = 'E202F' OR 標石番号 = 'E202B')"));
}

TEST(SmallRoutes, VariationRouteHasANewPointAndBothDateForms) {
  EXPECT_EQ(
      "E101|20220511|1.5|20190815|1.49|\nE102|2022/05/11|1.2|20190815|2.01|\nE103|2022/05/21|0.8|-|-|\n"
      "E104|2022/05/11|-0.7|2019/08/15|-0.72|\nE105|20220511|-|20190815|-|\n",
      records("01E00101", "標石番号, 観測年月日, 中数, 前回観測日, 前回中数", 5));
}

TEST(SmallRoutes, EllipsoidalRouteHasAMeanHeightOf500) {
  // 480 490 500 500 510 520: the sum of 10 10 0 10 10 from 480 on, 3000 / 6
  EXPECT_EQ("480.0000|10|3.7|\n-|10|3.7|\n-|0|3.7|\n-|10|3.7|\n-|10|3.7|\n520.0000|-|-|\n",
            records("01F00201", "標高, 中数, 距離", 3));
}

TEST(SmallRoutes, ReferenceListFindsOtherRoutesAndOtherCategories) {
  const std::string all =
      "SELECT 路線番号, DataKubun, 自水準点番号, 至水準点番号, k FROM DaenHoseiChiHyouData WHERE "
      "JobId = '2' AND 事業番号 = '1001' ORDER BY 路線番号, SaveOrder";
  EXPECT_EQ("01F00101|0|F101|F102|1.3|\n01F00101|0|F102|F103|2.7|\n01F00201|4|F103|F108|7.2|\n",
            usualJob().dump(all, 5));
}

}  // namespace
