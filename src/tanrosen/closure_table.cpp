#include "tanrosen/closure_table.h"

#include "tanrosen/columns.h"

namespace tanrosen {
namespace {

constexpr double millimetresInOne = 1000;  // metre

ClosureSegment segment(const ui::Grid& grid, const LevellingLine& line, std::size_t from, std::size_t to,
                       const route::Tolerance& tolerance) {
  const LinePoint& upper = line.points[from];
  const LinePoint& lower = line.points[to];
  ClosureSegment segment;
  segment.fromRow = upper.row;
  segment.toRow = lower.row;
  segment.from = grid.text(upper.row, colBenchMark);
  segment.to = grid.text(lower.row, colBenchMark);
  segment.loop = segment.from == segment.to;
  for (std::size_t i = from; i < to; ++i) segment.kilometres += line.points[i].distance;
  segment.closure = (lower.closure - upper.closure) * millimetresInOne;
  segment.allowed = route::allowed(segment.loop ? tolerance.loop : tolerance.misclosure, segment.kilometres);
  return segment;
}

}  // namespace

std::vector<ClosureSegment> segmentsOf(const ui::Grid& grid, const LevellingLine& line,
                                       const route::Tolerance& tolerance) {
  std::vector<ClosureSegment> segments;
  const std::vector<std::size_t> fixed = line.fixedPoints();
  for (std::size_t k = 1; k < fixed.size(); ++k)
    segments.push_back(segment(grid, line, fixed[k - 1], fixed[k], tolerance));
  return segments;
}

std::vector<ClosureSegment> closureTable(const ui::Grid& grid, const std::vector<std::string>& knownPoints,
                                         job::Grade grade, std::string_view dataKubun,
                                         const route::Tolerances& tolerances) {
  std::vector<ClosureSegment> table;
  for (const LevellingLine& line : levellingLines(grid, knownPoints, grade, pointsOf(dataKubun))) {
    const auto segments = segmentsOf(grid, line, tolerances.of(grade));
    table.insert(table.end(), segments.begin(), segments.end());
  }
  return table;
}

}  // namespace tanrosen
