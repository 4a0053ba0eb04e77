#include "text/width.h"

#include "text/padding.h"

namespace text {

char32_t halfWidth(char32_t character) {
  constexpr char32_t firstFull = 0xFF01;  // "！"
  constexpr char32_t lastFull = 0xFF5E;   // "～"
  if (character >= firstFull && character <= lastFull) return character - firstFull + U'!';
  switch (character) {
    case 0x3000:  // ideographic blank
      return U' ';
    case 0x2212:  // minus sign
      return U'-';
    case 0x3002:  // Japanese full stop
    case 0xFF61:  // its half-width form
      return U'.';
    default:
      return character;
  }
}

std::string halfWidth(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t from = at;
    const char32_t character = nextCharacter(text, at);
    const char32_t half = halfWidth(character);
    if (half == character)
      result += text.substr(from, at - from);
    else
      appendCharacter(result, half);
  }
  return result;
}

}  // namespace text
