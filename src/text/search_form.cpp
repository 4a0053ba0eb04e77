#include "text/search_form.h"

#include "text/padding.h"
#include "text/width.h"

namespace text {
namespace {

constexpr char32_t halfKanaFirst = 0xFF61;  // ｡
constexpr char32_t halfVoiced = 0xFF9E;
constexpr char32_t halfHalfVoiced = 0xFF9F;

/// The full-width forms of U+FF61 to U+FF9F, in their order.
constexpr std::u32string_view fullKana =
    U"。「」、・ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモ"
    U"ヤユヨラリルレロワン゛゜";

/// The kana that take a voiced mark; the voiced form is the character after each.
constexpr std::u32string_view voiceable = U"カキクケコサシスセソタチツテトハヒフヘホ";
constexpr std::u32string_view halfVoiceable = U"ハヒフヘホ";

bool holds(std::u32string_view characters, char32_t one) {
  return characters.find(one) != std::u32string_view::npos;
}

/// Takes a voiced or half-voiced mark into the kana before it. False where that one cannot take it.
bool voice(std::u32string& text, char32_t mark) {
  if (text.empty()) return false;
  char32_t& last = text.back();
  if (mark == halfVoiced && last == U'ウ') {
    last = U'ヴ';
  } else if (mark == halfVoiced && holds(voiceable, last)) {
    last += 1;
  } else if (mark == halfHalfVoiced && holds(halfVoiceable, last)) {
    last += 2;
  } else {
    return false;
  }
  return true;
}

char32_t oneForm(char32_t character) {
  if (character >= halfKanaFirst && character <= halfHalfVoiced) return fullKana[character - halfKanaFirst];
  const char32_t half = character == U'。' ? character : halfWidth(character);
  return half >= U'A' && half <= U'Z' ? half + (U'a' - U'A') : half;
}

}  // namespace

std::string searchForm(std::string_view text) {
  std::u32string form;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = nextCharacter(text, at);
    const bool mark = character == halfVoiced || character == halfHalfVoiced;
    if (!(mark && voice(form, character))) form += oneForm(character);
  }
  std::string result;
  for (const char32_t character : form) appendCharacter(result, character);
  return result;
}

}  // namespace text
