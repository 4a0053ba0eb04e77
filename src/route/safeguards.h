#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "route/finding.h"
#include "ui/desktop.h"

namespace route {

// Questions before work could be lost or something wrong be saved. Where the desktop has no safeguards
// nothing is ever asked, and the answer is yes.

/// Asks before `cells` unsaved cells of `what` (such as "路線 01A00101") go: 保存, 破棄 or 取消, which is the
/// safe one. `save` saves and returns true where all is safe on disk. Returns true where the operator may go
/// on: nothing is unsaved, he gives it up, or it has been saved.
bool mayLose(ui::Desktop& desktop, std::string_view what, int cells, const std::function<bool()>& save);

/// Lists the findings of severity 誤り before a save: 保存する or やめる, which is the safe one. Returns true
/// where there are none, or the operator saves all the same.
bool maySaveWith(ui::Desktop& desktop, const ui::Findings& findings);

/// Asks before a save that would leave fewer records than it deletes. `deleted` and `written`: how many
/// records there are now, and would be.
bool mayShrink(ui::Desktop& desktop, std::string_view what, long long deleted, long long written);

}  // namespace route
