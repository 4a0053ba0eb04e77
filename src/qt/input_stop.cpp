#include "qt/input_stop.h"

#include <QCoreApplication>
#include <QEvent>

namespace qt {
namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

InputStop::InputStop() { QCoreApplication::instance()->installEventFilter(this); }

InputStop::~InputStop() { QCoreApplication::instance()->removeEventFilter(this); }

bool InputStop::eventFilter(QObject*, QEvent* event) {
  if (!isInput(event->type())) return false;
  event->ignore();
  return true;
}

}  // namespace qt
