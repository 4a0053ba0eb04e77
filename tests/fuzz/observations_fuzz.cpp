#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "intake/plan.h"
#include "intake/store.h"
#include "text/error.h"

/// Any bytes are taken as a block of observations. A plan without refusals holds what a screen can load: keys
/// that fit, orders from 1, and an end for every route.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  intake::Block block;
  try {
    block = intake::readBlock(text);
  } catch (const text::RuntimeError&) {
    return 0;
  }
  const auto matching = intake::matchByName(block.headings.cells);
  const intake::Plan plan = intake::planObservations(block, matching, {"1", "P", "R", "0"});
  if (intake::described(plan).empty()) std::abort();
  if (!plan.refusals.empty()) return 0;
  std::size_t ends = 0;
  for (const intake::Observation& one : plan.observations) {
    if (one.order < 1 || one.benchMark.empty() || one.project.empty() || one.route.empty()) std::abort();
    ends += one.end == "-1" ? 1U : 0U;
  }
  if (ends < plan.routes.size()) std::abort();
  return 0;
}
