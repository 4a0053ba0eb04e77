#pragma once

#ifdef _WIN32

#include <string>
#include <string_view>

// Texts as the calls of Windows take and give them: UTF-16, while the house keeps UTF-8.

namespace platform {

/// UTF-16 of a UTF-8 text; bytes that are no character become U+FFFD.
std::wstring wide(std::string_view text);

/// UTF-8 of a UTF-16 text; halves of a pair that stand alone become U+FFFD.
std::string utf8(std::wstring_view text);

}  // namespace platform

#endif
