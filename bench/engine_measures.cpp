#include "measure.h"

namespace bench {

std::vector<Measure> engineMeasures(const EngineJob& there, const std::string& engine) {
  std::vector<Measure> result;
  for (const auto& family : {seihyouMeasures, daenMeasures, hendMeasures, tanrosenMeasures, hksnbMeasures})
    for (Measure& measure : family(there.job)) {
      if (measure.work == Work::Grid) continue;
      measure.name += ", " + engine;
      measure.aim = measure.work == Work::Reading ? there.readingAim : there.savingAim;
      result.push_back(std::move(measure));
    }
  return result;
}

}  // namespace bench
