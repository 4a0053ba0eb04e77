#include "tanrosen/bench_mark_rows.h"

#include <algorithm>

namespace tanrosen {

BenchMarkRows::BenchMarkRows(const std::vector<std::string>& numbers) {
  rows_.max_load_factor(0.25F);  // nearly every bench mark asked for is none of them
  rows_.reserve(numbers.size());
  for (const std::string& number : numbers) rows_[number];
}

std::vector<int>* BenchMarkRows::rowsOf(std::string_view number) {
  const auto found = rows_.find(number);
  return found == rows_.end() ? nullptr : &found->second;
}

int BenchMarkRows::find(std::string_view number, int from) const {
  const auto found = rows_.find(number);
  if (found == rows_.end()) return 0;
  const auto row = std::lower_bound(found->second.begin(), found->second.end(), from);
  return row == found->second.end() ? 0 : *row;
}

}  // namespace tanrosen
