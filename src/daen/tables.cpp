#include "daen/tables.h"

#include "daen/columns.h"
#include "route/grid_table.h"
#include "route/profile.h"

namespace daen {
namespace {

using report::Side;

/// The rows of the section grid, without the empty one at its end.
report::Table sectionTable(const ui::Grid& grid) {
  report::Table table{"楕円補正区間",
                      {{"自首末地", "", Side::Right, false},
                       {"至首末地", "", Side::Right, false},
                       {"自水準点", "", Side::Left, false},
                       {"至水準点", "", Side::Left, false},
                       {"B1", "分", Side::Point, false},
                       {"B2", "分", Side::Point, false},
                       {"B1-B2", "分", Side::Point, false},
                       {"B1 + B2", "分", Side::Point, false},
                       {"楕円補正値", "mm", Side::Point, false},
                       {"平均標高", "m", Side::Point, false},
                       {"楕円計算値", "mm", Side::Point, false}},
                      {}};
  for (int row = 1; row < grid.rows() - 1; ++row) {
    report::Row made;
    for (int col = 0; col < sectionColumnCount; ++col) made.cells.push_back(grid.text(row, col));
    table.rows.push_back(std::move(made));
  }
  return table;
}

}  // namespace

report::Document tables(const ui::Grid& Grid1, const ui::Grid& Grid2, const std::string& route) {
  const std::vector<report::Column> columns = {
      {"水準点", "", Side::Left, false},      {"距離", "km", Side::Point, false},
      {"標高", "m", Side::Point, false},      {"楕円補", "mm", Side::Point, false},
      {"結果", "m", Side::Point, false},      {"備考", "", Side::Left, true},
      {"データ形式", "", Side::Middle, false}};
  report::Document document;
  document.title = "楕円補正計算";
  document.parts = route::gridParts({Grid1, columns, colBenchMark, colEndMark, -1}, route);
  document.parts.back().items.emplace_back(sectionTable(Grid2));
  document.check = checkFormulas(Grid1, Grid2);
  return document;
}

report::Diagram profile(const ui::Grid& Grid1, job::Grade grade) {
  route::ProfileLook look;
  look.endCol = colEndMark;
  look.distanceCol = colDistance;
  look.distanceOnSection = true;
  look.heightCol = colHeight;
  look.correctionCol = colCorrection;
  look.correctionName = "楕円補正";
  look.decimals = grade.isFirst() ? 4 : 3;
  return route::profileOf(Grid1, look);
}

}  // namespace daen
