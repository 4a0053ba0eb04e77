#include "qt/choice_list.h"

#include <QMouseEvent>
#include <utility>

namespace qt {

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setSpacing(1);
  connect(this, &QListWidget::itemSelectionChanged, this, &ChoiceList::selectionMoved);
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
void ChoiceList::selectionMoved() {
  if (!pressed_ && !silent_ && chosenRow() >= 0) emit chosen(chosenRow());
}

/// The toolkit goes to the first item by itself when the keys come here; with nothing chosen it is the first
/// arrow key that does.
void ChoiceList::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  if (chosenRow() < 0) selectionModel()->clearCurrentIndex();
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
