#include "route/limits.h"

#include <utility>

#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"

namespace route {
namespace {

constexpr std::string_view sourceKey = "limits.source";

/// Calls `take` with the key of every amount and the amount itself.
template <class AnyLimits, class Take>
void forEachAmount(AnyLimits& limits, const Take& take) {
  take("limits.correction", limits.correction);
  take("limits.rate", limits.rate);
  take("limits.variation", limits.variation);
  take("limits.section", limits.sectionKilometres);
  for (std::size_t i = 0; i < limits.tolerances.grades.size(); ++i) {
    const std::string grade = "limits.grade" + std::to_string(i + 1) + ".";
    auto& tolerance = limits.tolerances.grades[i];
    take(grade + "misclosure", tolerance.misclosure);
    take(grade + "loop", tolerance.loop);
    take(grade + "double", tolerance.doubleRun);
  }
}

/// The amount that a text stands for; `usual` where it stands for none.
double amount(std::string_view text, double usual) {
  try {
    const double number = text::isNumeric(text) ? text::readNumber(text) : 0;
    return number > 0 ? number : usual;
  } catch (const text::RuntimeError&) {
    return usual;
  }
}

}  // namespace

Limits readLimits(const SettingReader& read) {
  Limits limits;
  forEachAmount(limits, [&](std::string_view key, double& number) { number = amount(read(key), number); });
  const std::string source = read(sourceKey);
  if (!text::trimmed(source).empty()) limits.tolerances.source = source;
  return limits;
}

Limits limitsOf(const ui::Desktop& desktop) {
  return readLimits([&desktop](std::string_view key) { return desktop.setting(key); });
}

void writeLimits(const Limits& limits, const SettingWriter& write) {
  forEachAmount(limits,
                [&](std::string_view key, const double& number) { write(key, text::numberText(number)); });
  write(sourceKey, limits.tolerances.source);
}

}  // namespace route
