#include "seihyou/calculation.h"

#include "route/records.h"
#include "route/selection.h"
#include "seihyou/columns.h"
#include "text/number.h"

namespace seihyou {
namespace {

/// The walk along one route: H, D and the mean are carried from bench mark to bench mark.
class Walk {
 public:
  Walk(ui::Grid& grid, job::Grade grade, int start) : grid_(grid), grade_(grade), start_(start) {}

  /// Takes the bench mark on `row`. Returns false where it ends the route.
  bool benchMark(int row) {
    const std::string& flag = grid_.text(row, colFlag);
    if (row == start_ || nextIsRepeated(row)) {
      height_ = number(row, colResult);
    } else {
      height_ += difference_;
      write(row, height_);
      if (flag == route::repeatedPoint) average(row);
    }
    if (flag == route::routeEnd) return false;
    if (flag != route::repeatedPoint) section(row + 1);
    return true;
  }

 private:
  double number(int row, int col) const { return grid_.number(row, col); }

  void write(int row, double metres) { grid_.setText(row, colResult, grade_.heights().format(metres)); }

  bool nextIsRepeated(int row) const {
    const int next = row + 2;
    return next < grid_.rows() - 1 && grid_.text(next, colFlag) == route::repeatedPoint;
  }

  /// Once in a walk two repeated heights are averaged.
  void average(int row) {
    sum_ += height_;
    if (++count_ != 2) return;
    sum_ = text::roundHalfUp(sum_ / 2, route::tenthsOfMillimetre);
    write(row + 2, sum_);
  }

  void section(int row) {
    difference_ = number(row, colHeight) + number(row, colCorrection) / grade_.factor();
    write(row, difference_);
  }

  ui::Grid& grid_;
  job::Grade grade_;
  int start_;
  double height_ = 0;      // H, m
  double difference_ = 0;  // D, m
  double sum_ = 0;         // of repeated heights, m
  int count_ = 0;          // of repeated heights
};

/// The row of the route end at or below `row`, the last row where there is none.
int routeEndFrom(const ui::Grid& grid, int row) {
  while (row < grid.rows() - 1 && grid.text(row, colFlag) != route::routeEnd) ++row;
  return row;
}

}  // namespace

int routeStart(const ui::Grid& grid, int row) {
  for (int r = row; r >= 1; --r)
    if (grid.text(r, colFlag) == route::routeEnd) return r + 1;
  return 1;
}

void FcCalcSeihyou(ui::Grid& grid, int row, job::Grade grade) {
  const int start = routeStart(grid, row);
  Walk walk(grid, grade, start);
  for (int r = start; r < grid.rows(); r = text::toInt16(r + 2))
    if (!grid.text(r, colBenchMark).empty() && !walk.benchMark(r)) return;
}

/// A walk reads no height that it has written itself, so one walk over a route is as good as many.
void calculateRoutes(ui::Grid& grid, const std::vector<int>& rows, job::Grade grade) {
  int end = 0;  // of the route calculated last
  for (const int row : rows) {
    if (row <= end) continue;
    FcCalcSeihyou(grid, row, grade);
    end = routeEndFrom(grid, row);
  }
}

bool isCorrectionCell(const ui::Grid& grid, int row, int col) {
  return col == colCorrection && row > grid.fixedRows() && row + 1 < grid.rows() &&
         grid.text(row, colBenchMark).empty() && grid.text(row - 1, colFlag) != route::repeatedPoint &&
         !grid.text(row + 1, colBenchMark).empty();
}

bool isStartHeightCell(int row, int col) { return row == 1 && col == colResult; }

int nextCorrectionRow(const ui::Grid& grid, int row) {
  for (int r = row; r + 1 < grid.rows() && grid.text(r + 1, colFlag) != route::routeEnd;) {
    r += 2;
    if (isCorrectionCell(grid, r, colCorrection)) return r;
  }
  return row;
}

}  // namespace seihyou
