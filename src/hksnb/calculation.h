#pragma once

#include <string>
#include <string_view>

#include "hksnb/columns.h"
#include "hksnb/kind.h"
#include "hksnb/place_names.h"
#include "job/grade.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace hksnb {

// What is done to a filled book grid (hksnb/columns.h). Each traps its errors under its own name on the
// grid's desktop; with a grid that stands on no desktop the error passes to the caller.

/// Works out the variation amount of every bench mark: present minus previous result, in millimetres in the
/// grade's pattern. The previous result is put into the heights pattern and counts as it reads then, so that
/// working them out again changes nothing; where it is blank, so is the amount. A text that is no number
/// counts as 0.
void FcHHKSB_HendryoCal(ui::Grid& Grid1, job::Grade grade);

/// The variation amount (mm) of two heights (m) in the grade's pattern; the previous one counts as the
/// heights pattern shows it. Raises Overflow where the difference is no number.
std::string variationAmount(double present, double previous, const Formats& formats);

/// Turns the span between two bench marks (`startNo` and `endNo` in either order) so that its last comes
/// first. Of bench marks with the same number the lowest counts; a number that is blank or not in the grid
/// does nothing.
///
/// Bench marks and sections move with all they show. Place names travel with their bench marks as `places`
/// remembers them and are shown where they change. The sections are walked the other way now: mean
/// difference, correction and, in an orthometric book, corrected difference change their sign and take the
/// heights pattern. In an orthometric book the heights (columns 6 and 8) of the span are summed up anew, on
/// from the bench mark above it; where there is none the bench mark that comes first keeps its own. Blank
/// cells stay blank, blank section values count as 0. Heights below the span stay. The mark of a route end
/// (column 14) stays on its row.
///
/// Raises Subscript for a grid of more than 1001 rows, the header included: the size limit of a book that can
/// be turned.
void HKsnbSetFcSortToGrid1(ui::Grid& Grid1, const PlaceNames& places, std::string_view startNo,
                           std::string_view endNo, Kind kind, job::Grade grade);

/// Lists the bench marks of the grid in their order.
void HKsnbSetFcGrid1ToHyousekiNo(const ui::Grid& Grid1, ui::ListBox& LstHyousekiNo);

}  // namespace hksnb
