#pragma once

#include <QMenu>

#include "platform/settings.h"

namespace qt {

class ScreenWindow;

/// 設定: how the operator wants the program to behave, remembered in the settings.
class SettingsMenu : public QMenu {
  Q_OBJECT

 public:
  /// Puts itself into the menu bar of `window`, before the last menu, and arranges the window as it was set.
  SettingsMenu(ScreenWindow& window, platform::Settings& settings);

 private:
  QAction& addSwitch(const char* name, const QString& caption, const char* key, bool otherwise);
  void arrange();
  void editLimits();

  ScreenWindow& window_;
  platform::Settings& settings_;
};

}  // namespace qt
