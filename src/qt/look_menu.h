#pragma once

#include <QMenu>

#include "platform/settings.h"
#include "qt/look.h"

class QMainWindow;

namespace qt {

/// The menu 表示 of a window: how the windows look, from now on and in the next run.
class LookMenu : public QMenu {
  Q_OBJECT

 public:
  /// Stands in the menu bar of `window`, before its last menu. `settings` outlives it.
  LookMenu(QMainWindow& window, platform::Settings& settings);

 private:
  void add(Look look, const char* name, const QString& caption);

  platform::Settings& settings_;
};

}  // namespace qt
