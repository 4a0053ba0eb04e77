#include "qt/fixed_columns.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

namespace qt {

FixedColumns::FixedColumns(QTableView& view) : QTableView(&view), view_(view) {
  setModel(view.model());
  QItemSelectionModel* own = selectionModel();
  setSelectionModel(view.selectionModel());
  delete own;
  setItemDelegate(view.itemDelegate());
  setUpLook();
  follow();
  hide();
}

void FixedColumns::setUpLook() {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setEditTriggers(NoEditTriggers);
  setAutoScroll(false);
  setWordWrap(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

/// Both scroll up and down together; the place follows whatever changes the view's geometry.
void FixedColumns::follow() {
  connect(view_.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, view_.verticalScrollBar(), &QScrollBar::setValue);
  connect(view_.horizontalScrollBar(), &QScrollBar::valueChanged, this, &FixedColumns::place);
  connect(view_.horizontalHeader(), &QHeaderView::sectionResized, this, &FixedColumns::place);
  view_.viewport()->installEventFilter(this);
}

bool FixedColumns::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view_.viewport() && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
    place();
  return QTableView::eventFilter(watched, event);
}

void FixedColumns::setCount(int count) {
  count_ = count;
  place();
}

int FixedColumns::cover() const {
  int width = 0;
  for (int col = 0; col < count_; ++col) width += view_.columnWidth(col);
  return width < view_.viewport()->width() ? width : 0;
}

void FixedColumns::place() {
  const int width = cover();
  const bool covers = width > 0 && view_.horizontalScrollBar()->value() > 0;
  if (covers) {
    for (int col = 0; col < model()->columnCount(); ++col) {
      setColumnHidden(col, col >= count_ || view_.isColumnHidden(col));
      if (!isColumnHidden(col)) setColumnWidth(col, view_.columnWidth(col));
    }
    const int headerHeight = view_.horizontalHeader()->isVisible() ? view_.horizontalHeader()->height() : 0;
    horizontalHeader()->setVisible(headerHeight > 0);
    horizontalHeader()->setFixedHeight(headerHeight);
    verticalHeader()->setDefaultSectionSize(view_.verticalHeader()->defaultSectionSize());
    const QRect area = view_.viewport()->geometry();
    setGeometry(area.left(), area.top() - headerHeight, width, area.height() + headerHeight);
    verticalScrollBar()->setValue(view_.verticalScrollBar()->value());
  }
  setVisible(covers);
}

// A press above the fixed columns is none on the cells that have gone under them.

void FixedColumns::mousePressEvent(QMouseEvent* event) {
  view_.setFocus(Qt::MouseFocusReason);
  event->accept();
}

void FixedColumns::mouseMoveEvent(QMouseEvent* event) { event->accept(); }

void FixedColumns::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

void FixedColumns::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

}  // namespace qt
