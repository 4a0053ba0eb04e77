#pragma once

#include <string>
#include <string_view>

#include "report/drawing.h"

namespace report {

/// A drawing as an SVG file. Coordinates are those of the drawing, with two decimals at most; the picture is
/// as large as the drawing on paper. A mark carries its note as a title. The title names the picture.
std::string svgOf(const Drawing& drawing, std::string_view title);

}  // namespace report
