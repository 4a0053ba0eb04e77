#pragma once

#include <QObject>

namespace qt {

/// Keeps the wheel from turning the choice of a closed combo box, which nobody would notice; what the box
/// stands on may scroll instead.
class WheelStop : public QObject {
 public:
  /// On `combo`, which owns it.
  explicit WheelStop(QObject* combo);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace qt
