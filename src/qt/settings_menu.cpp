#include "qt/settings_menu.h"

#include <QMenuBar>

#include "qt/limits_dialog.h"
#include "qt/screen_window.h"

namespace qt {
namespace {

constexpr const char* recordKey = "record";
constexpr const char* replaceKey = "replaceTyped";

}  // namespace

SettingsMenu::SettingsMenu(ScreenWindow& window, platform::Settings& settings)
    : QMenu(QStringLiteral("設定(&T)"), &window), window_(window), settings_(settings) {
  setObjectName(QStringLiteral("settingsMenu"));
  addSwitch("settingReplaceTyped", QStringLiteral("打った文字で置き換える(&R)"), replaceKey, false);
  addSwitch("settingRecord", QStringLiteral("作業記録(&W)"), recordKey, true);
  addSeparator();
  QAction* limits = addAction(QStringLiteral("許容範囲(&L)..."));
  limits->setObjectName(QStringLiteral("settingLimits"));
  connect(limits, &QAction::triggered, this, &SettingsMenu::editLimits);
  const QList<QAction*> menus = window.menuBar()->actions();
  window.menuBar()->insertMenu(menus.isEmpty() ? nullptr : menus.back(), this);
  arrange();
}

/// A switch that is remembered under `key`.
QAction& SettingsMenu::addSwitch(const char* name, const QString& caption, const char* key, bool otherwise) {
  QAction* action = addAction(caption);
  action->setObjectName(QLatin1String(name));
  action->setCheckable(true);
  action->setChecked(settings_.flag(key, otherwise));
  connect(action, &QAction::triggered, this, [this, key](bool on) {
    settings_.set(key, on ? 1 : 0);
    arrange();
  });
  return *action;
}

void SettingsMenu::arrange() {
  const bool replaces = settings_.flag(replaceKey, false);
  for (ui::Control* control : window_.screen()->controls())
    if (auto* grid = dynamic_cast<ui::Grid*>(control)) grid->setReplacesTyped(replaces);
}

void SettingsMenu::editLimits() {
  LimitsDialog dialog(route::readLimits([this](std::string_view key) { return settings_.text(key); }),
                      &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  route::writeLimits(dialog.limits(),
                     [this](std::string_view key, std::string_view text) { settings_.set(key, text); });
  window_.check();
}

}  // namespace qt
