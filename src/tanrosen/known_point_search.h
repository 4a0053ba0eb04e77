#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tanrosen/bench_mark_rows.h"
#include "tanrosen/section_distances.h"
#include "ui/grid.h"

namespace tanrosen {

/// True where `name` stands on a row that may be a known point: any row with that bench mark, but where every
/// bench mark is a point no repeated one ("-2") without a known height; the one with the mean of both runs is
/// meant then.
bool mayBeKnownPoint(const ui::Grid& grid, int row, Points points);

/// Finds known points on their way down the grid. In the order of the route they are met one after another;
/// when one is missed, the rows of all are listed, so that many of them out of order cost no more.
class KnownPointSearch {
 public:
  /// `names`: the known points; they and the grid must outlive this object.
  KnownPointSearch(const ui::Grid& grid, Points points, const std::vector<std::string>& names)
      : grid_(grid), points_(points), names_(names) {}

  /// The first row of that known point at `from`, which is the row of a point, or at a point below it; 0
  /// where there is none.
  int find(const std::string& name, int from);

 private:
  void list(int from);

  const ui::Grid& grid_;
  const Points points_;
  const std::vector<std::string>& names_;
  std::optional<BenchMarkRows> listed_;  // from the first miss on
};

}  // namespace tanrosen
