#pragma once

#include <string>
#include <string_view>

namespace db {

/// The UTF-16 form of a UTF-8 text. A byte that is no part of valid UTF-8 becomes U+FFFD.
std::u16string utf16(std::string_view text);

/// The UTF-8 form of a UTF-16 text. Half of a surrogate pair becomes U+FFFD.
std::string utf8(std::u16string_view text);

}  // namespace db
