#include "tanrosen/checks.h"

#include <algorithm>
#include <cmath>

#include "route/checks.h"
#include "route/selection.h"
#include "tanrosen/calculation.h"
#include "tanrosen/closure_formula.h"
#include "tanrosen/closure_table.h"
#include "tanrosen/columns.h"
#include "tanrosen/known_point_checks.h"
#include "tanrosen/levelling_line.h"
#include "text/error.h"
#include "text/number.h"

namespace tanrosen {
namespace {

constexpr double noise = 1e-6;  // units; what sums of doubles may be off by
constexpr auto onKnownHeights = "「既知点ごとに閉合させて計算」を行ってください。";

/// Looks at one route of the grid.
class LineCheck {
 public:
  /// `sound`: the calculation passes no known point over.
  LineCheck(const ui::Grid& grid, const LevellingLine& line, job::Grade grade, Points points, bool sound,
            ui::Findings& findings)
      : grid_(grid),
        line_(line),
        grade_(grade),
        points_(points),
        findings_(findings),
        reckoned_(lineCorrections(line)),
        sound_(sound) {}

  /// True where a calculation has given corrections.
  bool computed() const {
    return std::any_of(line_.points.begin(), line_.points.end(),
                       [this](const LinePoint& point) { return !correction(point).empty(); });
  }

  void structure() {
    for (int row = line_.firstRow; row <= line_.lastRow; row += 2) {
      if (row < line_.lastRow && grid_.text(row, colBenchMark).empty())
        findings_.push_back(route::nameless(row));
      if (row < line_.lastRow && grid_.text(row, colFlag) != route::repeatedPoint &&
          grid_.text(row + 1, colHeight).empty())
        findings_.push_back(route::withoutDifference(grid_, row + 1, colHeight));
    }
    if (points_ == Points::Every) return;
    if (line_.benchMarks % 2 == 0) evenNumber();
    sameDistances();
  }

  void tolerances(const route::Tolerance& tolerance) {
    for (const ClosureSegment& segment : segmentsOf(grid_, line_, tolerance))
      if (!segment.kept()) notKept(segment);
    if (points_ == Points::Every) runs(tolerance);
  }

  void corrections() {
    double closureBefore = 0;
    for (std::size_t i = 0; i < line_.points.size(); ++i) {
      const LinePoint& point = line_.points[i];
      if (!correction(point).empty())
        computedPoint(point, reckoned_.empty() ? 0 : reckoned_[i], closureBefore);
      if (point.fixed) closureBefore = point.closure;
    }
  }

  void leftOut() {
    if (line_.fixedPoints().size() < 2) return;
    findings_.push_back({ui::Severity::Error, line_.firstRow, colCorrection,
                         "路線 " + std::string(grid_.text(line_.firstRow, colRoute)) + "(" +
                             name(line_.firstRow) + " から " + name(line_.lastRow) +
                             ")は計算されていません。",
                         onKnownHeights});
  }

 private:
  const std::string& name(int row) const { return grid_.text(row, colBenchMark); }
  const std::string& correction(const LinePoint& point) const { return grid_.text(point.row, colCorrection); }
  double number(int row, int col) const { return route::numberIn(grid_, row, col); }
  std::string shown(double metres) const { return grade_.heights().format(metres); }

  void evenNumber() {
    findings_.push_back({ui::Severity::Error, line_.lastRow, colBenchMark,
                         "水準点が " + std::to_string(line_.benchMarks) +
                             " 点(偶数)です。一つおきの計算では、終わりの " + name(line_.lastRow) +
                             " が計算されません。",
                         "観測成果を直してください。"});
  }

  /// Where every second bench mark is a point, the total adds the distances of the points, the shares those
  /// of the rows between.
  void sameDistances() {
    int first = 0;
    int count = 0;
    for (int row = line_.firstRow; row + 4 <= line_.lastRow; row += 4) {
      if (number(row, colDistance) == number(row + 2, colDistance)) continue;
      if (++count == 1) first = row;
    }
    sound_ = sound_ && count == 0;
    if (count > 0) differentDistances(first, count);
  }

  void differentDistances(int row, int count) {
    const std::string more = count > 1 ? "。ほかに " + std::to_string(count - 1) + " 区間" : "";
    findings_.push_back({ui::Severity::Error, row + 2, colDistance,
                         name(row) + " から " + name(row + 4) + " までの距離が、二つの行で違います(" +
                             grid_.text(row, colDistance) + " と " + grid_.text(row + 2, colDistance) + more +
                             ")。補正数の配分が距離に比例しません。",
                         "観測成果の距離を直してください。"});
  }

  void notKept(const ClosureSegment& segment) {
    const std::string kind = segment.loop ? "環閉合差 " : "閉合差 ";
    findings_.push_back({ui::Severity::Warning, segment.toRow, colResult,
                         segment.from + " から " + segment.to + "(" +
                             text::numberText(rounded(segment.kilometres)) + " km)の" + kind +
                             route::millimetres(segment.closure) + " mm は、許容 " +
                             route::millimetres(segment.allowed) + " mm を超えています。",
                         "観測値と既知の標高を確かめてください。"});
  }

  static double rounded(double kilometres) { return text::roundHalfAway(kilometres, 1000); }

