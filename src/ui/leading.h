#pragma once

#include "ui/finding.h"

namespace ui {

class Grid;
class Screen;

/// The grid that the findings of a screen are about, its first one; null where it has none.
Grid* checkedGrid(const Screen& screen);

/// Leads the operator to a finding: its page comes to the front and its cell becomes the current one, in a
/// hidden column the first cell of its row that can be seen. A finding that belongs to no cell, or to one
/// that is gone, leads to the page.
void leadTo(const Screen& screen, const Finding& finding);

}  // namespace ui
