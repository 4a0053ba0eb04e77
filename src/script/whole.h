#pragma once

#include <optional>
#include <string_view>

namespace script {

/// The number that a text of decimal digits stands for; nothing for any other text and for a number past the
/// range of int.
std::optional<int> wholeNumber(std::string_view digits);

}  // namespace script
