#include "ui/grid.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "text/error.h"
#include "text/number.h"

namespace ui {
namespace {

[[noreturn]] void raiseSubscript() { throw text::RuntimeError(text::ErrorCode::Subscript); }

}  // namespace

Grid::Grid(std::string name, Screen* screen)
    : Control(Kind::Grid, std::move(name), screen),
      cells_(static_cast<std::size_t>(rows_ * cols_)),
      looks_(static_cast<std::size_t>(cols_)) {}

std::size_t Grid::index(int row, int col) const {
  if (row < 0 || row >= rows_ || col < 0 || col >= cols_) raiseSubscript();
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) + static_cast<std::size_t>(col);
}

void Grid::setRows(int rows) {
  if (rows < 1) raiseSubscript();
  text::toInt16(rows);
  if (rows == rows_) return;
  cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols_));
  rows_ = rows;
  clampCurrent();
  notify();
}

void Grid::setCols(int cols) {
  if (cols < 1) raiseSubscript();
  if (cols == cols_) return;
  std::vector<std::string> cells(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(cols));
  for (int row = 0; row < rows_; ++row)
    for (int col = 0; col < std::min(cols, cols_); ++col)
      cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) + static_cast<std::size_t>(col)] =
          std::move(cells_[index(row, col)]);
  cells_ = std::move(cells);
  looks_.resize(static_cast<std::size_t>(cols));
  cols_ = cols;
  clampCurrent();
  notify();
}

void Grid::setFixed(int rows, int cols) {
  if (rows < 0 || rows > rows_ || cols < 0 || cols > cols_) raiseSubscript();
  fixedRows_ = rows;
  fixedCols_ = cols;
  clampCurrent();
  notify();
}

/// After a change of shape: the current cell stays where it can, at the nearest cell else.
void Grid::clampCurrent() {
  const auto clampRow = [this](int row) {
    return std::clamp(row, std::min(fixedRows_, rows_ - 1), rows_ - 1);
  };
  const auto clampCol = [this](int col) { return std::clamp(col, 0, cols_ - 1); };
  row_ = clampRow(row_);
  rowSel_ = clampRow(rowSel_);
  keyRow_ = clampRow(keyRow_);
  col_ = clampCol(col_);
  colSel_ = clampCol(colSel_);
  keyCol_ = clampCol(keyCol_);
}

const std::string& Grid::text(int row, int col) const { return cells_[index(row, col)]; }

void Grid::setText(int row, int col, std::string_view text) {
  std::string& cell = cells_[index(row, col)];
  if (cell == text) return;
  cell = text;
  if (gridObserver_ != nullptr) gridObserver_->cellChanged(row, col);
}

void Grid::clearText() {
  std::fill(cells_.begin(), cells_.end(), std::string());
  notify();
}

void Grid::addItem(std::string_view text) { addItem(text, rows_); }

void Grid::addItem(std::string_view text, int at) {
  if (at < 0 || at > rows_) raiseSubscript();
  text::toInt16(rows_ + 1LL);
  std::string first(text);  // it may be the text of a cell that moves
  const auto place = cells_.begin() + static_cast<std::ptrdiff_t>(at) * cols_;
  cells_.insert(place, static_cast<std::size_t>(cols_), std::string());
  ++rows_;
  cells_[index(at, 0)] = std::move(first);
  notify();
}

void Grid::removeItem(int row) {
  if (row < fixedRows_ || row >= rows_ || rows_ <= fixedRows_ + 1) raiseSubscript();
  const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(row) * cols_;
  cells_.erase(first, first + cols_);
  --rows_;
  clampCurrent();
  notify();
}

const Grid::ColumnLook& Grid::look(int col) const {
  if (col < 0 || col >= cols_) raiseSubscript();
  return looks_[static_cast<std::size_t>(col)];
}

Grid::ColumnLook& Grid::look(int col) { return const_cast<ColumnLook&>(std::as_const(*this).look(col)); }

int Grid::colWidth(int col) const { return look(col).width; }

void Grid::setColWidth(int col, int twips) {
  look(col).width = twips;
  notify();
}

Align Grid::align(int col) const { return look(col).align; }

void Grid::setAlign(int col, Align align) {
  look(col).align = align;
  notify();
}

Align Grid::fixedAlign(int col) const { return look(col).fixedAlign; }

void Grid::setFixedAlign(int col, Align align) {
  look(col).fixedAlign = align;
  notify();
}

void Grid::setRowHeight(int twips) {
  rowHeight_ = twips;
  notify();
}

void Grid::setRow(int row) { setCurrent(row, col_); }

void Grid::setCol(int col) { setCurrent(row_, col); }

void Grid::setCurrent(int row, int col) {
  index(row, col);
  row_ = rowSel_ = keyRow_ = row;
  col_ = colSel_ = keyCol_ = col;
  notify();
}

void Grid::selectWholeRow() {
  rowSel_ = row_;
  col_ = 0;
  colSel_ = cols_ - 1;
  notify();
}

CellUse Grid::cellUse(int row, int col) const {
  return use_ && row >= fixedRows_ && row < rows_ ? use_(row, col) : CellUse::Shown;
}

bool Grid::isEntry(int row, int col) const {
  return clickable(row, col) && cellUse(row, col) != CellUse::Shown && (!entry_ || entry_(row, col));
}

bool Grid::clickable(int row, int col) const {
  return row >= fixedRows_ && row < rows_ && col >= fixedCols_ && col < cols_ && colWidth(col) > 0;
}

void Grid::click(int row, int col) {
  if (!clickable(row, col)) raiseSubscript();
  if (!enabled()) return;
  setCurrent(row, col);
  onClick();
}

void Grid::moveTo(int row, int col) {
  if (!clickable(row, col)) raiseSubscript();
  setCurrent(row, col);
}

void Grid::selectTo(int row, int col) {
  if (!clickable(row, col)) raiseSubscript();
  rowSel_ = row;
  colSel_ = col;
  notify();
}

void Grid::pressKey(char32_t code) {
  const bool writes = code >= U' ' && code != 0x7F;
  if (!enabled() || !(writes || code == key::enter || code == key::backspace)) return;
  if (onKeyPress) onKeyPress(code);
}

void Grid::observeGrid(GridObserver* observer) {
  gridObserver_ = observer;
  observe(observer);
}

}  // namespace ui
