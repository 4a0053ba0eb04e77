#pragma once

#include <QObject>

namespace qt {

/// For as long as it lives, whatever the operator does with mouse, keys or close box goes nowhere, in every
/// window: it neither reaches a widget now nor waits to reach one later.
class InputStop : public QObject {
 public:
  InputStop();
  ~InputStop() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace qt
