#pragma once

#include <QPalette>

namespace qt {

/// What the colours of a cell depend on.
struct CellLook {
  bool entry = false;     ///< can be typed into
  bool selected = false;  ///< within a selection of the operator
  bool keys = false;      ///< its table has the keyboard
  bool wrong = false;     ///< holds a text that its column does not take
};

/// The ground of a cell: white for what can be typed, slightly grey for what is shown, tinted where it is
/// selected, red where its text is wrong.
QColor cellGround(const QPalette& palette, const CellLook& look);

/// The mark in the corner of a cell, which stands out from its ground as a text does.
QColor cellMark(const QPalette& palette, const CellLook& look);

/// The frame around the cell that keys go to.
QColor cellFrame(const QPalette& palette, bool keys);

}  // namespace qt
