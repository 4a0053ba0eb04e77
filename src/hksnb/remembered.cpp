#include "hksnb/remembered.h"

#include "hksnb/columns.h"
#include "hksnb/data.h"
#include "hksnb/grid_set_up.h"

namespace hksnb {

const std::vector<BookPoint>& Remembered::points(const ui::Grid& grid) {
  std::vector<std::string> names;
  for (int row = 1; row < grid.rows(); row += 2)
    for (int col = 0; col <= colBenchMark; ++col) names.push_back(grid.text(row, col));
  if (names != names_) points_ = measuredPoints(grid, context_);
  names_ = std::move(names);
  return points_;
}

const ui::Grid& Remembered::book(Kind kind, const std::string& number) {
  std::unique_ptr<ui::Grid>& kept = books_[{kind, number}];
  if (kept != nullptr) return *kept;
  auto read = std::make_unique<ui::Grid>("book", nullptr);  // without a desk errors pass on
  FcHHKSB_InitGrid1(*read, kind);
  BookBoxes boxes;
  FcHHKSB_Reopen(context_, kind, number, boxes, *read);
  kept = std::move(read);
  return *kept;
}

void Remembered::forget() {
  names_.clear();
  points_.clear();
  books_.clear();
}

}  // namespace hksnb
