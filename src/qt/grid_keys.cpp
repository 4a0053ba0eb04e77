#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

#include "qt/convert.h"
#include "qt/grid_view.h"

// How the operator's keys reach the grid.

namespace qt {

void GridView::keyPressEvent(QKeyEvent* event) {
  if (grid_ == nullptr) return event->ignore();
  if (command(*event) || travel(*event)) return;
  if (!isTyping(*event)) return event->ignore();
  type(event->text());
}

/// Does what the key stands for. False for a key that is no command.
bool GridView::command(const QKeyEvent& event) {
  const bool control = event.modifiers() == Qt::ControlModifier;
  if (event.matches(QKeySequence::Copy)) return copy(), true;
  if (event.matches(QKeySequence::SelectAll)) return selectAll(), true;
  if (event.matches(QKeySequence::Paste)) return paste(), true;
  if (event.matches(QKeySequence::Undo)) return undo(), true;
  if (event.matches(QKeySequence::Redo) || (control && event.key() == Qt::Key_Y)) return redo(), true;
  if (event.matches(QKeySequence::Find)) return startFinding(), true;
  if (control && event.key() == Qt::Key_D) return fillDown(), true;
  if (control) return false;
  switch (event.key()) {
    case Qt::Key_Delete:
      return emptySelection(), true;
    case Qt::Key_F2:
      return openEditor(), true;
    case Qt::Key_F3:
      return findAgain(event.modifiers() == Qt::ShiftModifier ? ui::Way::Back : ui::Way::Forward), true;
    case Qt::Key_Escape:
      return takeBackTyping(), true;
    default:
      return false;
  }
}

/// The table's own commands come to it before the window's.
bool GridView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && grid_ != nullptr) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool own = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo) ||
                     key.matches(QKeySequence::Find) || key.key() == Qt::Key_F3 ||
                     (key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_Y);
    if (own) {
      event->accept();
      return true;
    }
  }
  return QTableView::event(event);
}

/// True for a key that writes: a character, Enter or Backspace. With AltGr a character comes as Ctrl+Alt.
bool GridView::isTyping(const QKeyEvent& event) const {
  const Qt::KeyboardModifiers held =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const bool altGr = held == (Qt::ControlModifier | Qt::AltModifier);
  return !event.text().isEmpty() && (held == Qt::NoModifier || altGr);
}

void GridView::type(const QString& text) {
  for (const char32_t written : text.toStdU32String()) {
    const char32_t code = written == U'\n' ? ui::key::enter : written;
    follow_ = true;
    act([this, code] { grid_->pressKey(code); });
    if (grid_ == nullptr) return;
  }
}

void GridView::takeBackTyping() {
  act([this] { grid_->takeBackTyping(); });
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
  if (grid_ == nullptr || !testAttribute(Qt::WA_InputMethodEnabled)) return event->ignore();
  preedit_ = event->preeditString();
  type(event->commitString());
  viewport()->update();
  event->accept();
}

QVariant GridView::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImEnabled) return testAttribute(Qt::WA_InputMethodEnabled);
  if (query == Qt::ImCursorRectangle && grid_ != nullptr)
    return visualRect(indexOf(grid_->keyRow(), grid_->keyCol())).translated(viewport()->pos());
  return QTableView::inputMethodQuery(query);
}

// The base class judges by its own editors whether input methods may come in.
void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (grid_ != nullptr) showSelection();
  showInputMethod();
  viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  preedit_.clear();
  viewport()->update();
}

/// Goes where the key leads, or stretches the selection to there. False for a key that leads nowhere.
bool GridView::travel(const QKeyEvent& event) {
  const bool stretch = event.modifiers().testFlag(Qt::ShiftModifier);
  const Cell from = stretch && rangeSelected() ? Cell{grid_->rowSel(), grid_->colSel()}
                                               : Cell{grid_->keyRow(), grid_->keyCol()};
  const Cell to = destination(event, from);
  if (to.row < 0) return false;
  if (!grid_->clickable(to.row, to.col)) return true;
  follow_ = !stretch;
  act([this, to, stretch] { stretch ? grid_->selectTo(to.row, to.col) : grid_->moveTo(to.row, to.col); });
  if (grid_ != nullptr) scrollTo(indexOf(to.row, to.col));
  return true;
}

GridView::Cell GridView::destination(const QKeyEvent& event, Cell from) const {
  const bool whole = event.modifiers().testFlag(Qt::ControlModifier);
  const int first = model_.headerRows();
  const int last = grid_->rows() - 1;
  const auto rowAt = [&](int row) { return std::clamp(row, std::min(first, last), last); };
  switch (event.key()) {
    case Qt::Key_Up:
      return {whole ? first : rowAt(from.row - 1), from.col};
    case Qt::Key_Down:
      return {whole ? last : rowAt(from.row + 1), from.col};
    case Qt::Key_PageUp:
      return {rowAt(from.row - rowsInView()), from.col};
    case Qt::Key_PageDown:
      return {rowAt(from.row + rowsInView()), from.col};
    case Qt::Key_Left:
      return {from.row, whole ? edgeColumn(1) : nextColumn(from.col, -1)};
    case Qt::Key_Right:
      return {from.row, whole ? edgeColumn(-1) : nextColumn(from.col, 1)};
    case Qt::Key_Home:
      return {whole ? first : from.row, edgeColumn(1)};
    case Qt::Key_End:
      return {whole ? last : from.row, edgeColumn(-1)};
    default:
      return {};
  }
}

/// The nearest column beside `from` that can be seen, `from` itself where there is none.
int GridView::nextColumn(int from, int step) const {
  for (int col = from + step; col >= grid_->fixedCols() && col < grid_->cols(); col += step)
    if (grid_->colWidth(col) > 0) return col;
  return from;
}

/// The first column that can be seen going right (step 1), the last going left (step −1); −1 for none.
int GridView::edgeColumn(int step) const {
  for (int col = step > 0 ? grid_->fixedCols() : grid_->cols() - 1; col >= 0 && col < grid_->cols();
       col += step)
    if (grid_->colWidth(col) > 0) return col;
  return -1;
}

/// How many rows a page key goes.
int GridView::rowsInView() const { return std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1); }

}  // namespace qt
