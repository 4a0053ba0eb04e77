#include "measure.h"

namespace bench {

std::vector<Measure> engineMeasures(const Job& job, const std::string& engine) {
  std::vector<Measure> result;
  for (const auto& family : {seihyouMeasures, daenMeasures, hendMeasures, tanrosenMeasures, hksnbMeasures})
    for (Measure& measure : family(job)) {
      if (!measure.readsOrSaves) continue;
      measure.name += ", " + engine;
      result.push_back(std::move(measure));
    }
  return result;
}

}  // namespace bench
