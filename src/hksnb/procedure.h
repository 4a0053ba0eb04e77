#pragma once

#include <string_view>
#include <utility>

#include "hksnb/data.h"
#include "ui/error_trap.h"

namespace hksnb {

/// Runs `action` under the error trap of the database procedure `name`.
template <class Action>
Status procedure(ui::Desktop* desktop, std::string_view name, Action&& action) {
  return ui::trapped(desktop, name, std::forward<Action>(action)) ? Status::Done : Status::Failed;
}

}  // namespace hksnb
