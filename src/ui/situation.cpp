#include "ui/situation.h"

#include "text/padding.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace ui {
namespace {

constexpr std::string_view gap = "  ";

/// The bench mark that stands nearest to `row`, `step` (−1 or 1) rows at a time; "" where none is left.
std::string nearestBenchMark(const Grid& grid, int row, int step, int benchMarkCol) {
  for (int at = row + step; at >= grid.fixedRows() && at < grid.rows(); at += step) {
    std::string name(text::trimmed(grid.text(at, benchMarkCol)));
    if (!name.empty()) return name;
  }
  return {};
}

}  // namespace

std::string rowName(const Grid& grid, int row, int benchMarkCol) {
  if (row < grid.fixedRows() || benchMarkCol >= grid.cols()) return {};
  std::string own(text::trimmed(grid.text(row, benchMarkCol)));
  if (!own.empty()) return own;
  const std::string from = nearestBenchMark(grid, row, -1, benchMarkCol);
  const std::string to = nearestBenchMark(grid, row, 1, benchMarkCol);
  return from.empty() || to.empty() ? std::string() : from + " → " + to;
}

std::string columnName(const Screen& screen, const Grid& grid, int col) {
  std::string name;
  for (int row = 0; row < grid.fixedRows(); ++row) {
    const std::string_view part = text::trimmed(grid.text(row, col));
    if (!part.empty()) name.append(name.empty() ? "" : " ").append(part);
  }
  const std::string unit = screen.unit(grid, col);
  return unit.empty() ? name : name + " [" + unit + "]";
}

std::string cellName(const Screen& screen, const Grid& grid, int row, int col) {
  const std::string place = screen.rowName(grid, row);
  const std::string column = columnName(screen, grid, col);
  return place.empty() || column.empty() ? place + column : place + std::string(gap) + column;
}

std::string cellTakes(const Grid& grid, int row, int col) {
  switch (grid.cellUse(row, col)) {
    case CellUse::Number:
      return "数値を入力できます";
    case CellUse::Text:
      return "文字を入力できます";
    case CellUse::Shown:
      break;
  }
  return "表示だけのセルです";
}

}  // namespace ui
