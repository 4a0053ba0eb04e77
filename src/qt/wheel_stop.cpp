#include "qt/wheel_stop.h"

#include <QEvent>

namespace qt {

WheelStop::WheelStop(QObject* combo) : QObject(combo) { combo->installEventFilter(this); }

bool WheelStop::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Wheel) return false;
  event->ignore();
  return true;
}

}  // namespace qt
