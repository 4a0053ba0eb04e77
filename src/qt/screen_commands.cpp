#include "qt/screen_commands.h"

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <utility>

#include "qt/manual_window.h"
#include "qt/selection_page.h"

namespace qt {
namespace {

/// Keys go to the first widget on the page that takes them.
void focusOn(const QWidget& page) {
  for (QWidget* at = page.nextInFocusChain(); at != &page; at = at->nextInFocusChain()) {
    const bool takesKeys = (at->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && at->isEnabled();
    if (takesKeys && page.isAncestorOf(at) && at->isVisible()) return at->setFocus(Qt::ShortcutFocusReason);
  }
}

/// The page of the tabs on which a widget stands, null for none.
QWidget* pageOf(const QTabWidget& tabs, const QWidget& widget) {
  for (int page = 0; page < tabs.count(); ++page)
    if (tabs.widget(page) == &widget || tabs.widget(page)->isAncestorOf(&widget)) return tabs.widget(page);
  return nullptr;
}

}  // namespace

ScreenCommands::ScreenCommands(QMainWindow& window, QString screen)
    : QObject(&window), window_(window), screen_(std::move(screen)) {
  if (auto* selection = window.findChild<QAction*>(QStringLiteral("goToSelection")))
    connect(selection, &QAction::triggered, this, &ScreenCommands::goToSelection);
  if (auto* save = window.findChild<QAction*>(QStringLiteral("goToSave")))
    connect(save, &QAction::triggered, this, &ScreenCommands::goToSave);
  addHelp();
}

void ScreenCommands::addHelp() {
  auto* help = new QAction(QStringLiteral("操作説明書(&M)"), &window_);
  help->setObjectName(QStringLiteral("openManual"));
  help->setShortcut(Qt::Key_F1);
  connect(help, &QAction::triggered, this, &ScreenCommands::openManual);
  if (window_.menuWidget() == nullptr) return window_.addAction(help);
  window_.menuBar()->addMenu(QStringLiteral("ヘルプ(&L)"))->addAction(help);
}

void ScreenCommands::goToSelection() {
  auto* tabs = window_.findChild<QTabWidget*>();
  if (tabs == nullptr) return;
  QWidget* page = tabs->findChild<SelectionPage*>();
  if (page == nullptr) page = tabs->widget(0);
  tabs->setCurrentWidget(page);
  focusOn(*page);
}

void ScreenCommands::goToSave() {
  const auto* action = window_.findChild<QAction*>(QStringLiteral("goToSave"));
  auto* button = window_.findChild<QPushButton*>(action->property("button").toString());
  auto* tabs = window_.findChild<QTabWidget*>();
  if (button == nullptr || tabs == nullptr) return;
  if (button->isVisible()) return button->click();
  QWidget* page = pageOf(*tabs, *button);
  tabs->setCurrentWidget(page);
  focusOn(*page);
}

void ScreenCommands::openManual() { ManualWindow::open(screen_, window_); }

}  // namespace qt
