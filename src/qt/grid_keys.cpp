#include <QClipboard>
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
  if (event->matches(QKeySequence::Copy)) return copy();
  if (event->matches(QKeySequence::SelectAll)) return selectAll();
  if (event->matches(QKeySequence::Paste)) return paste();
  if (event->key() == Qt::Key_Delete) return emptyKeyCell();
  if (event->key() == Qt::Key_F2) return goToEntry(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
  if (travel(*event)) return;
  if (!isTyping(*event)) return event->ignore();
  type(event->text());
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

void GridView::emptyKeyCell() {
  if (model_.cellUse(grid_->keyRow(), grid_->keyCol()) == ui::CellUse::Shown) return;
  const QString text = model_.cellText(grid_->keyRow(), grid_->keyCol());
  type(QString(static_cast<qsizetype>(text.toStdU32String().size()), QChar(ui::key::backspace)));
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

void GridView::copy() { QGuiApplication::clipboard()->setText(selectedText()); }

QString GridView::selectedText() const {
  if (grid_ == nullptr) return {};
  const auto [top, bottom] = std::minmax({grid_->row(), grid_->rowSel()});
  const auto [left, right] = std::minmax({grid_->col(), grid_->colSel()});
  QStringList lines;
  for (int row = top; row <= bottom; ++row) {
    QStringList cells;
    for (int col = left; col <= right; ++col)
      if (grid_->colWidth(col) > 0)
        cells << model_.cellText(row, col).replace(u'\t', u' ').replace(u'\n', u' ');
    lines << cells.join(u'\t');
  }
  return lines.join(u'\n');
}

void GridView::selectAll() {
  const Cell first{model_.headerRows(), edgeColumn(1)};
  const Cell last{grid_->rows() - 1, edgeColumn(-1)};
  if (!grid_->clickable(first.row, first.col) || !grid_->clickable(last.row, last.col)) return;
  act([&] {
    grid_->moveTo(first.row, first.col);
    grid_->selectTo(last.row, last.col);
  });
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
