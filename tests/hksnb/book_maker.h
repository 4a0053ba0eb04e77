#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hksnb/columns.h"
#include "hksnb/filling.h"
#include "hksnb/grid_set_up.h"
#include "ui/grid.h"

namespace test {

/// The cells of a grid row, joined with "|", without the hidden columns 12 and 13.
inline std::string rowText(const ui::Grid& grid, int row) {
  std::string line = grid.text(row, 0);
  for (const int col : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 14}) line += "|" + grid.text(row, col);
  return line;
}

/// All rows below the header.
inline std::vector<std::string> rowTexts(const ui::Grid& grid) {
  std::vector<std::string> lines;
  for (int row = 1; row < grid.rows(); ++row) lines.push_back(rowText(grid, row));
  return lines;
}

/// Every cell, headers too.
inline std::vector<std::string> cells(const ui::Grid& grid) {
  std::vector<std::string> all;
  for (int row = 0; row < grid.rows(); ++row)
    for (int col = 0; col < grid.cols(); ++col) all.push_back(grid.text(row, col));
  return all;
}

/// Lays bench marks and sections into a book grid by hand.
class BookMaker {
 public:
  BookMaker(ui::Grid& grid, hksnb::Kind kind) : grid_(grid) {
    hksnb::FcHHKSB_InitGrid1(grid, kind);
    grid.setRows(1);
  }

  /// Heights as texts; `route` is shown where it is not blank.
  BookMaker& benchMark(std::string_view number, std::string_view height = {}, std::string_view present = {},
                       std::string_view route = {}) {
    const int row = addRow();
    grid_.setText(row, hksnb::colBenchMark, number);
    grid_.setText(row, hksnb::colHeight, height);
    grid_.setText(row, hksnb::colPresent, present);
    grid_.setText(row, hksnb::colRoute, route);
    return *this;
  }

  BookMaker& section(std::string_view meanDifference = {}, std::string_view correction = {},
                     std::string_view corrected = {}, std::string_view remark = {}) {
    const int row = addRow();
    grid_.setText(row, hksnb::colHeight, meanDifference);
    grid_.setText(row, hksnb::colCorrection, correction);
    grid_.setText(row, hksnb::colPresent, corrected);
    grid_.setText(row, hksnb::colRemark, remark);
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
