#include "hands/operator.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <stdexcept>

#include "qt/cell_editor.h"
#include "qt/convert.h"
#include "qt/find_bar.h"
#include "ui/grid.h"

namespace hands {
namespace {

void mouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons held,
           Qt::KeyboardModifiers keys = Qt::NoModifier) {
  QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, keys);
  QApplication::sendEvent(&widget, &event);
}

QMenu* menuOf(const QAction& action) {
  for (QObject* object : action.associatedObjects())
    if (auto* menu = qobject_cast<QMenu*>(object)) return menu;
  return nullptr;
}

/// Opens the menu that an item stands in.
QMenu& openMenu(const QAction& action) {
  QMenu* menu = menuOf(action);
  if (menu == nullptr) throw std::logic_error("menu item without a menu");
  menu->popup(menu->parentWidget()->mapToGlobal(QPoint(0, menu->parentWidget()->height())));
  return *menu;
}

/// Opens the menu, goes to the item and presses Enter on it.
void pressItem(QAction& action) {
  QMenu& menu = openMenu(action);
  menu.setActiveAction(&action);
  key(menu, Qt::Key_Return, QStringLiteral("\r"));
}

/// Where the middle of a cell is seen, which is scrolled into view first.
QPoint placeOf(qt::GridView& view, int row, int col) {
  const QModelIndex index = view.indexOf(row, col);
  view.scrollTo(index);
  const QRect place = view.visualRect(index).intersected(view.viewport()->rect());
  if (place.isEmpty()) throw std::logic_error("cell out of reach");
  return place.center();
}

QPoint pressCell(qt::GridView& view, const ui::CellPlace& cell, Qt::KeyboardModifiers keys) {
  const QPoint at = placeOf(view, cell.row, cell.col);
  mouse(*view.viewport(), QEvent::MouseButtonPress, at, Qt::LeftButton, keys);
  return at;
}

}  // namespace

void click(QWidget& widget, const QPoint& at) {
  mouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton);
  mouse(widget, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void key(QWidget& widget, int key, const QString& text, Qt::KeyboardModifiers held) {
  QKeyEvent down(QEvent::KeyPress, key, held, text);
  QApplication::sendEvent(&widget, &down);
  QKeyEvent up(QEvent::KeyRelease, key, held, text);
  QApplication::sendEvent(&widget, &up);
}

void press(QObject& shown) {
  if (auto* button = qobject_cast<QPushButton*>(&shown)) {
    button->setFocus(Qt::MouseFocusReason);
    click(*button, button->rect().center());
  } else if (auto* option = qobject_cast<QRadioButton*>(&shown)) {
    option->setFocus(Qt::MouseFocusReason);
    click(*option, QPoint(option->height() / 2, option->height() / 2));  // on its ring
  } else if (auto* action = qobject_cast<QAction*>(&shown)) {
    pressItem(*action);
  } else {
    throw std::logic_error("nothing to press");
  }
}

void choose(qt::ChoiceList& list, int row) {
  QListWidgetItem* item = list.item(row);
  list.scrollToItem(item);
  list.setFocus(Qt::MouseFocusReason);
  const QRect place = list.visualItemRect(item).intersected(list.viewport()->rect());
  click(*list.viewport(), place.center());
}

void choose(QComboBox& combo, int row) {
  combo.setFocus(Qt::MouseFocusReason);
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(row, combo.modelColumn()));
  key(*combo.view(), Qt::Key_Return, QStringLiteral("\r"));
}

void enter(QLineEdit& box, const QString& text) {
  box.setFocus(Qt::MouseFocusReason);
  box.selectAll();
  if (text.isEmpty()) return key(box, Qt::Key_Delete);
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&box, &event);
}

void type(QLineEdit& box, const QString& character) {
  box.setFocus(Qt::MouseFocusReason);
  box.end(false);
  key(box, 0, character);
}

void clickCell(qt::GridView& view, int row, int col) {
  view.setFocus(Qt::MouseFocusReason);
  click(*view.viewport(), placeOf(view, row, col));
}

void keyInGrid(qt::GridView& view, char32_t code) {
  view.setFocus(Qt::OtherFocusReason);
  if (code == ui::key::enter) return key(view, Qt::Key_Return, QStringLiteral("\r"));
  if (code == ui::key::backspace) return key(view, Qt::Key_Backspace, QStringLiteral("\b"));
  key(view, 0, qt::toQString(code));
}

void selectCells(qt::GridView& view, const ui::CellPlace& from, const ui::CellPlace& to) {
  view.setFocus(Qt::MouseFocusReason);
  pressCell(view, from, Qt::NoModifier);
  const QPoint end = pressCell(view, to, Qt::ShiftModifier);
  mouse(*view.viewport(), QEvent::MouseButtonRelease, end, Qt::NoButton, Qt::ShiftModifier);
}

void editCell(qt::GridView& view, const ui::CellPlace& cell, const QString& text) {
  clickCell(view, cell.row, cell.col);
  key(view, Qt::Key_F2);
  qt::CellEditor* line = view.editor();
  if (line == nullptr) throw std::logic_error("cell does not open");
  line->selectAll();
  enter(*line, text);
  if (view.editor() == line) key(*line, Qt::Key_Return, QStringLiteral("\r"));
}

bool findText(qt::GridView& view, const QString& text) {
  view.setFocus(Qt::OtherFocusReason);
  key(view, Qt::Key_F, {}, Qt::ControlModifier);
  auto& line = *view.findBar().findChild<QLineEdit*>(QStringLiteral("findText"));
  enter(line, text);
  key(line, Qt::Key_Return, QStringLiteral("\r"));
  const bool found = view.findBar().findChild<QLabel*>(QStringLiteral("findResult"))->text().isEmpty();
  key(line, Qt::Key_Escape);
  return found;
}

QString pressNamed(QAction& item) {
  QMenu& menu = openMenu(item);
  if (!item.isEnabled()) {
    menu.hide();
    return {};
  }
  const QString name = item.text().section(QStringLiteral(": "), 1);
  menu.setActiveAction(&item);
  key(menu, Qt::Key_Return, QStringLiteral("\r"));
  return name;
}

void bringToFront(QTabWidget& tabs, int page) {
  QTabBar* bar = tabs.tabBar();
  bar->setFocus(Qt::MouseFocusReason);
  click(*bar, bar->tabRect(page).center());
}

}  // namespace hands
