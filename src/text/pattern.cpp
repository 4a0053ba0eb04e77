#include "text/pattern.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "text/decimal.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"

namespace text {
namespace {

/// Digits cut to `keep` (which may be 0 or less) and rounded half away from zero. The result has no trailing
/// zeros; a carry out of the first digit raises the exponent.
struct Rounded {
  char digits[17] = {};
  int count = 0;
  int exponent = 0;

  Rounded(const char* from, int available, int power, int keep) : exponent(power) {
    if (keep < 0) return;
    count = std::min(available, keep);
    std::memcpy(digits, from, static_cast<std::size_t>(count));
    if (available > keep && from[keep] >= '5') roundUp();
    while (count > 0 && digits[count - 1] == '0') --count;
  }

 private:
  void roundUp() {
    int at = count - 1;
    while (at >= 0 && digits[at] == '9') digits[at--] = '0';
    if (at >= 0) {
      ++digits[at];
      return;
    }
    digits[0] = '1';
    std::fill(digits + 1, digits + std::max(count, 1), '0');
    count = std::max(count, 1);
    ++exponent;
  }
};

}  // namespace

Pattern::Pattern(std::string_view pattern) : pattern_(pattern) {
  std::size_t at = 0;
  bool fraction = false;
  for (; at < pattern.size(); ++at) {
    const char c = pattern[at];
    if (c == '.' && !fraction) {
      fraction = true;
    } else if (c == '0' || c == '#') {
      if (!fraction) {
        wholeDigits_ += c == '0' ? 1 : 0;
      } else {
        ++mostFraction_;
        if (c == '0') fractionDigits_ = mostFraction_;
      }
    } else {
      break;
    }
  }
  const std::string_view rest = pattern.substr(at);
  if (rest.size() > 2 && rest.starts_with("E+") && rest.find_first_not_of('0', 2) == std::string_view::npos) {
    exponentDigits_ = static_cast<int>(rest.size()) - 2;
  } else if (!rest.empty()) {
    throw RuntimeError(ErrorCode::TypeMismatch);
  }
}

std::string Pattern::format(double number) const {
  std::string out;
  appendTo(out, number);
  return out;
}

void Pattern::appendTo(std::string& out, double number) const {
  const Decimal decimal(number);
  if (exponentDigits_ > 0) {
    const Rounded rounded(decimal.digits, decimal.count, decimal.exponent,
                          std::max(wholeDigits_, 1) + mostFraction_);
    appendExponent(out, rounded.digits, rounded.count, rounded.exponent, decimal.negative);
  } else {
    const Rounded rounded(decimal.digits, decimal.count, decimal.exponent,
                          decimal.exponent + 1 + mostFraction_);
    appendFixed(out, rounded.digits, rounded.count, rounded.exponent, decimal.negative);
  }
}

std::string Pattern::formatText(std::string_view text) const {
  if (trimmed(text).empty()) return {};
  return format(readNumber(text));
}

void Pattern::appendFixed(std::string& out, const char* digits, int count, int exponent,
                          bool negative) const {
  const int whole = count == 0 ? 0 : exponent + 1;  // digits before the point; 0 or less where there are none
  if (negative && count > 0) out += '-';
  out.append(static_cast<std::size_t>(std::max(0, wholeDigits_ - std::max(whole, 0))), '0');
  for (int place = 0; place < whole; ++place) out += place < count ? digits[place] : '0';
  if (mostFraction_ == 0) return;
  const int used =
      count == 0 ? 0 : std::max(count - whole, 0);  // digits behind the point that are not trailing zeros
  const int shown = std::max(fractionDigits_, used);
  out += '.';
  for (int place = whole; place < whole + shown; ++place)
    out += place >= 0 && place < count ? digits[place] : '0';
}

void Pattern::appendExponent(std::string& out, const char* digits, int count, int exponent,
                             bool negative) const {
  const int whole = std::max(wholeDigits_, 1);
  if (negative && count > 0) out += '-';
  for (int place = 0; place < whole; ++place) out += place < count ? digits[place] : '0';
  if (mostFraction_ > 0) {
    const int shown = std::max(fractionDigits_, count - whole);
    out += '.';
    for (int place = whole; place < whole + shown; ++place) out += place < count ? digits[place] : '0';
  }
  const int power = count == 0 ? 0 : exponent - (whole - 1);
  const std::string figures = std::to_string(std::abs(power));
  out.append(power < 0 ? "E-" : "E+");
  out.append(static_cast<std::size_t>(std::max(0, exponentDigits_ - static_cast<int>(figures.size()))), '0');
  out += figures;
}

}  // namespace text
