#include "ui/find.h"

#include <string>

#include "text/search_form.h"
#include "ui/act_witness.h"

namespace ui {
namespace {

/// The cells below the headers in reading order.
struct Order {
  explicit Order(const Grid& grid)
      : first(grid.fixedRows()), cols(grid.cols()), count((grid.rows() - first) * cols) {}

  CellPlace cell(int at) const { return {first + at / cols, at % cols}; }
  int place(int row, int col) const { return (row - first) * cols + col; }

  int first;
  int cols;
  int count;
};

}  // namespace

std::optional<CellPlace> findNext(const Grid& grid, std::string_view text, Way way) {
  const std::string wanted = text::searchForm(text);
  const Order order(grid);
  if (wanted.empty() || order.count <= 0) return std::nullopt;
  const int step = way == Way::Forward ? 1 : order.count - 1;
  int at = order.place(grid.keyRow(), grid.keyCol());
  for (int tried = 0; tried < order.count; ++tried) {
    at = (at + step) % order.count;
    const CellPlace cell = order.cell(at);
    if (grid.colWidth(cell.col) <= 0 || grid.text(cell.row, cell.col).empty()) continue;
    if (text::searchForm(grid.text(cell.row, cell.col)).find(wanted) != std::string::npos) return cell;
  }
  return std::nullopt;
}

std::optional<CellPlace> find(Grid& grid, std::string_view text, Way way) {
  const std::optional<CellPlace> cell = findNext(grid, text, way);
  const Witnessed seen(grid.desktop(), [&] {
    if (way == Way::Forward || !cell) return OperatorAct{"find", grid.name(), {std::string(text)}};
    return OperatorAct{"go", grid.name(), {std::to_string(cell->row), std::to_string(cell->col)}};
  });
  if (cell) grid.setCurrent(cell->row, cell->col);
  return cell;
}

std::optional<CellPlace> nextEntry(const Grid& grid, Way way) {
  const Order order(grid);
  const int step = way == Way::Forward ? 1 : -1;
  for (int at = order.place(grid.keyRow(), grid.keyCol()) + step; at >= 0 && at < order.count; at += step) {
    const CellPlace cell = order.cell(at);
    if (grid.isEntry(cell.row, cell.col)) return cell;
  }
  return std::nullopt;
}

}  // namespace ui
