#include "odbc/utf16.h"

#include "text/padding.h"

namespace db {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t firstHigh = 0xD800;
constexpr char32_t firstLow = 0xDC00;
constexpr char32_t behindLow = 0xE000;
constexpr char32_t firstPair = 0x10000;

bool isHigh(char32_t unit) { return unit >= firstHigh && unit < firstLow; }
bool isLow(char32_t unit) { return unit >= firstLow && unit < behindLow; }

}  // namespace

std::u16string utf16(std::string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = text::nextCharacter(text, at);
    if (character < firstPair) {
      result += static_cast<char16_t>(character);
      continue;
    }
    result += static_cast<char16_t>(firstHigh + ((character - firstPair) >> 10U));
    result += static_cast<char16_t>(firstLow + ((character - firstPair) & 0x3FFU));
  }
  return result;
}

std::string utf8(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    char32_t character = text[at];
    if (isHigh(character) && at + 1 < text.size() && isLow(text[at + 1])) {
      character = firstPair + ((character - firstHigh) << 10U) + (text[at + 1] - firstLow);
      ++at;
    } else if (isHigh(character) || isLow(character)) {
      character = replacement;
    }
    text::appendCharacter(result, character);
  }
  return result;
}

}  // namespace db
