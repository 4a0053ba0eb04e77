#include "measure.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace bench {
namespace {

/// Short works take turns for at least so long (s), so that one of them is undisturbed.
constexpr double leastTime = 0.3;

double timed(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

Result run(const Measure& measure, int turns) {
  constexpr double never = std::numeric_limits<double>::max();
  Result result{measure.name, measure.aim, never, never};
  double spent = 0;
  for (int turn = 0; turn < turns || spent < leastTime; ++turn) {
    if (measure.prepare) measure.prepare();
    const double program = timed(measure.program);
    const double bare = timed(measure.bare);
    result.program = std::min(result.program, program);
    result.bare = std::min(result.bare, bare);
    spent += program + bare;
  }
  return result;
}

}  // namespace bench
