#include "hksnb/period.h"

#include <algorithm>

#include "text/padding.h"

namespace hksnb {
namespace {

std::string yearAndMonth(const std::string& year, const std::string& month) {
  const std::string_view digits = text::trimmed(month);
  const bool isOneDigit = digits.size() == 1 && digits[0] >= '0' && digits[0] <= '9';
  return isOneDigit ? year + "0" + std::string(digits) : year + month;
}

}  // namespace

Period Period::between(std::string_view from, std::string_view to) {
  const auto year = [](std::string_view month) { return std::string(text::left(month, 4)); };
  const auto monthOf = [](std::string_view month) { return std::string(text::right(month, 2)); };
  return {year(from), monthOf(from), year(to), monthOf(to)};
}

std::string Period::from() const { return yearAndMonth(yearFrom, monthFrom); }

std::string Period::to() const { return yearAndMonth(yearTo, monthTo); }

GrowingPeriod::GrowingPeriod(const Period& boxes)
    : from_(boxes.yearFrom.empty() ? "999999" : boxes.from()),
      to_(boxes.yearTo.empty() ? "000000" : boxes.to()) {}

void GrowingPeriod::add(std::string_view date) {
  std::string digits(date);
  std::erase(digits, '/');
  const std::string_view month = text::left(digits, 6);
  if (month.empty()) return;
  if (month < from_) from_ = month;
  if (month > to_) to_ = month;
}

}  // namespace hksnb
