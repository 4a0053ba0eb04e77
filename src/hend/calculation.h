#pragma once

#include <string>
#include <string_view>

#include "job/grade.h"
#include "text/error.h"
#include "text/pattern.h"
#include "ui/grid.h"

namespace hend {

/// A text that should have been a date and is none: a TypeMismatch that knows where the text stands.
class WrongDate : public text::RuntimeError {
 public:
  /// `description`: complete and in Japanese. `place`: the cell with the text; row 0 for the reference date.
  WrongDate(const std::string& description, ui::CellPlace place)
      : RuntimeError(text::ErrorCode::TypeMismatch, description), place_(place) {}

  /// The cell that holds the text; row 0 where it is the reference date.
  const ui::CellPlace& place() const { return place_; }

 private:
  ui::CellPlace place_;
};

/// Works the variation correction over the whole grid (hend/columns.h): carries each section's new height
/// difference by its daily change to the reference date, whose text `referenceDate` is; blank for none.
///
/// On every bench-mark row the days between the observations and to the reference date are counted, as far as
/// the dates are there. Of an ordinary bench mark with an old date the section row below takes
///   difference = new − old, daily change = difference / days new − old,
///   correction = daily change × days reference − new, result = new + correction,
/// the correction rounded to the grade's decimals before it is added (m, days, m per day). Where no days lie
/// between the observations, the daily change of the section before is used again; where a count of days is
/// not made, the count before it. All start from 0 in every call.
///
/// A newly established point (isNewPoint) to which a section leads takes in its own row the combined section:
/// the new differences of the two sections beside it added, counted at the date halfway between the new dates
/// of the bench mark before and its own (written on the section row above), and compared with the old
/// difference on the section row above where there is one. Where the point parts an old section in two, half
/// a section against a whole one is no result: what was computed for the section row above is taken back. It
/// parts one where that section begins at an ordinary bench mark and the old observation goes on below.
///
/// Of a route run forward ("…F") and backward ("…B"), each run ended by a repeated point ("-2"), the second
/// of these points takes the means of both runs in its own row (days) and the section row below it (height
/// differences, rounded to the grade's unit, halves upwards), and what follows from the means.
///
/// The row counter moves the current cell along. Raises WrongDate where a date is needed and a text is none;
/// the error names the text with its bench mark and column, or as the reference date.
void FcHendCalc(ui::Grid& grid, std::string_view referenceDate, job::Grade grade);

/// The result of row `row` anew after its correction was typed: new height difference plus correction (m), in
/// the grade's pattern.
void FcHendCalcResult(ui::Grid& grid, int row, job::Grade grade);

/// True for a newly established point: the bench-mark row of an ordinary bench mark without an old date.
bool isNewPoint(const ui::Grid& grid, int row);

/// How the daily change is shown: "0.00E+00" in every grade.
const text::Pattern& dailyChange();

}  // namespace hend
