#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "route/finding.h"
#include "route/saved_state.h"
#include "ui/desktop.h"

namespace route {

// Questions before work could be lost or something wrong be saved. Where the desktop has no safeguards
// nothing is ever asked, and the answer is yes.

/// Asks before `cells` unsaved cells of `what` (such as "路線 01A00101") go: 保存, 破棄 or 取消, which is the
/// safe one. `save` saves and returns true where all is safe on disk. Returns true where the operator may go
/// on: nothing is unsaved, he gives it up, or it has been saved.
bool mayLose(ui::Desktop& desktop, std::string_view what, int cells, const std::function<bool()>& save);

/// Asks what has to be asked about the findings of a screen before it is saved. First about entries that no
/// calculation has taken up: 計算して保存, このまま保存 or やめる, which is the safe one. `calculate` takes
/// up those that it gets and returns false where the operator has to look first. Then about the findings of
/// severity 誤り that are left: 保存する or やめる, the safe one. Returns true where there are none or the
/// operator saves all the same. `findings` is asked only with safeguards.
bool maySaveWith(ui::Desktop& desktop, const std::function<ui::Findings()>& findings,
                 const std::function<bool(const ui::Findings& untaken)>& calculate);

/// Asks before a save of `what` that would leave fewer records than it deletes, with both numbers.
bool mayShrink(ui::Desktop& desktop, std::string_view what, const SavePlan& plan);

/// Asks before a save of `what` whose saved records differ in `records` from those that were there when it
/// was loaded: somebody else has saved it since.
bool mayReplaceOthers(ui::Desktop& desktop, std::string_view what, std::size_t records);

/// Asks before a variation book is stored without a number.
bool mayStoreWithoutNumber(ui::Desktop& desktop);

/// Asks before a variation book takes the place of another one, `what` ("番号 3 の正標高補正の計算簿"), which
/// has `benchMarks` bench marks and the results of `year`, "" for none.
bool mayReplaceBook(ui::Desktop& desktop, std::string_view what, std::string_view year,
                    std::size_t benchMarks);

/// Asks before a drawing takes the place of the picture that is filed as `name`.
bool mayReplacePicture(ui::Desktop& desktop, std::string_view name);

}  // namespace route
