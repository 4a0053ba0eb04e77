#include "tanrosen/section_distances.h"

#include <limits>
#include <utility>

#include "route/runs.h"
#include "route/selection.h"
#include "tanrosen/columns.h"
#include "text/number.h"

namespace tanrosen {

Points pointsOf(std::string_view dataKubun) {
  return dataKubun == "0" || dataKubun == "4" ? Points::Every : Points::EverySecond;
}

bool startsForwardRun(const ui::Grid& grid, int row) {
  return row + runApart < grid.rows() && grid.text(row + 2, colFlag) == route::repeatedPoint &&
         route::samePoint(grid.text(row, colBenchMark), grid.text(row + runApart, colBenchMark));
}

double sectionDistance(const ui::Grid& grid, int row, Points points) {
  const double held = grid.number(row, colDistance);
  return points == Points::Every && startsForwardRun(grid, row) ? 0 : held;
}

SectionDistances::SectionDistances(int rows, int stride, Read read)
    : rows_(rows),
      stride_(stride),
      read_(std::move(read)),
      held_(static_cast<std::size_t>(rows / 2 + 1), std::numeric_limits<double>::quiet_NaN()) {}

double SectionDistances::toTheEnd(int start) {
  const int last = (rows_ - 2) / stride_ * stride_ + 1;
  if (start > last || rows_ < 2) return 0;
  text::toInt16(last + stride_);
  if (sums_.empty()) sumUp(last);
  return sums_[static_cast<std::size_t>(start)];
}

void SectionDistances::sumUp(int last) {
  sums_.resize(static_cast<std::size_t>(last + stride_ + 1));
  for (int row = last; row > 0; row -= stride_)
    sums_[static_cast<std::size_t>(row)] = of(row) + sums_[static_cast<std::size_t>(row + stride_)];
}

}  // namespace tanrosen
