#pragma once

#include <array>
#include <string>

#include "job/grade.h"

namespace route {

/// What a survey grade allows, in mm for a length of 1 km; for a length of S km it is √S times as much.
struct Tolerance {
  double misclosure = 0;  ///< between two known points
  double loop = 0;        ///< of a loop that ends where it began
  double doubleRun = 0;   ///< between the forward and the backward run of a section

  bool operator==(const Tolerance&) const = default;
};

/// The tolerances of the four grades, a table that operators may edit, and where it was taken from.
struct Tolerances {
  /// Of grade 1 to 4.
  std::array<Tolerance, 4> grades{{{15, 2, 2.5}, {15, 5, 5}, {15, 10, 10}, {25, 20, 20}}};
  std::string source = "作業規程の準則(国土交通省) 第65条、第69条";

  /// Those of a job's grade; a grade beyond 4 has those of grade 4.
  const Tolerance& of(job::Grade grade) const;

  bool operator==(const Tolerances&) const = default;
};

/// The allowed amount (mm) over `kilometres`, from the amount that is allowed over 1 km. Raises nothing; a
/// negative length allows nothing.
double allowed(double perKilometre, double kilometres);

}  // namespace route
