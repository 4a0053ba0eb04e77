#pragma once

#include <array>
#include <functional>
#include <memory>

#include "job/context.h"
#include "ui/screen.h"

namespace shell {

/// Makes the screen of a calculation; empty for one that the house does not have.
using ScreenMaker = std::function<std::unique_ptr<ui::Screen>(const job::JobContext&, ui::Desktop&)>;

/// The five calculations in the order of the menu's buttons: orthometric, ellipsoidal, variation, single
/// route, variation book.
const std::array<ScreenMaker, 5>& calculations();

}  // namespace shell
