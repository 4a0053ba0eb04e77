#pragma once

#include "job/grade.h"

namespace tanrosen {

// The formulas of a levelling line between known points. Sharing the closure error out by distance is the
// adjustment of the line with weights 1 / distance, as the Regulations for Public Surveys have it
// (作業規程の準則, 第70条) and Ghilani: Adjustment Computations, derives it in the chapter on differential
// levelling. Corrections are rounded to whole units of the grade: 0.1 mm in first grade, mm otherwise.

/// Closure error (m): known height − observed height, both in m, in the decimals of the grade.
double closureError(double known, double observed, job::Grade grade);

/// The share of a change of closure error, `change` (m), that falls to a bench mark which lies `behind` of
/// `total` from the known point before (both in one unit of length): whole units, halves away from zero. 0
/// where `total` is 0.
double shareInUnits(double change, double behind, double total, job::Grade grade);

/// A closure error (m) as it stands at its known point: cut off to whole units.
double wholeUnits(double closure, job::Grade grade);

/// The corrected height (m) that `units` lead to from the observed height (m).
double correctedHeight(double observed, double units, job::Grade grade);

}  // namespace tanrosen
