#include "tanrosen/check_formulas.h"

#include <optional>

#include "route/grid_table.h"
#include "route/selection.h"
#include "tanrosen/columns.h"
#include "text/number.h"

namespace tanrosen {
namespace {

using report::Formula;

// The columns of the check.
constexpr int heights = 0;
constexpr int covered = 1;        // distance from the segment's start to a bench mark
constexpr int segmentLength = 2;  // distance of the segment, summed up
constexpr int corrections = 3;
constexpr int results = 4;

Formula given(int row, int col) { return Formula::given(route::cellPlace(row, col)); }
Formula reckoned(int row, int column) { return Formula::reckoned(route::cellPlace(row, column)); }

bool everyPoint(const std::string& dataKubun) { return dataKubun == "0" || dataKubun == "4"; }

/// Goes from known point to known point as the distribution does.
class Way {
 public:
  Way(const ui::Grid& grid, const TableInput& input)
      : grid_(grid), input_(input), everyPoint_(everyPoint(input.dataKubun)), stride_(everyPoint_ ? 2 : 4) {
    check_.columns = {{"標高", 0, colHeight},
                      {"距離の和", 0, -1},
                      {"区間の距離", 0, -1},
                      {"補正数", 0, colCorrection},
                      {"補正結果", 0, colResult}};
  }

  report::Check check() {
    observedHeights();
    for (const std::string& name : input_.knownPoints)
      if (!knownPoint(name)) break;
    return std::move(check_);
  }

 private:
  const std::string& cell(int row, int col) const { return grid_.text(row, col); }
  double number(int row, int col) const { return text::readNumber(cell(row, col)); }
  bool flagged(int row, std::string_view flag) const { return cell(row, colFlag) == flag; }

  void add(int column, int row, const Formula& formula) {
    check_.cells.push_back({column, row - 1, formula});
  }

  /// Observed heights are running sums of the mean differences; behind a repeated bench mark they start anew,
  /// as its own difference is not shown.
  void observedHeights() {
    bool restarts = true;
    Formula height(0);
    for (int row = 1; row < grid_.rows(); row += 2) {
      if (!restarts && !flagged(row, route::repeatedPoint) && !cell(row, colHeight).empty()) {
        add(heights, row, height + given(row - 1, colHeight));
        height = reckoned(row, heights);
      } else {
        height = given(row, colHeight);
      }
      const bool left = flagged(row, route::repeatedPoint);
      restarts = left || flagged(row, route::routeEnd) || (restarts && afterPair_);
      afterPair_ = left;
    }
  }

  /// The forward run of a section whose runs are recorded apart: only its backward run counts.
  bool isForwardRun(int row) const {
    if (!everyPoint_ || row + 4 >= grid_.rows() || !flagged(row + 2, route::repeatedPoint)) return false;
    const std::string& forward = cell(row, colBenchMark);
    const std::string& backward = cell(row + 4, colBenchMark);
    return forward.ends_with('F') && backward.ends_with('B') &&
           forward.substr(0, forward.size() - 1) == backward.substr(0, backward.size() - 1);
  }

  Formula distance(int row) const { return isForwardRun(row) ? Formula(0) : given(row, colDistance); }

  bool mayBeKnown(int row) const {
    return !everyPoint_ || !flagged(row, route::repeatedPoint) || !cell(row, colResult).empty();
  }

  int rowOf(const std::string& name) const {
    for (int row = start_; row < grid_.rows(); row += stride_)
      if (cell(row, colBenchMark) == name && mayBeKnown(row)) return row;
    return 0;
  }

  /// Returns false where the point is not met below the one before.
  bool knownPoint(const std::string& name) {
    const bool returns = everyPoint_ && reached_.size() > 1 && reached_.ends_with('F') &&
                         name.ends_with('B') &&
                         reached_.substr(0, reached_.size() - 1) == name.substr(0, name.size() - 1);
    const int row = rowOf(name);
    if (row == 0) return false;
    if (returns) {
      reached_.clear();
      begin(row);
      return true;
    }
    if (everyPoint_ && name.ends_with('F')) reached_ = name;
    close(row);
    return true;
  }

  /// The next segment begins behind this row.
  void begin(int row) {
    length_ = distance(row);
    start_ = row + stride_;
  }

  /// The closure error at a known point (m): its row shows it in correction units, while its known height has
  /// given way to the corrected one.
  Formula closureAt(int row) const { return given(row, colCorrection) / input_.grade.factor(); }

  void close(int known) {
    if (known > 1 && start_ > 1) segment(known, closureAt(known) - closure_);
    closure_ = closureAt(known);
    begin(known);
  }

  void segment(int known, const Formula& change) {
    for (int row = start_; row < known; row += stride_) {
      add(segmentLength, row, length_ + distance(row));
      length_ = reckoned(row, segmentLength);
    }
    Formula behind(0);
    for (int row = start_; row <= known; row += stride_) {
      add(covered, row, behind + distance(row - 2));
      behind = reckoned(row, covered);
      if (isCorrected(row)) correctedRow(row, row == known, change * behind / length_);
    }
  }

  bool isCorrected(int row) const {
    return !cell(row, colCorrection).empty() &&
           (!everyPoint_ || (!cell(row, colBenchMark).empty() && !flagged(row, route::repeatedPoint)));
  }

  void correctedRow(int row, bool closing, const Formula& share) {
    const Formula units = (share * input_.grade.factor()).rounded(0);
    if (!closing) add(corrections, row, units);
    const Formula shown = closing ? units : given(row, colCorrection);
    if (!cell(row, colResult).empty())
      add(results, row, shown / input_.grade.factor() + given(row, colHeight));
  }

  const ui::Grid& grid_;
  const TableInput& input_;
  bool everyPoint_;
  int stride_;
  report::Check check_;
  int start_ = 1;
  std::string reached_;
  Formula closure_{0};  // at the known point before, m
  Formula length_{0};   // of the segment so far
  bool afterPair_ = false;
};

}  // namespace

report::Check checkFormulas(const ui::Grid& grid, const TableInput& input) {
  return Way(grid, input).check();
}

}  // namespace tanrosen
