#pragma once

namespace hend {

/// The columns of the variation grid. A bench mark stands on an odd row, its section to the next one on the
/// row below; the bench mark at a route end has such a row too, without values.
enum Column : int {
  colBenchMark = 0,   ///< 水準点: bench-mark number; empty on section rows
  colNewDate = 1,     ///< 新観測年月日: date of the new observation, "YYYY/MM/DD"
  colNewHeight = 2,   ///< 新観測比高: new observed height difference (m)
  colOldDate = 3,     ///< 旧観測年月日: date of the old observation; blank at a newly established point
  colOldHeight = 4,   ///< 旧観測比高: old observed height difference (m)
  colDifference = 5,  ///< 比高差: new minus old height difference (m)
  colDaysNewOld = 6,  ///< 新－旧: days from the old to the new observation
  colRate = 7,        ///< 比高変化: change of the height difference in a day (m)
  colDaysReference = 8,  ///< 基－新: days from the new observation to the reference date
  colCorrection = 9,     ///< 変動補正量: variation correction (m)
  colResult = 10,        ///< 基準日比高: height difference at the reference date (m)
  colRemark = 11,        ///< 備考: remark
  colOrder = 12,         ///< hidden: SaveOrder of the bench mark
  colCategory = 13,      ///< データ形式: data category
  colMark = 14,          ///< hidden: kind of the bench mark: "", "-1" route end, "-2" repeated point
  columnCount = 15
};

}  // namespace hend
