#include "tanrosen/tables.h"

#include "route/grid_table.h"
#include "route/heading.h"
#include "route/profile.h"
#include "tanrosen/check_formulas.h"
#include "tanrosen/closure_table.h"
#include "tanrosen/columns.h"
#include "text/pattern.h"

namespace tanrosen {
namespace {

using report::Side;

report::Table closuresOf(const std::vector<ClosureSegment>& segments) {
  report::Table table{"閉合差",
                      {{"区間", "", Side::Left, true},
                       {"距離 S", "km", Side::Point, false},
                       {"閉合差", "mm", Side::Point, false},
                       {"許容範囲", "mm", Side::Point, false},
                       {"判定", "", Side::Middle, false}},
                      {}};
  const text::Pattern tenths("#0.0");
  const text::Pattern kilometres("#0.000");
  for (const ClosureSegment& segment : segments)
    table.rows.push_back(
        {{segment.from + " ～ " + segment.to, kilometres.format(segment.kilometres),
          tenths.format(segment.closure), tenths.format(segment.allowed), segment.kept() ? "良" : "超過"},
         false,
         false});
  return table;
}

}  // namespace

report::Document tables(const ui::Grid& grid, const TableInput& input) {
  const std::vector<report::Column> columns = {
      {"水準点", "", Side::Left, false},
      {"距離", "km", Side::Point, false},
      {"標高", "m", Side::Point, false},
      {"補正数", route::correctionUnit(input.grade), Side::Point, false},
      {"補正結果", "m", Side::Point, false},
      {"備考", "", Side::Left, true}};
  report::Document document;
  document.title = "単路線閉合差補正計算";
  document.parts = route::gridParts({grid, columns, colBenchMark, colFlag, colRoute}, input.route);
  document.parts.back().items.emplace_back(
      closuresOf(closureTable(grid, input.knownPoints, input.grade, input.dataKubun, input.tolerances)));
  document.check = checkFormulas(grid, input);
  return document;
}

report::Diagram profile(const ui::Grid& grid, job::Grade grade) {
  route::ProfileLook look;
  look.endCol = colFlag;
  look.distanceCol = colDistance;
  look.heightCol = colHeight;
  look.correctionCol = colCorrection;
  look.correctionUnit = route::correctionUnit(grade);
  look.decimals = grade.isFirst() ? 4 : 3;
  return route::profileOf(grid, look);
}

}  // namespace tanrosen
