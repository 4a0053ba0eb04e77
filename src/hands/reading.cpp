#include "hands/reading.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <cmath>

#include "qt/choice_list.h"
#include "qt/convert.h"
#include "qt/grid_view.h"

namespace hands {
namespace {

using script::Reading;

QString textOf(const QObject& shown) {
  if (const auto* label = qobject_cast<const QLabel*>(&shown)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&shown)) return button->text();
  if (const auto* box = qobject_cast<const QLineEdit*>(&shown)) return box->text();
  if (const auto* frame = qobject_cast<const QGroupBox*>(&shown)) return frame->title();
  if (const auto* menu = qobject_cast<const QMenu*>(&shown)) return menu->title();
  if (const auto* action = qobject_cast<const QAction*>(&shown)) return action->text();
  return {};
}

void readList(const qt::ChoiceList& list, Reading& reading) {
  for (int i = 0; i < list.count(); ++i) reading.items.push_back(qt::fromQString(list.item(i)->text()));
  reading.current = list.chosenRow();
}

void readCombo(const QComboBox& combo, Reading& reading) {
  for (int i = 0; i < combo.count(); ++i) reading.items.push_back(qt::fromQString(combo.itemText(i)));
  reading.current = combo.currentIndex();
}

/// The current cell is one corner of the selection, the end of the selection the opposite one.
void readSelection(const qt::GridView& view, Reading& reading) {
  const QModelIndex current = view.selectionModel()->currentIndex();
  const QItemSelection selection = view.selectionModel()->selection();
  if (!current.isValid() || selection.isEmpty()) return;
  const QItemSelectionRange& range = selection.front();
  const int header = view.gridModel().headerRows();
  reading.row = current.row() + header;
  reading.col = current.column();
  reading.rowSel = (current.row() == range.top() ? range.bottom() : range.top()) + header;
  reading.colSel = current.column() == range.left() ? range.right() : range.left();
}

void readGrid(const qt::GridView& view, Reading& reading) {
  const qt::GridModel& model = view.gridModel();
  reading.rows = model.rowCount() + model.headerRows();
  reading.cols = model.columnCount();
  readSelection(view, reading);
  reading.cell = [&model](int row, int col) {
    const int header = model.headerRows();
    if (row >= header) return qt::fromQString(model.index(row - header, col).data().toString());
    const QString texts = model.headerData(col, Qt::Horizontal).toString();
    return qt::fromQString(header == 1 ? texts : texts.split(u'\n').value(row));
  };
}

/// A size of the program that the widget has, rounded to pixels, is that size.
int twipsShown(float set, int pixels) {
  return qt::toPixels(set) == pixels ? static_cast<int>(std::lround(set)) : qt::toTwips(pixels);
}

}  // namespace

Reading readShown(const ui::Control& control, const QObject& shown) {
  Reading reading;
  reading.kind = control.kind();
  reading.text = qt::fromQString(textOf(shown));
  if (const auto* button = qobject_cast<const QAbstractButton*>(&shown)) reading.on = button->isChecked();
  if (const auto* list = qobject_cast<const qt::ChoiceList*>(&shown)) readList(*list, reading);
  if (const auto* combo = qobject_cast<const QComboBox*>(&shown)) readCombo(*combo, reading);
  if (const auto* view = qobject_cast<const qt::GridView*>(&shown)) readGrid(*view, reading);
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&shown)) {
    reading.current = tabs->currentIndex();
    reading.pages = tabs->count();
  }
  return reading;
}

script::Size sizeShown(const ui::Control& control, const QObject& shown) {
  const ui::Box& box = control.box();
  const auto* widget = qobject_cast<const QWidget*>(&shown);
  if (widget == nullptr || (box.width == 0 && box.height == 0)) return {};
  return {twipsShown(box.width, widget->width()), twipsShown(box.height, widget->height())};
}

}  // namespace hands
