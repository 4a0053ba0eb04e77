#include "script/keys.h"

#include "script/line_error.h"
#include "script/whole.h"
#include "text/padding.h"
#include "ui/grid.h"

namespace script {
namespace {

constexpr int mostPresses = 9999;

bool isControl(char32_t c) { return c < U' ' || (c >= 0x7F && c < 0xA0); }

char32_t typedCharacter(std::string_view text, std::size_t& at) {
  const char32_t character = text::nextCharacter(text, at);
  if (isControl(character)) throw LineError("制御文字は打てません。");
  return character;
}

/// The keys that a name in braces stands for.
std::u32string namedKeys(std::string_view name) {
  constexpr std::string_view backspaces = "BackSpace ";
  if (name == "Enter") return {ui::key::enter};
  if (name == "BackSpace") return {ui::key::backspace};
  if (!name.starts_with(backspaces))
    throw LineError("「{" + std::string(name) + "}」というキーはありません。");
  const int presses = wholeNumber(name.substr(backspaces.size())).value_or(0);
  if (presses < 1 || presses > mostPresses)
    throw LineError("「{BackSpace N}」の N は 1 から 9999 までの整数です。");
  return std::u32string(static_cast<std::size_t>(presses), ui::key::backspace);
}

/// The keys of what stands behind the opening brace before `at`, which is moved behind it.
std::u32string bracedKeys(std::string_view text, std::size_t& at) {
  if (at < text.size() && text[at] == '{') {
    ++at;
    return {U'{'};
  }
  const std::size_t end = text.find('}', at);
  if (end == std::string_view::npos)
    throw LineError("「{」が閉じていません。「{」そのものは「{{」と書きます。");
  const std::string_view name = text.substr(at, end - at);
  at = end + 1;
  return namedKeys(name);
}

}  // namespace

std::u32string typedCharacters(std::string_view text) {
  std::u32string characters;
  for (std::size_t at = 0; at < text.size();) characters += typedCharacter(text, at);
  return characters;
}

std::u32string keysOf(std::string_view text) {
  std::u32string keys;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = typedCharacter(text, at);
    if (character == U'{')
      keys += bracedKeys(text, at);
    else
      keys += character;
  }
  return keys;
}

}  // namespace script
