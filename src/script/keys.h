#pragma once

#include <string>
#include <string_view>

namespace script {

/// The characters of a text that is typed, one key for each. Raises LineError for a control character: no key
/// of a script types one.
std::u32string typedCharacters(std::string_view text);

/// The keys of a key text, as ui::Grid::pressKey takes them: a character stands for its key, `{Enter}`,
/// `{BackSpace}` and `{BackSpace N}` (N from 1 to 9999) for those keys, `{{` for an opening brace.
/// Raises LineError for another name in braces, a brace that is not closed, a control character.
std::u32string keysOf(std::string_view text);

}  // namespace script
