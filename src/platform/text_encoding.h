#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The encoding of a text file.
enum class Encoding { Utf8, Cp932 };

/// The encoding that a command line names ("utf-8" or "cp932", in any letter case).
std::optional<Encoding> encodingOf(std::string_view name);

/// The mark at the front of a UTF-8 file.
inline constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

/// Bytes of a file as UTF-8 text; nothing where a byte belongs to no character.
std::optional<std::string> decoded(std::string_view bytes, Encoding encoding);

/// UTF-8 text as bytes of a file; nothing where the text is no valid UTF-8 or the encoding lacks a character.
std::optional<std::string> encoded(std::string_view text, Encoding encoding);

/// The first character of `text` that `encoded` does not take; "" where it takes them all.
std::string firstLacking(std::string_view text, Encoding encoding);

}  // namespace platform
