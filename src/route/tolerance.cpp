#include "route/tolerance.h"

#include <algorithm>
#include <cmath>

namespace route {

const Tolerance& Tolerances::of(job::Grade grade) const {
  const int last = static_cast<int>(grades.size());
  return grades[static_cast<std::size_t>(std::clamp<int>(grade.tokyu(), 1, last) - 1)];
}

double allowed(double perKilometre, double kilometres) {
  return perKilometre * std::sqrt(std::max(kilometres, 0.0));
}

}  // namespace route
