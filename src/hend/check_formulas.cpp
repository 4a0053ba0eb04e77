#include <optional>

#include "hend/calculation.h"
#include "hend/columns.h"
#include "hend/tables.h"
#include "route/grid_table.h"
#include "route/selection.h"
#include "text/date.h"
#include "text/padding.h"

namespace hend {
namespace {

using report::Formula;

// The columns of the check.
enum CheckColumn : int { difference, daysNewOld, rate, daysReference, correction, result };

Formula given(int row, int col) { return Formula::given(route::cellPlace(row, col)); }
Formula reckoned(int row, int column) { return Formula::reckoned(route::cellPlace(row, column)); }
Formula days(int row, int col) { return Formula::days(route::cellPlace(row, col)); }

/// Goes along the grid as the calculation does.
class Walk {
 public:
  Walk(const ui::Grid& grid, std::string_view referenceDate, job::Grade grade)
      : grid_(grid), reference_(text::Date::parse(referenceDate)), decimals_(grade.isFirst() ? 4 : 3) {
    check_.columns = {{"比高差", 0, colDifference},     {"新－旧", 0, colDaysNewOld},
                      {"比高変化", 0, colRate},         {"基－新", 0, colDaysReference},
                      {"変動補正量", 0, colCorrection}, {"基準日比高", 0, colResult}};
  }

  report::Check check() {
    for (int row = 1; row < grid_.rows(); row += 2) benchMark(row);
    return std::move(check_);
  }

 private:
  bool blank(int row, int col) const {
    return row >= grid_.rows() || text::trimmed(grid_.text(row, col)).empty();
  }

  bool isDate(int row, int col) const { return !blank(row, col) && text::Date::parse(grid_.text(row, col)); }

  void add(int column, int row, const Formula& formula) {
    check_.cells.push_back({column, row - 1, formula});
  }

  void benchMark(int row) {
    const std::string& mark = grid_.text(row, colMark);
    if (completesPair(row)) return meanOfRuns(row);
    const bool newPoint = isNewPoint(grid_, row) && row > 2 && !blank(row - 1, colNewHeight);
    if (newPoint && !blank(row - 1, colOldHeight))
      countDays(row, row - 2, row - 1);
    else
      countDays(row, row, row);
    if (mark == route::routeEnd)
      forwardRun_.reset();
    else if (mark == route::repeatedPoint)
      repeatedPoint(row);
    else if (newPoint)
      compare(row, row, given(row, colNewHeight), given(row, colNewHeight) - given(row, colOldHeight));
    else if (!isNewPoint(grid_, row))
      compare(row + 1, row + 1, given(row + 1, colNewHeight),
              given(row + 1, colNewHeight) - given(row + 1, colOldHeight));
  }

  /// The days of the bench mark on `row`, from the old date on one row and the new date on another.
  void countDays(int row, int oldRow, int newRow) {
    if (isDate(oldRow, colOldDate) && isDate(newRow, colNewDate)) {
      counted_ = grid_.text(row, colDaysNewOld) != "0";
      count(row, daysNewOld, colDaysNewOld, days(newRow, colNewDate) - days(oldRow, colOldDate), daysNewOld_);
    }
    if (reference_ && isDate(newRow, colNewDate)) {
      const double fixed = daysBetween(text::Date(1900, 1, 1), *reference_);
      count(row, daysReference, colDaysReference, Formula(fixed) - days(newRow, colNewDate), daysReference_);
    }
  }

  void count(int row, int column, int col, const Formula& formula, Formula& kept) {
    if (blank(row, col)) {
      kept = formula;
      return;
    }
    add(column, row, formula);
    kept = given(row, col);
  }

  /// What follows from a new height and a difference between the epochs, on `row`.
  void compare(int row, int shownRow, const Formula& newHeight, const Formula& apart) {
    if (row >= grid_.rows()) return;
    if (!blank(shownRow, colDifference)) add(difference, row, apart);
    if (counted_) rate_ = given(row, colDifference) / daysNewOld_;
    if (!blank(row, colRate)) {
      add(rate, row, rate_);
      rate_ = reckoned(row, rate);
    }
    if (!blank(row, colCorrection)) add(correction, row, rate_ * daysReference_);
    if (!blank(row, colResult)) add(result, row, given(row, colCorrection) + newHeight);
  }

  /// What run begins at the bench mark before a repeated one: "F", "B" or something else.
  std::string_view runBefore(int row) const {
    return row < 3 ? std::string_view() : text::right(text::trimmed(grid_.text(row - 2, colBenchMark)), 1);
  }

  bool completesPair(int row) const {
    return grid_.text(row, colMark) == route::repeatedPoint && forwardRun_ && runBefore(row) == "B";
  }

  void repeatedPoint(int row) {
    if (runBefore(row) == "F") forwardRun_ = row - 2;
  }

  void meanOfRuns(int row) {
    const int forward = *forwardRun_;
    const int backward = row - 2;
    forwardRun_.reset();
    daysNewOld_ = meanDays(row, forward, backward, daysNewOld, colDaysNewOld);
    daysReference_ = meanDays(row, forward, backward, daysReference, colDaysReference);
    counted_ = grid_.text(row, colDaysNewOld) != "0";
    compare(row + 1, row + 1, given(row + 1, colNewHeight),
            ((given(forward + 1, colDifference) + given(backward + 1, colDifference)) / 2).halfUp(decimals_));
  }

  Formula meanDays(int row, int forward, int backward, int column, int col) {
    const Formula mean = ((given(forward, col) + given(backward, col)) / 2).floored();
    if (!blank(row, col)) add(column, row, mean);
    return given(row, col);
  }

  const ui::Grid& grid_;
  std::optional<text::Date> reference_;
  int decimals_;
  report::Check check_;
  Formula daysNewOld_{0};
  Formula daysReference_{0};
  Formula rate_{0};       // m per day
  bool counted_ = false;  // there are days between the epochs
  std::optional<int> forwardRun_;
};

}  // namespace

report::Check checkFormulas(const ui::Grid& grid, std::string_view referenceDate, job::Grade grade) {
  return Walk(grid, referenceDate, grade).check();
}

}  // namespace hend
