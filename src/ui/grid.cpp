#include "ui/grid.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "text/error.h"
#include "text/number.h"

namespace ui {
namespace {

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();  // a number that was not read
constexpr std::size_t rowsAtOnce = 64;                                // rows that are made at a time

}  // namespace

void raiseSubscript() { throw text::RuntimeError(text::ErrorCode::Subscript); }

Grid::Grid(std::string name, Screen* screen)
    : Control(Kind::Grid, std::move(name), screen),
      columns_(static_cast<std::size_t>(cols_), std::vector<std::string>(static_cast<std::size_t>(rows_))),
      numbers_(columns_.size()),
      changes_(columns_.size()),
      looks_(static_cast<std::size_t>(cols_)) {
  if (history() != nullptr) history()->add(*this);
}

std::string& Grid::cell(int row, int col) {
  needCell(row, col);
  return columns_[static_cast<std::size_t>(col)][static_cast<std::size_t>(row)];
}

/// True where the history wants to be told of a change.
bool Grid::recording() {
  if (history() == nullptr) return false;
  history()->changedByItself();
  return history()->records();
}

void Grid::setRows(int rows) {
  if (rows < 1) raiseSubscript();
  text::toInt16(rows);
  if (rows > rows_)
    insertRows(rows_, rows - rows_);
  else if (rows < rows_)
    eraseRows(rows, rows_ - rows);
}

/// Takes the memory for further rows in every column, by halves again as it grows: what follows cannot fail.
void Grid::makeRoom(std::size_t count) {
  const auto extend = [count](auto& column) {
    const std::size_t needed = column.size() + count;
    if (column.capacity() < needed) column.reserve(std::max(needed, column.size() + column.size() / 2));
  };
  for (std::vector<std::string>& column : columns_) extend(column);
  for (std::vector<double>& known : numbers_)
    if (!known.empty()) extend(known);
}

/// The cells of `count` rows from row `at` on, row by row.
std::vector<std::string> Grid::cellsOf(int at, int count) const {
  std::vector<std::string> cells;
  cells.reserve(static_cast<std::size_t>(count) * columns_.size());
  for (int row = at; row < at + count; ++row)
    for (const std::vector<std::string>& column : columns_)
      cells.push_back(column[static_cast<std::size_t>(row)]);
  return cells;
}

/// Rows that are added one by one at the end, as every loading adds them, come out of blocks: below the last
/// row all columns hold spare cells, which are empty, and all of them as many.
void Grid::insertRows(int at, int count, const std::vector<std::string>& cells) {
  if (at < 0 || at > rows_ || count < 1) raiseSubscript();
  text::toInt16(static_cast<long long>(rows_) + count);
  const auto more = static_cast<std::size_t>(count);
  const bool isSpare =
      at == rows_ && cells.empty() && columns_.front().size() >= static_cast<std::size_t>(rows_) + more;
  std::vector<std::string> added = cells;
  if (!isSpare) makeRoom(std::max(more, rowsAtOnce));
  for (std::size_t col = 0; col < columns_.size() && !isSpare; ++col) {
    if (at == rows_ && cells.empty()) {
      columns_[col].resize(columns_[col].size() + std::max(more, rowsAtOnce));
      continue;
    }
    const auto place = columns_[col].insert(columns_[col].begin() + at, more, std::string());
    if (cells.empty()) continue;
    for (int row = 0; row < count; ++row)
      place[row] = std::move(added[static_cast<std::size_t>(row) * columns_.size() + col]);
  }
  for (std::vector<double>& known : numbers_)
    if (!known.empty()) known.insert(known.begin() + at, more, unknown);
  rows_ += count;
  ++reshaped_;
  clampCurrent();
  if (recording()) history()->rowsAdded(*this, at, count);
  notify();
}

void Grid::eraseRows(int at, int count) {
  if (at < 0 || count < 1 || at + count > rows_ || count == rows_) raiseSubscript();
  if (recording()) history()->rowsRemoved(*this, at, count, cellsOf(at, count));
  for (std::vector<std::string>& column : columns_)
    column.erase(column.begin() + at, column.begin() + at + count);
  for (std::vector<double>& known : numbers_)
    if (!known.empty()) known.erase(known.begin() + at, known.begin() + at + count);
  rows_ -= count;
  ++reshaped_;
  clampCurrent();
  notify();
}

/// No step of a history fits a grid of other columns.
void Grid::setCols(int cols) {
  if (cols < 1) raiseSubscript();
  if (cols == cols_) return;
  if (history() != nullptr) history()->restart();
  columns_.resize(static_cast<std::size_t>(cols), std::vector<std::string>(columns_.front().size()));
  numbers_.resize(columns_.size());
  // Versions go on from the highest, whichever column it was.
  reshaped_ += 1 + *std::max_element(changes_.begin(), changes_.end());
  changes_.assign(columns_.size(), 0);
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
  place_.row = clampRow(place_.row);
  place_.rowSel = clampRow(place_.rowSel);
  place_.keyRow = clampRow(place_.keyRow);
  place_.col = clampCol(place_.col);
  place_.colSel = clampCol(place_.colSel);
  place_.keyCol = clampCol(place_.keyCol);
}

void Grid::setText(int row, int col, std::string_view text) {
  std::string& held = cell(row, col);
  if (held == text) return;
  if (recording()) {
    std::string before = held;  // `text` may be part of the cell
    held = text;
    history()->textChanged(*this, row, col, std::move(before), held);
  } else {
    held = text;
  }
  textChanged(row, col);
  if (gridObserver_ != nullptr) gridObserver_->cellChanged(row, col);
}

void Grid::clearText() {
  for (int row = 0; row < rows_; ++row)
    for (int col = 0; col < cols_; ++col) {
      std::string& held = cell(row, col);
      if (held.empty()) continue;
      if (recording()) history()->textChanged(*this, row, col, held, {});
      held.clear();
      textChanged(row, col);
    }
  notify();
}

void Grid::textChanged(int row, int col) {
  std::vector<double>& known = numbers_[static_cast<std::size_t>(col)];
  if (!known.empty()) known[static_cast<std::size_t>(row)] = unknown;
  ++changes_[static_cast<std::size_t>(col)];
}

double Grid::readNumber(int row, int col) const {
  const std::string& held = text(row, col);
  const std::optional<double> plain = held.empty() ? 0 : text::plainNumber(held);
  if (!plain) return text::readNumber(held);
  std::vector<double>& known = numbers_[static_cast<std::size_t>(col)];
  if (known.empty()) known.assign(static_cast<std::size_t>(rows_), unknown);
  known[static_cast<std::size_t>(row)] = *plain;
  return *plain;
}

bool Grid::readsPlain(int row, int col) const {
  const std::string& held = text(row, col);
  if (!held.empty() && !text::plainNumber(held)) return false;
  readNumber(row, col);
  return true;
}

std::uint64_t Grid::columnVersion(int col) const {
  needCell(0, col);
  return changes_[static_cast<std::size_t>(col)] + reshaped_;
}

void Grid::addItem(std::string_view text) { addItem(text, rows_); }

void Grid::addItem(std::string_view text, int at) {
  const std::string first(text);  // it may be the text of a cell that moves
  insertRows(at, 1);
  setText(at, 0, first);
}

void Grid::removeItem(int row) {
  if (row < fixedRows_ || row >= rows_ || rows_ <= fixedRows_ + 1) raiseSubscript();
  eraseRows(row, 1);
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

Content Grid::content(int col) const { return look(col).content; }

void Grid::setContent(int col, Content content) {
  look(col).content = content;
  notify();
}

void Grid::setRowHeight(int twips) {
  rowHeight_ = twips;
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

void Grid::observeGrid(GridObserver* observer) {
  gridObserver_ = observer;
  observe(observer);
}

}  // namespace ui
