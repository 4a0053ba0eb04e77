#pragma once

#include <cmath>
#include <functional>
#include <string_view>
#include <vector>

#include "ui/grid.h"

namespace tanrosen {

/// Which bench-mark rows of the grid are points of the calculation.
enum class Points : int {
  Every = 2,       ///< every one, two rows apart (categories "0" and "4")
  EverySecond = 4  ///< every second one, four rows apart (the other categories)
};

/// Which they are in a data category, given by its code.
Points pointsOf(std::string_view dataKubun);

/// The rows from one point to the next.
constexpr int stride(Points points) { return static_cast<int>(points); }

/// Rows from the start of a forward run to the start of the backward run of the same section.
inline constexpr int runApart = 4;

/// True where a forward run starts on `row` and the backward run of the same section follows: "PF", the far
/// end ("-2"), "PB".
bool startsForwardRun(const ui::Grid& grid, int row);

/// The distance (as the database holds it) of the section behind the bench mark on `row`. Where every bench
/// mark is a point, a section whose runs are recorded apart counts once, with its backward run: the forward
/// one counts 0. Raises Subscript outside the grid.
double sectionDistance(const ui::Grid& grid, int row, Points points);

/// The distances of a route, read once each, however often they are asked for.
class SectionDistances {
 public:
  /// Reads a distance; raises Subscript for a row outside the grid.
  using Read = std::function<double(int row)>;

  /// `rows`: rows of the grid, its header included. `stride`: rows from one point to the next.
  SectionDistances(int rows, int stride, Read read);

  /// Of the section behind the bench mark on `row`.
  double of(int row) {
    if (row < 1) return read_(row);
    double& held = held_[static_cast<std::size_t>(row / 2)];
    if (std::isnan(held)) held = read_(row);
    return held;
  }

  /// The sum over the points from row `start` to the last of the grid; 0 below it. Raises Overflow where the
  /// row behind the last point passes 16 bits. Summed up once for all starts: many known points out of order
  /// cost no more than one.
  double toTheEnd(int start);

 private:
  void sumUp(int last);

  const int rows_;
  const int stride_;
  const Read read_;
  std::vector<double> held_;  // of row 1, 3, 5 …; no number where it was not read yet
  std::vector<double> sums_;  // from a row to the end; empty before it is asked for
};

}  // namespace tanrosen
