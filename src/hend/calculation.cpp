#include "hend/calculation.h"

#include <initializer_list>
#include <optional>
#include <string>

#include "hend/columns.h"
#include "route/checks.h"
#include "route/selection.h"
#include "text/date.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/grid_helpers.h"

namespace hend {
namespace {

constexpr double tenthsOfMillimetre = 10000;  // in a metre; whole numbers of them are exact in a double

bool isBlank(std::string_view text) { return text::trimmed(text).empty(); }

/// Raised for a text that should have been a date.
struct NoDate {
  std::string text;
};

text::Date dateOf(std::string_view text) {
  const std::optional<text::Date> date = text::Date::parse(text);
  if (!date) throw NoDate{std::string(text)};
  return *date;
}

/// The error of a text that is no date, met at the bench mark on `row`: which cell holds it, or that it is
/// the reference date.
WrongDate errorOf(const NoDate& none, const ui::Grid& grid, int row, std::string_view reference) {
  const auto about = [&none](const std::string& what, ui::CellPlace place) {
    return WrongDate(text::description(text::ErrorCode::TypeMismatch) + what + "「" + none.text +
                         "」は日付ではありません。",
                     place);
  };
  if (none.text == reference) return about("基準日", {0, 0});
  for (const int at : {row, row - 1, row - 2})
    for (const int col : {colOldDate, colNewDate})
      if (at > 0 && grid.text(at, col) == none.text)
        return about(route::placeName(grid, at) + " の" + grid.text(0, col), {at, col});
  return about({}, {row, colNewDate});
}

/// Days from one date text to another; nothing where one of them is blank.
std::optional<int> days(std::string_view from, std::string_view to) {
  if (isBlank(from) || isBlank(to)) return std::nullopt;
  return daysBetween(dateOf(from), dateOf(to));
}

/// The date halfway between two date texts, an odd day counted towards the later one; blank where one of them
/// is.
std::string halfway(std::string_view a, std::string_view b) {
  const std::optional<int> between = days(a, b);
  if (!between) return {};
  const text::Date earlier = dateOf(*between < 0 ? b : a);
  const double apart = *between < 0 ? -*between : *between;
  return earlier.plus(static_cast<int>(text::roundHalfUp(apart / 2, 1))).text();
}

/// The last bench-mark row up to which an old observation goes: the last one with an old date or at a route
/// end; 0 for none. Above it every route has one of these further on.
int lastOldRow(const ui::Grid& grid) {
  int last = 0;
  for (int row = 1; row < grid.rows(); row += 2)
    if (grid.text(row, colMark) == route::routeEnd || !isBlank(grid.text(row, colOldDate))) last = row;
  return last;
}

/// The walk along the grid: counts of days and the daily change are carried from bench mark to bench mark.
class Walk {
 public:
  Walk(ui::Grid& grid, std::string_view referenceDate, job::Grade grade)
      : grid_(grid), referenceDate_(referenceDate), grade_(grade), lastOldRow_(lastOldRow(grid)) {}

  /// Takes the bench mark on `row`.
  void benchMark(int row) {
    ui::FcGridMoveRow(grid_, row);
    countDays(row, grid_.text(row, colOldDate), grid_.text(row, colNewDate));
    const std::string& mark = grid_.text(row, colMark);
    if (mark == route::routeEnd) {
      forwardRun_.reset();
    } else if (mark == route::repeatedPoint) {
      repeatedPoint(row);
    } else if (isNewPoint(grid_, row)) {
      newPoint(row);
    } else {
      section(row + 1);
    }
  }

 private:
  double number(int row, int col) const { return grid_.number(row, col); }
  bool blank(int row, int col) const { return isBlank(grid_.text(row, col)); }
  void writeMetres(int row, int col, double metres) {
    grid_.setText(row, col, grade_.heights().format(metres));
  }
  void writeDays(int row, int col, int count) { grid_.setText(row, col, std::to_string(count)); }

  void countDays(int row, std::string_view oldDate, std::string_view newDate) {
    const std::optional<int> newOld = days(oldDate, newDate);
    const std::optional<int> reference = days(newDate, referenceDate_);
    if (newOld) writeDays(row, colDaysNewOld, daysNewOld_ = *newOld);
    if (reference) writeDays(row, colDaysReference, daysReference_ = *reference);
  }

  void section(int row) {
    ui::FcGridMoveRow(grid_, row);
    compare(row, number(row, colNewHeight), number(row, colOldHeight));
  }

  /// Writes what follows from a new and an old height difference (m) to `row`.
  void compare(int row, double newHeight, double oldHeight) {
    const double newTenths = newHeight * tenthsOfMillimetre;
    const double oldTenths = oldHeight * tenthsOfMillimetre;
    carry(row, newTenths / tenthsOfMillimetre, (newTenths - oldTenths) / tenthsOfMillimetre);
  }

