#include "qt/look_menu.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>

namespace qt {

LookMenu::LookMenu(QMainWindow& window, platform::Settings& settings)
    : QMenu(QStringLiteral("表示(&V)"), &window), settings_(settings) {
  setObjectName(QStringLiteral("lookMenu"));
  new QActionGroup(this);
  add(Look::Light, "lookLight", QStringLiteral("明るい配色(&L)"));
  add(Look::Dark, "lookDark", QStringLiteral("暗い配色(&D)"));
  const QList<QAction*> menus = window.menuBar()->actions();
  window.menuBar()->insertMenu(menus.isEmpty() ? nullptr : menus.back(), this);
}

void LookMenu::add(Look look, const char* name, const QString& caption) {
  QAction* action = addAction(caption);
  action->setObjectName(QLatin1String(name));
  action->setCheckable(true);
  action->setChecked(lookNamed(settings_.text("look")) == look);
  findChild<QActionGroup*>()->addAction(action);
  connect(action, &QAction::triggered, this, [this, look] {
    settings_.set("look", nameOf(look));
    wear(look);
  });
}

}  // namespace qt
