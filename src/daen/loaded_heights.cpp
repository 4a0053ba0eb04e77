#include "daen/loaded_heights.h"

#include "route/selection.h"

namespace daen {

std::optional<double> LoadedHeights::reach(std::string_view benchMark, std::string_view flag, double own) {
  if (own != 0) reached_ = own;
  const std::optional<double> height = shown(benchMark, own);
  take(benchMark, flag);
  return height;
}

std::optional<double> LoadedHeights::shown(std::string_view benchMark, double own) const {
  return own == 0 && mean_ && mean_->benchMark == benchMark ? mean_->height : reached_;
}

/// A pair is completed by its second row; what it has left serves the next row alone.
void LoadedHeights::take(std::string_view benchMark, std::string_view flag) {
  mean_.reset();
  if (flag == route::routeEnd) runs_.clear();
  if (flag != route::repeatedPoint || !reached_) return;
  const auto run = runs_.try_emplace(std::string(benchMark), route::tenthsOfMillimetre).first;
  if (run->second.add(*reached_)) mean_ = {run->first, run->second.mean()};
}

void LoadedHeights::leave(double meanDifference) {
  if (reached_) *reached_ += meanDifference;
}

}  // namespace daen
