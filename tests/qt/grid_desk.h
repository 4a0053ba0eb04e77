#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QString>

#include "hands/operator.h"
#include "qt/desk.h"

/// A grid in a window: 12 rows below the header, 5 columns of which column 2 is hidden. Column 1 takes
/// figures, column 4 any text.
class GridDesk : public testing::Test {
 protected:
  GridDesk();

  void settle() { open_.settle(); }
  /// Presses a key in the view.
  void key(int code, Qt::KeyboardModifiers held = Qt::NoModifier, const QString& text = {});
  /// Gives what an input method would.
  void compose(const QString& preedit, const QString& commit);
  /// "row,col to row,col" of the grid's selection.
  std::string where() const;

  OpenScreen open_;
  ui::Grid& grid_ = open_.screen.Grid1;
  qt::GridView& view_ = open_.widget<qt::GridView>(grid_);
  std::u32string keys_;
  int clicks_ = 0;
};
