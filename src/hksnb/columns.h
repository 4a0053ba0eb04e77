#pragma once

#include "job/grade.h"
#include "text/pattern.h"

namespace hksnb {

/// The columns of the book grid. A bench mark stands on an odd row, its section to the next one on the even
/// row below it; the last bench mark has such a row too.
enum Column : int {
  colProject = 0,     ///< project number, like the four that follow only where it changes
  colRoute = 1,       ///< route number
  colPrefecture = 2,  ///< prefecture
  colCounty = 3,      ///< county or city
  colTown = 4,        ///< town or village
  colBenchMark = 5,   ///< bench-mark number; empty on section rows
  colHeight = 6,      ///< height before the correction (m); mean height difference of the section (m)
  colCorrection = 7,  ///< ellipsoidal book: correction of the bench mark (mm; 0.1 mm in first grade);
                      ///< orthometric book: correction of the section (mm; 0.1 mm in first grade)
  colPresent = 8,   ///< present result (m); orthometric book: corrected height difference of the section (m)
  colPrevious = 9,  ///< previous or averaged result (m), typed by the operator
  colVariation = 10,  ///< present minus previous result (mm)
  colRemark = 11,     ///< remark
  colEndMark = 14,    ///< hidden: "-1" at a route end; columns 12 and 13 stay empty
  columnCount = 15
};

/// Columns 0 to 4 name the place of a bench mark and are shown only where they change.
constexpr int placeColumns = 5;

/// The number patterns of a book.
struct Formats {
  const text::Pattern& heights;    ///< heights and height differences (m)
  const text::Pattern& variation;  ///< variation amounts (mm): one decimal in first grade, whole otherwise
};

/// The patterns of a grade; the column numbers stand above.
Formats FcHHKSB_DefToColNo(job::Grade grade);

}  // namespace hksnb
