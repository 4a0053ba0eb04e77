#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tanrosen {

/// The grid rows on which bench marks of some numbers stand.
class BenchMarkRows {
 public:
  /// Awaits the bench marks of these numbers, which must outlive it.
  explicit BenchMarkRows(const std::vector<std::string>& numbers);

  /// The list that takes in the rows of a number, from the top; null where that number is not awaited.
  std::vector<int>* rowsOf(std::string_view number);

  /// The first row at or below `from` with that number; 0 where there is none.
  int find(std::string_view number, int from) const;

 private:
  std::unordered_map<std::string_view, std::vector<int>> rows_;  // of a number, from the top
};

}  // namespace tanrosen
