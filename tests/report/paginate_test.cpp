#include "report/paginate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "sample_document.h"

namespace {

using namespace report;

std::vector<Drawing> pages(const Document& document) { return paginate(document, {}, fixedPitch); }

/// On which page (from 0) each text of the first column stands; −1 where a text stands on several.
std::map<std::string, int> pageOf(const std::vector<Drawing>& pages) {
  std::map<std::string, int> found;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (const Words& words : test::wordsOn(pages[page])) {
      const auto [at, added] = found.emplace(words.text, static_cast<int>(page));
      if (!added && at->second != static_cast<int>(page)) at->second = -1;
    }
  }
  return found;
}

TEST(Paginate, PutsAShortRouteOnOneUprightPage) {
  const auto made = pages(test::routeDocument(1));
  ASSERT_EQ(made.size(), 1U);
  EXPECT_EQ(made[0].width, 2100);
  EXPECT_EQ(made[0].height, 2970);
  for (const char* const text :
       {"正標高補正計算", "作業名", "見本作業", "路線番号", "01A00101", "計算者", "点検者", "水準点", "標高",
        "(m)", "備考", "A1", "101.1234", "1.0000", "1 / 1"})
    EXPECT_EQ(test::wordsThatRead(made[0], text).text, text);
}

TEST(Paginate, CountsRowsByTheHeightOfThePaper) {
  // Letters of 9 points are 31.75 high, a row 1.3 × 31.75 + 10 = 51.275, a bench mark with its section
  // 102.55, the headings 92.55. The heading of the part: title 123.2, fields up to the boxes (66.8) and 30
  // more: 220. The first page has 2970 − 150 − 160 − 220 − 92.55 = 2347.45: 22 bench marks. A further one has
  // 2660 − 60 − 92.55 = 2507.45: 24.
  EXPECT_EQ(pages(test::routeDocument(22)).size(), 1U);
  EXPECT_EQ(pages(test::routeDocument(23)).size(), 2U);
  EXPECT_EQ(pages(test::routeDocument(46)).size(), 2U);
  EXPECT_EQ(pages(test::routeDocument(47)).size(), 3U);
}

TEST(Paginate, StandsTheTextsOfFieldsBelowEachOther) {
  Document document = test::routeDocument(1);
  document.fields = {{"作業名", "左"}, {"地区", "右"}, {"観測成果年度", "下"}};
  const auto made = pages(document);
  // The longest name has 6 letters of 30: texts begin 6.7 × 30 = 201 behind the margin of 200.
  EXPECT_NEAR(test::wordsThatRead(made[0], "左").at.x, 401, 1e-9);
  EXPECT_NEAR(test::wordsThatRead(made[0], "下").at.x, 401, 1e-9);
}

TEST(Paginate, GivesALongFieldTheRoomOfAShortOne) {
  // Beside the boxes there are 1750 − 440 − 30 = 1280; half of that is 640. The text of 18 letters needs 540
  // and stands 3.7 × 30 = 111 behind its name: in one line where the left side gets more than half.
  Document document = test::routeDocument(1);
  document.parts[0].fields.clear();
  document.fields = {{"作業名", std::string(36, 'x')}, {"地区", "右"}};
  EXPECT_EQ(test::wordsThatRead(pages(document)[0], std::string(36, 'x')).at.x, 311);
}

TEST(Paginate, RepeatsTheHeadingsAndCountsThePages) {
  const auto made = pages(test::routeDocument(60));
  ASSERT_EQ(made.size(), 3U);
  for (std::size_t i = 0; i < made.size(); ++i) {
    EXPECT_EQ(test::wordsThatRead(made[i], "標高").text, "標高");
    EXPECT_EQ(test::wordsThatRead(made[i], std::to_string(i + 1) + " / 3").anchor, Anchor::Middle);
  }
  EXPECT_EQ(test::wordsThatRead(made[1], "路線番号 01A00101").text, "路線番号 01A00101");
  EXPECT_EQ(test::wordsThatRead(made[1], "計算者").text, "");  // the boxes stand on the first page alone
}

TEST(Paginate, NeverPartsABenchMarkFromItsSection) {
  Document document = test::routeDocument(0);
  Table& table = std::get<Table>(document.parts[0].items[0]);
  for (int i = 0; i < 200; ++i) {
    table.rows.push_back({{"B" + std::to_string(i)}, true, false});
    table.rows.push_back({{"S" + std::to_string(i)}, false, false});
  }
  const auto made = pages(document);
  auto found = pageOf(made);
  ASSERT_GT(made.size(), 5U);
  for (int i = 0; i < 200; ++i)
    EXPECT_EQ(found.at("B" + std::to_string(i)), found.at("S" + std::to_string(i))) << i;
}

