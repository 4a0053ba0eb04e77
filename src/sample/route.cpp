#include "sample/route.h"

#include <cstdlib>

namespace sample {
namespace {

/// A number not below 0 with zeros in front, `width` digits at least.
std::string digits(long long number, std::size_t width) {
  std::string text = std::to_string(number);
  return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

}  // namespace

std::string heightText(long long height, Precision precision) {
  const long long size = std::llabs(height) / precision.unit;
  const long long perMetre = 10000 / precision.unit;
  const std::string text = std::to_string(size / perMetre) + '.' +
                           digits(size % perMetre, static_cast<std::size_t>(precision.decimals));
  return height < 0 ? '-' + text : text;
}

std::string dateText(std::chrono::sys_days day, DateForm form) {
  const std::chrono::year_month_day date(day);
  const std::string separator = form == DateForm::Slashed ? "/" : "";
  return digits(static_cast<int>(date.year()), 4) + separator +
         digits(static_cast<unsigned>(date.month()), 2) + separator +
         digits(static_cast<unsigned>(date.day()), 2);
}

}  // namespace sample
