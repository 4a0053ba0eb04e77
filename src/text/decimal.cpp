#include "text/decimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "text/error.h"

namespace text {
namespace {

constexpr int significant = 15;

constexpr std::array<double, 23> powersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Writes the digits of `scaled` (a whole number of at most 15 digits, not 0) and drops its trailing zeros.
void takeDigits(Decimal& decimal, std::uint64_t scaled, int fraction) {
  while (scaled % 10 == 0) {
    scaled /= 10;
    --fraction;
  }
  char reversed[20];
  int count = 0;
  for (; scaled != 0; scaled /= 10) reversed[count++] = static_cast<char>('0' + scaled % 10);
  for (int i = 0; i < count; ++i) decimal.digits[i] = reversed[count - 1 - i];
  decimal.count = count;
  decimal.exponent = count - 1 - fraction;
}

/// The quick road for the numbers of this trade: heights, differences and corrections come from texts of few
/// decimals, so the number times 10^4 (or 10^8) lies next to a whole number, and that whole number over the
/// same power is the number itself. Division of two whole numbers that double holds exactly is correctly
/// rounded, so equality proves that the short decimal denotes this very double; having at most 15 digits, it
/// is then also what rounding to 15 digits gives.
bool takeShort(Decimal& decimal, double magnitude) {
  for (const int fraction : {4, 8}) {
    const double scaled = magnitude * powersOfTen[static_cast<std::size_t>(fraction)];
    if (scaled >= 1e15) return false;
    const double whole = std::nearbyint(scaled);
    if (whole >= 1 && whole / powersOfTen[static_cast<std::size_t>(fraction)] == magnitude) {
      takeDigits(decimal, static_cast<std::uint64_t>(whole), fraction);
      return true;
    }
  }
  return false;
}

/// The road that holds for every number: the correctly rounded text of 15 digits.
void takeLong(Decimal& decimal, double magnitude) {
  char text[32];
  const auto end =
      std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific, significant - 1).ptr;
  decimal.digits[0] = text[0];
  std::memcpy(decimal.digits + 1, text + 2, significant - 1);
  decimal.count = significant;
  while (decimal.digits[decimal.count - 1] == '0') --decimal.count;
  const char* mark = text + significant + 1;  // behind "d.dddddddddddddd" stands "e"
  const char* from = mark[1] == '+' ? mark + 2 : mark + 1;
  std::from_chars(from, end, decimal.exponent);
}

}  // namespace

Decimal::Decimal(double number) {
  if (!std::isfinite(number)) throw RuntimeError(ErrorCode::Overflow);
  if (number == 0) return;
  negative = std::signbit(number);
  const double magnitude = std::abs(number);
  if (!takeShort(*this, magnitude)) takeLong(*this, magnitude);
}

double Decimal::value() const {
  if (count == 0) return 0;
  char text[40];
  char* at = text;
  if (negative) *at++ = '-';
  std::memcpy(at, digits, static_cast<std::size_t>(count));
  at += count;
  *at++ = 'e';
  at = std::to_chars(at, text + sizeof text, exponent - (count - 1)).ptr;
  double number = 0;
  std::from_chars(text, at, number);
  return number;
}

}  // namespace text
