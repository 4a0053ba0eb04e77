#include <algorithm>
#include <utility>

#include "text/error.h"
#include "ui/act_witness.h"
#include "ui/grid.h"

// Where the operator stands in a grid, and how that changes.

namespace ui {
namespace {

/// Going to a cell ("go") or pressing it with the mouse ("cell").
OperatorAct going(const char* verb, const Grid& grid, int row, int col) {
  return {verb, grid.name(), {std::to_string(row), std::to_string(col)}};
}

}  // namespace

/// Keys that go to another cell from now on begin to type there.
void Grid::select(const GridPlace& place) {
  if (place.keyRow != place_.keyRow || place.keyCol != place_.keyCol) {
    endTyping();
    if (history() != nullptr) history()->stopTyping();
  }
  place_ = place;
  notify();
}

void Grid::setRow(int row) { setCurrent(row, col()); }

void Grid::setCol(int col) { setCurrent(row(), col); }

void Grid::setCurrent(int row, int col) {
  needCell(row, col);
  select({.row = row, .col = col, .rowSel = row, .colSel = col, .keyRow = row, .keyCol = col});
}

void Grid::setPlace(const GridPlace& place) {
  select(place);
  clampCurrent();
}

void Grid::selectWholeRow() {
  GridPlace place = place_;
  place.rowSel = place.row;
  place.col = 0;
  place.colSel = cols_ - 1;
  place.wholeRow = true;
  place.headings = false;
  select(place);
}

CellRange Grid::selection() const {
  const auto [top, bottom] = std::minmax(place_.row, place_.rowSel);
  const auto [left, right] = std::minmax(place_.col, place_.colSel);
  return {top, left, bottom, right};
}

CellRange Grid::block() const {
  return place_.wholeRow ? CellRange{keyRow(), keyCol(), keyRow(), keyCol()} : selection();
}

void Grid::click(int row, int col) {
  if (!clickable(row, col)) raiseSubscript();
  if (!enabled()) return;
  const Witnessed seen(desktop(), [&] { return going("cell", *this, row, col); });
  const History::Act act(history(), act::calculation);
  setCurrent(row, col);
  onClick();
}

void Grid::moveTo(int row, int col) {
  if (!clickable(row, col)) raiseSubscript();
  const Witnessed seen(desktop(), [&] { return going("go", *this, row, col); });
  endTyping();
  if (history() != nullptr) history()->stopTyping();
  setCurrent(row, col);
}

/// A row that a click has highlighted is left: the selection begins at the cell that keys go to.
void Grid::selectTo(int row, int col) {
  if (!clickable(row, col)) raiseSubscript();
  GridPlace place = place_;
  if (place.wholeRow) {
    place.row = place.keyRow;
    place.col = place.keyCol;
  }
  place.rowSel = row;
  place.colSel = col;
  place.wholeRow = place.headings = false;
  select(place);
  const Witnessed seen(desktop(), [this] { return going("mark", *this, selection().top, selection().left); });
}

/// The first column that can be seen going right (`step` 1), the last going left (−1); −1 for none.
int Grid::edgeColumn(int step) const {
  for (int col = step > 0 ? 0 : cols_ - 1; col >= 0 && col < cols_; col += step)
    if (colWidth(col) > 0) return col;
  return -1;
}

/// Keys still go to the cell they went to.
void Grid::selectAll() {
  const int left = edgeColumn(1);
  if (left < 0) return;
  const CellRange all{std::min(fixedRows_, rows_ - 1), left, rows_ - 1, edgeColumn(-1)};
  GridPlace place = place_;
  place.headings = !place.wholeRow && selection() == all;
  place.row = all.top;
  place.col = all.left;
  place.rowSel = all.bottom;
  place.colSel = all.right;
  place.wholeRow = false;
  select(place);
  const Witnessed seen(desktop(), [this] { return going("mark", *this, selection().top, selection().left); });
}

void Grid::selectColumn(int col) {
  if (colWidth(col) <= 0) raiseSubscript();
  GridPlace place = place_;
  place.row = std::min(fixedRows_, rows_ - 1);
  place.rowSel = rows_ - 1;
  place.col = place.colSel = col;
  place.wholeRow = false;
  place.headings = true;
  select(place);
  const Witnessed seen(desktop(), [this] { return going("mark", *this, selection().top, selection().left); });
}

void Grid::selectColumnsTo(int col) {
  if (!place_.headings) return selectColumn(col);
  if (colWidth(col) <= 0) raiseSubscript();
  GridPlace place = place_;
  place.colSel = col;
  select(place);
  const Witnessed seen(desktop(), [this] { return going("mark", *this, selection().top, selection().left); });
}

Grid::Contents Grid::contents() const {
  Contents kept;
  kept.rows = rows_;
  kept.cols = cols_;
  kept.fixedRows = fixedRows_;
  kept.fixedCols = fixedCols_;
  kept.rowHeight = rowHeight_;
  kept.place = place_;
  kept.columns = columns_;
  kept.looks = looks_;
  return kept;
}

void Grid::setContents(Contents contents) {
  std::vector<std::vector<double>> numbers(contents.columns.size());
  std::vector<std::uint64_t> changes(contents.columns.size());
  numbers_ = std::move(numbers);
  reshaped_ += 1 + *std::max_element(changes_.begin(), changes_.end());
  changes_ = std::move(changes);
  rows_ = contents.rows;
  cols_ = contents.cols;
  fixedRows_ = contents.fixedRows;
  fixedCols_ = contents.fixedCols;
  rowHeight_ = contents.rowHeight;
  place_ = contents.place;
  columns_ = std::move(contents.columns);
  looks_ = std::move(contents.looks);
  endTyping();
  notify();
}

}  // namespace ui
