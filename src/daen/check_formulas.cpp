#include <algorithm>
#include <map>

#include "daen/columns.h"
#include "daen/tables.h"
#include "route/grid_table.h"
#include "text/padding.h"

namespace daen {
namespace {

using report::Formula;

// The columns of the check: those of the route, then those of its sections.
enum CheckColumn : int {
  covered,
  correction,
  result,
  b1,
  b2,
  latitudeDifference,
  latitudeSum,
  meanHeight,
  sectionCorrection,
  accumulated,
  total
};

constexpr double coefficient = 5.28;                    // mm for a metre of height and a radian
constexpr double radiansInDegree = 0.0174532925199433;  // 1 / ρ
constexpr double minutesInDegree = 60;

Formula given(int row, int col) { return Formula::given(route::cellPlace(row, col)); }
Formula ofSection(int row, int col) { return Formula::given({1, row - 1, col}); }
Formula reckonedSection(int row, int column) { return Formula::reckoned({1, row - 1, column}); }

/// The rows of the bench marks at a section's ends, 0 for one that is not in the grid.
struct Ends {
  int start = 0;
  int end = 0;
};

/// Reckons the sections in the order in which they were computed.
class Sections {
 public:
  Sections(const ui::Grid& Grid1, const ui::Grid& Grid2) : route_(Grid1), sections_(Grid2) {
    check_.columns = {{"距離の和", 0, -1},
                      {"楕円補正", 0, colCorrection},
                      {"結果", 0, colResult},
                      {"B1", 1, secB1},
                      {"B2", 1, secB2},
                      {"B1-B2", 1, secDifference},
                      {"B1+B2", 1, secSum},
                      {"平均標高", 1, secMeanHeight},
                      {"楕円計算値", 1, secCorrection},
                      {"楕円補正値", 1, secAccumulated},
                      {"区間の距離", 1, -1}};
  }

  report::Check check() {
    for (int row = 1; row < sections_.rows() - 1; ++row) take(row);
    for (int row = 1; row < sections_.rows() - 1; ++row) section(row);
    for (const auto& [row, formula] : corrections_)
      if (!route_.text(row, colCorrection).empty()) add(correction, row, formula);
    heights();
    return std::move(check_);
  }

 private:
  void add(int column, int row, const Formula& formula) {
    check_.cells.push_back({column, row - 1, formula});
  }

  int rowOf(std::string_view benchMark) const {
    for (int row = 1; row < route_.rows(); row += 2)
      if (text::trimmed(route_.text(row, colBenchMark)) == text::trimmed(benchMark)) return row;
    return 0;
  }

  /// Finds the ends of a section, and notes for each bench mark that it reaches it; a later one takes it
  /// over.
  void take(int row) {
    const Ends ends{rowOf(sections_.text(row, secStartBenchMark)),
                    rowOf(sections_.text(row, secEndBenchMark))};
    ends_[row] = ends;
    if (ends.start == 0 || ends.end == 0 || ends.start == ends.end) return;
    const int step = ends.start < ends.end ? 2 : -2;
    for (int at = ends.start; at != ends.end;) lastSection_[at += step] = row;
  }

  void section(int row) {
    const Ends ends = ends_[row];
    add(b1, row, Formula::minutes({1, row - 1, secStartLatitude}));
    add(b2, row, Formula::minutes({1, row - 1, secEndLatitude}));
    add(latitudeDifference, row, reckonedSection(row, b1) - reckonedSection(row, b2));
    add(latitudeSum, row, reckonedSection(row, b1) + reckonedSection(row, b2));
    if (ends.start != 0 && ends.end != 0) mean(row, ends);
    const Formula apart = reckonedSection(row, latitudeDifference) / minutesInDegree;
    const Formula angle = reckonedSection(row, latitudeSum) / minutesInDegree;
    add(sectionCorrection, row,
        (angle.sine() * coefficient * apart * radiansInDegree * ofSection(row, secMeanHeight)).rounded(1));
    if (row > 1) add(accumulated, row, ofSection(row - 1, secAccumulated) + ofSection(row, secCorrection));
    if (ends.start != 0 && ends.end != 0 && ends.start != ends.end) distribute(row, ends);
  }

  /// The mean height of a section's bench marks.
  void mean(int row, Ends ends) {
    const int first = std::min(ends.start, ends.end);
    const int last = std::max(ends.start, ends.end);
    const double count = (last - first) / 2 + 1;
    const Formula sum = Formula::sumWhere(colBenchMark, route::cellPlace(first, colHeight), last - 1);
    add(meanHeight, row, (sum / count).absolute().rounded(1));
  }

  /// What the shares of a section are added to: what had come together before it.
  Formula base(int row) const {
    return row == 1 ? ofSection(1, secAccumulated) - ofSection(1, secCorrection)
                    : ofSection(row - 1, secAccumulated);
  }

  bool joins(int row, int start) const {
    return row == 1 || text::trimmed(sections_.text(row - 1, secEndBenchMark)) ==
                           text::trimmed(route_.text(start, colBenchMark));
  }

  void distribute(int row, Ends ends) {
    const int step = ends.start < ends.end ? 2 : -2;
    set(ends.start, joins(row, ends.start) ? base(row) : Formula(0));
    add(total, row, distance(ends.start, step < 0 && ends.end > 1 ? ends.end - 2 : ends.end));
    bool chained = false;
    for (int at = ends.start + step; at != ends.end + step; at += step) {
      const bool last = lastSection_[at] == row;
      if (last)
        share(row, at,
              chained ? behind(at - step) + given(at - step / 2, colDistance) : distance(ends.start, at));
      chained = last;
    }
  }

  static Formula behind(int row) { return Formula::reckoned(route::cellPlace(row, covered)); }

  /// The distance between two bench marks.
  static Formula distance(int a, int b) {
    return Formula::sum(route::cellPlace(std::min(a, b) + 1, colDistance), std::max(a, b) - 2);
  }

  /// The correction of a bench mark by its share of a section.
  void share(int row, int at, const Formula& length) {
    add(covered, at, length);
    const Formula part = behind(at) / reckonedSection(row, total);
    set(at, (part * ofSection(row, secCorrection)).rounded(1) + base(row));
  }

  void set(int row, const Formula& formula) { corrections_.insert_or_assign(row, formula); }

  void heights() {
    for (int row = 1; row < route_.rows(); row += 2)
      if (!route_.text(row, colCorrection).empty() && !route_.text(row, colResult).empty())
        add(result, row, given(row, colCorrection) / 1000 + given(row, colHeight));
  }

  const ui::Grid& route_;
  const ui::Grid& sections_;
  report::Check check_;
  std::map<int, Ends> ends_;            // of a section
  std::map<int, int> lastSection_;      // that reaches a bench-mark row
  std::map<int, Formula> corrections_;  // of a bench-mark row, as the last section leaves it
};

}  // namespace

report::Check checkFormulas(const ui::Grid& Grid1, const ui::Grid& Grid2) {
  return Sections(Grid1, Grid2).check();
}

}  // namespace daen
