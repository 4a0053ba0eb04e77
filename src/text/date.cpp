#include "text/date.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "text/error.h"
#include "text/padding.h"

namespace text {
namespace {

constexpr int lastYear = 9999;  // the last one of four digits

/// The serial number of a day, counted from 1970/01/01; nothing where the calendar has no such day.
std::optional<int> serialOf(int year, int month, int day) {
  const std::chrono::year_month_day date(std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day)));
  if (year < 1 || year > lastYear || !date.ok()) return std::nullopt;
  return static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count());
}

/// Takes a whole number of `fewest` to `most` digits off the front of `rest`; −1 where there is none.
int takeNumber(std::string_view& rest, std::size_t fewest, std::size_t most) {
  std::size_t digits = 0;
  int number = 0;
  for (; digits < std::min(most, rest.size()) && rest[digits] >= '0' && rest[digits] <= '9'; ++digits)
    number = number * 10 + (rest[digits] - '0');
  rest.remove_prefix(digits);
  return digits < fewest ? -1 : number;
}

bool takeSeparator(std::string_view& rest, char separator) {
  if (rest.empty() || rest.front() != separator) return false;
  rest.remove_prefix(1);
  return true;
}

}  // namespace

Date::Date(int year, int month, int day) : serial_(0) {
  const std::optional<int> serial = serialOf(year, month, day);
  if (!serial) throw RuntimeError(ErrorCode::TypeMismatch);
  serial_ = *serial;
}

std::optional<Date> Date::parse(std::string_view text) {
  std::string_view rest = trimmed(text);
  const int year = takeNumber(rest, 4, 4);
  const char separator = !rest.empty() && rest.front() == '-' ? '-' : '/';
  if (year < 0 || !takeSeparator(rest, separator)) return std::nullopt;
  const int month = takeNumber(rest, 1, 2);
  if (month < 0 || !takeSeparator(rest, separator)) return std::nullopt;
  const int day = takeNumber(rest, 1, 2);
  if (day < 0 || !rest.empty()) return std::nullopt;
  const std::optional<int> serial = serialOf(year, month, day);
  return serial ? std::optional<Date>(Date(*serial)) : std::nullopt;
}

Date Date::read(std::string_view text) {
  const std::optional<Date> date = parse(text);
  if (!date) throw RuntimeError(ErrorCode::TypeMismatch);
  return *date;
}

std::string Date::text() const {
  const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(serial_))};
  char shown[16];
  std::snprintf(shown, sizeof shown, "%04d/%02u/%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return shown;
}

Date Date::plus(int days) const {
  const long long serial = static_cast<long long>(serial_) + days;
  if (serial < Date(1, 1, 1).serial_ || serial > Date(lastYear, 12, 31).serial_)
    throw RuntimeError(ErrorCode::Overflow);
  return Date(static_cast<int>(serial));
}

}  // namespace text
