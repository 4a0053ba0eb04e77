#include "tanrosen/bench_mark_rows.h"

#include <algorithm>

#include "tanrosen/columns.h"

namespace tanrosen {

BenchMarkRows::BenchMarkRows(const ui::Grid& grid, int stride) {
  rows_.reserve(static_cast<std::size_t>(grid.rows() / stride + 1));
  for (int row = 1; row < grid.rows(); row += stride) rows_[grid.text(row, colBenchMark)].push_back(row);
}

int BenchMarkRows::find(std::string_view number, int from) const {
  const auto found = rows_.find(number);
  if (found == rows_.end()) return 0;
  const auto row = std::lower_bound(found->second.begin(), found->second.end(), from);
  return row == found->second.end() ? 0 : *row;
}

}  // namespace tanrosen
