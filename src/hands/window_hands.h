#pragma once

#include <memory>

#include "script/hands.h"

namespace hands {

/// The hands that press the keys and buttons of real windows and read from what stands there. On a display,
/// or offscreen where there is none. The toolkit takes only the program's name from the command line.
std::unique_ptr<script::Hands> windowHands(int& argc, char** argv);

}  // namespace hands
