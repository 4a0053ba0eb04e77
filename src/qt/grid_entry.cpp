#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <optional>
#include <utility>

#include "qt/cell_editor.h"
#include "qt/convert.h"
#include "qt/find_bar.h"
#include "qt/grid_note.h"
#include "qt/grid_view.h"
#include "ui/history.h"

// What the operator does to more than one key's worth of a grid: blocks, steps back and forward, a cell
// opened in place, a text looked for.

namespace qt {
namespace {

QString counted(const ui::BlockCount& count) {
  const QString taken = QStringLiteral("%1 個のセルに入力しました。").arg(count.taken);
  return count.passedOver == 0 ? taken
                               : taken + QStringLiteral(" %1 個は飛ばしました。").arg(count.passedOver);
}

}  // namespace

void GridView::copy() {
  if (grid_ != nullptr) QGuiApplication::clipboard()->setText(selectedText());
}

QString GridView::selectedText() const {
  return grid_ == nullptr ? QString() : toQString(ui::copiedText(*grid_));
}

void GridView::paste() { paste(QGuiApplication::clipboard()->text()); }

void GridView::paste(const QString& text) {
  pasted_ = {};
  act([&] { pasted_ = ui::paste(*grid_, fromQString(text)); });
  if (pasted_ != ui::BlockCount{}) say(counted(pasted_));
}

void GridView::fillDown() {
  ui::BlockCount count;
  act([&] { count = ui::fillDown(*grid_); });
  if (count.taken > 0) say(counted(count));
}

void GridView::emptySelection() {
  act([this] { ui::emptyBlock(*grid_); });
}

void GridView::undo() {
  follow_ = true;
  act([this] { ui::undo(*grid_); });
}

void GridView::redo() {
  follow_ = true;
  act([this] { ui::redo(*grid_); });
}

QString GridView::undoName() const {
  return grid_ == nullptr ? QString() : toQString(grid_->history()->undoName());
}

QString GridView::redoName() const {
  return grid_ == nullptr ? QString() : toQString(grid_->history()->redoName());
}

void GridView::selectAll() {
  act([this] { grid_->selectAll(); });
}

void GridView::say(const QString& words) { note_.say(words); }

void GridView::goTo(Cell cell) {
  follow_ = true;
  act([&] { grid_->moveTo(cell.row, cell.col); });
}

/// Out of the table goes the way of every other widget.
bool GridView::focusNextPrevChild(bool next) {
  if (grid_ == nullptr) return QTableView::focusNextPrevChild(next);
  const auto entry = ui::nextEntry(*grid_, next ? ui::Way::Forward : ui::Way::Back);
  if (!entry) return QTableView::focusNextPrevChild(next);
  goTo({entry->row, entry->col});
  return true;
}

void GridView::openEditor() {
  closeEditor();
  if (grid_ == nullptr || !grid_->enabled()) return;
  const ui::CellUse use = model_.cellUse(grid_->keyRow(), grid_->keyCol());
  if (use == ui::CellUse::Shown) return;
  const QModelIndex index = indexOf(grid_->keyRow(), grid_->keyCol());
  scrollTo(index);
  editor_ = new CellEditor(*viewport(), visualRect(index), index.data().toString());
  editor_->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
  editor_->setAttribute(Qt::WA_InputMethodEnabled, use == ui::CellUse::Text);
  connect(editor_, &CellEditor::left, this, [this, line = editor_](int key) { takeEditor(*line, key); });
}

/// Esc leaves the cell as it was, every other key and a click elsewhere take the text.
void GridView::takeEditor(CellEditor& editor, int key) {
  if (editor_ != &editor) return;
  const std::string text = fromQString(editor.text());
  const bool changed = editor.isModified();
  closeEditor();
  const bool enter = key == Qt::Key_Return;
  if (key != Qt::Key_Escape && (changed || enter)) {
    follow_ = enter;
    act([&] { grid_->takeEdit(text, enter); });
  }
  if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
    focusNextPrevChild(key == Qt::Key_Tab);
  } else if (key == Qt::Key_Up || key == Qt::Key_Down) {
    travel(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
  }
}

void GridView::closeEditor() {
  CellEditor* const editor = std::exchange(editor_, nullptr);
  if (editor == nullptr) return;
  const bool hadKeys = editor->hasFocus();
  editor->hide();
  editor->deleteLater();
  if (hadKeys) setFocus(Qt::OtherFocusReason);
}

void GridView::startFinding() {
  if (grid_ != nullptr) findBar_.open();
}

void GridView::findAgain(ui::Way way) { findBar_.text().isEmpty() ? startFinding() : find(way); }

void GridView::find(ui::Way way) {
  std::optional<ui::CellPlace> found;
  follow_ = true;
  act([&] { found = ui::find(*grid_, fromQString(findBar_.text()), way); });
  findBar_.tell(found.has_value());
}

}  // namespace qt
