#include "hksnb/remembered.h"

#include "hksnb/columns.h"
#include "hksnb/data.h"
#include "hksnb/grid_set_up.h"

namespace hksnb {

namespace {

constexpr int namingColumns = colBenchMark + 1;

std::size_t place(int row, int col) { return static_cast<std::size_t>(row / 2 * namingColumns + col); }

bool same(const std::vector<std::string>& names, const ui::Grid& grid) {
  if (names.size() != place(grid.rows(), 0)) return false;
  for (int col = 0; col < namingColumns; ++col)
    for (int row = 1; row < grid.rows(); row += 2)
      if (names[place(row, col)] != grid.text(row, col)) return false;
  return true;
}

}  // namespace

/// Forgets what was read for other bench marks than those in the grid.
void Remembered::look(const ui::Grid& grid) {
  if (same(names_, grid)) return;
  points_.reset();
  saved_.reset();
  names_.assign(place(grid.rows(), 0), {});
  for (int row = 1; row < grid.rows(); row += 2)
    for (int col = 0; col < namingColumns; ++col) names_[place(row, col)] = grid.text(row, col);
}

const std::vector<BookPoint>& Remembered::points(const ui::Grid& grid) {
  look(grid);
  if (!points_) points_ = measuredPoints(grid, context_);
  return *points_;
}

const SavedResults& Remembered::saved(const ui::Grid& grid, Kind kind) {
  look(grid);
  if (!saved_) saved_ = savedResults(grid, kind, context_);
  return *saved_;
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
  points_.reset();
  saved_.reset();
  books_.clear();
}

}  // namespace hksnb
