#pragma once

#include <QPalette>
#include <string_view>

namespace qt {

/// How all windows of a program look.
enum class Look { Light, Dark };

/// The colours of a look. In both, cells that can be typed into have the ground Base, cells that only show
/// something a ground nearer to the text's colour; BrightText is that of texts that are not what their field
/// takes.
QPalette paletteOf(Look look);

/// Gives every window of the program this look, at once.
void wear(Look look);

/// The name of a look in the settings, and back; any other name is the light one.
std::string_view nameOf(Look look);
Look lookNamed(std::string_view name);

}  // namespace qt
