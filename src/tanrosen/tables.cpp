#include "tanrosen/tables.h"

#include <cmath>

#include "route/grid_table.h"
#include "route/heading.h"
#include "route/profile.h"
#include "tanrosen/closure.h"
#include "tanrosen/columns.h"
#include "text/number.h"
#include "text/pattern.h"

namespace tanrosen {
namespace {

using report::Side;

/// The misclosure allowed between known points is this many mm times the root of the distance in km.
double toleranceFactor(job::Grade grade) { return grade.tokyu() >= 4 ? 25 : 15; }

report::Table closureTable(const std::vector<Segment>& segments, job::Grade grade) {
  report::Table table{"閉合差",
                      {{"区間", "", Side::Left, true},
                       {"距離 S", "km", Side::Point, false},
                       {"閉合差", "mm", Side::Point, false},
                       {"許容範囲", "mm", Side::Point, false},
                       {"判定", "", Side::Middle, false}},
                      {}};
  const text::Pattern tenths("#0.0");
  const text::Pattern kilometres("#0.000");
  for (const Segment& segment : segments) {
    const double closure = text::roundHalfAway(segment.closure * 1000, 10);
    const double allowed = toleranceFactor(grade) * std::sqrt(segment.distance);
    table.rows.push_back(
        {{segment.from + " ～ " + segment.to, kilometres.format(segment.distance), tenths.format(closure),
          tenths.format(allowed), std::abs(closure) <= allowed ? "良" : "超過"},
         false,
         false});
  }
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
  Closures closures = closuresOf(grid, input);
  document.parts.back().items.emplace_back(closureTable(closures.segments, input.grade));
  document.check = std::move(closures.check);
  return document;
}

report::Diagram profile(const ui::Grid& grid, job::Grade grade) {
  route::ProfileLook look;
  look.distanceCol = colDistance;
  look.heightCol = colHeight;
  look.correctionCol = colCorrection;
  look.correctionUnit = route::correctionUnit(grade);
  look.decimals = grade.isFirst() ? 4 : 3;
  return route::profileOf(grid, look);
}

}  // namespace tanrosen
