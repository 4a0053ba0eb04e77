#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "hend/columns.h"
#include "ui/grid.h"

namespace test {

/// Lays bench marks into a variation grid, two rows for each: its own and the one of its section.
class VariationGrid {
  std::unique_ptr<ui::Grid> owned_ = std::make_unique<ui::Grid>();

 public:
  ui::Grid& grid{*owned_};

  VariationGrid() {
    grid.setCols(hend::columnCount);
    grid.setRows(1);
    grid.setFixed(1, 1);
  }

  /// Dates and height differences are texts as in the cells; returns the bench mark's row.
  int add(std::string_view number, std::string_view newDate, std::string_view newHeight,
          std::string_view oldDate, std::string_view oldHeight, std::string_view mark = {}) {
    const int row = grid.rows();
    grid.setRows(row + 2);
    grid.setText(row, hend::colBenchMark, number);
    grid.setText(row, hend::colNewDate, newDate);
    grid.setText(row, hend::colOldDate, oldDate);
    grid.setText(row, hend::colMark, mark);
    grid.setText(row, hend::colOrder, std::to_string((row + 1) / 2));
    grid.setText(row + 1, hend::colNewHeight, newHeight);
    grid.setText(row + 1, hend::colOldHeight, oldHeight);
    return row;
  }

  /// The route end behind the last section.
  int end(std::string_view number) { return add(number, "", "", "", "", "-1"); }

  /// Cells `first` to `last` of a row, joined with "|".
  std::string cells(int row, int first, int last) const {
    std::string joined;
    for (int col = first; col <= last; ++col) joined += (col == first ? "" : "|") + grid.text(row, col);
    return joined;
  }

  /// 比高差|新－旧|比高変化|基－新|変動補正量|基準日比高 of a row.
  std::string results(int row) const { return cells(row, hend::colDifference, hend::colResult); }
  /// 新観測年月日 to 基準日比高 of a row.
  std::string values(int row) const { return cells(row, hend::colNewDate, hend::colResult); }
};

}  // namespace test
