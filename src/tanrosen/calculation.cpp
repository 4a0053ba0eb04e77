#include "tanrosen/calculation.h"

#include <algorithm>
#include <optional>

#include "route/selection.h"
#include "tanrosen/bench_mark_rows.h"
#include "tanrosen/columns.h"
#include "text/number.h"

namespace tanrosen {
namespace {

// A section whose runs are recorded apart takes five bench marks: its start "…F", its end ("-2"), the start
// again as "…B", the end again ("-2"), and the end with the mean of both runs.
constexpr char forward = 'F';
constexpr char backward = 'B';
constexpr int runApart = 4;  // rows from the forward run to the backward run

bool samePoint(std::string_view forwardName, std::string_view backwardName) {
  return forwardName.ends_with(forward) && backwardName.ends_with(backward) &&
         forwardName.substr(0, forwardName.size() - 1) == backwardName.substr(0, backwardName.size() - 1);
}

/// True where a forward run starts on `row` and its backward run follows.
bool startsForwardRun(const ui::Grid& grid, int row) {
  return row + runApart < grid.rows() && grid.text(row + 2, colFlag) == route::repeatedPoint &&
         samePoint(grid.text(row, colBenchMark), grid.text(row + runApart, colBenchMark));
}

double number(const ui::Grid& grid, int row, int col) { return text::readNumber(grid.text(row, col)); }

/// A number as the pattern shows it, read again.
double rounded(double value, const text::Pattern& pattern) { return text::readNumber(pattern.format(value)); }

/// Whole units, halves away from zero.
double wholeUnits(double units) { return text::roundHalfAway(units, 1); }

/// The corrected height that a correction leads to.
void writeHeight(ui::Grid& grid, int row, double units, job::Grade grade) {
  grid.setText(row, colResult, grade.heights().format(units / grade.factor() + number(grid, row, colHeight)));
}

bool namesEveryPoint(std::string_view dataKubun) { return dataKubun == "0" || dataKubun == "4"; }

/// The way along the route from known point to known point.
class Distribution {
 public:
  Distribution(ui::Grid& grid, job::Grade grade, bool everyPoint, const std::vector<std::string>& knownPoints)
      : grid_(grid),
        grade_(grade),
        everyPoint_(everyPoint),
        stride_(everyPoint ? 2 : 4),
        knownPoints_(knownPoints),
        distances_(static_cast<std::size_t>(grid.rows() / 2 + 1)) {}

  void knownPoint(const std::string& name) {
    if (everyPoint_ && isReturn(name)) {
      leaveAgain(name);
      return;
    }
    if (everyPoint_ && name.ends_with(forward)) reached_ = name;
    if (const int row = walkTo(name); row > 0) close(row);
  }

  long distancesTaken() const { return taken_; }

 private:
  /// A repeated bench mark without a known height is no known point: the one with the mean of both runs is.
  bool mayBeKnown(int row) const {
    return !everyPoint_ || grid_.text(row, colFlag) != route::repeatedPoint ||
           !grid_.text(row, colResult).empty();
  }

  /// The first row of a known point at or below the segment's start; 0 where there is none. In the order of
  /// the route they are met on the way; when one is missed, the rows of all are listed, so that many of them
  /// out of order cost no more.
  int rowOf(const std::string& name) {
    if (listed_) return listed_->find(name, start_);
    for (int row = start_; row < grid_.rows(); row += stride_)
      if (grid_.text(row, colBenchMark) == name && mayBeKnown(row)) return row;
    list();
    return 0;
  }

  void list() {
    listed_.emplace(knownPoints_);
    for (int row = start_; row < grid_.rows(); row += stride_) {
      std::vector<int>* const rows = listed_->rowsOf(grid_.text(row, colBenchMark));
      if (rows != nullptr && mayBeKnown(row)) rows->push_back(row);
    }
  }

  bool isReturn(const std::string& name) const { return reached_.size() > 1 && samePoint(reached_, name); }

  /// Of the section behind a bench mark. It is read once; above the first bench mark there is none
  /// (Subscript).
  double distance(int row) {
    ++taken_;
    if (row < 1) return readDistance(row);
    std::optional<double>& held = distances_[static_cast<std::size_t>(row / 2)];
    if (!held) held = readDistance(row);
    return *held;
  }

  /// A section whose runs are recorded apart counts once, with its backward run.
  double readDistance(int row) const {
    const double held = number(grid_, row, colDistance);
    return everyPoint_ && startsForwardRun(grid_, row) ? 0 : held;
  }

  int below(int row) const { return text::toInt16(row + stride_); }

  /// Adds the distances up to the known point and returns its row; 0 where it does not stand below.
  int walkTo(const std::string& name) {
    const int found = rowOf(name);
    if (found == 0) {
      total_ += distanceToTheEnd();
      return 0;
    }
    for (int row = start_; row < found; row = below(row)) total_ += distance(row);
    return found;
  }

