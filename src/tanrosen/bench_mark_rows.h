#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace tanrosen {

/// Grid rows by the bench-mark number that stands on them. The texts of the numbers must outlive it.
class BenchMarkRows {
 public:
  /// Takes in a row; rows come from the top.
  void add(std::string_view number, int row) { rows_[number].push_back(row); }

  /// The first row at or below `from` with that number; 0 where there is none.
  int find(std::string_view number, int from) const;

 private:
  std::unordered_map<std::string_view, std::vector<int>> rows_;  // of a number, from the top
};

}  // namespace tanrosen
