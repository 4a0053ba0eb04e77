#include "route/filler.h"

#include "ui/grid_helpers.h"

namespace route {

bool RowPairs::addBenchMark() {
  benchMarkRow_ = ++row_;
  return ui::FcGridMoveRow(grid_, row_);
}

bool RowPairs::addSection() {
  sectionRow_ = ++row_;
  return ui::FcGridMoveRow(grid_, row_);
}

}  // namespace route
