#pragma once

#include <memory>

#include "script/hands.h"

namespace script {

/// The hands that work the controls themselves, with no toolkit between. Their desk keeps the message boxes
/// and has nothing to show.
std::unique_ptr<Hands> headlessHands();

}  // namespace script
