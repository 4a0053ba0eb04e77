#include "tanrosen/calculation.h"

#include <algorithm>

#include "route/selection.h"
#include "tanrosen/closure_formula.h"
#include "tanrosen/columns.h"
#include "tanrosen/distribution.h"
#include "text/number.h"

namespace tanrosen {

void FcCalcTanrosen(ui::Grid& grid, const std::vector<std::string>& knownPoints, job::Grade grade,
                    std::string_view dataKubun) {
  Distribution distribution(grid, grade, pointsOf(dataKubun), knownPoints);
  for (const std::string& name : knownPoints) distribution.knownPoint(name);
}

void writeCorrectedHeight(ui::Grid& grid, int row, double units, job::Grade grade) {
  const double height = correctedHeight(grid.number(row, colHeight), units, grade);
  grid.setText(row, colResult, grade.heights().format(height));
}

void heightFromCorrection(ui::Grid& grid, int row, job::Grade grade) {
  writeCorrectedHeight(grid, row, grid.number(row, colCorrection), grade);
}

bool isCorrectionCell(const ui::Grid& grid, int row, int col) {
  return col == colCorrection && row >= grid.fixedRows() && !grid.text(row, colBenchMark).empty();
}

bool isKnownHeightCell(const ui::Grid& grid, int row, int col, const std::vector<std::string>& knownPoints) {
  return col == colResult && row >= grid.fixedRows() && !grid.text(row, colBenchMark).empty() &&
         std::find(knownPoints.begin(), knownPoints.end(), grid.text(row, colBenchMark)) != knownPoints.end();
}

bool isRemarkCell(const ui::Grid& grid, int row, int col) {
  return col == colRemark && row >= grid.fixedRows() && grid.text(row - 1, colFlag) != route::routeEnd;
}

int nextCorrectionRow(const ui::Grid& grid, int row) {
  for (int next = row; next + 2 < grid.rows() && grid.text(next, colFlag) != route::routeEnd;) {
    next += 2;
    if (isCorrectionCell(grid, next, colCorrection)) return next;
  }
  return row;
}

}  // namespace tanrosen
