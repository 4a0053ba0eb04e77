#pragma once

#include <QLineEdit>

namespace qt {

/// The line in which a cell of a grid is edited where it stands: with a caret, its text selected.
class CellEditor : public QLineEdit {
  Q_OBJECT

 public:
  /// Opens at `place` of `viewport`, with the keyboard.
  CellEditor(QWidget& viewport, const QRect& place, const QString& text);

 signals:
  /// The operator is done with it: by Enter (Key_Return), Tab (Key_Backtab with Shift), an arrow up or down,
  /// Esc, or (0) by going elsewhere.
  void left(int key);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
};

}  // namespace qt
