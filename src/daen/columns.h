#pragma once

namespace daen {

/// The columns of the route grid (Grid1). Bench marks stand on odd rows; the row below each carries the
/// segment to the next one and is empty below the last.
enum Column : int {
  colBenchMark = 0,   ///< bench-mark number
  colDistance = 1,    ///< on segment rows: distance to the next bench mark (km)
  colHeight = 2,      ///< height of the bench mark (m); on segment rows: mean height difference (m)
  colCorrection = 3,  ///< ellipsoidal correction (mm)
  colResult = 4,      ///< corrected height (m)
  colRemark = 5,      ///< remark of the bench mark; of the segment
  colDataForm = 6,    ///< data category
  colSaveOrder = 7,   ///< hidden: position in the route
  colEndMark = 8,     ///< hidden: "-1" at the last bench mark of a route
  colFlag = 9,        ///< hidden: route flag
  columnCount = 10
};

/// The columns of the section grid (Grid2): a row for each computed section, and one empty row at the end.
enum SectionColumn : int {
  secStartLatitude = 0,   ///< latitude of the start, degrees ° minutes
  secEndLatitude = 1,     ///< latitude of the end
  secStartBenchMark = 2,  ///< bench mark at the start
  secEndBenchMark = 3,    ///< bench mark at the end
  secB1 = 4,              ///< latitude of the start (minutes of arc)
  secB2 = 5,              ///< latitude of the end (minutes of arc)
  secDifference = 6,      ///< B1 − B2 (minutes of arc)
  secSum = 7,             ///< B1 + B2 (minutes of arc)
  secAccumulated = 8,     ///< correction accumulated up to the section's end (mm)
  secMeanHeight = 9,      ///< mean height of the section (m)
  secCorrection = 10,     ///< correction of the section alone (mm)
  sectionColumnCount = 11
};

}  // namespace daen
