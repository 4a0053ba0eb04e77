#include "sample/long_routes.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "sample_job.h"
#include "text/number.h"

namespace {

using sample::Precision;
using sample::Route;

const std::vector<Route>& routes() {
  static const std::vector<Route> all = sample::longRoutes("1", Precision(1), 1);
  return all;
}

long long units(const std::string& height) { return std::llround(text::readNumber(height) * 10000); }

int ends(const Route& route) {
  return static_cast<int>(std::count_if(route.marks.begin(), route.marks.end(),
                                        [](const sample::Mark& mark) { return mark.flag == "-1"; }));
}

TEST(LongRoutes, AreTwentyToSixtyBenchMarksLong) {
  EXPECT_EQ(45U, routes().size());  // three projects with 6 + 3 + 2 + 2 + 2 routes
  for (const Route& route : routes()) {
    EXPECT_LE(20U, route.marks.size()) << route.number;
    EXPECT_GE(60U, route.marks.size()) << route.number;
    EXPECT_EQ(8U, route.number.size());
  }
}

TEST(LongRoutes, EndOnARouteEndWithoutSection) {
  for (const Route& route : routes()) {
    const sample::Mark& last = route.marks.back();
    EXPECT_EQ("-1", last.flag) << route.number;
    EXPECT_FALSE(last.difference || last.metres) << route.number;
    EXPECT_TRUE(last.height && route.marks.front().height) << route.number;
  }
}

TEST(LongRoutes, EachProjectHasOneRouteWithTwoEnds) {
  std::map<std::string, int> two;
  for (const Route& route : routes()) two[route.project] += ends(route) == 2 ? 1 : 0;
  EXPECT_EQ(3U, two.size());
  for (const auto& [project, count] : two) EXPECT_EQ(1, count) << project;
}

TEST(LongRoutes, SectionsAreOneToTwoAndAHalfKilometres) {
  for (const Route& route : routes())
    for (const sample::Mark& mark : route.marks) {
      if (!mark.metres) continue;
      EXPECT_LE(1000, *mark.metres);
      EXPECT_GE(2500, *mark.metres);
    }
}

/// Closure errors (0.1 mm) between neighbouring known points of a route.
std::vector<long long> closureErrors(const Route& route) {
  std::vector<long long> errors;
  bool started = false;
  long long height = 0;
  for (const sample::Mark& mark : route.marks) {
    if (mark.uncategorised) continue;
    if (started && mark.height) errors.push_back(units(*mark.height) - height);
    if (mark.height) height = units(*mark.height);
    height += mark.difference.value_or(0);
    started = mark.flag != "-1";
  }
  return errors;
}

TEST(LongRoutes, KnownHeightsDoNotQuiteClose) {
  int open = 0;
  for (const Route& route : routes())
    for (const long long error : closureErrors(route)) {
      EXPECT_GT(100, std::llabs(error)) << route.number;  // never 10 mm
      open += error != 0 ? 1 : 0;
    }
  EXPECT_LT(100, open);
}

TEST(LongRoutes, HoldWholeMillimetresOutsideFirstGrade) {
  for (const Route& route : sample::longRoutes("2", Precision(2), 2))
    for (const sample::Mark& mark : route.marks) {
      EXPECT_EQ(0, mark.difference.value_or(0) % 10) << route.number;
      EXPECT_EQ(0, mark.previousDifference.value_or(0) % 10) << route.number;
      const std::string height = mark.height.value_or("0.000");
      EXPECT_EQ('.', height.at(height.size() - 4));
    }
}

TEST(LongRoutes, FirstGradeUsesTheFourthDecimal) {
  const auto& marks = routes().front().marks;
  EXPECT_TRUE(std::any_of(marks.begin(), marks.end(),
                          [](const auto& mark) { return mark.difference && *mark.difference % 10 != 0; }));
}

TEST(LongRoutes, EachOfTheFirstSixBeginsWhereTheOneBeforeEnds) {
  for (std::size_t i = 1; i < 6; ++i) {
    const sample::Mark& end = routes()[i - 1].marks.back();
    const sample::Mark& start = routes()[i].marks.front();
    EXPECT_LT(routes()[i - 1].number, routes()[i].number);
    EXPECT_EQ(end.number, start.number);
    EXPECT_EQ(end.height, start.height);
  }
}

TEST(LongRoutes, NewPointsSplitTheSectionOfTheEpochBefore) {
  int news = 0;
  for (const Route& route : routes())
    for (std::size_t i = 1; i + 1 < route.marks.size(); ++i) {
      const sample::Mark& mark = route.marks[i];
      if (!mark.previousDate.empty() || mark.uncategorised) continue;
      ++news;
      EXPECT_FALSE(mark.previousDifference);
      // Both sections together are what the epoch before had as one, but for errors and ten years of
      // movement.
      const long long now = *route.marks[i - 1].difference + *mark.difference;
      EXPECT_GT(200, std::llabs(now - *route.marks[i - 1].previousDifference)) << route.number << mark.number;
    }
  EXPECT_LT(30, news);
}

TEST(LongRoutes, RunsThatStandApartLeadToTheSameBenchMark) {
  int pairs = 0;
  for (const Route& route : routes())
    for (std::size_t i = 0; i + 4 < route.marks.size(); ++i) {
      if (!route.marks[i].number.ends_with('F')) continue;
      const auto* mark = &route.marks[i];
      ++pairs;
      EXPECT_EQ(mark[0].number.substr(0, mark[0].number.size() - 1) + "B", mark[2].number);
      EXPECT_EQ("-2", mark[1].flag);
      EXPECT_EQ("-2", mark[3].flag);
      EXPECT_EQ("", mark[4].flag);
      EXPECT_EQ(mark[1].number, mark[3].number);
      EXPECT_EQ(mark[1].number, mark[4].number);
      EXPECT_EQ(0, *mark[0].difference + *mark[1].difference);
    }
  EXPECT_EQ(9, pairs);  // in each project one of category 0 and two of category 4
}

TEST(LongRoutes, EpochBeforeLiesTwoToTenYearsBack) {
  const auto year = [](const std::string& date) { return text::readNumber(date.substr(0, 4)); };
  for (const Route& route : routes())
    for (const sample::Mark& mark : route.marks) {
      if (mark.previousDate.empty()) continue;
      EXPECT_EQ(mark.date.size(), mark.previousDate.size());
      EXPECT_LE(1, year(mark.date) - year(mark.previousDate));
      EXPECT_GE(11, year(mark.date) - year(mark.previousDate));
    }
}

TEST(LongRoutes, StandInTheJobBesideNullsPlacesAndRemarks) {
  const test::SampleJob& job = test::usualJob();
  for (const char* id : {"1", "2"}) {
    const std::string of = std::string("JobId = '") + id + "' AND 事業番号 <> '1001' AND ";
    EXPECT_EQ(6, job.count(of + "DataKubun IS NULL"));
    EXPECT_LT(100, job.count(of + "都道府県 = '長野県' AND 郡市 = '諏訪郡' AND 町村 = '原村'"));
    EXPECT_LT(0, job.count(of + "町村 IS NULL AND 郡市 = '下田市'"));
    EXPECT_LT(20, job.count(of + "備考 IS NOT NULL"));
    EXPECT_LT(100, job.count(of + "LENGTH(観測年月日) = 8"));
    EXPECT_LT(100, job.count(of + "LENGTH(観測年月日) = 10"));
  }
  EXPECT_LT(0, job.count("事業番号 = '2002'"));  // stored with blanks behind it
  EXPECT_EQ("2002    ", job.text("SELECT DISTINCT 事業番号 FROM KansokuSeikaData WHERE 事業番号 = '2002'"));
}

// The mean of the forward run and the turned backward run is the mean difference of the section.
TEST(LongRoutes, RunsGiveTheMeanDifference) {
  EXPECT_EQ(0, test::usualJob().number(
                   "SELECT COUNT(*) FROM KansokuSeikaData A INNER JOIN KansokuData B"
                   " ON A.JobId = B.JobId AND A.事業番号 = B.事業番号 AND A.路線番号 = B.路線番号"
                   " AND A.SaveOrder = B.SaveOrder AND A.標石番号 = B.自標石番号"
                   " WHERE ABS((B.往観測比高 - B.復観測比高) / 2 - A.中数) > 0.000001"));
  EXPECT_LT(2000, test::usualJob().number("SELECT COUNT(*) FROM KansokuData"));
}

}  // namespace
