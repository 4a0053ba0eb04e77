#include "hksnb/period.h"

#include <algorithm>

#include "text/padding.h"

namespace hksnb {

Period Period::between(std::string_view from, std::string_view to) {
  const auto year = [](std::string_view month) { return std::string(text::left(month, 4)); };
  const auto monthOf = [](std::string_view month) { return std::string(text::right(month, 2)); };
  return {year(from), monthOf(from), year(to), monthOf(to)};
}

GrowingPeriod::GrowingPeriod(const Period& boxes)
    : from_(boxes.yearFrom.empty() ? "999999" : boxes.yearFrom + boxes.monthFrom),
      to_(boxes.yearTo.empty() ? "000000" : boxes.yearTo + boxes.monthTo) {}

void GrowingPeriod::add(std::string_view date) {
  std::string digits(date);
  std::erase(digits, '/');
  const std::string_view month = text::left(digits, 6);
  if (month.empty()) return;
  if (month < from_) from_ = month;
  if (month > to_) to_ = month;
}

}  // namespace hksnb
