#pragma once

#include <string>
#include <string_view>

namespace text {

/// The text with the full-width forms of ASCII characters ("１２．５", U+FF01 to U+FF5E), the ideographic
/// blank, the minus signs that input methods write ("−", "－") and the Japanese full stop in a number's place
/// ("。", "．") as their half-width forms; every other character stays as it is.
///
/// For what is typed or pasted where a number, a date or a name of a column is expected, never for remarks.
std::string halfWidth(std::string_view text);

/// The same for one character.
char32_t halfWidth(char32_t character);

}  // namespace text
