#include "seihyou/checks.h"

#include <cmath>
#include <optional>
#include <string>

#include "route/checks.h"
#include "route/records.h"
#include "route/selection.h"
#include "seihyou/calculation.h"
#include "seihyou/columns.h"
#include "seihyou/through_means.h"
#include "text/error.h"

namespace seihyou {
namespace {

constexpr double noise = 1e-6;  // units; what sums of doubles may be off by

/// A bench mark whose shown height is another than the reckoned one.
struct Difference {
  int row = 0;
  double reckoned = 0;  // m
};

/// Looks at one route while it is reckoned anew.
class RouteCheck {
 public:
  RouteCheck(const ui::Grid& grid, job::Grade grade, const CheckLimits& limits, ui::Findings& findings)
      : grid_(grid), grade_(grade), limits_(limits), findings_(findings) {}

  void take(int row, double metres) {
    if (grid_.text(row, colBenchMark).empty()) {
      section(row, metres);
    } else {
      benchMark(row, metres);
    }
  }

  /// When all of the route has been taken.
  void conclude() {
    const std::optional<Difference>& first = computed_ ? exact_ : beyondRounding_;
    if (!first || untaken_ || first->row == overwritten_) return;
    findings_.push_back({ui::Severity::Error, first->row, colResult,
                         result(first->row) + "は、" +
                             (hasPairs_ ? "繰り返し点の平均を通した標高 " : "始めの標高から順に足した標高 ") +
                             grade_.heights().format(first->reckoned) + " と " +
                             route::millimetres(-apart(first->row, first->reckoned) * 1000) +
                             " mm 違います。",
                         hasPairs_ ? "「繰り返し点の平均を通して計算」を行ってください。"
                                   : "始めの標高か補正数のセルで Enter を押して、計算し直してください。"});
  }

 private:
  double number(int row, int col) const { return route::numberIn(grid_, row, col); }
  double units(double metres) const { return std::abs(metres) * grade_.factor(); }
  /// How much less is shown than `metres`.
  double apart(int row, double metres) const { return metres - number(row, colResult); }

  std::string result(int row) const {
    return route::placeName(grid_, row) + "の補正結果 " + grid_.text(row, colResult);
  }

  void section(int row, double difference) {
    ++sections_;
    const bool computed = !grid_.text(row, colResult).empty();
    computed_ = computed_ || computed;
    const double correction = number(row, colCorrection);
    if (computed ? units(apart(row, difference)) > 0.5 + noise : correction != 0) {
      untaken_ = true;
      findings_.push_back(route::notTaken(grid_, row, colCorrection, "そのセルで Enter を押してください。"));
    }
    if (grid_.text(row, colHeight).empty() && isCorrectionCell(grid_, row, colCorrection))
      findings_.push_back(route::withoutDifference(grid_, row, colHeight));
    const double mm = correction / grade_.factor() * 1000;
    if (std::abs(mm) > limits_.correction) large(row, mm);
  }

  void large(int row, double mm) {
    findings_.push_back({ui::Severity::Warning, row, colCorrection,
                         route::placeName(grid_, row) + "の正標高補正数 " + grid_.text(row, colCorrection) +
                             " は " + route::millimetres(mm) + " mm です(目安 " +
                             route::millimetres(limits_.correction) + " mm)。",
                         grade_.isFirst() ? "単位は 0.1 mm です。" : "単位は mm です。"});
  }

  void benchMark(int row, double height) {
    const std::string& flag = grid_.text(row, colFlag);
    if (sections_ == 0 && !begun_ && grid_.text(row, colResult).empty()) withoutStart(row);
    begun_ = true;
    compare(row, height);
    mean(row, flag);
    if (flag == route::routeEnd) end(row);
  }

  void withoutStart(int row) {
    findings_.push_back(
        {ui::Severity::Error, row, colResult,
         route::placeName(grid_, row) + "に始めの標高がありません。0 から計算されます。",
         row == 1 ? "1行目の補正結果に標高を入力してください。" : "観測成果を直してください。"});
  }

