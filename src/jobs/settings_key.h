#pragma once

#include <string>
#include <string_view>

namespace jobs {

/// A key of the settings for any text whatever: the prefix, then 16 hexadecimal figures that stand for the
/// text (FNV-1a of its bytes, 64 bits).
std::string settingsKey(std::string_view prefix, std::string_view text);

}  // namespace jobs
