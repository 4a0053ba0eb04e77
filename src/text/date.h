#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace text {

/// A calendar day without a time: a day of the Gregorian calendar, carried back before its introduction by
/// the same rules, from 0001/01/01 to 9999/12/31.
///
/// A date text is a year of four digits, a month and a day of one or two digits each, in this order, parted
/// by "/" or both times by "-"; blanks at the ends do not count. "2020/01/05", "2020/1/5" and "2020-01-05"
/// are the same day. Years of two digits, digits without separators and times of day are no dates: they leave
/// room for a guess.
class Date {
 public:
  /// Raises TypeMismatch where the calendar has no such day.
  Date(int year, int month, int day);

  /// The day that a text names; nothing where it is no date text or the calendar has no such day.
  static std::optional<Date> parse(std::string_view text);
  /// The same; raises TypeMismatch where there is no such day.
  static Date read(std::string_view text);

  /// "YYYY/MM/DD".
  std::string text() const;

  /// The day `days` days later, earlier for a negative number. Raises Overflow outside the years 1 to 9999.
  Date plus(int days) const;

  /// Whole calendar days from `from` to `to`, negative where `to` is the earlier one.
  friend int daysBetween(Date from, Date to) { return to.serial_ - from.serial_; }

  auto operator<=>(const Date&) const = default;

 private:
  explicit Date(int serial) : serial_(serial) {}

  int serial_;  // days since 1970/01/01
};

}  // namespace text
