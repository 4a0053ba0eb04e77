#include "hend/value_checks.h"

#include <cmath>
#include <utility>

#include "hend/calculation.h"
#include "hend/columns.h"
#include "route/checks.h"
#include "route/selection.h"
#include "text/padding.h"

namespace hend {
namespace {

using ui::Severity;

constexpr double rounding = 0.51;        // units that a number may differ from the one it is shown for
constexpr double ofMeans = 1.51;         // the same where it is a mean of its own
constexpr double ofThreeDigits = 0.006;  // share that a rate of three digits may differ
constexpr double smallestRate = 1e-12;   // m per day, beyond any that is shown

const char* const calculateAgain = "「設定」を押して計算し直してください。";

}  // namespace

bool ValueChecks::blank(int row, int col) const {
  if (row >= grid_.rows()) return true;
  const std::string& cell = grid_.text(row, col);
  return cell.empty() || (cell.front() == ' ' && text::trimmed(cell).empty());
}

double ValueChecks::number(int row, int col) const {
  return row >= grid_.rows() ? 0 : route::numberIn(grid_, row, col);
}

void ValueChecks::add(Severity severity, int row, int col, std::string text, std::string wayOut) {
  findings_.push_back({severity, row, col, std::move(text), std::move(wayOut)});
}

void ValueChecks::benchMark(int row) {
  const std::string& mark = grid_.text(row, colMark);
  const bool isNew = isNewPoint(grid_, row);
  if (!isNew) notSaved(row, {colNewHeight, colOldHeight, colDifference, colRate, colCorrection, colResult});
  notSaved(row + 1, {colOldDate, colDaysNewOld, colDaysReference});
  if (mark == route::routeEnd)
    resultAlone(row + 1);
  else if (mark == route::repeatedPoint)
    pair(row);
  else
    isNew ? newPoint(row) : section(row);
}

/// An ordinary section. Where a new point has parted it, it has no result of its own.
void ValueChecks::section(int row) {
  const int at = row + 1;
  const bool last = row + 2 >= grid_.rows();
  if (last && blank(at, colNewHeight) && blank(at, colOldHeight)) return resultAlone(at);
  if (isGap(at, colNewHeight) || isGap(at, colOldHeight)) return;
  if (!blank(at, colDifference)) return line(at, row, rounding);
  if (last || !isNewPoint(grid_, row + 2)) return notCalculated(at);
  resultAlone(at);
}

/// The second of two repeated points has the means of both runs in the section row below it, the first one
/// nothing.
void ValueChecks::pair(int row) {
  blank(row + 1, colDifference) ? resultAlone(row + 1) : line(row + 1, row, ofMeans);
}

void ValueChecks::newPoint(int row) {
  const int above = row - 1;
  const int below = row + 1;
  const bool last = row + 2 >= grid_.rows();
  if (!last && isGap(below, colNewHeight)) return;
  resultAlone(below);
  if (row == 1 || (blank(above, colNewHeight) && blank(above, colOldHeight))) return;
  const double combined = number(above, colNewHeight) + number(below, colNewHeight);
  if (std::abs(number(row, colNewHeight) - combined) > rounding * unit_)
    return differs(row, colNewHeight, combined, "前後の区間の和");
  if (blank(above, colOldHeight)) return;
  twoInOneSection(row);
  if (blank(row, colDifference) || number(row, colOldHeight) != number(above, colOldHeight))
    return notCalculated(row);
  line(row, row, rounding);
}

/// The old section that this point parts goes on to the next bench mark with an old date.
void ValueChecks::twoInOneSection(int row) {
  int next = row + 2;
  std::string points = grid_.text(row, colBenchMark);
  for (; next < grid_.rows() && isNewPoint(grid_, next) && !blank(next, colBenchMark); next += 2)
    points += "、" + grid_.text(next, colBenchMark);
  if (next == row + 2) return;
  const std::string to = next < grid_.rows() ? grid_.text(next, colBenchMark) : std::string();
  add(Severity::Error, row, colBenchMark,
      "旧区間 " + grid_.text(row - 2, colBenchMark) + "-" + to + " に新設点が " +
          std::to_string((next - row) / 2) + " 点あります(" + points + ")。" + grid_.text(row, colBenchMark) +
          " の行では、旧比高 " + grid_.text(row - 1, colOldHeight) +
          " m を新しい区間の二つだけと比べています。",
      "間の点を除いた一つの区間として観測成果に入れてください。");
}

/// True where a height difference is missing on a section row.
bool ValueChecks::isGap(int row, int col) {
  if (!blank(row, col)) return false;
  add(Severity::Error, row, col,
      route::placeName(grid_, row) + "に" + grid_.text(0, col) + "がありません。0 として計算されます。",
      "観測成果を直してください。");
  return true;
}

/// A row with values: its difference, daily change, correction and result against what they follow from.
/// `daysRow`: where its counts of days stand; `slack`: units that the difference may be off.
void ValueChecks::line(int row, int daysRow, double slack) {
  const Line line{row,
                  daysRow,
                  number(row, colNewHeight),
                  number(row, colDifference),
                  number(row, colRate),
                  number(row, colCorrection)};
  const double difference = line.newHeight - number(row, colOldHeight);
  if (std::abs(line.difference - difference) > slack * unit_)
    return differs(row, colDifference, difference, "新観測比高 − 旧観測比高");
  if (std::abs(line.rate) > bounds_.rate) fastRate(line);
  correction(line);
  sum(line);
}

void ValueChecks::fastRate(const Line& line) {
  add(Severity::Warning, line.row, colRate,
      route::placeName(grid_, line.row) + "の比高変化 " + grid_.text(line.row, colRate) + " m/日が限度 " +
          dailyChange().format(bounds_.rate) + " m/日を超えています(比高差 " +
          grid_.text(line.row, colDifference) + " m、新－旧 " + grid_.text(line.daysRow, colDaysNewOld) +
          " 日)。",
      "観測成果の日付と比高を確かめてください。");
}

/// Where no days lie between the epochs the daily change is that of the section before, which is known here
/// to three digits alone.
void ValueChecks::correction(const Line& line) {
  const double newOld = number(line.daysRow, colDaysNewOld);
  if (newOld == 0) return;
  const double rate = line.difference / newOld;
  if (std::abs(line.rate - rate) > ofThreeDigits * std::abs(rate) + smallestRate)
    findings_.push_back(route::changedByHand(grid_, line.row, colRate, dailyChange().format(rate)));
  if (blank(line.daysRow, colDaysReference)) return;
  const double computed = rate * number(line.daysRow, colDaysReference);
  if (std::abs(line.correction - computed) > rounding * unit_)
    findings_.push_back(route::changedByHand(grid_, line.row, colCorrection, metres(computed)));
}

void ValueChecks::sum(const Line& line) {
  const double total = line.newHeight + line.correction;
  if (!blank(line.row, colResult) && std::abs(number(line.row, colResult) - total) <= rounding * unit_)
    return;
  add(Severity::Error, line.row, colResult,
      route::placeName(grid_, line.row) + "の基準日比高「" + grid_.text(line.row, colResult) +
          "」は、新観測比高 " + grid_.text(line.row, colNewHeight) + " と変動補正量 " +
          grid_.text(line.row, colCorrection) + " の和 " + metres(total) + " ではありません。",
      "変動補正量のセルで Enter を押してください。");
  findings_.back().mark = ui::CellMark::NotTaken;
}

/// A result in a row without a section to be corrected, as Enter leaves it there.
void ValueChecks::resultAlone(int row) {
  if (blank(row, colResult) && blank(row, colCorrection)) return;
  const int col = blank(row, colResult) ? colCorrection : colResult;
  add(Severity::Error, row, col,
      route::placeName(grid_, row) + "には計算した補正がないのに、" + grid_.text(0, col) + "「" +
          grid_.text(row, col) + "」があります。このまま保存されます。",
      "路線を読み込み直してください。");
}

/// Values in the other row of their bench mark, which no calculation reads and no save keeps.
void ValueChecks::notSaved(int row, std::initializer_list<int> columns) {
  for (const int col : columns)
    if (!blank(row, col))
      add(Severity::Error, row, col,
          route::placeName(grid_, row) + "の行の" + grid_.text(0, col) + "「" + grid_.text(row, col) +
              "」は計算にも保存にも使われません。",
          col == colOldDate || col == colDaysNewOld || col == colDaysReference
              ? "水準点の行に入力してください。"
              : "区間の行に入力してください。");
}

void ValueChecks::notCalculated(int row) {
  add(Severity::Error, row, colDifference, route::placeName(grid_, row) + "はまだ計算していません。",
      calculateAgain);
  findings_.back().mark = ui::CellMark::NotTaken;
}

void ValueChecks::differs(int row, int col, double expected, std::string_view why) {
  add(Severity::Error, row, col,
      route::placeName(grid_, row) + "の" + grid_.text(0, col) + "「" + grid_.text(row, col) + "」が" +
          std::string(why) + " " + metres(expected) + " と違います。入力した値はまだ計算に入っていません。",
      calculateAgain);
  findings_.back().mark = ui::CellMark::NotTaken;
}

}  // namespace hend