  /// The forward and the backward run of a section lead to two heights of its far end.
  void runs(const route::Tolerance& tolerance) {
    int forward = 0;
    for (int row = line_.firstRow; row <= line_.lastRow; row += 2) {
      if (grid_.text(row, colFlag) != route::repeatedPoint) continue;
      if (forward != 0 && name(forward) == name(row)) {
        compareRuns(forward, row, tolerance.doubleRun);
        forward = 0;
      } else {
        forward = row;
      }
    }
  }

  void compareRuns(int forward, int backward, double perKilometre) {
    const double mm = (number(backward, colHeight) - number(forward, colHeight)) * 1000;
    const double kilometres = number(backward - 2, colDistance);
    const double allowed = route::allowed(perKilometre, kilometres);
    if (kilometres <= 0 || std::abs(mm) <= allowed + noise) return;
    findings_.push_back({ui::Severity::Warning, backward, colHeight,
                         name(backward) + " の往復観測値の較差 " + route::millimetres(mm) + " mm(" +
                             text::numberText(rounded(kilometres)) + " km)は、許容 " +
                             route::millimetres(allowed) + " mm を超えています。",
                         "観測値を確かめてください。"});
  }

  void computedPoint(const LinePoint& point, double reckoned, double closureBefore) {
    const double units = number(point.row, colCorrection);
    const double off = number(point.row, colResult) - correctedHeight(point.observed, units, grade_);
    if (point.shifted) {
      leftOff(point);
    } else if (std::abs(off) * grade_.factor() > 0.5 + noise) {
      findings_.push_back(
          point.fixed
              ? route::notTaken(grid_, point.row, colResult, "「計算」を押してください。")
              : route::notTaken(grid_, point.row, colCorrection, "そのセルで Enter を押してください。"));
    } else if (!point.fixed && !reckoned_.empty()) {
      compare(point, units, reckoned * grade_.factor(), closureBefore * grade_.factor());
    }
  }

  /// All in units of the grade.
  void compare(const LinePoint& point, double units, double reckoned, double closureBefore) {
    if (std::abs(units - reckoned) <= 0.5 + noise) return;
    const bool changeAlone = std::abs(units - (reckoned - closureBefore)) <= 0.5 + noise;
    if (!changeAlone && sound_) {
      findings_.push_back(route::changedByHand(grid_, point.row, colCorrection,
                                               text::numberText(text::roundHalfAway(reckoned, 1))));
    } else if (!differs_) {
      differs_ = true;
      differsFirst(point, reckoned, changeAlone ? "前の既知点の閉合差が足されていません。" : "");
    }
  }

  void differsFirst(const LinePoint& point, double reckoned, const std::string& why) {
    const double height = correctedHeight(point.observed, text::roundHalfAway(reckoned, 1), grade_);
    findings_.push_back({ui::Severity::Error, point.row, colResult,
                         "水準点 " + name(point.row) + "の補正結果 " + grid_.text(point.row, colResult) +
                             " は、既知点に閉合させた標高 " + shown(height) + " と違います。" + why,
                         onKnownHeights});
  }

  void leftOff(const LinePoint& point) {
    const double result = number(point.row, colResult);
    findings_.push_back({ui::Severity::Error, point.row, colResult,
                         "既知点 " + name(point.row) + " の補正結果 " + grid_.text(point.row, colResult) +
                             " は、既知の標高 " + shown(point.observed + point.closure) +
                             " に合いません。もう一度「計算」を押すと、閉合差が " +
                             route::millimetres(point.closure * 1000) + " mm から " +
                             route::millimetres((result - point.observed) * 1000) + " mm に変わります。",
                         onKnownHeights});
  }

  const ui::Grid& grid_;
  const LevellingLine& line_;
  const job::Grade grade_;
  const Points points_;
  ui::Findings& findings_;
  const std::vector<double> reckoned_;  // corrections, m; none where no point is fixed
  bool sound_;
  bool differs_ = false;
};

void checkLines(const ui::Grid& grid, const std::vector<LevellingLine>& lines, job::Grade grade,
                Points points, bool sound, const route::Tolerance& tolerance, ui::Findings& findings) {
  std::vector<LineCheck> checks;
  for (const LevellingLine& line : lines) checks.emplace_back(grid, line, grade, points, sound, findings);
  const bool anyComputed =
      std::any_of(checks.begin(), checks.end(), [](const LineCheck& check) { return check.computed(); });
  for (LineCheck& check : checks) {
    check.structure();
    check.tolerances(tolerance);
    if (check.computed()) {
      check.corrections();
    } else if (anyComputed) {
      check.leftOut();
    }
  }
}

}  // namespace

ui::Findings checks(const ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
                    std::string_view dataKubun, const route::Tolerances& tolerances,
                    route::CheckMemory* memory) {
  ui::Findings findings;
  const Points points = pointsOf(dataKubun);
  route::findTextsThatAreNoNumber(grid, {colDistance, colCorrection, colResult}, findings, memory);
  route::findNamesTwice(grid, colFlag, findings, memory);
  const bool sound = findListFaults(grid, knownPoints, points, findings);
  try {
    checkLines(grid, levellingLines(grid, knownPoints, grade, points), grade, points, sound,
               tolerances.of(grade), findings);
  } catch (const text::RuntimeError&) {
    // A number beyond any calculation, which findTextsThatAreNoNumber has told.
  }
  ui::sortFindings(findings);
  return findings;
}

}  // namespace tanrosen
