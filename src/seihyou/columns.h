#pragma once

namespace seihyou {

/// The columns of the orthometric grid. A bench mark stands on one row, its section to the next one on the
/// row below; the bench mark at a route end has no section row.
enum Column : int {
  colBenchMark = 0,  ///< bench-mark number; empty on section rows
  colHeight = 1,     ///< observed height of the bench mark (m); mean height difference of the section (m)
  colCorrection =
      2,          ///< on section rows: orthometric correction in correction units (mm; 0.1 mm in first grade)
  colResult = 3,  ///< corrected height of the bench mark (m); corrected height difference of the section (m)
  colRemark = 4,  ///< remark
  colFlag = 5,    ///< hidden: route flag
  colRoute = 6,   ///< hidden: route number
  columnCount = 7
};

}  // namespace seihyou
