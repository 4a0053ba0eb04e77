#include "qt/cell_editor.h"

#include <QKeyEvent>
#include <algorithm>
#include <limits>

namespace qt {

CellEditor::CellEditor(QWidget& viewport, const QRect& place, const QString& text) : QLineEdit(&viewport) {
  setObjectName(QStringLiteral("cellEditor"));
  setAccessibleName(QStringLiteral("セルの編集"));
  setMaxLength(std::numeric_limits<int>::max());
  setText(text);
  selectAll();
  const int narrowest = fontMetrics().averageCharWidth() * 12;
  setGeometry(place.left(), place.top(), std::max(place.width(), narrowest), place.height());
  setTextMargins(1, 0, 1, 0);
  setStyleSheet(QStringLiteral("QLineEdit { border: 2px solid palette(highlight); padding: 0; }"));
  show();
  setFocus(Qt::OtherFocusReason);
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return emit left(Qt::Key_Return);
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Escape:
      return emit left(event->key());
    default:
      QLineEdit::keyPressEvent(event);
      event->accept();  // what the line has no use for is not meant for the table either
  }
}

/// A menu that opens over it takes the keyboard only for a while.
void CellEditor::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) emit left(0);
}

bool CellEditor::focusNextPrevChild(bool next) {
  emit left(next ? Qt::Key_Tab : Qt::Key_Backtab);
  return true;
}

}  // namespace qt
