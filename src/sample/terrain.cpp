#include "sample/terrain.h"

namespace sample {

long long Walk::rounded(long long tenthMillimetres) const {
  return tenthMillimetres / precision_.unit * precision_.unit;
}

Walk::Section Walk::section(int years) {
  Section next{};
  next.metres = random_.between(1000, 2500);
  slope_ = (slope_ + random_.between(-terrain_.steepest, terrain_.steepest)) / 2;
  // mm per km × m = 0.001 mm; 100 of them are 0.1 mm.
  next.rise = rounded(slope_ * next.metres / 100);
  const long long end = height_ + next.rise;
  if (end < terrain_.lowest || end > terrain_.highest) {
    slope_ = -slope_;
    next.rise = -next.rise;
  }
  // The ground tilts by up to 0.6 mm in a year over a section.
  next.riseBefore = next.rise - rounded(static_cast<long long>(years) * random_.between(-6, 6));
  return next;
}

}  // namespace sample
