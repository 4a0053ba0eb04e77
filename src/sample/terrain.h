#pragma once

#include "sample/random.h"
#include "sample/route.h"

namespace sample {

/// The land that routes run over. Heights in 0.1 mm.
struct Terrain {
  long long lowest;
  long long highest;
  int steepest;  ///< mm per km, which is 0.1 mm per 100 m

  static Terrain plain() { return {20'000, 300'000, 2'500}; }
  static Terrain hills() { return {1'500'000, 12'000'000, 24'000}; }
  static Terrain coast() { return {15'000, 1'500'000, 12'000}; }
};

/// A way over the land, and what a level sees of it: lengths of sections, true height differences, observed
/// ones with small errors, and those of an epoch before, when the ground stood a little differently.
class Walk {
 public:
  /// Starts at the true height `start` (0.1 mm).
  Walk(Terrain terrain, Precision precision, long long start, Random random)
      : terrain_(terrain), precision_(precision), random_(random), height_(start) {}

  /// The true height of the present bench mark (0.1 mm), a multiple of the unit.
  long long height() const { return height_; }
  Random& random() { return random_; }

  /// A section from the present bench mark to the next one.
  struct Section {
    int metres;            ///< 1000 to 2500
    long long rise;        ///< true height difference now (0.1 mm)
    long long riseBefore;  ///< true height difference `years` ago (0.1 mm)
  };

  /// Looks at the next section without going on.
  Section section(int years);
  /// Goes to the end of a section.
  void follow(const Section& section) { height_ += section.rise; }
  /// What an observation of the difference `rise` gives (0.1 mm).
  long long observed(long long rise) { return rise + error(); }

 private:
  long long rounded(long long tenthMillimetres) const;
  long long error() { return precision_.unit == 1 ? random_.error(3) : 10 * random_.error(1); }

  Terrain terrain_;
  Precision precision_;
  Random random_;
  long long height_;
  long long slope_ = 0;  // mm per km
};

}  // namespace sample
