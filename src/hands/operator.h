#pragma once

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPoint>
#include <QString>
#include <QTabWidget>
#include <QWidget>

#include "qt/choice_list.h"
#include "qt/grid_view.h"

// An operator without a body: the events that mouse and keyboard would send, sent to real widgets.

namespace hands {

/// Presses and lets go the left mouse button at a point of the widget.
void click(QWidget& widget, const QPoint& at);
/// Presses and lets go a key.
void key(QWidget& widget, int key, const QString& text = {}, Qt::KeyboardModifiers held = Qt::NoModifier);

/// Presses a push button, radio button or menu item. Throws std::logic_error for anything else.
void press(QObject& shown);
/// Chooses an item of a list or, in its pop-up list, of a combo box.
void choose(qt::ChoiceList& list, int row);
void choose(QComboBox& combo, int row);
/// Replaces the whole text at once, as an input method or a paste does.
void enter(QLineEdit& box, const QString& text);
/// Types a character at the end of the text.
void type(QLineEdit& box, const QString& character);
/// Clicks a cell, counted as the grid counts, scrolling it into view first.
void clickCell(qt::GridView& view, int row, int col);
/// Presses a key in the grid: a character, Enter or Backspace.
void keyInGrid(qt::GridView& view, char32_t code);
/// Selects the cells between two corners with the mouse, without a click.
void selectCells(qt::GridView& view, const ui::CellPlace& from, const ui::CellPlace& to);
/// Opens a cell in place, replaces its text and takes it with Enter. Throws std::logic_error where it does
/// not open.
void editCell(qt::GridView& view, const ui::CellPlace& cell, const QString& text);
/// Looks for a text in the bar under the table. True where it was found; its cell is the current one then.
bool findText(qt::GridView& view, const QString& text);
/// Opens the menu of an item that is called after an act, "元に戻す: 入力", and presses it. Returns the act's
/// name; empty where the item cannot be pressed.
QString pressNamed(QAction& item);
/// Clicks the tab of a page.
void bringToFront(QTabWidget& tabs, int page);

}  // namespace hands
