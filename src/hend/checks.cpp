#include "hend/checks.h"

#include "hend/columns.h"
#include "hend/date_checks.h"
#include "hend/value_checks.h"
#include "route/checks.h"
#include "text/padding.h"

namespace hend {
namespace {

bool isBlank(const ui::Grid& grid, int row, int col) {
  return row >= grid.rows() || text::trimmed(grid.text(row, col)).empty();
}

/// A bench-mark row without a number, though something stands in it or in the section row below.
bool isNameless(const ui::Grid& grid, int row) {
  if (!isBlank(grid, row, colBenchMark)) return false;
  for (int col = colNewDate; col <= colRemark; ++col)
    if (!isBlank(grid, row, col) || !isBlank(grid, row + 1, col)) return true;
  return false;
}

}  // namespace

ui::Findings check(const ui::Grid& grid, std::string_view referenceDate, job::Grade grade,
                   const CheckBounds& bounds, route::CheckMemory* memory) {
  ui::Findings findings;
  DateChecks(grid, referenceDate, findings).run();
  ValueChecks values(grid, grade, bounds, findings);
  for (int row = 1; row < grid.rows(); row += 2) {
    if (isNameless(grid, row)) findings.push_back(route::nameless(row));
    if (!isBlank(grid, row, colBenchMark)) values.benchMark(row);
  }
  route::findTextsThatAreNoNumber(grid,
                                  {colNewHeight, colOldHeight, colDifference, colDaysNewOld, colRate,
                                   colDaysReference, colCorrection, colResult},
                                  findings, memory);
  route::findNamesTwice(grid, colMark, findings, memory);
  ui::sortFindings(findings);
  return findings;
}

}  // namespace hend
