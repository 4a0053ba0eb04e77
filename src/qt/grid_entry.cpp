#include <QClipboard>
#include <QGuiApplication>

#include "qt/grid_view.h"

// Two ways to fill a grid quickly: from one entry to the next by a key, and many entries at once from a
// spreadsheet.

namespace qt {

/// Goes to the next cell that takes figures, in reading order and round from the last to the first; `step` −1
/// goes back. After a route has been opened this leads straight to its first entry.
void GridView::goToEntry(int step) {
  const int first = model_.headerRows();
  const int cells = (grid_->rows() - first) * grid_->cols();
  int at = (grid_->keyRow() - first) * grid_->cols() + grid_->keyCol();
  for (int tried = 0; tried < cells; ++tried) {
    at = (at + step + cells) % cells;
    const Cell cell{first + at / grid_->cols(), at % grid_->cols()};
    if (model_.cellUse(cell.row, cell.col) == ui::CellUse::Number && grid_->clickable(cell.row, cell.col))
      return goTo(cell);
  }
}

void GridView::goTo(Cell cell) {
  follow_ = true;
  act([&] { grid_->moveTo(cell.row, cell.col); });
  if (grid_ != nullptr) scrollTo(indexOf(cell.row, cell.col));
}

/// Types what stands on the clipboard: each line into an entry of the key cell's column, from the key cell
/// downwards, with Enter behind it, as the operator would. Lines of several cells and lines beyond the last
/// entry are left alone.
void GridView::paste() {
  QString text = QGuiApplication::clipboard()->text();
  text.replace("\r\n", "\n");
  while (text.endsWith(u'\n')) text.chop(1);
  const int col = grid_->keyCol();
  if (text.isEmpty() || text.contains(u'\t') || !takesKeys(grid_->keyRow(), col)) return;
  int row = grid_->keyRow();
  for (const QString& line : text.split(u'\n')) {
    while (row < grid_->rows() && !takesKeys(row, col)) ++row;
    if (row == grid_->rows()) return;
    goTo({row, col});
    if (grid_ == nullptr) return;
    emptyKeyCell();
    type(line.trimmed() + u'\r');
    if (grid_ == nullptr) return;
    ++row;
  }
}

bool GridView::takesKeys(int row, int col) const {
  return model_.cellUse(row, col) != ui::CellUse::Shown && grid_->clickable(row, col);
}

}  // namespace qt
