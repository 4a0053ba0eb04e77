#include <algorithm>
#include <cmath>
#include <numeric>

#include "report/diagram.h"
#include "text/pattern.h"

namespace report {
namespace {

/// The smallest of 1, 2, 5 times a power of ten that is not below `wanted`.
double roundStep(double wanted) {
  const double power = std::pow(10, std::floor(std::log10(wanted)));
  for (const double times : {1.0, 2.0, 5.0})
    if (times * power >= wanted * (1 - 1e-9)) return times * power;
  return 10 * power;
}

}  // namespace

std::vector<double> alongRoute(const std::vector<std::optional<double>>& sections, bool equalSteps) {
  double sum = 0;
  int known = 0;
  for (const auto& section : sections) {
    if (!section) continue;
    sum += *section;
    ++known;
  }
  const bool steps = equalSteps || sum <= 0;
  const double mean = steps ? 1 : sum / known;
  std::vector<double> places{0};
  for (const auto& section : sections) places.push_back(places.back() + (steps ? 1 : section.value_or(mean)));
  return places;
}

void layOut(Diagram& diagram, const std::vector<std::optional<double>>& sections) {
  const std::vector<double> places = alongRoute(sections, false);
  for (std::size_t i = 0; i < diagram.points.size(); ++i) diagram.points[i].at = places[i];
  diagram.kilometres = std::any_of(sections.begin(), sections.end(),
                                   [](const auto& section) { return section.value_or(0) > 0; });
}

void layOutEqually(Diagram& diagram) {
  for (std::size_t i = 0; i < diagram.points.size(); ++i) diagram.points[i].at = static_cast<double>(i);
  diagram.kilometres = false;
}

std::string layOutText(const Diagram& diagram) {
  if (!diagram.kilometres || diagram.points.empty()) return "横軸　等間隔";
  return "横軸　距離（全長 " + text::Pattern("#0.0").format(diagram.points.back().at) + " km）";
}

Scale scaleFor(double low, double high, int ticks) {
  if (high <= low) {  // one value alone stands in the middle
    const double around = low == 0 ? 1 : std::abs(low) * 0.01;
    low -= around;
    high += around;
  }
  Scale scale;
  scale.step = roundStep((high - low) / ticks);
  scale.low = std::floor(low / scale.step + 1e-9) * scale.step;
  scale.high = std::ceil(high / scale.step - 1e-9) * scale.step;
  scale.decimals = std::max(0, -static_cast<int>(std::floor(std::log10(scale.step) + 1e-9)));
  return scale;
}

}  // namespace report
