#pragma once

#include <QObject>

#include "script/hands.h"

namespace hands {

/// What the operator sees of a control: read from the widget or action that shows it, not from the control.
script::Reading readShown(const ui::Control& control, const QObject& shown);

/// The size of a control as its widget has it, in twips: to the twip where the widget has the size that the
/// program has set, whole pixels else. 0 × 0 where the program leaves the size to the form.
script::Size sizeShown(const ui::Control& control, const QObject& shown);

}  // namespace hands
