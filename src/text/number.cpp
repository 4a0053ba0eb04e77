#include "text/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "text/decimal.h"
#include "text/error.h"
#include "text/padding.h"

namespace text {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t digitsFrom(std::string_view text, std::size_t at) {
  while (at < text.size() && isDigit(text[at])) ++at;
  return at;
}

/// The length of the longest numeric prefix; 0 where there is none.
std::size_t numericPrefix(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  const std::size_t whole = at;
  at = digitsFrom(text, at);
  std::size_t digits = at - whole;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = at + 1;
    const std::size_t end = digitsFrom(text, fraction);
    digits += end - fraction;
    if (digits > 0) at = end;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t end = digitsFrom(text, exponent);
    if (end > exponent) at = end;
  }
  return at;
}

/// True where the number written in `text` is too large for double, not too small: both leave from_chars
/// without a value.
bool isTooLarge(std::string_view text) {
  long long exponent = 0;
  const std::size_t mark = text.find_first_of("Ee");
  if (mark != std::string_view::npos) {
    std::string_view digits = text.substr(mark + 1);
    const bool negative = digits.front() == '-';
    if (digits.front() == '+' || negative) digits.remove_prefix(1);
    if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc{})
      exponent = std::numeric_limits<int>::max();
    if (negative) exponent = -exponent;
  }
  const std::string_view mantissa = text.substr(0, mark);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  const long long place =
      first < point ? static_cast<long long>(point - first) : -static_cast<long long>(first - point);
  return place + exponent > 0;
}

double convert(std::string_view text) {
  if (text.front() == '+') text.remove_prefix(1);
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec == std::errc::result_out_of_range) {
    if (isTooLarge(text)) throw RuntimeError(ErrorCode::Overflow);
    return 0;
  }
  return number;
}

}  // namespace

/// Its digits as a whole number and the power of ten below them are exact in a double, so their quotient is
/// the double nearest to it. Most cells hold such a number.
std::optional<double> plainNumber(std::string_view text) {
  constexpr std::array<double, 16> powers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const bool negative = !text.empty() && text.front() == '-';
  std::uint64_t digits = 0;
  std::size_t count = 0;
  std::size_t whole = std::string_view::npos;  // digits before the point
  for (const char c : text.substr(negative ? 1 : 0)) {
    if (isDigit(c)) {
      digits = digits * 10 + static_cast<std::uint64_t>(c - '0');
      ++count;
    } else if (c == '.' && whole == std::string_view::npos) {
      whole = count;
    } else {
      return std::nullopt;
    }
  }
  if (count == 0 || count >= powers.size()) return std::nullopt;
  const double number = static_cast<double>(digits) / powers[count - std::min(whole, count)];
  return negative ? -number : number;
}

double readNumber(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  if (const auto number = plainNumber(text)) return *number;
  const std::size_t length = numericPrefix(text);
  return length == 0 ? 0.0 : convert(text.substr(0, length));
}

std::string numberText(double number) {
  const Decimal decimal(number);
  if (decimal.isZero()) return "0";
  std::string text;
  if (decimal.negative) text += '-';
  const int point = decimal.exponent + 1;  // digits before the decimal point
  const std::string_view digits(decimal.digits, static_cast<std::size_t>(decimal.count));
  if (point > 15 || point < -3) {
    text += digits.front();
    if (digits.size() > 1) text.append(".").append(digits.substr(1));
    char exponent[8];
    std::snprintf(exponent, sizeof exponent, "E%+03d", decimal.exponent);
    return text + exponent;
  }
  if (point <= 0) {
    text.append("0.").append(static_cast<std::size_t>(-point), '0').append(digits);
  } else if (decimal.count <= point) {
    text.append(digits).append(static_cast<std::size_t>(point - decimal.count), '0');
  } else {
    const auto whole = static_cast<std::size_t>(point);
    text.append(digits.substr(0, whole)).append(".").append(digits.substr(whole));
  }
  return text;
}

bool isNumeric(std::string_view text) {
  text = trimmed(text);
  return !text.empty() && numericPrefix(text) == text.size();
}

double Int(double number) { return std::floor(number); }

double Fix(double number) { return std::trunc(number); }

double sign(double number) { return number > 0 ? 1.0 : number < 0 ? -1.0 : 0.0; }

double FcIntOfText(double number) {
  // The text has 15 digits: below 10⁹ it is less than 10⁻⁶ away from the number, so only a number next to a
  // whole one can have another floor than its text.
  constexpr double plainBelow = 1e9;
  constexpr double next = 1e-5;
  const double whole = std::floor(number);
  const double fraction = number - whole;
  const bool plain = fraction == 0 || (fraction > next && fraction < 1 - next);
  if (plain && std::abs(number) < plainBelow) return whole + 0.0;  // no negative zero
  return std::floor(Decimal(number).value());
}

double roundHalfUp(double number, double unitsInOne) {
  return FcIntOfText(number * unitsInOne + 0.5) / unitsInOne;
}

double roundHalfAway(double number, double unitsInOne) {
  return sign(number) * roundHalfUp(std::abs(number), unitsInOne);
}

double FcDegToRad(double degrees) { return degrees * (4.0 * std::atan(1.0)) / 180.0; }

std::int16_t toInt16(long long number) {
  if (number < std::numeric_limits<std::int16_t>::min() || number > std::numeric_limits<std::int16_t>::max())
    throw RuntimeError(ErrorCode::Overflow);
  return static_cast<std::int16_t>(number);
}

std::int16_t readInt16(std::string_view text) {
  if (!isNumeric(text)) throw RuntimeError(ErrorCode::TypeMismatch);
  const double number = readNumber(text);
  if (std::abs(number) > 40000) throw RuntimeError(ErrorCode::Overflow);
  return toInt16(static_cast<long long>(std::nearbyint(number)));
}

}  // namespace text
