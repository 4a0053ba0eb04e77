#include "daen/calculation.h"
#include "daen/columns.h"
#include "text/number.h"
#include "text/padding.h"

namespace daen {
namespace {

const text::Pattern& tenths() {
  static const text::Pattern pattern("#0.0");
  return pattern;
}

const text::Pattern& tenthsOrHundredths() {
  static const text::Pattern pattern("#0.0#");
  return pattern;
}

/// A latitude in minutes of arc.
double inMinutes(const std::string& degrees, const std::string& minutes) {
  return text::readNumber(degrees) * 60 + text::readNumber(minutes);
}

bool isSection(const ui::Grid& grid, int row, const Section& section) {
  return text::trimmed(grid.text(row, secStartBenchMark)) == text::trimmed(section.startBenchMark) &&
         text::trimmed(grid.text(row, secEndBenchMark)) == text::trimmed(section.endBenchMark);
}

/// Takes out what was computed for the section before. The last row is the empty one.
void removeSection(ui::Grid& grid, const Section& section) {
  for (int row = grid.rows() - 2; row >= 1; --row)
    if (isSection(grid, row, section)) grid.removeItem(row);
}

void writeLatitudes(ui::Grid& grid, int row, const Section& section) {
  const double b1 = inMinutes(section.startDegrees, section.startMinutes);
  const double b2 = inMinutes(section.endDegrees, section.endMinutes);
  grid.setText(row, secStartLatitude, latitudeText(section.startDegrees, section.startMinutes));
  grid.setText(row, secEndLatitude, latitudeText(section.endDegrees, section.endMinutes));
  grid.setText(row, secB1, tenthsOrHundredths().format(b1));
  grid.setText(row, secB2, tenthsOrHundredths().format(b2));
  grid.setText(row, secDifference, tenthsOrHundredths().format(b1 - b2));
  grid.setText(row, secSum, tenthsOrHundredths().format(b1 + b2));
}

void accumulate(ui::Grid& grid, const std::string& reference) {
  double above = text::readNumber(reference);
  for (int row = 1; row < grid.rows() - 1; ++row) {
    const double own = grid.number(row, secCorrection);
    grid.setText(row, secAccumulated, tenthsOrHundredths().format(own + above));
    above = grid.number(row, secAccumulated);
  }
}

}  // namespace

std::string latitudeText(std::string_view degrees, std::string_view minutes) {
  return std::string(text::trimmed(degrees)) + "°" + std::string(text::trimmed(minutes));
}

void FcDaenSetGrid2Row(ui::Grid& Grid2, const Section& section, const SectionValues& values) {
  removeSection(Grid2, section);
  const int row = Grid2.rows() - 1;
  Grid2.addItem({}, row);
  writeLatitudes(Grid2, row, section);
  Grid2.setText(row, secStartBenchMark, text::trimmed(section.startBenchMark));
  Grid2.setText(row, secEndBenchMark, text::trimmed(section.endBenchMark));
  Grid2.setText(row, secMeanHeight, tenths().format(values.meanHeight));
  Grid2.setText(row, secCorrection, tenths().format(values.correction));
  accumulate(Grid2, section.reference);
}

}  // namespace daen
