#include "platform/text_encoding.h"

#include "platform/encoding.h"
#include "text/padding.h"

namespace platform {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr std::string_view replacementBytes = "\xEF\xBF\xBD";

/// Goes behind the character at `at`; false where no valid one stands there.
bool passCharacter(std::string_view text, std::size_t& at) {
  const std::size_t start = at;
  return text::nextCharacter(text, at) != replacement || text.substr(start, at - start) == replacementBytes;
}

bool isUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();)
    if (!passCharacter(text, at)) return false;
  return true;
}

}  // namespace

std::optional<Encoding> encodingOf(std::string_view name) {
  if (text::equalIgnoringCase(name, "utf-8")) return Encoding::Utf8;
  if (text::equalIgnoringCase(name, "cp932")) return Encoding::Cp932;
  return std::nullopt;
}

std::optional<std::string> decoded(std::string_view bytes, Encoding encoding) {
  if (encoding == Encoding::Cp932) return fromCp932(bytes);
  return isUtf8(bytes) ? std::optional(std::string(bytes)) : std::nullopt;
}

std::optional<std::string> encoded(std::string_view text, Encoding encoding) {
  if (encoding == Encoding::Cp932) return toCp932(text);
  return isUtf8(text) ? std::optional(std::string(text)) : std::nullopt;
}

std::string firstLacking(std::string_view text, Encoding encoding) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    text::nextCharacter(text, at);
    const std::string_view character = text.substr(start, at - start);
    if (!encoded(character, encoding)) return std::string(character);
  }
  return {};
}

}  // namespace platform
