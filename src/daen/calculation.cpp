#include "daen/calculation.h"

#include <cmath>
#include <numeric>
#include <string_view>
#include <vector>

#include "daen/columns.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/grid_helpers.h"

namespace daen {
namespace {

constexpr double coefficient = 5.28;  // mm for a metre of height and a radian of latitude
constexpr double millimetres = 1000;  // in a metre
constexpr double tenths = 10;         // of a millimetre or metre in a whole one

std::string_view trimmedText(const ui::Grid& grid, int row, int col) {
  return text::trimmed(grid.text(row, col));
}

/// Rounded to a tenth, half away from zero.
double toTenths(double value) { return text::roundHalfAway(value, tenths); }

double latitude(const std::string& degrees, const std::string& minutes) {
  return text::readNumber(degrees) + text::readNumber(minutes) / 60;
}

int lastBenchMarkRow(const ui::Grid& grid) { return grid.rows() / 2 * 2 - 1; }

/// The rows of the bench marks at the ends of a section.
struct Ends {
  int start = 0;
  int end = 0;
};

/// The first row of each, 0 where there is none.
Ends endsOf(const ui::Grid& grid, const Section& section) {
  const std::string_view startBenchMark = text::trimmed(section.startBenchMark);
  const std::string_view endBenchMark = text::trimmed(section.endBenchMark);
  Ends ends;
  for (int row = 1; row < grid.rows() && (ends.start == 0 || ends.end == 0); row += 2) {
    const std::string_view benchMark = trimmedText(grid, row, colBenchMark);
    if (ends.start == 0 && benchMark == startBenchMark) ends.start = row;
    if (ends.end == 0 && benchMark == endBenchMark) ends.end = row;
  }
  return ends;
}

/// The bench marks of a section in the route grid, in the direction in which it runs.
class Stretch {
 public:
  Stretch(int start, int end) : start_(start), end_(end), step_(start < end ? 1 : -1) {}

  bool forward() const { return step_ > 0; }
  int start() const { return start_; }
  bool holds(int row) const { return forward() ? row <= end_ : row >= end_; }
  int next(int row) const { return row + 2 * step_; }
  /// The row of the segment that leaves a bench mark in this direction.
  int segment(int row) const { return row + step_; }

  double meanHeight(const ui::Grid& grid) const {
    double sum = 0;
    int count = 0;
    for (int row = start_; holds(row); row = next(row), ++count) sum += grid.number(row, colHeight);
    return text::roundHalfUp(std::abs(sum / count), tenths);
  }

  /// The distances (km) whose sum the shares are measured against; backward they reach one segment beyond the
  /// end.
  std::vector<double> distances(const ui::Grid& grid) const {
    std::vector<double> result;
    for (int row = start_; forward() ? row < end_ : row >= end_; row = next(row))
      result.push_back(grid.number(segment(row), colDistance));
    return result;
  }

  bool isEnd(int row) const { return row == end_; }

 private:
  int start_;
  int end_;
  int step_;
};

/// What stands at the start of a section.
struct Start {
  double shown = 0;  ///< R, the correction of the start bench mark (mm)
  double base = 0;   ///< B, what the shares of the section are added to (mm)
};

Start startOf(const ui::Grid& Grid1, int startRow, const ui::Grid& Grid2, const std::string& reference) {
  const double taken = text::readNumber(reference);
  if (Grid2.rows() == 3) return {taken, taken};
  const int before = Grid2.rows() - 3;
  const double base = Grid2.number(before, secAccumulated);
  const bool joins =
      trimmedText(Grid2, before, secEndBenchMark) == trimmedText(Grid1, startRow, colBenchMark);
  return {joins ? base : 0, base};
}

/// The corrected height takes the correction as it is shown.
void writeResult(ui::Grid& grid, int row, double correction, const Formats& formats) {
  grid.setText(row, colCorrection, formats.correction.format(correction));
  const double height = grid.number(row, colCorrection) / millimetres + grid.number(row, colHeight);
  grid.setText(row, colResult, formats.height.format(height));
}

/// The part of a section that lies behind; backward without any distance it is none.
double share(double covered, double total, bool forward) {
  if (total != 0) return covered / total;
  if (forward) throw text::RuntimeError(text::ErrorCode::DivisionByZero);
  return 0;
}

void distribute(ui::Grid& grid, const Stretch& stretch, double correction, double base,
                const Formats& formats) {
  const std::vector<double> distances = stretch.distances(grid);
  const double total = std::accumulate(distances.begin(), distances.end(), 0.0);
  auto distance = distances.begin();
  double covered = 0;
  for (int row = stretch.start(); !stretch.isEnd(row); row = stretch.next(row)) {
    covered += *distance++;
    const double value = share(covered, total, stretch.forward()) * correction;
    writeResult(grid, stretch.next(row), toTenths(value) + base, formats);
  }
}

}  // namespace

Formats FcDaenInit(job::Grade grade) {
  const text::Pattern& heights = grade.heights();
  return {text::Pattern(grade.isFirst() ? "##0.0" : "##0"), heights, text::Pattern("###0.000"), heights,
          heights};
}

void FcDaenHoseichi(double startLatitude, double endLatitude, double height, double& correction) {
  const double r1 = text::FcDegToRad(startLatitude);
  const double r2 = text::FcDegToRad(endLatitude);
  const double rho = 180.0 / (4.0 * std::atan(1.0));
  correction = std::sin(r2 + r1) * coefficient * (startLatitude - endLatitude) * (1 / rho) * height;
}

bool FcSeiDaenCal(ui::Grid& Grid1, ui::Grid& Grid2, const Section& section, const Formats& formats,
                  const std::function<void(const SectionValues&)>& show) {
  const auto [start, end] = endsOf(Grid1, section);
  ui::FcGridMoveRow(Grid1, end != 0 ? end : lastBenchMarkRow(Grid1));
  if (start == end || start == 0 || end == 0) return false;
  const Stretch stretch(start, end);
  SectionValues values;
  values.meanHeight = stretch.meanHeight(Grid1);
  FcDaenHoseichi(latitude(section.startDegrees, section.startMinutes),
                 latitude(section.endDegrees, section.endMinutes), values.meanHeight, values.correction);
  values.correction = toTenths(values.correction);
  show(values);
  FcDaenSetGrid2Row(Grid2, section, values);
  const Start from = startOf(Grid1, start, Grid2, section.reference);
  writeResult(Grid1, start, from.shown, formats);
  distribute(Grid1, stretch, values.correction, from.base, formats);
  return true;
}

}  // namespace daen
