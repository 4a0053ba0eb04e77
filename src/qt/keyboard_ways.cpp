#include "qt/keyboard_ways.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace qt {
namespace {

/// A dialog presses its buttons by Enter itself.
bool waitsForSpaceAlone(const QObject& watched) {
  if (qobject_cast<const QAbstractButton*>(&watched) == nullptr) return false;
  const auto* push = qobject_cast<const QPushButton*>(&watched);
  return push == nullptr || (!push->autoDefault() && !push->isDefault());
}

bool isEnter(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
         (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

KeyboardWays::KeyboardWays(QObject* application) : QObject(application) {
  application->installEventFilter(this);
}

bool KeyboardWays::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && watched->isWidgetType()) {
    auto* widget = static_cast<QWidget*>(watched);
    if (widget->isWindow()) widget->setAttribute(Qt::WA_KeyboardFocusChange);
    return false;
  }
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (!isEnter(key) || !waitsForSpaceAlone(*watched)) return false;
  QKeyEvent space(key.type(), Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), key.isAutoRepeat());
  QApplication::sendEvent(watched, &space);
  return true;
}

}  // namespace qt
