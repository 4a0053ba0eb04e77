#include "hksnb/calculation.h"

#include <cmath>
#include <string>
#include <string_view>

#include "hksnb/columns.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/error_trap.h"

namespace hksnb {
namespace {

const text::Pattern& tenthsOfMillimetre() {
  static const text::Pattern pattern("#0.0");
  return pattern;
}

const text::Pattern& wholeMillimetres() {
  static const text::Pattern pattern("#0");
  return pattern;
}

/// A difference of heights (m) in mm. What lies below a millionth of a millimetre is noise of the subtraction
/// and would spoil the rounding of halves.
double millimetres(double present, double previous) {
  constexpr double millionthsInMetre = 1e9;
  constexpr double millionthsInMillimetre = 1e6;
  return std::round((present - previous) * millionthsInMetre) / millionthsInMillimetre;
}

/// The amount against a previous height (m) as it is shown.
std::string amountFromShown(double present, std::string_view previous, const Formats& formats) {
  return formats.variation.format(millimetres(present, text::readNumber(previous)));
}

void setVariation(ui::Grid& Grid1, int row, const Formats& formats) {
  const std::string& previous = Grid1.text(row, colPrevious);
  if (text::trimmed(previous).empty()) {
    Grid1.setText(row, colVariation, {});
    return;
  }
  const double q = text::readNumber(previous);
  const double p = Grid1.number(row, colPresent);
  const std::string shown = formats.heights.format(q);
  Grid1.setText(row, colPrevious, shown);
  Grid1.setText(row, colVariation, amountFromShown(p, shown, formats));
}

}  // namespace

Formats FcHHKSB_DefToColNo(job::Grade grade) {
  return {grade.heights(), grade.isFirst() ? tenthsOfMillimetre() : wholeMillimetres()};
}

std::string variationAmount(double present, double previous, const Formats& formats) {
  return amountFromShown(present, formats.heights.format(previous), formats);
}

void FcHHKSB_HendryoCal(ui::Grid& Grid1, job::Grade grade) {
  ui::trapped(Grid1.desktop(), "FcHHKSB_HendryoCal", [&] {
    const Formats formats = FcHHKSB_DefToColNo(grade);
    for (int row = 1; row < Grid1.rows(); row += 2) setVariation(Grid1, row, formats);
  });
}

void HKsnbSetFcGrid1ToHyousekiNo(const ui::Grid& Grid1, ui::ListBox& LstHyousekiNo) {
  ui::trapped(Grid1.desktop(), "HKsnbSetFcGrid1ToHyousekiNo", [&] {
    LstHyousekiNo.clear();
    for (int row = 1; row < Grid1.rows(); ++row)
      if (!Grid1.text(row, colBenchMark).empty()) LstHyousekiNo.addItem(Grid1.text(row, colBenchMark));
  });
}

}  // namespace hksnb
