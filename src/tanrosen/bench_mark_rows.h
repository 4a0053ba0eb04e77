#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include "ui/grid.h"

namespace tanrosen {

/// The rows 1, 1 + stride, 1 + 2 × stride … of a grid, found by the bench-mark number in column 0. As long as
/// it lives, column 0 of the grid must not change.
class BenchMarkRows {
 public:
  BenchMarkRows(const ui::Grid& grid, int stride);

  /// The first of these rows at or below `from` with that number; 0 where there is none.
  int find(std::string_view number, int from) const;

 private:
  std::unordered_map<std::string_view, std::vector<int>> rows_;  // of a number, from the top
};

}  // namespace tanrosen
