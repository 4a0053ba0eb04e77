#include "tanrosen/levelling_line.h"

#include <cmath>
#include <optional>
#include <unordered_set>

#include "route/selection.h"
#include "tanrosen/calculation.h"
#include "tanrosen/closure_formula.h"
#include "tanrosen/columns.h"
#include "text/number.h"

namespace tanrosen {
namespace {

/// Reads the lines of a grid from its top.
class LineReader {
 public:
  LineReader(const ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
             Points points)
      : grid_(grid), grade_(grade), points_(points), known_(knownPoints.begin(), knownPoints.end()) {}

  std::vector<LevellingLine> read() {
    std::vector<LevellingLine> lines;
    for (int row = 1; row < grid_.rows(); row = nextLine_) lines.push_back(line(row));
    return lines;
  }

 private:
  LevellingLine line(int first) {
    LevellingLine line;
    line.firstRow = first;
    closureShown_.reset();
    nextLine_ = grid_.rows();
    for (int row = first; row < grid_.rows(); row += 2) {
      line.lastRow = row;
      const bool isPoint = ++line.benchMarks % 2 == 1 || points_ == Points::Every;
      if (isPoint && grid_.text(row, colFlag) != route::repeatedPoint &&
          !grid_.text(row, colBenchMark).empty())
        line.points.push_back(point(row));
      if (grid_.text(row, colFlag) != route::routeEnd) continue;
      nextLine_ = row + 2;
      break;
    }
    return line;
  }

  LinePoint point(int row) {
    LinePoint point;
    point.row = row;
    point.distance = sectionDistance(grid_, row, points_);
    point.observed = grid_.number(row, colHeight);
    point.fixed = !grid_.text(row, colResult).empty() && known_.contains(grid_.text(row, colBenchMark));
    if (point.fixed) close(point);
    return point;
  }

  /// The distribution of changes leaves another height than the known one at a third known point, observed
  /// height + change, but its whole closure error beside it: that tells the known height.
  void close(LinePoint& point) {
    point.closure = closureError(grid_.number(point.row, colResult), point.observed, grade_);
    const std::string& shown = grid_.text(point.row, colCorrection);
    if (shown.empty()) {
      closureShown_.reset();
      return;
    }
    const double whole = text::readNumber(shown) / grade_.factor();
    const double before = closureShown_.value_or(0);
    if (before != 0 && std::abs(point.closure - (whole - before)) * grade_.factor() < 0.5) {
      point.closure = closureError(whole, 0, grade_);
      point.shifted = true;
    }
    closureShown_ = whole;
  }

  const ui::Grid& grid_;
  const job::Grade grade_;
  const Points points_;
  const std::unordered_set<std::string_view> known_;
  std::optional<double> closureShown_;  // correction shown at the fixed point before, m
  int nextLine_ = 0;
};

/// Shares the closure errors of two fixed points out over the points between them.
void shareOut(const LevellingLine& line, std::size_t from, std::size_t to, std::vector<double>& corrections) {
  double total = 0;
  for (std::size_t i = from; i < to; ++i) total += line.points[i].distance;
  const double change = line.points[to].closure - line.points[from].closure;
  double behind = 0;
  for (std::size_t i = from; i < to; ++i) {
    corrections[i] = line.points[from].closure + (total == 0 ? 0 : change * behind / total);
    behind += line.points[i].distance;
  }
}

void write(ui::Grid& grid, const LinePoint& point, double correction, job::Grade grade) {
  const double units = text::roundHalfAway(correction * grade.factor(), 1);
  grid.setText(point.row, colCorrection, text::numberText(units));
  writeCorrectedHeight(grid, point.row, units, grade);
}

}  // namespace

std::vector<std::size_t> LevellingLine::fixedPoints() const {
  std::vector<std::size_t> fixed;
  for (std::size_t i = 0; i < points.size(); ++i)
    if (points[i].fixed) fixed.push_back(i);
  return fixed;
}

std::vector<LevellingLine> levellingLines(const ui::Grid& grid, const std::vector<std::string>& knownPoints,
                                          job::Grade grade, Points points) {
  return LineReader(grid, knownPoints, grade, points).read();
}

std::vector<double> lineCorrections(const LevellingLine& line) {
  const std::vector<std::size_t> fixed = line.fixedPoints();
  if (fixed.empty()) return {};
  std::vector<double> corrections(line.points.size(), line.points[fixed.back()].closure);
  for (std::size_t i = 0; i < fixed.front(); ++i) corrections[i] = line.points[fixed.front()].closure;
  for (std::size_t k = 1; k < fixed.size(); ++k) shareOut(line, fixed[k - 1], fixed[k], corrections);
  return corrections;
}

void calcOnKnownHeights(ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
                        std::string_view dataKubun) {
  for (const LevellingLine& line : levellingLines(grid, knownPoints, grade, pointsOf(dataKubun))) {
    const std::vector<double> corrections = lineCorrections(line);
    for (std::size_t i = 0; i < corrections.size(); ++i) write(grid, line.points[i], corrections[i], grade);
  }
}

}  // namespace tanrosen
