#include "route/grid_table.h"

#include <numeric>
#include <utility>

#include "route/selection.h"
#include "text/padding.h"

namespace route {
namespace {

/// Reads the rows of a grid.
class Rows {
 public:
  explicit Rows(const RouteGrid& look) : look_(look), grid_(look.grid), places_(look.places) {
    if (!places_.empty()) return;
    places_.resize(look.columns.size());
    std::iota(places_.begin(), places_.end(), 0);
  }

  bool isBenchMark(int row) const { return row < grid_.rows() && !benchMark(row).empty(); }
  const std::string& benchMark(int row) const { return grid_.text(row, look_.benchMarkCol); }

  /// True where a route ends on this row: at its last bench mark, or on the section row below that.
  bool endsRoute(int row) const {
    const bool end = grid_.text(row, look_.flagCol) == routeEnd;
    if (end) return row + 1 >= grid_.rows() || isBenchMark(row + 1);
    return row > 1 && benchMark(row).empty() && grid_.text(row - 1, look_.flagCol) == routeEnd;
  }

  report::Row row(int row) const {
    report::Row made;
    made.cells.reserve(places_.size());
    for (const int col : places_) made.cells.push_back(grid_.text(row, col));
    made.withNext = isBenchMark(row) && row + 1 < grid_.rows() && !isBenchMark(row + 1);
    made.ruleBelow = endsRoute(row);
    return made;
  }

 private:
  const RouteGrid& look_;
  const ui::Grid& grid_;
  std::vector<int> places_;
};

/// A part for one route of the grid.
report::Part partOf(const RouteGrid& look, const Rows& rows, int first, int last, const std::string& route) {
  report::Part part;
  report::Table table{{}, look.columns, {}};
  std::string from;
  std::string to;
  std::string own = route;
  for (int row = first; row <= last; ++row) {
    table.rows.push_back(rows.row(row));
    if (!rows.isBenchMark(row)) continue;
    if (from.empty()) from = rows.benchMark(row);
    to = rows.benchMark(row);
    if (look.routeCol >= 0 && !look.grid.text(row, look.routeCol).empty())
      own = look.grid.text(row, look.routeCol);
  }
  if (!text::trimmed(own).empty()) part.fields.push_back({"路線番号", std::string(text::trimmed(own))});
  if (!from.empty()) part.fields.push_back({"区間", from + " ～ " + to});
  part.items.emplace_back(std::move(table));
  return part;
}

}  // namespace

report::Table gridTable(const RouteGrid& look) {
  const Rows rows(look);
  report::Table table{{}, look.columns, {}};
  table.rows.reserve(static_cast<std::size_t>(look.grid.rows()));
  for (int row = look.grid.fixedRows(); row < look.grid.rows(); ++row) table.rows.push_back(rows.row(row));
  return table;
}

std::vector<report::Part> gridParts(const RouteGrid& look, const std::string& route) {
  const Rows rows(look);
  std::vector<report::Part> parts;
  int first = look.grid.fixedRows();
  for (int row = first; row < look.grid.rows(); ++row) {
    if (!rows.endsRoute(row) && row + 1 < look.grid.rows()) continue;
    parts.push_back(partOf(look, rows, first, row, route));
    first = row + 1;
  }
  return parts;
}

}  // namespace route
