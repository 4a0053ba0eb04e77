#pragma once

#include <string_view>

#include "seihyou/columns.h"
#include "ui/grid.h"

namespace test {

/// Lays bench marks and sections into an orthometric grid, row after row.
class GridMaker {
 public:
  explicit GridMaker(ui::Grid& grid) : grid_(grid) {
    grid_.setRows(1);
    grid_.setFixed(1, 0);
    grid_.setCols(seihyou::columnCount);
  }

  GridMaker& benchMark(std::string_view number, std::string_view result = {}, std::string_view flag = {}) {
    const int row = addRow();
    grid_.setText(row, seihyou::colBenchMark, number);
    grid_.setText(row, seihyou::colResult, result);
    grid_.setText(row, seihyou::colFlag, flag);
    return *this;
  }

  GridMaker& section(std::string_view meanDifference, std::string_view correction = {}) {
    const int row = addRow();
    grid_.setText(row, seihyou::colHeight, meanDifference);
    grid_.setText(row, seihyou::colCorrection, correction);
    return *this;
  }

 private:
  int addRow() {
    grid_.setRows(grid_.rows() + 1);
    return grid_.rows() - 1;
  }

  ui::Grid& grid_;
};

}  // namespace test
