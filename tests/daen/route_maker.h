#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "daen/columns.h"
#include "ui/grid.h"

namespace test {

/// A route grid and a section grid as the ellipsoidal screen sets them up, filled in plain words.
class DaenGrids {
 public:
  DaenGrids() {
    setUp(route, 3, daen::columnCount);
    setUp(sections, 2, daen::sectionColumnCount);
  }

  /// Adds a bench mark with its height and the distance of the segment behind it.
  void benchMark(std::string_view number, std::string_view height, std::string_view distance = {}) {
    const int row = next_;
    next_ += 2;
    if (route.rows() < next_) route.setRows(next_);
    route.setText(row, daen::colBenchMark, number);
    route.setText(row, daen::colHeight, height);
    route.setText(row + 1, daen::colDistance, distance);
  }

  /// The given columns of a row, joined with "|".
  static std::string cells(const ui::Grid& grid, int row, int first, int last) {
    std::string line = grid.text(row, first);
    for (int col = first + 1; col <= last; ++col) line += "|" + grid.text(row, col);
    return line;
  }

  /// Correction and corrected height of a bench-mark row.
  std::string result(int row) const { return cells(route, row, daen::colCorrection, daen::colResult); }
  /// Bench marks, accumulated correction, mean height and correction of a section row.
  std::string sectionResult(int row) const {
    return cells(sections, row, daen::secStartBenchMark, daen::secEndBenchMark) + "|" +
           cells(sections, row, daen::secAccumulated, daen::secCorrection);
  }

  ui::Grid route{"Grid1"};
  ui::Grid sections{"Grid2"};

 private:
  static void setUp(ui::Grid& grid, int rows, int cols) {
    grid.setRows(rows);
    grid.setCols(cols);
    grid.setFixed(1, 0);
    if (cols == daen::columnCount) grid.setText(0, daen::colDistance, "距離(km)");
  }

  int next_ = 1;
};

}  // namespace test
