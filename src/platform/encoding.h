#pragma once

#include <optional>
#include <string>
#include <string_view>

// CP932, the encoding of Japanese Windows text files, and UTF-8. Both directions agree: whatever one gives,
// the other gives back, on every system alike.

namespace platform {

/// CP932 bytes as UTF-8 text; nothing where a byte belongs to no character.
std::optional<std::string> fromCp932(std::string_view bytes);

/// UTF-8 text as CP932 bytes; nothing where the text is no valid UTF-8 or holds a character that CP932 lacks
/// (one that would come back as another counts as lacking).
std::optional<std::string> toCp932(std::string_view text);

}  // namespace platform
