#include "qt/seen.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabBar>

namespace test {
namespace {

/// What scrolls in a window that is too large for its display.
bool scrolls(const QWidget& widget) { return qobject_cast<const QScrollArea*>(&widget) != nullptr; }

/// Something that the operator reads or works. Containers are none, and what lies inside another is part of
/// it.
bool isControl(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLabel*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr ||
         (qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr && !scrolls(widget));
}

void gather(const QWidget& parent, std::vector<const QWidget*>& found) {
  for (const QObject* child : parent.children()) {
    const auto* widget = qobject_cast<const QWidget*>(child);
    if (widget == nullptr || !widget->isVisible() || widget->isWindow()) continue;
    if (isControl(*widget))
      found.push_back(widget);
    else if (qobject_cast<const QStatusBar*>(widget) == nullptr)
      gather(*widget, found);
  }
}

/// Where a control stands in another. Of a bar of tabs only the tabs count.
QRect placeOf(const QWidget& widget, const QWidget& in) {
  QRect place = widget.rect();
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
    place = place.intersected(tabs->tabRect(0).united(tabs->tabRect(tabs->count() - 1)));
  return {widget.mapTo(&in, place.topLeft()), place.size()};
}

std::string nameOf(const QWidget& widget) {
  return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ")";
}

/// The room that the words of a button or a line of text need; 0 for what may be cut.
int textWidth(const QWidget& widget) {
  constexpr int besideText = 6;
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
    return button->text().isEmpty()
               ? 0
               : widget.fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + besideText;
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return label == nullptr || label->wordWrap() || label->text().isEmpty()
             ? 0
             : widget.fontMetrics().size(Qt::TextShowMnemonic, label->text()).width();
}

/// Within each widget that it stands on; from what scrolls on, that itself.
void expectWithin(const QWidget& control, const QWidget& window) {
  const QWidget* shown = &control;
  for (const QWidget* at = control.parentWidget(); at != nullptr && shown != &window;
       at = at->parentWidget()) {
    const bool scrolled = at->parentWidget() != nullptr && scrolls(*at->parentWidget());
    const bool within = scrolled || placeOf(*at, window).contains(placeOf(*shown, window));
    EXPECT_TRUE(within) << nameOf(control) << " lies outside " << nameOf(*at);
    if (scrolled) shown = at;
    if (at == &window) return;
  }
}

/// Something that a screen reader names when it comes there. A line of text that is empty is none.
bool isAnnounced(const QAccessibleInterface& at) {
  switch (at.role()) {
    case QAccessible::PushButton:
    case QAccessible::RadioButton:
    case QAccessible::CheckBox:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::PageTab:
    case QAccessible::MenuItem:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
      return true;
    case QAccessible::StaticText: {
      const auto* label = qobject_cast<const QLabel*>(at.object());
      return label == nullptr || !label->text().isEmpty();
    }
    case QAccessible::Grouping:
      return qobject_cast<const QGroupBox*>(at.object()) != nullptr;
    default:
      return false;
  }
}

/// Its name; of what takes a text or a choice that text is none, but the words of its label are.
bool hasName(const QAccessibleInterface& at) {
  const auto* widget = qobject_cast<const QWidget*>(at.object());
  const bool holdsText = at.role() == QAccessible::EditableText || at.role() == QAccessible::ComboBox;
  if (holdsText && widget != nullptr)
    return !widget->accessibleName().isEmpty() || !at.relations(QAccessible::Label).isEmpty();
  return !at.text(QAccessible::Name).trimmed().isEmpty();
}

bool keepsItsInside(QAccessible::Role role) {
  return role == QAccessible::List || role == QAccessible::Table || role == QAccessible::Tree ||
         role == QAccessible::ComboBox;
}

void walk(QAccessibleInterface& at, Announced& found) {
  if (at.state().invisible) return;
  if (isAnnounced(at)) {
    ++found.controls;
    const QObject* object = at.object();
    if (!hasName(at))
      found.nameless.push_back((object == nullptr
                                    ? QString::number(at.role())
                                    : object->objectName() + u' ' + object->metaObject()->className())
                                   .toStdString());
  }
  if (keepsItsInside(at.role())) return;
  for (int i = 0; i < at.childCount(); ++i)
    if (QAccessibleInterface* child = at.child(i)) walk(*child, found);
}

}  // namespace

QRect seenPart(const QWidget& control, const QWidget& window) {
  QRect part = placeOf(control, window);
  for (const QWidget* at = control.parentWidget(); at != nullptr && at != &window; at = at->parentWidget())
    part = part.intersected(placeOf(*at, window));
  return part;
}

void expectThatAllIsSeen(const QWidget& window) {
  std::vector<const QWidget*> controls;
  gather(window, controls);
  EXPECT_GE(controls.size(), 1U);
  for (const QWidget* control : controls) {
    expectWithin(*control, window);
    EXPECT_LE(textWidth(*control), control->width()) << nameOf(*control) << " is cut";
    for (const QWidget* other : controls) {
      if (other <= control) continue;
      EXPECT_FALSE(seenPart(*control, window).intersects(seenPart(*other, window)))
          << nameOf(*control) << " over " << nameOf(*other);
    }
  }
}

void expectThatTabLeadsIntoSight(QWidget& window) {
  constexpr int steps = 40;
  window.activateWindow();
  for (int step = 0; step < steps; ++step) {
    QApplication::processEvents();
    QWidget* const focus = window.focusWidget();
    if (focus != nullptr && focus != &window) {
      EXPECT_FALSE(seenPart(*focus, window).isEmpty()) << nameOf(*focus);
    }
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(focus == nullptr ? &window : focus, &tab);
  }
}

Announced announced(QWidget& window) {
  Announced found;
  walk(*QAccessible::queryAccessibleInterface(&window), found);
  return found;
}

}  // namespace test
