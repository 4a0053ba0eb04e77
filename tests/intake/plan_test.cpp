#include "intake/plan.h"

#include <gtest/gtest.h>

namespace {

using intake::Refusal;
using Lines = std::vector<std::string>;

intake::Plan planOf(std::string_view text, const intake::Defaults& defaults = {"1", "", "", "0"}) {
  const intake::Block block = intake::readBlock(text);
  return intake::planObservations(block, intake::matchByName(block.headings.cells), defaults);
}

TEST(Plan, ReadsAWorkedRoute) {
  const auto plan = planOf(
      "事業番号,路線番号,標石番号,観測年月日,距離(m),中数,標高\n"
      "1001,R1,A,R2.1.5,1500,１．２３４０,10.500\n"
      ",,B,2020/1/6,800,-0.5,\n"
      ",,C,,,,\n");
  EXPECT_TRUE(plan.refusals.empty());
  ASSERT_EQ(plan.observations.size(), 3U);
  const auto& a = plan.observations[0];
  EXPECT_EQ(a.date, "2020/01/05");
  EXPECT_EQ(a.distance, "1.5");  // 1500 m
  EXPECT_EQ(a.difference, "1.2340");
  EXPECT_EQ(a.height, "10.500");
  EXPECT_EQ(plan.observations[1].route, "R1");  // from the line above
  EXPECT_EQ(plan.observations[2].order, 3);
  EXPECT_EQ(plan.observations[2].end, "-1");
  EXPECT_EQ(plan.routes, (std::vector<intake::PlannedRoute>{{"1001", "R1", "0", 3}}));
  EXPECT_EQ(plan.remarks, (Lines{"事業 1001 路線 R1: 順番を 1 から 3 まで付けます。",
                                 "事業 1001 路線 R1: 終点の印を「C」に付けます。"}));
}

TEST(Plan, NamesEveryFaultOfALine) {
  const auto plan = planOf(
      "事業番号,路線番号,標石番号,観測年月日,距離,終点\n"
      "1001,R1,A,2020/2/30,x,\n"
      "1001,123456789,,2020/2/1,-1,9\n"
      "1001,R1,C,,,-1,余り\n");
  EXPECT_EQ(plan.refusals, (std::vector<Refusal>{{2, "観測年月日「2020/2/30」は日付ではありません。"},
                                                 {2, "距離「x」は数値ではありません。"},
                                                 {3, "路線番号「123456789」は 8 文字を超えます。"},
                                                 {3, "標石番号がありません。"},
                                                 {3, "距離が負です。"},
                                                 {3, "終点「9」は -1、-2、空白のどれでもありません。"},
                                                 {4, "見出しより多い列があります。"}}));
}

TEST(Plan, AsksForTheColumnsThatItNeeds) {
  EXPECT_EQ(planOf("備考\nx\n").refusals,
            (std::vector<Refusal>{{1, "見出しに「事業番号」の列がありません。"},
                                  {1, "見出しに「路線番号」の列がありません。"},
                                  {1, "見出しに「標石番号」の列がありません。"}}));
  EXPECT_TRUE(planOf("標石番号\nA\n", {"1", "1001", "R1", "0"}).refusals.empty());
}

TEST(Plan, KeepsOrdersThatAreThereAndRefusesGapsAndDoubles) {
  const auto plan = planOf("順番,標石番号,終点\n2,B,-1\n1,A,\n", {"1", "P", "R", "0"});
  EXPECT_TRUE(plan.refusals.empty());
  EXPECT_EQ(plan.observations[0].order, 2);
  const auto bad = planOf("順番,標石番号\n1,A\n,B\n1,C\n2.5,D\n", {"1", "P", "R", "0"});
  EXPECT_EQ(bad.refusals,
            (std::vector<Refusal>{{3, "事業 P 路線 R には順番がありますが、この行にはありません。"},
                                  {4, "事業 P 路線 R に順番 1 が二度あります。"},
                                  {5, "順番「2.5」は 1 から 16383 までの整数ではありません。"},
                                  {5, "事業 P 路線 R には順番がありますが、この行にはありません。"}}));
}

// Routes of a family (characters 3 to 6 "A002") are loaded together in category 1: A, B of the first and C, D
// of the second are 1, 2, 3, 4. In category 0 each begins with 1.
TEST(Plan, NumbersAFamilyOn) {
  const char* const text = "路線番号,標石番号,終点\n01A00201,A,\n01A00201,B,-1\n02A00201,C,\n02A00201,D,-1\n";
  const auto orders = [](const intake::Plan& plan) {
    std::vector<int> all;
    for (const auto& one : plan.observations) all.push_back(one.order);
    return all;
  };
  EXPECT_EQ(orders(planOf(text, {"1", "P", "", "1"})), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(orders(planOf(text, {"1", "P", "", "0"})), (std::vector<int>{1, 2, 1, 2}));
}

TEST(Plan, SaysWhereASectionHasNoDifference) {
  const auto plan = planOf("標石番号,中数\nA,1\nB,\nC,\n", {"1", "P", "R", "0"});
  EXPECT_EQ(plan.remarks.back(), "事業 P 路線 R: 中数のない区間が 1 あります。");
  EXPECT_EQ(planOf("標石番号,終点\nA,\nB,-2\n", {"1", "P", "R", "0"}).refusals,
            (std::vector<Refusal>{{3, "事業 P 路線 R は再測の点で終わり、終点がありません。"}}));
}

TEST(Plan, RefusesMoreBenchMarksThanAGridHolds) {
  std::string text = "標石番号\n";
  for (int i = 0; i < 16384; ++i) text += "B\n";
  const auto plan = planOf(text, {"1", "P", "R", "0"});
  ASSERT_EQ(plan.refusals.size(), 1U);
  EXPECT_EQ(plan.refusals[0].why, "事業 P 路線 R は 16383 点を超えます（16384 点）。");
}

}  // namespace
