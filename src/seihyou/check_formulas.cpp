#include "seihyou/check_formulas.h"

#include <optional>
#include <utility>

#include "route/grid_table.h"
#include "route/records.h"
#include "route/selection.h"
#include "seihyou/columns.h"
#include "text/number.h"

namespace seihyou {
namespace {

using report::Formula;

constexpr int heights = 0;         // the one column of the check
constexpr int tenthsDecimals = 4;  // of a mean of repeated heights (m)

Formula given(int row, int col) { return Formula::given(route::cellPlace(row, col)); }
Formula reckoned(int row) { return Formula::reckoned(route::cellPlace(row, heights)); }

/// A height or difference: how it is reckoned, and what that comes to.
struct Metres {
  Formula formula{0};
  double value = 0;
};

Metres operator+(const Metres& a, const Metres& b) { return {a.formula + b.formula, a.value + b.value}; }

Metres mean(const Metres& a, const Metres& b) {
  return {((a.formula + b.formula) / 2).halfUp(tenthsDecimals),
          text::roundHalfUp((a.value + b.value) / 2, route::tenthsOfMillimetre)};
}

/// Goes along the routes as the calculation does.
class Walk {
 public:
  Walk(const ui::Grid& grid, job::Grade grade) : grid_(grid), grade_(grade) {
    check_.columns = {{"補正結果", 0, colResult}};
  }

  report::Check check() {
    for (int start = 1; start < grid_.rows();) {
      const int end = endOf(start);
      computed(start, end) ? computedRoute(start, end) : loadedRoute(start, end);
      start = end + 1;
    }
    return std::move(check_);
  }

 private:
  /// The means of two repeated heights. The height behind them is the first one, where the route was
  /// calculated through its means; at the end of a reopened route it is the second one, as the end itself is
  /// not saved; otherwise it is the running sum.
  struct Pair {
    Metres ofReckoned;
    Metres ofShown;
  };

  bool flagged(int row, std::string_view flag) const { return grid_.text(row, colFlag) == flag; }
  bool empty(int row, int col) const { return grid_.text(row, col).empty(); }

  int endOf(int start) const {
    for (int row = start; row < grid_.rows(); ++row)
      if (flagged(row, route::routeEnd)) return row;
    return grid_.rows() - 1;
  }

  /// True where a section of the route shows a corrected difference.
  bool computed(int start, int end) const {
    for (int row = start; row <= end; ++row)
      if (empty(row, colBenchMark) && !empty(row, colResult)) return true;
    return false;
  }

  void add(int row, const Formula& formula) { check_.cells.push_back({heights, row - 1, formula}); }

  Metres shown(int row, int col) const { return {given(row, col), text::readNumber(grid_.text(row, col))}; }
  bool shows(int row, const Metres& height) const {
    return grid_.text(row, colResult) == grade_.heights().format(height.value);
  }

  /// The height of a bench mark, which takes part in what follows.
  void reach(int row, const std::optional<Metres>& height) {
    height_ = shown(row, colResult);
    if (!height || empty(row, colResult)) return;
    add(row, height->formula);
    height_ = {reckoned(row), height->value};
  }

  bool nextIsRepeated(int row) const {
    return row + 2 < grid_.rows() - 1 && flagged(row + 2, route::repeatedPoint);
  }

  void computedRoute(int start, int end) {
    difference_ = {};
    repeatedRow_ = 0;
    pairs_ = 0;
    pair_.reset();
    for (int row = start; row <= end; row += 2) {
      if (empty(row, colBenchMark)) continue;
      benchMark(row, start);
      if (!flagged(row, route::routeEnd) && !flagged(row, route::repeatedPoint)) section(row + 1);
    }
  }

  void benchMark(int row, int start) {
    const std::optional<Pair> pair = std::exchange(pair_, std::nullopt);
    if (row == start)
      reach(row, std::nullopt);
    else if (pair && !flagged(row, route::repeatedPoint) && shows(row, pair->ofReckoned))
      reach(row, pair->ofReckoned);
    else if (nextIsRepeated(row))
      reach(row, pair && pairs_ == 1 ? std::optional(pair->ofReckoned) : std::nullopt);
    else if (flagged(row, route::routeEnd))
      reach(row, endHeight(row, pair));
    else
      reach(row, height_ + difference_);
    last_ = row;
    if (row != start && flagged(row, route::repeatedPoint) && !nextIsRepeated(row)) repeatedPoint(row);
  }

  /// The end of a calculated route is reckoned from what has been reckoned before it, that of a reopened one,
  /// which is not saved, from the heights shown before it.
  Metres endHeight(int row, const std::optional<Pair>& pair) const {
    const Metres calculated = height_ + difference_;
    const Metres reopened = pair ? pair->ofShown : shown(last_, colResult) + difference_;
    return !shows(row, calculated) && shows(row, reopened) ? reopened : calculated;
  }

  void repeatedPoint(int row) {
    if (repeatedRow_ != 0) {
      pair_ = {mean(repeated_, height_), mean(shown(repeatedRow_, colResult), shown(row, colResult))};
      ++pairs_;
    }
    repeated_ = height_;
    repeatedRow_ = repeatedRow_ == 0 ? row : 0;
  }

  void section(int row) {
    if (row >= grid_.rows()) return;
    const Metres correction = shown(row, colCorrection);
    difference_ = shown(row, colHeight) +
                  Metres{correction.formula / grade_.factor(), correction.value / grade_.factor()};
    if (empty(row, colResult)) return;
    add(row, difference_.formula);
    difference_.formula = reckoned(row);
  }

  void loadedRoute(int start, int end) {
    for (int row = start; row <= end; row += 2) {
      if (flagged(row, route::repeatedPoint)) return;
      if (row == start)
        reach(row, std::nullopt);
      else
        reach(row, height_ + shown(row - 1, colHeight));
    }
  }

  const ui::Grid& grid_;
  job::Grade grade_;
  report::Check check_;
  Metres height_;
  Metres difference_;
  Metres repeated_;           // the first height of a pair
  int last_ = 0;              // the bench mark's row before
  int repeatedRow_ = 0;       // its row; 0 for none
  int pairs_ = 0;             // of the route so far
  std::optional<Pair> pair_;  // just completed
};

}  // namespace

report::Check checkFormulas(const ui::Grid& grid, job::Grade grade) { return Walk(grid, grade).check(); }

}  // namespace seihyou
