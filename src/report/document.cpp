#include "report/document.h"

#include <algorithm>
#include <utility>

namespace report {
namespace {

constexpr double pictureSide = 1500;  // of the box that a picture is fitted into

/// The table of that name among `tables`, made where it is missing.
Table& tableLike(std::vector<Table>& tables, const Table& table) {
  const auto found =
      std::find_if(tables.begin(), tables.end(), [&](const Table& made) { return made.name == table.name; });
  if (found != tables.end()) return *found;
  tables.push_back({table.name, table.columns, {}});
  return tables.back();
}

/// How many rows each sheet holds.
std::vector<int> rowCounts(const std::vector<Table>& tables) {
  std::vector<int> counts;
  for (const Table& table : tables) counts.push_back(static_cast<int>(table.rows.size()));
  return counts;
}

}  // namespace

const std::string& Row::cell(std::size_t column) const {
  static const std::string empty;
  return column < cells.size() ? cells[column] : empty;
}

bool Row::blank() const {
  return std::all_of(cells.begin(), cells.end(), [](const std::string& cell) { return cell.empty(); });
}

std::vector<Table> gathered(const Document& document) {
  std::vector<Table> tables;
  for (const bool ofGrid : {true, false}) {
    for (const Part& part : document.parts) {
      for (const Item& item : part.items) {
        const Table* const table = std::get_if<Table>(&item);
        if (table == nullptr || table->ofGrid() != ofGrid) continue;
        Table& whole = tableLike(tables, *table);
        whole.rows.insert(whole.rows.end(), table->rows.begin(), table->rows.end());
      }
    }
  }
  return tables;
}

void append(Document& document, const Document& more) {
  const std::vector<int> before = rowCounts(gathered(document));
  if (document.check.columns.empty()) document.check.columns = more.check.columns;
  for (CheckCell cell : more.check.cells) {
    const auto sheet =
        static_cast<std::size_t>(more.check.columns[static_cast<std::size_t>(cell.column)].sheet);
    cell.formula.shift(before);
    if (sheet < before.size()) cell.row += before[sheet];
    document.check.cells.push_back(std::move(cell));
  }
  document.parts.insert(document.parts.end(), more.parts.begin(), more.parts.end());
}

Figure pictureFigure(std::string title, std::string bytes) {
  Drawing drawing{pictureSide, pictureSide, {}};
  drawing.shapes.emplace_back(
      Picture{{{0, 0}, pictureSide, pictureSide}, std::make_shared<const std::string>(std::move(bytes))});
  return {std::move(title), std::move(drawing)};
}

}  // namespace report
