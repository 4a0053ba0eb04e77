#pragma once

#include <QObject>

namespace qt {

/// What the keyboard does alike in every window of a program: Enter presses the button that has the keys as
/// the space bar does, and the widget that has them shows it from the moment a window opens.
class KeyboardWays : public QObject {
 public:
  /// From now on, in all windows of `application`, which owns it.
  explicit KeyboardWays(QObject* application);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace qt
