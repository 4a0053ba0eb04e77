#pragma once

#include <string>
#include <string_view>

namespace text {

/// A number pattern such as "###0.0000", "#0.0#", "#.00" or "0.00E+00".
///
/// "0" is a digit always shown, "#" one shown where it is needed. A number is first taken to its decimal text
/// of 15 significant digits, and that decimal is rounded half away from zero to the pattern's digits: 1.0005
/// in "###0.000" is "1.001". What rounds to zero has no minus sign.
class Pattern {
 public:
  /// Reads the pattern; it is a text of "#", "0", one optional "." and one optional "E+00", nothing else.
  /// Raises TypeMismatch for anything else.
  explicit Pattern(std::string_view pattern);

  /// The number as the pattern shows it. Raises Overflow for a number that is not finite.
  std::string format(double number) const;

  /// The same appended to `out`, for loops over many cells.
  void appendTo(std::string& out, double number) const;

  /// The text of a cell or field as the pattern shows it: blank text stays "", any other is read as a number
  /// (see readNumber) and formatted.
  std::string formatText(std::string_view text) const;

  /// The pattern's own text.
  const std::string& text() const { return pattern_; }

 private:
  void appendFixed(std::string& out, const char* digits, int count, int exponent, bool negative) const;
  void appendExponent(std::string& out, const char* digits, int count, int exponent, bool negative) const;

  std::string pattern_;
  int wholeDigits_ = 0;     // digits before the point that are always shown
  int fractionDigits_ = 0;  // digits behind the point that are always shown
  int mostFraction_ = 0;    // digits behind the point at the most
  int exponentDigits_ = 0;  // digits of the exponent, 0 without one
};

}  // namespace text
