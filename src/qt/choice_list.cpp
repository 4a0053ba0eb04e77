#include "qt/choice_list.h"

#include <QMouseEvent>
#include <utility>

namespace qt {

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  connect(this, &QListWidget::currentRowChanged, this, &ChoiceList::currentMoved);
}

int ChoiceList::chosenRow() const {
  const auto rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.front().row();
}

void ChoiceList::setChosenRow(int row) {
  if (row == chosenRow()) return;
  silent_ = true;
  setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
  silent_ = false;
}

/// The mouse tells its choice when the button is let go, the keyboard at once.
void ChoiceList::currentMoved(int row) {
  if (!pressed_ && !silent_ && row >= 0) emit chosen(row);
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid();
  if (pressed_) QListWidget::mousePressEvent(event);
}

void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
  QListWidget::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
  if (currentRow() >= 0) emit chosen(currentRow());
}

}  // namespace qt
