#include "tanrosen/bench_mark_rows.h"

#include <algorithm>

namespace tanrosen {

int BenchMarkRows::find(std::string_view number, int from) const {
  const auto found = rows_.find(number);
  if (found == rows_.end()) return 0;
  const auto row = std::lower_bound(found->second.begin(), found->second.end(), from);
  return row == found->second.end() ? 0 : *row;
}

}  // namespace tanrosen
