#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Texts are UTF-8; a character is a Unicode code point. A byte that is no part of valid UTF-8 counts as one
// character, so that nothing is lost from a text that came in another encoding.

namespace text {

/// The number of characters of a text.
std::size_t length(std::string_view text);

/// Characters `start` (from 1) to `start + count − 1` of a text; fewer or none where the text ends before.
std::string_view mid(std::string_view text, std::size_t start, std::size_t count);

/// The text from character `start` (from 1) to its end.
std::string_view mid(std::string_view text, std::size_t start);

/// The first `count` characters.
std::string_view left(std::string_view text, std::size_t count);

/// The last `count` characters.
std::string_view right(std::string_view text, std::size_t count);

/// The text with blanks behind it, cut to exactly `width` characters.
std::string padded(std::string_view text, std::size_t width);

/// The text without the blanks (U+0020) at both ends.
std::string_view trimmed(std::string_view text);

/// The text without the blanks (U+0020) at its end.
std::string_view trimmedRight(std::string_view text);

/// The character that begins at byte `at`, which is moved behind it. A byte that is no part of valid UTF-8
/// yields U+FFFD.
char32_t nextCharacter(std::string_view text, std::size_t& at);

/// `character` appended to `text` as UTF-8.
void appendCharacter(std::string& text, char32_t character);

/// True where both texts are equal but for the case of ASCII letters, as column names are compared.
bool equalIgnoringCase(std::string_view a, std::string_view b);

}  // namespace text
