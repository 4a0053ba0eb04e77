#pragma once

namespace tanrosen {

/// The columns of the single-route grid. Every bench mark has two rows: its own on an odd row, and below it
/// the row of its section to the next bench mark; at a route end that row is empty.
enum Column : int {
  colBenchMark = 0,   ///< bench-mark number; empty on section rows
  colDistance = 1,    ///< distance of the section that follows the bench mark, as the database holds it
  colHeight = 2,      ///< observed height of the bench mark (m); mean height difference of the section (m)
  colCorrection = 3,  ///< correction of the bench mark in correction units (mm; 0.1 mm in first grade)
  colResult = 4,      ///< corrected height of the bench mark (m); known height of a known point (m)
  colRemark = 5,      ///< remark
  colFlag = 6,        ///< hidden: route flag
  colRoute = 7,       ///< hidden: route number
  columnCount = 8
};

}  // namespace tanrosen
