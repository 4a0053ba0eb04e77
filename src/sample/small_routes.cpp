#include "sample/small_routes.h"

#include <cmath>

#include "text/number.h"

namespace sample {
namespace {

constexpr const char* observed = "20220511";
constexpr const char* observedBefore = "20190815";  // 1000 days earlier

/// A bench mark of a small route. Heights, differences in m, distance in km, all whole millimetres and
/// metres.
struct SmallMark {
  std::string number;
  const char* height = nullptr;               ///< a number, or "" and "0", which are stored as they stand
  std::optional<double> km = std::nullopt;    ///< length of the section
  std::optional<double> rise = std::nullopt;  ///< mean height difference of the section
  const char* flag = "";
  std::optional<double> riseBefore = std::nullopt;  ///< of the epoch before; otherwise 1 mm less than now
  bool isNew = false;                               ///< newly established: there is no epoch before
  const char* date = observed;
  const char* dateBefore = observedBefore;
  const char* remark = "";
  bool uncategorised = false;
};

struct SmallRoute {
  const char* number;
  const char* category;
  int firstSaveOrder;
  std::vector<SmallMark> marks;
};

// 01A00101  rises +1.0 +2.0 −0.5 +1.5 = +4.0: from 10.000 to 14.000; the known end 14.002 is 2 mm higher.
// 01A00201  A202 is reached twice: 20.000 + 2.000 = 22.000 and 20.000 + 2.002 = 22.002, mean 22.001. The walk
// goes on
//           from 22.002: A203 23.502, A204 23.002. The known end is 23.001.
// 01A00301  begins on A204, where the route before ends, with an older height (23.000); rises +2.0.
// 01A00401  two route ends: 30.000 + 3.0 = 33.000 (known 33.001), then from A303 25.000 + 2.0 = 27.000
// (known 27.002).
//           A303 is the end of 01A00301, where its height is 25.001.
// 01A00501  the records 3 and 6 have no category; the others rise +1.0 +1.0 −0.5 from 40.000 to 41.500.
std::vector<SmallRoute> plainRoutes() {
  return {{"01A00101",
           "0",
           1,
           {{.number = "A101", .height = "10", .km = 2.0, .rise = 1.0, .remark = "起点"},
            {.number = "A102", .km = 2.0, .rise = 2.0},
            {.number = "A103", .km = 1.5, .rise = -0.5, .remark = "傾斜地"},
            {.number = "A104", .km = 1.5, .rise = 1.5},
            {.number = "A105", .height = "14.002", .flag = "-1", .remark = "終点"}}},
          {"01A00201",
           "0",
           1,
           {{.number = "A201", .height = "20", .km = 1.0, .rise = 2.0},
            {.number = "A202", .rise = -2.0, .flag = "-2"},
            {.number = "A201", .km = 1.0, .rise = 2.002},
            {.number = "A202", .flag = "-2"},
            {.number = "A202", .km = 1.5, .rise = 1.5},
            {.number = "A203", .km = 1.5, .rise = -0.5},
            {.number = "A204", .height = "23.001", .flag = "-1"}}},
          {"01A00301",
           "0",
           1,
           {{.number = "A204", .height = "23", .km = 1.2, .rise = 1.0},
            {.number = "A301", .km = 1.2, .rise = 1.5},
            {.number = "A302", .km = 1.6, .rise = -0.5},
            {.number = "A303", .height = "25.001", .flag = "-1"}}},
          {"01A00401",
           "0",
           1,
           {{.number = "A401", .height = "30", .km = 1.0, .rise = 1.0},
            {.number = "A402", .km = 1.0, .rise = 2.0},
            {.number = "A403", .height = "33.001", .flag = "-1"},
            {.number = "A303", .height = "25", .km = 1.0, .rise = 1.0},
            {.number = "A404", .km = 1.0, .rise = 1.0},
            {.number = "A405", .height = "27.002", .flag = "-1"}}},
          {"01A00501",
           "0",
           1,
           {{.number = "A501", .height = "40", .km = 1.0, .rise = 1.0},
            {.number = "A502", .km = 1.0, .rise = 1.0},
            {.number = "A502N", .km = 0.5, .rise = 0.25, .uncategorised = true},
            {.number = "A503", .km = 1.0, .rise = -0.5},
            {.number = "A504", .height = "41.5", .flag = "-1"},
            {.number = "A504N", .remark = "未分類", .uncategorised = true}}}};
}

/// Five bench marks, `first` and then `stem` with 02 to 05: distances 2.0 2.0 1.0 1.0, rises +1.0 +0.5 +0.5
/// +1.0 = +3.0; the known `end` is 3 mm higher than `start` + 3.0.
std::vector<SmallMark> fiveMarks(const std::string& first, const std::string& stem, const char* start,
                                 const char* end) {
  return {{.number = first, .height = start, .km = 2.0, .rise = 1.0},
          {.number = stem + "02", .km = 2.0, .rise = 0.5},
          {.number = stem + "03", .km = 1.0, .rise = 0.5},
          {.number = stem + "04", .km = 1.0, .rise = 1.0},
          {.number = stem + "05", .height = end, .flag = "-1"}};
}

// 01B00101, 02B00101, 03B00101  one family, SaveOrder 1 to 15 through all three.
// 01C00101, 01C00201, 01C00301  one route of each of the categories "2", "3" and "4".
std::vector<SmallRoute> otherCategories() {
  return {{"01B00101", "1", 1, fiveMarks("B101", "B1", "60", "63.003")},
          {"02B00101", "1", 6, fiveMarks("B105", "B2", "63.003", "66.006")},
          {"03B00101", "1", 11, fiveMarks("B205", "B3", "66.006", "69.009")},
          {"01C00101", "2", 1, fiveMarks("C101", "C1", "70", "73.003")},
          {"01C00201", "3", 1, fiveMarks("C201", "C2", "80", "83.003")},
          {"01C00301", "4", 1, fiveMarks("C301", "C3", "90", "93.003")}};
}

/// D203 is observed forward (F) and backward (B) towards its neighbour: 12.000 against the known 12.004.
std::vector<SmallMark> forwardAndBackward() {
  return {{.number = "D201", .height = "10", .km = 1.0, .rise = 1.0},
          {.number = "D202", .km = 1.0, .rise = 1.0},
          {.number = "D203F", .height = "12.004", .km = 1.0, .rise = 0.5},
          {.number = "D204", .rise = -0.5, .flag = "-2"},
          {.number = "D203B", .height = "12.004", .km = 1.0, .rise = 0.502},
          {.number = "D204", .flag = "-2"},
          {.number = "D204", .flag = "-1"}};
}

// 01D00101  7.967 + 4.362 + 2.413 − 3.121 + 1.263 + 2.716 − 3.715 = 11.885; known 11.819, closure error
// −0.066 over
//           6.7 km.
// 01D00201  known D201, D203F and D203B in category "0"; 01D00401 the same in category "4".
// 01D00301  three known points: closure errors 0, +4 mm (52.004 against 52.000) and +2 mm (54.002
// against 54.000). D302
//           holds the height "0" and D304 an empty text: both are not known.
std::vector<SmallRoute> closureRoutes() {
  return {{"01D00101",
           "0",
           1,
           {{.number = "D101", .height = "7.967", .km = 1.5, .rise = 4.362},
            {.number = "D102", .km = 0.6, .rise = 2.413},
            {.number = "D103", .km = 0.8, .rise = -3.121},
            {.number = "D104", .km = 1.0, .rise = 1.263},
            {.number = "D105", .km = 1.2, .rise = 2.716},
            {.number = "D106", .km = 1.6, .rise = -3.715},
            {.number = "D107", .height = "11.819", .flag = "-1"}}},
          {"01D00201", "0", 1, forwardAndBackward()},
          {"01D00301",
           "0",
           1,
           {{.number = "D301", .height = "50", .km = 1.0, .rise = 1.0},
            {.number = "D302", .height = "0", .km = 1.0, .rise = 1.0},
            {.number = "D303", .height = "52.004", .km = 2.0, .rise = 1.0},
            {.number = "D304", .height = "", .km = 2.0, .rise = 1.0},
            {.number = "D305", .height = "54.002", .flag = "-1"}}},
          {"01D00401", "4", 1, forwardAndBackward()}};
}

// 01E00101  E101: +1.500 against +1.490, 10 mm in 1000 days. E103 is newly established: +1.200 and +0.800 now
// stand
//           against +2.010 before; between the observations of E102 and E103 lie 10 days. E104: −0.700
//           against −0.720. Dates stand in both forms.
// 01E00201  E202 forward +2.000 against +1.980, backward run +2.002 against +1.982: means 2.001 and 1.981.
// Both
//           runs lie 1000 days after their epoch before.
std::vector<SmallRoute> variationRoutes() {
  return {{"01E00101",
           "0",
           1,
           {{.number = "E101", .height = "100", .km = 1.5, .rise = 1.5, .riseBefore = 1.49},
            {.number = "E102", .km = 1.0, .rise = 1.2, .riseBefore = 2.01, .date = "2022/05/11"},
            {.number = "E103", .km = 1.0, .rise = 0.8, .isNew = true, .date = "2022/05/21", .remark = "新設"},
            {.number = "E104",
             .km = 1.5,
             .rise = -0.7,
             .riseBefore = -0.72,
             .date = "2022/05/11",
             .dateBefore = "2019/08/15"},
            {.number = "E105", .flag = "-1"}}},
          {"01E00201",
           "0",
           1,
           {{.number = "E201", .height = "200", .km = 1.0, .rise = 1.0, .riseBefore = 0.99},
            {.number = "E202F", .km = 1.0, .rise = 2.0, .riseBefore = 1.98},
            {.number = "E203", .rise = -2.0, .flag = "-2"},
            {.number = "E202B",
             .km = 1.0,
             .rise = 2.002,
             .riseBefore = 1.982,
             .date = "2022/05/13",
             .dateBefore = "20190817"},
            {.number = "E203", .flag = "-2", .date = "2022/05/13"},
            {.number = "E203", .km = 1.5, .rise = -1.0, .riseBefore = -1.01},
            {.number = "E204", .flag = "-1"}}}};
}

// 01F00101  440.000 + 20 + 20 = 480.000, 2 × 3.7 km: 4 minutes of latitude, southwards.
// 01F00201  goes on from there: mean height of its six bench marks (480 + 490 + 500 + 500 + 510 + 520) / 6 =
// 500,
//           five sections of 3.7 km = 18.5 km, 10 minutes of latitude.
std::vector<SmallRoute> ellipsoidalRoutes() {
  return {{"01F00101",
           "0",
           1,
           {{.number = "F101", .height = "440", .km = 3.7, .rise = 20.0},
            {.number = "F102", .km = 3.7, .rise = 20.0},
            {.number = "F103", .height = "480", .flag = "-1"}}},
          {"01F00201",
           "0",
           1,
           {{.number = "F103", .height = "480", .km = 3.7, .rise = 10.0},
            {.number = "F104", .km = 3.7, .rise = 10.0},
            {.number = "F105", .km = 3.7, .rise = 0.0},
            {.number = "F106", .km = 3.7, .rise = 10.0},
            {.number = "F107", .km = 3.7, .rise = 10.0},
            {.number = "F108", .height = "520", .flag = "-1"}}}};
}

long long tenthMillimetres(double metres) { return std::llround(metres * 10000); }

std::optional<std::string> storedHeight(const SmallMark& mark, Precision precision) {
  if (!mark.height) return std::nullopt;
  const std::string stored = mark.height;
  if (stored.empty() || stored == "0") return stored;
  return heightText(tenthMillimetres(text::readNumber(stored)), precision);
}

std::optional<long long> differenceBefore(const SmallMark& mark) {
  if (mark.riseBefore) return tenthMillimetres(*mark.riseBefore);
  const bool hasOne = mark.rise && !mark.isNew && *mark.flag == '\0';
  return hasOne ? std::optional(tenthMillimetres(*mark.rise) - 10) : std::nullopt;
}

Mark marked(const SmallMark& small, Precision precision) {
  Mark mark;
  mark.number = small.number;
  mark.height = storedHeight(small, precision);
  if (small.km) mark.metres = static_cast<int>(std::lround(*small.km * 1000));
  if (small.rise) mark.difference = tenthMillimetres(*small.rise);
  mark.flag = small.flag;
  mark.date = small.date;
  if (!small.isNew) mark.previousDate = small.dateBefore;
  mark.previousDifference = differenceBefore(small);
  mark.remark = small.remark;
  mark.uncategorised = small.uncategorised;
  return mark;
}

/// Two bench marks in 富士見町, those behind them in 原村.
Place placeOf(std::size_t position) { return {"長野県", "諏訪郡", position < 2 ? "富士見町" : "原村"}; }

void append(std::vector<Route>& routes, const std::vector<SmallRoute>& small, const std::string& jobId,
            Precision precision) {
  for (const SmallRoute& from : small) {
    Route route{jobId, smallProject, from.number, from.category, from.firstSaveOrder, {}};
    for (const SmallMark& mark : from.marks) {
      route.marks.push_back(marked(mark, precision));
      route.marks.back().place = placeOf(route.marks.size() - 1);
    }
    routes.push_back(std::move(route));
  }
}

}  // namespace

std::vector<Route> smallRoutes(const std::string& jobId, Precision precision) {
  std::vector<Route> routes;
  for (const auto& group :
       {plainRoutes(), otherCategories(), closureRoutes(), variationRoutes(), ellipsoidalRoutes()})
    append(routes, group, jobId, precision);
  return routes;
}

}  // namespace sample
