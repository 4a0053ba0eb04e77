#include "measure.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace bench {
namespace {

double timed(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

Result run(const Measure& measure, int turns) {
  constexpr double never = std::numeric_limits<double>::max();
  Result result{measure.name, measure.aim, never, never};
  for (int turn = 0; turn < turns; ++turn) {
    if (measure.prepare) measure.prepare();
    result.program = std::min(result.program, timed(measure.program));
    result.bare = std::min(result.bare, timed(measure.bare));
  }
  return result;
}

}  // namespace bench