  /// Carries a new height difference to the reference date by the difference between the epochs (m). The
  /// correction counts as it is shown.
  void carry(int row, double newHeight, double difference) {
    if (daysNewOld_ != 0) rate_ = difference / daysNewOld_;
    const std::string correction = grade_.heights().format(rate_ * daysReference_);
    writeMetres(row, colDifference, difference);
    grid_.setText(row, colRate, dailyChange().format(rate_));
    grid_.setText(row, colCorrection, correction);
    writeMetres(row, colResult, text::readNumber(correction) + newHeight);
  }

  /// What leads to the point is taken together with what leaves it, at the date halfway between the dates of
  /// the bench mark before and its own, and compared with the old difference that stands above it.
  void newPoint(int row) {
    const int before = row - 2;
    const int above = row - 1;
    if (before < 1 || (blank(above, colNewHeight) && blank(above, colOldHeight))) return;
    ui::FcGridMoveRow(grid_, row + 1);
    const std::string date = halfway(grid_.text(before, colNewDate), grid_.text(row, colNewDate));
    if (!date.empty()) grid_.setText(above, colNewDate, date);
    countDays(row, grid_.text(before, colOldDate), date);
    writeMetres(row, colNewHeight, number(above, colNewHeight) + number(row + 1, colNewHeight));
    if (blank(above, colOldHeight)) return;
    grid_.setText(row, colOldHeight, grid_.text(above, colOldHeight));
    compare(row, number(row, colNewHeight), number(row, colOldHeight));
    if (!splits(row)) return;
    for (const int col : {colDifference, colRate, colCorrection, colResult}) grid_.setText(above, col, {});
  }

  /// True for a new point that parts an old section in two: the section begins at an ordinary bench mark, not
  /// where runs end, and the old observation goes on below the point.
  bool splits(int row) const {
    return grid_.text(row - 2, colMark) != route::repeatedPoint && row < lastOldRow_;
  }

  /// The end of a run: the forward run is kept in mind, the backward run completes the pair.
  void repeatedPoint(int row) {
    const int start = row - 2;
    if (start < 1) return;
    const std::string_view run = text::right(text::trimmed(grid_.text(start, colBenchMark)), 1);
    if (run == "F") forwardRun_ = start;
    if (run != "B" || !forwardRun_) return;
    ui::FcGridMoveRow(grid_, row + 1);
    meanOfRuns(row, *forwardRun_, start);
    forwardRun_.reset();
  }

  /// `forward`, `backward`: the bench-mark rows where the runs begin.
  void meanOfRuns(int row, int forward, int backward) {
    const std::optional<double> newHeight = meanHeight(row + 1, colNewHeight, forward + 1, backward + 1);
    meanHeight(row + 1, colOldHeight, forward + 1, backward + 1);
    const std::optional<double> difference = meanHeight(row + 1, colDifference, forward + 1, backward + 1);
    meanDays(row, colDaysNewOld, forward, backward, daysNewOld_);
    if (!isBlank(referenceDate_)) meanDays(row, colDaysReference, forward, backward, daysReference_);
    if (difference) carry(row + 1, newHeight.value_or(0), *difference);
  }

  /// Writes the mean of two height differences (m), rounded to the grade's unit with halves upwards; nothing
  /// where both are blank.
  std::optional<double> meanHeight(int row, int col, int forward, int backward) {
    if (blank(forward, col) && blank(backward, col)) return std::nullopt;
    const double sum = number(forward, col) + number(backward, col);
    const double mean = text::roundHalfUp(sum / 2, grade_.factor());
    writeMetres(row, col, mean);
    return mean;
  }

  void meanDays(int row, int col, int forward, int backward, int& count) {
    if (blank(forward, col) && blank(backward, col)) return;
    count = static_cast<int>(text::Int((number(forward, col) + number(backward, col)) / 2));
    writeDays(row, col, count);
  }

  ui::Grid& grid_;
  std::string_view referenceDate_;
  job::Grade grade_;
  int lastOldRow_;
  int daysNewOld_ = 0;
  int daysReference_ = 0;
  double rate_ = 0;  // m per day
  std::optional<int>
      forwardRun_;  // bench-mark row where a forward run begins that waits for the backward one
};

}  // namespace

void FcHendCalc(ui::Grid& grid, std::string_view referenceDate, job::Grade grade) {
  Walk walk(grid, referenceDate, grade);
  for (int row = 1; row < grid.rows(); row = text::toInt16(row + 2)) {
    try {
      walk.benchMark(row);
    } catch (const NoDate& none) {
      throw errorOf(none, grid, row, referenceDate);
    }
  }
}

void FcHendCalcResult(ui::Grid& grid, int row, job::Grade grade) {
  const double height = grid.number(row, colNewHeight);
  const double correction = grid.number(row, colCorrection);
  grid.setText(row, colResult, grade.heights().format(height + correction));
}

bool isNewPoint(const ui::Grid& grid, int row) {
  const std::string& mark = grid.text(row, colMark);
  return mark != route::routeEnd && mark != route::repeatedPoint && isBlank(grid.text(row, colOldDate));
}

const text::Pattern& dailyChange() {
  static const text::Pattern pattern("0.00E+00");
  return pattern;
}

}  // namespace hend
