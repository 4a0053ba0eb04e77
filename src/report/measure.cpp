#include "report/measure.h"

#include "text/padding.h"

namespace report {
namespace {

/// ASCII and the half-width forms of katakana.
bool isHalfWidth(char32_t character) {
  return character < 0x80 || (character >= 0xFF61 && character <= 0xFF9F);
}

}  // namespace

double fixedPitch(std::string_view text) {
  double width = 0;
  for (std::size_t at = 0; at < text.size();) width += isHalfWidth(text::nextCharacter(text, at)) ? 0.5 : 1.0;
  return width;
}

}  // namespace report
