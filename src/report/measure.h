#pragma once

#include <functional>
#include <string_view>

namespace report {

/// The width of a line of text, in heights of a full-width character.
using Measure = std::function<double(std::string_view text)>;

/// The widths of a font whose letters are one or half a full-width character wide, as ＭＳ ゴシック is.
double fixedPitch(std::string_view text);

}  // namespace report
