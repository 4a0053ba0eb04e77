#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tanrosen/columns.h"
#include "ui/grid.h"

namespace test {

/// Lays bench marks with their two rows into a single-route grid, one after another.
class RouteMaker {
 public:
  explicit RouteMaker(ui::Grid& grid) : grid_(grid) {
    grid_.setRows(1);
    grid_.setFixed(1, 0);
    grid_.setCols(tanrosen::columnCount);
  }

  /// `height`: observed, `known`: known height.
  RouteMaker& benchMark(std::string_view number, std::string_view distance, std::string_view height,
                        std::string_view known = {}, std::string_view flag = {}) {
    const int row = grid_.rows();
    grid_.setRows(row + 2);
    grid_.setText(row, tanrosen::colBenchMark, number);
    grid_.setText(row, tanrosen::colDistance, distance);
    grid_.setText(row, tanrosen::colHeight, height);
    grid_.setText(row, tanrosen::colResult, known);
    grid_.setText(row, tanrosen::colFlag, flag);
    return *this;
  }

 private:
  ui::Grid& grid_;
};

/// The texts of a column on the bench-mark rows, from the top.
inline std::vector<std::string> column(const ui::Grid& grid, int col) {
  std::vector<std::string> texts;
  for (int row = 1; row < grid.rows(); row += 2) texts.push_back(grid.text(row, col));
  return texts;
}

inline std::vector<std::string> corrections(const ui::Grid& grid) {
  return column(grid, tanrosen::colCorrection);
}

inline std::vector<std::string> results(const ui::Grid& grid) { return column(grid, tanrosen::colResult); }

}  // namespace test
