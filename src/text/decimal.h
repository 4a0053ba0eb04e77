#pragma once

namespace text {

/// A number as its decimal of at most 15 significant digits, the form in which every number is shown, rounded
/// and compared: digits[0] . digits[1] … × 10 to the power of `exponent`, without trailing zeros.
struct Decimal {
  /// Raises Overflow where `number` is not finite.
  explicit Decimal(double number);

  bool isZero() const { return count == 0; }

  /// The double nearest to this decimal.
  double value() const;

  char digits[16] = {};  ///< '0' … '9', the first one not '0'
  int count = 0;         ///< how many digits there are; 0 for zero
  int exponent = 0;      ///< the power of ten of the first digit
  bool negative = false;
};

}  // namespace text