TEST(Paginate, KeepsEverythingWithinTheMargins) {
  for (const Drawing& page :
       pages(test::routeDocument(100, "長い備考が幾行にも渡って続く所の一例として書いた文"))) {
    for (const Words& words : test::wordsOn(page)) {
      EXPECT_LE(words.at.y, page.height - 80);
      EXPECT_GE(words.at.y, 150);
      if (words.anchor == Anchor::Left) {
        EXPECT_GE(words.at.x, 200);
        EXPECT_LE(words.at.x + fixedPitch(words.text) * words.size, page.width - 150 + 1e-6) << words.text;
      }
    }
  }
}

TEST(Paginate, TurnsThePageWhereTheColumnsAreTooWide) {
  Document document = test::routeDocument(3);
  Table& table = std::get<Table>(document.parts[0].items[0]);
  for (int i = 0; i < 10; ++i) table.columns.push_back({"観測成果観測", "m", Side::Point, false});
  // 10 columns of 6 letters: upright at 8 points 10 × (6 × 28.2 + 24) = 1933 > 1750; lying at 9 points
  // 10 × (6 × 31.75 + 24) = 2145 and the three others 480 at least, 2625 > 2620; at 8 points it fits.
  const auto made = pages(document);
  ASSERT_EQ(made.size(), 1U);
  EXPECT_EQ(made[0].width, 2970);
  EXPECT_TRUE(needsLyingPages(document, {}, fixedPitch));
  EXPECT_FALSE(needsLyingPages(test::routeDocument(3), {}, fixedPitch));
}

TEST(Paginate, LiesWhereTheOperatorWantsIt) {
  EXPECT_EQ(paginate(test::routeDocument(1), {2100, 2970, true}, fixedPitch)[0].width, 2970);
  EXPECT_EQ(paginate(test::routeDocument(1), {2970, 4200, false}, fixedPitch)[0].width, 2970);  // A3
}

TEST(Paginate, BreaksARowThatIsHigherThanAPage) {
  std::string remark;
  for (int i = 0; i < 3000; ++i) remark += "備";
  const auto made = pages(test::routeDocument(1, remark));
  EXPECT_GT(made.size(), 1U);
  std::size_t letters = 0;
  for (const Drawing& page : made)
    for (const Words& words : test::wordsOn(page))
      if (words.text.starts_with("備備")) letters += words.text.size() / 3;
  EXPECT_EQ(letters, 3000U);
}

TEST(Paginate, BeginsEveryPartOnAPageOfItsOwn) {
  Document document = test::routeDocument(1);
  document.parts.push_back({"", {{"路線番号", "02A00101"}}, {test::routeTable(1)}});
  const auto made = pages(document);
  ASSERT_EQ(made.size(), 2U);
  EXPECT_EQ(test::wordsThatRead(made[1], "02A00101").text, "02A00101");
  EXPECT_EQ(test::wordsThatRead(made[1], "点検者").text, "点検者");
}

TEST(Paginate, PutsNamedTablesBelowAndDrawingsOnTheirOwnPage) {
  Document document = test::routeDocument(1);
  document.parts[0].items.emplace_back(
      Table{"閉合差", {{"区間", "", Side::Left, false}}, {{{"A1-A9"}, false, false}}});
  document.parts[0].items.emplace_back(
      Table{"区間", {{"区間", "", Side::Left, false}}, {}});  // nothing to show
  Figure figure{"変動図", {1000, 1000, {}}};
  figure.drawing.shapes.emplace_back(Words{{0, 0}, "図", 10});
  document.parts[0].items.emplace_back(figure);
  const auto made = pages(document);
  ASSERT_EQ(made.size(), 2U);
  EXPECT_GT(test::wordsThatRead(made[0], "閉合差").at.y, test::wordsThatRead(made[0], "A1").at.y);
  // 2100 − 200 − 150 = 1750 wide: 1.75 times as large.
  EXPECT_DOUBLE_EQ(test::wordsThatRead(made[1], "図").size, 17.5);
}

TEST(Paginate, GivesAPageToADocumentWithoutRows) { EXPECT_EQ(pages(test::routeDocument(0)).size(), 1U); }

TEST(Paginate, StopsWhereTheOperatorCancels) {
  const auto stop = [](std::size_t, std::size_t) { return false; };
  EXPECT_THROW(paginate(test::routeDocument(1), {}, fixedPitch, stop), Cancelled);
}

}  // namespace
