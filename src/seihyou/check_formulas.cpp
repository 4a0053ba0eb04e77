#include "seihyou/check_formulas.h"

#include <optional>
#include <utility>

#include "route/grid_table.h"
#include "route/selection.h"
#include "seihyou/columns.h"

namespace seihyou {
namespace {

using report::Formula;

constexpr int heights = 0;         // the one column of the check
constexpr int tenthsDecimals = 4;  // of a mean of repeated heights (m)

Formula given(int row, int col) { return Formula::given(route::cellPlace(row, col)); }
Formula reckoned(int row) { return Formula::reckoned(route::cellPlace(row, heights)); }

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

  /// The height of a bench mark, which takes part in what follows.
  void reach(int row, const std::optional<Formula>& formula) {
    if (formula && !empty(row, colResult)) add(row, *formula);
    height_ = formula && !empty(row, colResult) ? reckoned(row) : given(row, colResult);
  }

  bool nextIsRepeated(int row) const {
    return row + 2 < grid_.rows() - 1 && flagged(row + 2, route::repeatedPoint);
  }

  void computedRoute(int start, int end) {
    difference_ = Formula(0);
    std::optional<Formula> repeated;
    std::optional<Formula> mean;
    int count = 0;
    for (int row = start; row <= end; row += 2) {
      if (empty(row, colBenchMark)) continue;
      if (row == start || nextIsRepeated(row)) {
        reach(row, row == start ? std::nullopt : std::exchange(mean, std::nullopt));
      } else {
        mean.reset();
        reach(row, height_ + difference_);
        if (flagged(row, route::repeatedPoint) && ++count <= 2) {
          if (count == 2) mean = ((*repeated + height_) / 2).halfUp(tenthsDecimals);
          repeated = height_;
        }
      }
      if (!flagged(row, route::routeEnd) && !flagged(row, route::repeatedPoint)) section(row + 1);
    }
  }

  void section(int row) {
    if (row >= grid_.rows()) return;
    const Formula formula = given(row, colHeight) + given(row, colCorrection) / grade_.factor();
    if (!empty(row, colResult)) add(row, formula);
    difference_ = empty(row, colResult) ? formula : reckoned(row);
  }

  void loadedRoute(int start, int end) {
    for (int row = start; row <= end; row += 2) {
      if (flagged(row, route::repeatedPoint)) return;
      if (row == start)
        reach(row, std::nullopt);
      else
        reach(row, height_ + given(row - 1, colHeight));
    }
  }

  const ui::Grid& grid_;
  job::Grade grade_;
  report::Check check_;
  Formula height_{0};
  Formula difference_{0};
};

}  // namespace

report::Check checkFormulas(const ui::Grid& grid, job::Grade grade) { return Walk(grid, grade).check(); }

}  // namespace seihyou
