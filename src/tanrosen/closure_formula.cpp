#include "tanrosen/closure_formula.h"

#include "text/number.h"

namespace tanrosen {
namespace {

/// A number as the pattern shows it, read again.
double rounded(double value, const text::Pattern& pattern) { return text::readNumber(pattern.format(value)); }

}  // namespace

double closureError(double known, double observed, job::Grade grade) {
  return rounded(known - observed, grade.heights());
}

double shareInUnits(double change, double behind, double total, job::Grade grade) {
  return total == 0 ? 0 : text::roundHalfAway(change * behind / total * grade.factor(), 1);
}

double wholeUnits(double closure, job::Grade grade) {
  return text::Fix(rounded(closure * grade.factor(), grade.heights()));
}

double correctedHeight(double observed, double units, job::Grade grade) {
  return units / grade.factor() + observed;
}

}  // namespace tanrosen
