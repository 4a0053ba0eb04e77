#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"
#include "text/pattern.h"

// Whatever bytes come: the number reader, the formatter and the cutting by characters keep their promises.

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

/// A shown number is figures with at most one sign in front and one point, and reads back within half a unit.
void checkFixed(const text::Pattern& pattern, double number, int decimals) {
  const std::string shown = pattern.format(number);
  require(shown.find_first_not_of("0123456789.-") == std::string::npos);
  require(shown.rfind('-') == std::string::npos || shown.rfind('-') == 0);
  require(text::isNumeric(shown));
  const double back = text::readNumber(shown);
  require(shown.front() != '-' || back < 0);
  const double unit = std::pow(10.0, -decimals);
  require(std::abs(back - number) <= unit * 0.5000001 + std::abs(number) * 1e-14);
  require(pattern.format(back) == shown);
}

void checkNumber(double number) {
  static const text::Pattern heights("###0.0000"), millimetres("###0.000"), whole("##0"), bare("#.00"),
      power("0.00E+00"), optional("#0.0#");
  checkFixed(heights, number, 4);
  checkFixed(millimetres, number, 3);
  checkFixed(whole, number, 0);
  checkFixed(bare, number, 2);
  checkFixed(optional, number, 2);
  require(text::isNumeric(power.format(number)));

  const std::string words = text::numberText(number);
  require(text::isNumeric(words));
  const double back = text::readNumber(words);
  require(std::abs(back - number) <= std::abs(number) * 1e-14 + 1e-322);
  require(text::numberText(back) == words);
  const double below = text::FcIntOfText(number);
  require(below <= back && below == std::floor(below) && back - below <= 1);
}

void checkReading(std::string_view bytes) {
  double number = 0;
  try {
    number = text::readNumber(bytes);
  } catch (const text::RuntimeError& error) {
    require(error.code() == text::ErrorCode::Overflow);
    return;
  }
  require(std::isfinite(number));
  require(text::readNumber("  " + std::string(bytes)) == number);
  if (std::abs(number) < 1.7e308) checkNumber(number);  // 15 digits of the very largest lie beyond double
}

void checkCharacters(std::string_view bytes) {
  const std::size_t length = text::length(bytes);
  require(length <= bytes.size());
  for (const std::size_t cut : {std::size_t{0}, std::size_t{3}, length}) {
    require(text::length(text::left(bytes, cut)) == std::min(cut, length));
    require(std::string(text::left(bytes, cut)).append(text::mid(bytes, cut + 1)) == bytes);
  }
  const std::string padded = text::padded(bytes, 8);
  require(text::length(padded) == 8);
  require(text::padded(padded, 8) == padded);
  require(text::trimmedRight(padded) == text::trimmedRight(text::left(bytes, 8)));
  std::size_t at = 0;
  std::size_t walked = 0;
  for (; at < bytes.size(); ++walked) text::nextCharacter(bytes, at);
  require(at == bytes.size() && walked == length);
}

void checkPattern(std::string_view bytes, double number) {
  try {
    const text::Pattern pattern(bytes);
    require(text::isNumeric(pattern.format(number)) || bytes.find('0') == std::string_view::npos);
  } catch (const text::RuntimeError& error) {
    require(error.code() == text::ErrorCode::TypeMismatch);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  checkReading(bytes);
  checkCharacters(bytes);
  double number = 0;
  if (size >= sizeof number) std::memcpy(&number, data, sizeof number);
  if (!std::isfinite(number) || std::abs(number) >= 1.7e308) return 0;
  checkNumber(number);
  checkPattern(size >= sizeof number ? bytes.substr(sizeof number) : bytes, number);
  return 0;
}
