#pragma once

#include <string_view>
#include <utility>

namespace ui {

class Desktop;

/// Reports the exception being handled in a message box: its description as the text, `procedure` as the
/// title, the critical icon. Without a desktop the exception passes on, and so does text::Cancelled. Call it
/// from a catch block only.
void reportTrapped(Desktop* desktop, std::string_view procedure);

/// Runs `action` under the error trap that every named procedure carries: a run-time error is reported under
/// `procedure`, the procedure's own name, and `action` is left where it stood.
/// Returns true where `action` came to its end. `desktop` may be null: then the error passes on to the
/// caller.
template <class Action>
bool trapped(Desktop* desktop, std::string_view procedure, Action&& action) {
  try {
    std::forward<Action>(action)();
    return true;
  } catch (...) {
    reportTrapped(desktop, procedure);
    return false;
  }
}

}  // namespace ui
