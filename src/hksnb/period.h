#pragma once

#include <string>
#include <string_view>

namespace hksnb {

/// A span of months as the operator's four boxes hold it: years of four digits, months of one or two, or
/// blank.
struct Period {
  std::string yearFrom;
  std::string monthFrom;
  std::string yearTo;
  std::string monthTo;

  bool operator==(const Period&) const = default;

  /// The period between two months "YYYYMM": the first four characters are the year, the last two the month.
  static Period between(std::string_view from, std::string_view to);

  /// Its months as they are stored, "YYYYMM": a month of one digit gets a zero in front of it, any other text
  /// stays as it is.
  std::string from() const;
  std::string to() const;
};

/// A period that grows over the months of observations and never shrinks.
class GrowingPeriod {
 public:
  /// Begins with what the boxes hold; a blank year leaves that end open.
  explicit GrowingPeriod(const Period& boxes);

  /// Takes in the month of an observation date, "YYYYMMDD" with or without "/"; a blank date changes nothing.
  void add(std::string_view date);

  /// The period now. An end that no date has reached and no box held reads "999999" and "000000".
  Period period() const { return Period::between(from_, to_); }

 private:
  std::string from_;  // YYYYMM
  std::string to_;    // YYYYMM
};

}  // namespace hksnb
