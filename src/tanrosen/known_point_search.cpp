#include "tanrosen/known_point_search.h"

#include "route/selection.h"
#include "tanrosen/columns.h"

namespace tanrosen {

bool mayBeKnownPoint(const ui::Grid& grid, int row, Points points) {
  return points != Points::Every || grid.text(row, colFlag) != route::repeatedPoint ||
         !grid.text(row, colResult).empty();
}

int KnownPointSearch::find(const std::string& name, int from) {
  if (listed_) return listed_->find(name, from);
  for (int row = from; row < grid_.rows(); row += stride(points_))
    if (grid_.text(row, colBenchMark) == name && mayBeKnownPoint(grid_, row, points_)) return row;
  list(from);
  return 0;
}

void KnownPointSearch::list(int from) {
  listed_.emplace(names_);
  for (int row = from; row < grid_.rows(); row += stride(points_)) {
    std::vector<int>* const rows = listed_->rowsOf(grid_.text(row, colBenchMark));
    if (rows != nullptr && mayBeKnownPoint(grid_, row, points_)) rows->push_back(row);
  }
}

}  // namespace tanrosen
