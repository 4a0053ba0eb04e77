#include "qt/grid_view.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethod>
#include <QScrollBar>
#include <algorithm>
#include <iterator>
#include <utility>

#include "qt/cell_editor.h"
#include "qt/convert.h"
#include "qt/find_bar.h"
#include "qt/grid_note.h"
#include "qt/grid_painter.h"

namespace qt {
namespace {

constexpr int rowMargin = 6;     // pixels above and below the text of a row, together
constexpr int headerMargin = 8;  // the same in the header

}  // namespace

GridView::GridView(QWidget* parent)
    : QTableView(parent), findBar_(*new FindBar(*this)), note_(*new GridNote(*this)) {
  setModel(&model_);
  setItemDelegate(new GridPainter(*this));
  setUpLook();
  setUpHeader();
  connect(&findBar_, &FindBar::asked, this, &GridView::find);
  connect(&findBar_, &FindBar::closed, this, [this] { setFocus(); });
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int col, int, int width) { columnResized(col, width); });
  connect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this,
          &QTableView::resizeColumnToContents);
}

void GridView::setUpLook() {
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAutoScroll(false);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setAttribute(Qt::WA_InputMethodEnabled, false);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setMinimumSectionSize(1);
}

/// A press on a heading marks the column, a drag or a press with Shift those up to another one.
void GridView::setUpHeader() {
  QHeaderView& header = *horizontalHeader();
  header.setHighlightSections(false);
  header.setSectionsClickable(true);
  const auto mark = [this](int col, bool stretch) {
    act([this, col, stretch] { stretch ? grid_->selectColumnsTo(col) : grid_->selectColumn(col); });
  };
  connect(&header, &QHeaderView::sectionPressed, this, [this, mark](int col) {
    mark(col, QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier));
    setFocus(Qt::MouseFocusReason);
  });
  connect(&header, &QHeaderView::sectionEntered, this, [mark](int col) { mark(col, true); });
}

void GridView::setGrid(ui::Grid* grid, Act act) {
  grid_ = grid;
  act_ = std::move(act);
  model_.setGrid(grid);
}

void GridView::act(const std::function<void()>& what) {
  if (grid_ != nullptr) act_(what);
}

void GridView::showGrid() {
  const bool filledAnew = model_.flush();
  if (filledAnew) closeEditor();
  const int height = grid_->rowHeight() > 0 ? toPixels(static_cast<float>(grid_->rowHeight()))
                                            : fontMetrics().height() + rowMargin;
  if (verticalHeader()->defaultSectionSize() != height) verticalHeader()->setDefaultSectionSize(height);
  showColumns();
  showFixedColumns();
  showSelection();
  showInputMethod();
  if (filledAnew)
    scrollToTop();
  else if (follow_)
    scrollTo(indexOf(grid_->keyRow(), grid_->keyCol()));
  follow_ = false;
}

/// Widths that the operator has drawn stay until the program sets others.
void GridView::showColumns() {
  std::vector<int> widths;
  for (int col = 0; col < grid_->cols(); ++col) widths.push_back(grid_->colWidth(col));
  horizontalHeader()->setFixedHeight(fontMetrics().height() * std::max(grid_->fixedRows(), 1) + headerMargin);
  horizontalHeader()->setVisible(grid_->fixedRows() > 0);
  if (widths == widths_) return;
  widths_ = std::move(widths);
  drawn_.clear();
  fitting_ = true;
  for (int col = 0; col < grid_->cols(); ++col) {
    const int twips = widths_[static_cast<std::size_t>(col)];
    setColumnHidden(col, twips <= 0);
    if (twips > 0) setColumnWidth(col, toPixels(static_cast<float>(twips)));
  }
  fitting_ = false;
  fitWidestColumn();
}

/// What the program does not do itself is the operator's.
void GridView::columnResized(int col, int width) {
  if (fitting_) return;
  if (width > 0) drawn_[col] = width;
  fitWidestColumn();
}

void GridView::drawColumn(int col, int width) {
  if (grid_ == nullptr || col < 0 || col >= grid_->cols() || width <= 0 || isColumnHidden(col)) return;
  setColumnWidth(col, width);
}

void GridView::showFixedColumns() {
  if (fixed_ == nullptr && grid_->fixedCols() == 0) return;
  if (fixed_ == nullptr) fixed_ = new FixedColumns(*this);
  fixed_->setCount(grid_->fixedCols());
}

/// The widest column, the last of those equally wide, takes what the others leave: words are given room,
/// figures stay close to each other. It never gets less than its own width but where the grid is as wide as
/// its columns: then it makes room for the scroll bar and the frame, and for what rounding to pixels has
/// added.
void GridView::fitWidestColumn() {
  if (fitting_ || grid_ == nullptr || static_cast<int>(widths_.size()) != grid_->cols()) return;
  const auto fromBack = std::max_element(widths_.rbegin(), widths_.rend());
  if (fromBack == widths_.rend() || *fromBack <= 0) return;
  const int widest = static_cast<int>(std::distance(fromBack, widths_.rend())) - 1;
  if (drawn_.contains(widest)) return;
  int others = 0;
  int rounded = 0;
  for (int col = 0; col < grid_->cols(); ++col) {
    if (isColumnHidden(col)) continue;
    ++rounded;
    if (col != widest) others += columnWidth(col);
  }
  const int own = toPixels(static_cast<float>(*fromBack));
  const int left = viewport()->width() - others;
  const int edges = width() - viewport()->width();
  fitting_ = true;
  setColumnWidth(widest, left + edges + rounded >= own ? left : own);
  fitting_ = false;
}

void GridView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  QTableView::scrollTo(index, hint);
  if (fixed_ == nullptr || !index.isValid() || index.column() < grid_->fixedCols()) return;
  const int under = fixed_->cover() - columnViewportPosition(index.column());
  if (under > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - under);
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  fitWidestColumn();
  findBar_.place();
  note_.place();
}

void GridView::showSelection() {
  const QModelIndex current = indexOf(grid_->row(), grid_->col());
  const QModelIndex end = indexOf(grid_->rowSel(), grid_->colSel());
  if (!current.isValid() || !end.isValid()) return selectionModel()->clear();
  const QModelIndex topLeft =
      model_.index(std::min(current.row(), end.row()), std::min(current.column(), end.column()));
  const QModelIndex bottomRight =
      model_.index(std::max(current.row(), end.row()), std::max(current.column(), end.column()));
  selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(topLeft, bottomRight), QItemSelectionModel::ClearAndSelect);
  horizontalHeader()->setHighlightSections(grid_->headingsSelected());
  viewport()->update();
}

/// Input methods are let in where text may be typed, and only there.
void GridView::showInputMethod() {
  const bool text = grid_ != nullptr && model_.cellUse(grid_->keyRow(), grid_->keyCol()) == ui::CellUse::Text;
  if (testAttribute(Qt::WA_InputMethodEnabled) != text) setAttribute(Qt::WA_InputMethodEnabled, text);
  if (!text) preedit_.clear();
  if (hasFocus()) QGuiApplication::inputMethod()->update(Qt::ImEnabled | Qt::ImCursorRectangle);
}

QModelIndex GridView::indexOf(int row, int col) const { return model_.index(row - model_.headerRows(), col); }

bool GridView::isKeyCell(const QModelIndex& index) const {
  return grid_ != nullptr && index == indexOf(grid_->keyRow(), grid_->keyCol());
}

bool GridView::rangeSelected() const {
  return grid_ != nullptr && (grid_->row() != grid_->rowSel() || grid_->col() != grid_->colSel());
}

}  // namespace qt
