#include "seihyou/through_means.h"

#include <optional>

#include "route/records.h"
#include "route/runs.h"
#include "route/selection.h"
#include "seihyou/calculation.h"
#include "seihyou/columns.h"
#include "text/number.h"

namespace seihyou {
namespace {

/// The walk along one route, from bench mark to bench mark.
class MeanWalk {
 public:
  MeanWalk(const ui::Grid& grid, int start, job::Grade grade, const TakeReckoned& take)
      : grid_(grid), start_(start), grade_(grade), take_(take) {}

  /// Takes the bench mark on `row`. Returns false where it ends the route.
  bool benchMark(int row) {
    const std::string& flag = grid_.text(row, colFlag);
    const double shown = number(row, colResult);  // before the taker writes over it
    height_ = heightAt(row, shown);
    shown_ = shown;
    repeated_ = flag == route::repeatedPoint;
    mean_.reset();
    if (repeated_ && pair_.add(height_)) mean_ = pair_.mean();
    take_(row, height_);
    if (flag == route::routeEnd) return false;
    if (!repeated_) leave(row);
    return true;
  }

 private:
  double number(int row, int col) const { return grid_.number(row, col); }

  double heightAt(int row, double shown) const {
    if (row == start_) return shown;
    if (!repeated_) return height_ + difference_;
    if (mean_) return *mean_;
    if (beginsWhereTheRunBegan(row)) return runStartHeight_;
    return height_ + (shown - shown_);
  }

  bool beginsWhereTheRunBegan(int row) const {
    if (runStart_ == 0) return false;
    const std::string& began = grid_.text(runStart_, colBenchMark);
    const std::string& begins = grid_.text(row, colBenchMark);
    return began == begins || route::samePoint(began, begins);
  }

  /// Over the section behind an ordinary bench mark.
  void leave(int row) {
    runStart_ = row;
    runStartHeight_ = height_;
    if (row + 1 >= grid_.rows()) return;
    difference_ = number(row + 1, colHeight) + number(row + 1, colCorrection) / grade_.factor();
    take_(row + 1, difference_);
  }

  const ui::Grid& grid_;
  const int start_;
  const job::Grade grade_;
  const TakeReckoned& take_;
  route::PairMean pair_{route::tenthsOfMillimetre};
  std::optional<double> mean_;  // of the pair just completed, m
  bool repeated_ = false;       // the last bench mark is a repeated one
  double height_ = 0;           // of the last bench mark, m
  double shown_ = 0;            // the height that its cell showed, m
  double difference_ = 0;       // of the last section, corrected, m
  int runStart_ = 0;            // the last ordinary bench mark; 0 for none
  double runStartHeight_ = 0;   // m
};

/// Writes the route that begins on row `start`. Returns the row below it.
int calculateRoute(ui::Grid& grid, int start, job::Grade grade) {
  const text::Pattern& pattern = grade.heights();
  return reckonThroughMeans(grid, start, grade, [&](int row, double metres) {
    grid.setText(row, colResult, pattern.format(metres));
  });
}

}  // namespace

int reckonThroughMeans(const ui::Grid& grid, int start, job::Grade grade, const TakeReckoned& take) {
  MeanWalk walk(grid, start, grade, take);
  int row = start;
  for (; row < grid.rows(); row += 2)
    if (!grid.text(row, colBenchMark).empty() && !walk.benchMark(row)) return row + 1;
  return row;
}

void calcThroughMeans(ui::Grid& grid, int row, job::Grade grade) {
  calculateRoute(grid, routeStart(grid, row - 1), grade);
}

void calcThroughMeans(ui::Grid& grid, job::Grade grade) {
  for (int start = grid.fixedRows(); start < grid.rows();) start = calculateRoute(grid, start, grade);
}

}  // namespace seihyou
