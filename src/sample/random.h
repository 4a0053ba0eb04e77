#pragma once

#include <cstdint>

namespace sample {

/// Random whole numbers, the same on every machine for the same seed: a counter whose steps are scrambled by
/// two rounds of multiply and shift.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// A number from `low` to `high`, both included.
  int between(int low, int high) {
    const auto span = static_cast<std::uint64_t>(static_cast<std::int64_t>(high) - low + 1);
    return static_cast<int>(low + static_cast<std::int64_t>((next() >> 16) % span));
  }

  /// True once in `times`.
  bool oneIn(int times) { return between(1, times) == 1; }

  /// A number around 0, small ones more likely: the sum of four numbers from −reach to reach.
  int error(int reach) {
    int sum = 0;
    for (int i = 0; i < 4; ++i) sum += between(-reach, reach);
    return sum;
  }

 private:
  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
  }

  std::uint64_t state_;
};

}  // namespace sample