  /// The distances of all rows from the segment's start. Summed up once for all starts: many known points out
  /// of order cost no more than one.
  double distanceToTheEnd() {
    int last = (grid_.rows() - 2) / stride_ * stride_ + 1;
    if (start_ > last || grid_.rows() < 2) return 0;
    below(last);
    if (toTheEnd_.empty()) {
      toTheEnd_.resize(static_cast<std::size_t>(last + stride_ + 1));
      for (; last > 0; last -= stride_)
        toTheEnd_[static_cast<std::size_t>(last)] =
            distance(last) + toTheEnd_[static_cast<std::size_t>(last + stride_)];
    }
    return toTheEnd_[static_cast<std::size_t>(start_)];
  }

  /// Closes the segment at the known point on `known` and begins the next one.
  void close(int known) {
    const text::Pattern& pattern = grade_.heights();
    const double closure =
        rounded(number(grid_, known, colResult) - number(grid_, known, colHeight), pattern);
    if (known > 1) distribute(known, closure - closure_);
    closure_ = closure;
    const double units = text::Fix(rounded(closure * grade_.factor(), pattern));
    grid_.setText(known, colCorrection, text::numberText(units));
    total_ = distance(known);
    start_ = below(known);
  }

  void distribute(int known, double change) {
    double behind = 0;
    for (int row = start_; row <= known; row = below(row)) {
      behind += distance(row - 2);
      if (!isCorrected(row)) continue;
      const double units = share(change, behind);
      grid_.setText(row, colCorrection, text::numberText(units));
      writeHeight(grid_, row, units, grade_);
    }
  }

  bool isCorrected(int row) const {
    return !everyPoint_ ||
           (!grid_.text(row, colBenchMark).empty() && grid_.text(row, colFlag) != route::repeatedPoint);
  }

  /// The correction after `behind` of the segment's distance, whole units.
  double share(double change, double behind) const {
    if (total_ == 0) return 0;
    double units = change * behind / total_ * 1000;
    if (grade_.isFirst()) units *= 10;
    return wholeUnits(units);
  }

  /// The backward run from a known point: its correction is that of the forward run, and the next segment
  /// begins there. Distances count from here; the closure error before stays that of the forward run. The
  /// bench mark that follows two rows below is the segment's first, as behind every known point.
  void leaveAgain(const std::string& name) {
    const int row = rowOf(name);
    if (row == 0) return;
    grid_.setText(row, colCorrection, grid_.text(row - runApart, colCorrection));
    reached_.clear();
    total_ = distance(row);
    start_ = below(row);
  }

  ui::Grid& grid_;
  job::Grade grade_;
  bool everyPoint_;
  int stride_;
  const std::vector<std::string>& knownPoints_;
  std::optional<BenchMarkRows> listed_;           // from the first miss on
  std::vector<std::optional<double>> distances_;  // read so far, of row 1, 3, 5 …
  int start_ = 1;                                 // row where the segment starts
  double closure_ = 0;                            // error at the known point before, m
  double total_ = 0;                              // distance of the segment
  std::string reached_;           // the last known point "…F" that its "…B" has not followed yet
  std::vector<double> toTheEnd_;  // distance from a row to the end of the grid
  long taken_ = 0;
};

}  // namespace

long FcCalcTanrosen(ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
                    std::string_view dataKubun) {
  Distribution distribution(grid, grade, namesEveryPoint(dataKubun), knownPoints);
  for (const std::string& name : knownPoints) distribution.knownPoint(name);
  return distribution.distancesTaken();
}

void heightFromCorrection(ui::Grid& grid, int row, job::Grade grade) {
  writeHeight(grid, row, number(grid, row, colCorrection), grade);
}

bool isCorrectionCell(const ui::Grid& grid, int row, int col) {
  return col == colCorrection && row >= grid.fixedRows() && !grid.text(row, colBenchMark).empty();
}

bool isKnownHeightCell(const ui::Grid& grid, int row, int col, const std::vector<std::string>& knownPoints) {
  return col == colResult && row >= grid.fixedRows() && !grid.text(row, colBenchMark).empty() &&
         std::find(knownPoints.begin(), knownPoints.end(), grid.text(row, colBenchMark)) != knownPoints.end();
}

bool isRemarkCell(const ui::Grid& grid, int row, int col) {
  return col == colRemark && row >= grid.fixedRows() && grid.text(row - 1, colFlag) != route::routeEnd;
}

int nextCorrectionRow(const ui::Grid& grid, int row) {
  for (int next = row; next + 2 < grid.rows() && grid.text(next, colFlag) != route::routeEnd;) {
    next += 2;
    if (isCorrectionCell(grid, next, colCorrection)) return next;
  }
  return row;
}

}  // namespace tanrosen
