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

/// The same for an action that fills a grid and returns false where the grid was full (already reported).
template <class Action>
Status fillingProcedure(ui::Desktop* desktop, std::string_view name, Action&& action) {
  bool whole = false;
  const Status status = procedure(desktop, name, [&] { whole = action(); });
  return whole ? status : Status::Failed;
}

}  // namespace hksnb
