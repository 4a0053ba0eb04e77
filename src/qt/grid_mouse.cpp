#include <QMouseEvent>
#include <utility>

#include "qt/grid_view.h"

// How the operator's mouse reaches the grid: pressing a cell makes it the current one, dragging stretches
// the selection, letting go on the same cell is a click.

namespace qt {

GridView::Cell GridView::cellAt(const QPoint& position) const {
  const QModelIndex index = indexAt(position);
  const bool underFixed = fixed_ != nullptr && fixed_->isVisible() && position.x() < fixed_->cover();
  if (grid_ == nullptr || !index.isValid() || underFixed) return {};
  const Cell cell{index.row() + model_.headerRows(), index.column()};
  return grid_->clickable(cell.row, cell.col) ? cell : Cell{};
}

void GridView::mousePressEvent(QMouseEvent* event) {
  const Cell cell = cellAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || cell.row < 0) return;
  dragged_ = event->modifiers().testFlag(Qt::ShiftModifier);
  pressed_ = cell;
  act([this, cell] { dragged_ ? grid_->selectTo(cell.row, cell.col) : grid_->moveTo(cell.row, cell.col); });
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  const Cell cell = cellAt(event->position().toPoint());
  if (!event->buttons().testFlag(Qt::LeftButton) || pressed_.row < 0 || cell.row < 0) return;
  if (cell == pressed_ && !dragged_) return;
  dragged_ = true;
  act([this, cell] { grid_->selectTo(cell.row, cell.col); });
  if (grid_ != nullptr) scrollTo(indexOf(cell.row, cell.col));
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const Cell cell = std::exchange(pressed_, Cell{});
  if (dragged_ || cell.row < 0 || cellAt(event->position().toPoint()) != cell) return;
  act([this, cell] { grid_->click(cell.row, cell.col); });
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  const Cell cell = cellAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || cell.row < 0) return;
  act([this, cell] { grid_->moveTo(cell.row, cell.col); });
  openEditor();
}

}  // namespace qt