  void compare(int row, double height) {
    const double off = units(apart(row, height));
    if (off > 0.5 + noise && !exact_) exact_ = {row, height};
    if (off > 1 + 0.5 * sections_ + noise && !beyondRounding_) beyondRounding_ = {row, height};
  }

  /// The bench mark behind the second of a pair shows the mean of the two heights above it.
  void mean(int row, std::string_view flag) {
    if (mean_ && units(apart(row, *mean_)) > 1 + noise) {
      overwritten_ = row;
      findings_.push_back({ui::Severity::Error, row, colResult,
                           result(row) + "は、繰り返し観測の平均 " + grade_.heights().format(*mean_) +
                               " ではありません。計算で書き換えられています。",
                           "「繰り返し点の平均を通して計算」を行ってください。"});
    }
    mean_.reset();
    if (flag != route::repeatedPoint) return;
    hasPairs_ = true;
    if (pair_.add(number(row, colResult))) mean_ = pair_.mean();
  }

  void end(int row) {
    const double known = number(row, colHeight);
    const double kilometres = limits_.sectionKilometres * sections_;
    const double perKilometre = limits_.tolerances.of(grade_).misclosure;
    const double mm = -apart(row, known) * 1000;
    if (known == 0 || std::abs(mm) <= route::allowed(perKilometre, kilometres)) return;
    findings_.push_back({ui::Severity::Warning, row, colResult,
                         result(row) + "は、観測成果の標高 " + grade_.heights().format(known) + " と " +
                             route::millimetres(mm) + " mm 違います(路線長を " +
                             route::millimetres(kilometres) + " km と見て許容 " +
                             route::millimetres(route::allowed(perKilometre, kilometres)) + " mm)。",
                         "観測成果と補正数を確かめてください。"});
  }

  const ui::Grid& grid_;
  const job::Grade grade_;
  const CheckLimits& limits_;
  ui::Findings& findings_;
  int sections_ = 0;
  bool begun_ = false;
  bool computed_ = false;
  bool untaken_ = false;
  bool hasPairs_ = false;
  int overwritten_ = 0;  // row of a mean that was written over; 0 for none
  route::PairMean pair_{route::tenthsOfMillimetre};
  std::optional<double> mean_;                // of the heights shown at the pair just completed, m
  std::optional<Difference> exact_;           // the first difference of more than half a unit
  std::optional<Difference> beyondRounding_;  // the first that hidden decimals cannot explain
};

/// Bench-mark rows of the route without a number, above another bench mark of it.
void findNameless(const ui::Grid& grid, int start, int end, ui::Findings& findings) {
  int last = end - 1;
  while (last > start && grid.text(last, colBenchMark).empty()) --last;
  for (int row = start; row < last; row += 2)
    if (grid.text(row, colBenchMark).empty()) findings.push_back(route::nameless(row));
}

int checkRoute(const ui::Grid& grid, int start, job::Grade grade, const CheckLimits& limits,
               ui::Findings& findings) {
  RouteCheck check(grid, grade, limits, findings);
  const int below =
      reckonThroughMeans(grid, start, grade, [&](int row, double metres) { check.take(row, metres); });
  check.conclude();
  findNameless(grid, start, below < grid.rows() ? below : grid.rows(), findings);
  return below;
}

}  // namespace

ui::Findings checks(const ui::Grid& grid, job::Grade grade, const CheckLimits& limits,
                    route::CheckMemory* memory) {
  ui::Findings findings;
  try {
    for (int start = grid.fixedRows(); start < grid.rows();)
      start = checkRoute(grid, start, grade, limits, findings);
  } catch (const text::RuntimeError&) {
    // A number beyond any calculation, which findTextsThatAreNoNumber tells.
  }
  route::findTextsThatAreNoNumber(grid, {colCorrection, colResult}, findings, memory);
  route::findNamesTwice(grid, colFlag, findings, memory);
  ui::sortFindings(findings);
  return findings;
}

}  // namespace seihyou
