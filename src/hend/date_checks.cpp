#include "hend/date_checks.h"

#include <utility>

#include "hend/calculation.h"
#include "hend/columns.h"
#include "route/checks.h"
#include "route/selection.h"
#include "text/error.h"
#include "text/padding.h"

namespace hend {
namespace {

using ui::Severity;

constexpr int latestCount = 4'000'000;  // more days than the calendar has

const char* const calculateAgain = "「設定」を押して計算し直してください。";
const char* const correctObservation = "観測成果の日付を確かめてください。";

bool isBlank(const ui::Grid& grid, int row, int col) { return text::trimmed(grid.text(row, col)).empty(); }

}  // namespace

void DateChecks::add(Severity severity, int row, int col, std::string text, std::string wayOut) {
  findings_.push_back({severity, row, col, std::move(text), std::move(wayOut)});
}

void DateChecks::run() {
  readReference();
  for (int row = 1; row < grid_.rows(); row += 2) benchMark(row);
  tellReference();
}

void DateChecks::readReference() {
  reference_ = text::Date::parse(referenceText_);
  const bool empty = grid_.rows() < 2 || isBlank(grid_, 1, colBenchMark);
  if (reference_ || empty) return;
  if (text::trimmed(referenceText_).empty())
    add(Severity::Error, -1, -1, "基準日がありません。変動補正量は 0 として計算されます。",
        "基準日を入力して「設定」を押してください。");
  else
    add(Severity::Error, -1, -1, "基準日「" + std::string(referenceText_) + "」は日付ではありません。",
        "2022/08/19 のように入力し直してください。このままでは計算できません。");
}

DateChecks::MaybeDate DateChecks::dateIn(int row, int col) {
  const std::string& cell = grid_.text(row, col);
  if (cell.empty()) return std::nullopt;
  const MaybeDate date = text::Date::parse(cell);
  if (!date && !text::trimmed(cell).empty())
    add(Severity::Error, row, col,
        route::placeName(grid_, row) + "の" + grid_.text(0, col) + "「" + cell + "」は日付ではありません。",
        "2022/08/19 のように入力し直してください。このままでは計算できません。");
  return date;
}

void DateChecks::benchMark(int row) {
  const MaybeDate newDate = dateIn(row, colNewDate);
  const MaybeDate oldDate = dateIn(row, colOldDate);
  if (newDate && oldDate && *oldDate > *newDate) reversed(row);
  const std::string& mark = grid_.text(row, colMark);
  const bool end = mark == route::routeEnd;
  if (!end && mark != route::repeatedPoint)
    isNewPoint(grid_, row) ? newPoint(row, newDate) : ordinary(row, newDate, oldDate);
  beforeNew_ = end ? std::nullopt : newDate;
  beforeOld_ = end ? std::nullopt : oldDate;
}

void DateChecks::ordinary(int row, const MaybeDate& newDate, const MaybeDate& oldDate) {
  if (isBlank(grid_, row, colNewDate) && row + 2 < grid_.rows()) missingDate(row);
  if (newDate && oldDate && *newDate == *oldDate) noDaysBetween(row);
  daysBetweenEpochs(row, oldDate, newDate);
  daysToReference(row, newDate);
}

/// Its days count by the midpoint, which stands on the section row above where there is one.
void DateChecks::newPoint(int row, const MaybeDate& newDate) {
  const bool led =
      row > 1 && (!isBlank(grid_, row - 1, colNewHeight) || !isBlank(grid_, row - 1, colOldHeight));
  if (!led) return daysToReference(row, newDate);
  if (isBlank(grid_, row, colNewDate) && !isBlank(grid_, row - 1, colOldHeight)) missingDate(row);
  if (!beforeNew_ || !newDate) return;
  const MaybeDate middle = dateIn(row - 1, colNewDate);
  if (middle) midpoint(row, *middle, newDate);
  daysBetweenEpochs(row, beforeOld_, middle);
  daysToReference(row, middle);
}

/// Halfway, an odd day towards the later date.
void DateChecks::midpoint(int row, const text::Date& middle, const MaybeDate& newDate) {
  const int before = daysBetween(*beforeNew_, middle);
  const int after = daysBetween(middle, *newDate);
  const int odd = before + after >= 0 ? before - after : after - before;
  if (odd == 0 || odd == 1) return;
  add(Severity::Error, row - 1, colNewDate,
      route::placeName(grid_, row) + "の中間の日付 " + middle.text() + " は、新観測年月日 " +
          beforeNew_->text() + " と " + newDate->text() + " の中間ではありません。",
      calculateAgain);
  findings_.back().mark = ui::CellMark::NotTaken;
}

void DateChecks::missingDate(int row) {
  const auto last = [&](int col) {
    for (int above = row - 2; above >= 1; above -= 2)
      if (!isBlank(grid_, above, col)) return grid_.text(above, col);
    return std::string("0");
  };
  add(Severity::Warning, row, colNewDate,
      route::placeName(grid_, row) + "に新観測年月日がありません。前の日数(新－旧 " + last(colDaysNewOld) +
          " 日、基－新 " + last(colDaysReference) + " 日)で計算されます。",
      correctObservation);
}

void DateChecks::reversed(int row) {
  add(Severity::Error, row, colOldDate,
      route::placeName(grid_, row) + "の旧観測年月日 " + grid_.text(row, colOldDate) + " が新観測年月日 " +
          grid_.text(row, colNewDate) + " より後です。",
      correctObservation);
}

void DateChecks::noDaysBetween(int row) {
  const std::string rate = row + 1 < grid_.rows() ? grid_.text(row + 1, colRate) : std::string();
  add(Severity::Warning, row, colDaysNewOld,
      route::placeName(grid_, row) + "の新旧の観測日が同じです(" + grid_.text(row, colNewDate) +
          ")。前の区間の比高変化 " + (rate.empty() ? "0" : rate) + " m/日で計算されます。",
      correctObservation);
}

void DateChecks::daysBetweenEpochs(int row, const MaybeDate& from, const MaybeDate& to) {
  if (!from || !to) return;
  const int counted = daysBetween(*from, *to);
  if (isBlank(grid_, row, colDaysNewOld) || route::numberIn(grid_, row, colDaysNewOld) != counted)
    wrongDays(row, colDaysNewOld, counted);
}

void DateChecks::daysToReference(int row, const MaybeDate& from) {
  if (!from || !reference_) return;
  const int counted = daysBetween(*from, *reference_);
  if (counted < 0 && ++early_ == 1) firstEarly_ = row;
  if (!isBlank(grid_, row, colDaysReference) && route::numberIn(grid_, row, colDaysReference) == counted)
    ++matching_;
  else
    astray_.push_back({row, *from});
}

void DateChecks::wrongDays(int row, int col, int counted) {
  const std::string& cell = grid_.text(row, col);
  add(Severity::Error, row, col,
      route::placeName(grid_, row) + "の" + grid_.text(0, col) +
          (cell.empty() ? "が空です" : " " + cell + " 日は違います") + "。日付から数えると " +
          std::to_string(counted) + " 日です。",
      calculateAgain);
  findings_.back().mark = ui::CellMark::NotTaken;
}

/// Where no bench mark's days lead to the reference date, the grid was calculated with another one.
void DateChecks::tellReference() {
  if (early_ > 0)
    add(Severity::Warning, firstEarly_, colDaysReference,
        "基準日 " + reference_->text() + " が新観測年月日より前の水準点が " + std::to_string(early_) +
            " 点あります(" + route::placeName(grid_, firstEarly_) + "から)。補正の符号が逆になります。",
        "基準日を確かめてください。");
  if (astray_.empty()) return;
  if (matching_ == 0) return notComputedWith();
  for (const Astray& one : astray_) wrongDays(one.row, colDaysReference, daysBetween(one.date, *reference_));
}

void DateChecks::notComputedWith() {
  add(Severity::Error, -1, -1,
      "基準日 " + reference_->text() + " ではまだ計算していません。表は" + computedWith() + "の値です。",
      "「設定」を押してください。");
  findings_.back().mark = ui::CellMark::NotTaken;
}

/// The reference date that the first bench mark's days lead to, as a finding calls it.
std::string DateChecks::computedWith() const {
  const Astray& first = astray_.front();
  const double days = route::numberIn(grid_, first.row, colDaysReference);
  if (isBlank(grid_, first.row, colDaysReference)) return "基準日なし";
  if (days > latestCount || days < -latestCount) return "別の基準日";
  try {
    return "基準日 " + first.date.plus(static_cast<int>(days)).text() + " ";
  } catch (const text::RuntimeError&) {
    return "別の基準日";
  }
}

}  // namespace hend
