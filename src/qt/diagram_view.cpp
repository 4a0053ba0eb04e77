#include "qt/diagram_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <limits>

#include "qt/convert.h"
#include "qt/drawing_painter.h"

namespace qt {
namespace {

constexpr double mostZoom = 60;
constexpr double zoomStep = 1.25;
constexpr double reach = 12;         // pixels between the pointer and a mark that it points at
constexpr double holdSlip = 4;       // pixels that a hand may slip in a click
constexpr double leastWhole = 0.12;  // pixels in 0.1 mm: a very long drawing is not shown smaller than that

}  // namespace

DiagramView::DiagramView(QWidget* parent) : QAbstractScrollArea(parent) {
  viewport()->setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
}

void DiagramView::show(report::Drawing drawing, int row) {
  drawing_ = std::move(drawing);
  words_.clear();
  row_ = row;
  setBars();
  viewport()->update();
}

void DiagramView::say(const QString& words) {
  drawing_ = {};
  words_ = words;
  setBars();
  viewport()->update();
}

/// The scale at which the drawing fits into the view; a long one fits in its height alone.
double DiagramView::wholeScale() const {
  if (drawing_.width <= 0 || drawing_.height <= 0) return 1;
  const double wide = viewport()->width() / drawing_.width;
  const double high = viewport()->height() / drawing_.height;
  return std::min(high, std::max(wide, leastWhole));
}

double DiagramView::scale() const { return wholeScale() * zoom_; }

QPointF DiagramView::origin() const {
  const QSizeF size(drawing_.width * scale(), drawing_.height * scale());
  const double x = std::max(0.0, (viewport()->width() - size.width()) / 2) - horizontalScrollBar()->value();
  const double y = std::max(0.0, (viewport()->height() - size.height()) / 2) - verticalScrollBar()->value();
  return {x, y};
}

QPointF DiagramView::onView(report::Point point) const {
  return origin() + QPointF(point.x, point.y) * scale();
}

QPointF DiagramView::middle() const { return QRectF(viewport()->rect()).center(); }

void DiagramView::setBars() {
  const auto set = [](QScrollBar& bar, double whole, int seen) {
    bar.setRange(0, std::max(0, static_cast<int>(std::ceil(whole)) - seen));
    bar.setPageStep(seen);
    bar.setSingleStep(std::max(1, seen / 20));
  };
  set(*horizontalScrollBar(), drawing_.width * scale(), viewport()->width());
  set(*verticalScrollBar(), drawing_.height * scale(), viewport()->height());
}

void DiagramView::zoom(double factor, QPointF at) {
  const QPointF on = (at - origin()) / scale();
  zoom_ = std::clamp(zoom_ * factor, 1.0, mostZoom);
  setBars();
  const QPointF slip = origin() + on * scale() - at;
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + static_cast<int>(std::lround(slip.x())));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(std::lround(slip.y())));
  viewport()->update();
}

void DiagramView::showWhole() { zoom(1 / zoom_, middle()); }

std::vector<const report::Mark*> DiagramView::marksAt(QPointF at) const {
  std::vector<const report::Mark*> found;
  double nearest = reach;
  const auto away = [&](const report::Mark& mark) {
    const QPointF way = onView(mark.at) - at;
    return std::hypot(way.x(), way.y());
  };
  const report::Mark* best = nullptr;
  for (const report::Shape& shape : drawing_.shapes) {
    const auto* mark = std::get_if<report::Mark>(&shape);
    if (mark == nullptr || mark->note.empty() || away(*mark) > nearest) continue;
    nearest = away(*mark);
    best = mark;
  }
  if (best == nullptr) return found;
  for (const report::Shape& shape : drawing_.shapes) {
    const auto* mark = std::get_if<report::Mark>(&shape);
    if (mark != nullptr && !mark->note.empty() && mark->at.x == best->at.x && mark->row == best->row)
      found.push_back(mark);
  }
  return found;
}

QString DiagramView::tell(const std::vector<const report::Mark*>& marks) {
  QStringList lines;
  for (const report::Mark* mark : marks) lines << toQString(mark->note);
  return lines.join(u'\n');
}

void DiagramView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), Qt::white);
  if (!words_.isEmpty()) {
    painter.setPen(Qt::black);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, words_);
    return;
  }
  paintRow(painter);
  painter.translate(origin());
  painter.scale(scale(), scale());
  const QRectF seen((QPointF(0, 0) - origin()) / scale(), QSizeF(viewport()->size()) / scale());
  DrawingPainter(painter).paint(drawing_, {{seen.x(), seen.y()}, seen.width(), seen.height()});
}

/// A line through the bench mark where the operator is in the table; a section belongs to the one above it.
void DiagramView::paintRow(QPainter& painter) const {
  for (const report::Shape& shape : drawing_.shapes) {
    const auto* mark = std::get_if<report::Mark>(&shape);
    if (mark == nullptr || mark->row <= 0 || (mark->row != row_ && mark->row != row_ - 1)) continue;
    const double x = onView(mark->at).x();
    painter.setPen(QPen(QColor(255, 200, 60), 5));
    return painter.drawLine(QPointF(x, 0), QPointF(x, viewport()->height()));
  }
}

void DiagramView::resizeEvent(QResizeEvent*) { setBars(); }

void DiagramView::wheelEvent(QWheelEvent* event) {
  if (event->angleDelta().y() == 0) return QAbstractScrollArea::wheelEvent(event);
  zoom(std::pow(zoomStep, event->angleDelta().y() / 120.0), event->position());
  event->accept();
}

void DiagramView::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  if (held_ && (dragged_ || (at - grip_).manhattanLength() > holdSlip)) {
    const QPointF way = at - grip_;
    dragged_ = true;
    grip_ = at;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - static_cast<int>(way.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() - static_cast<int>(way.y()));
    return viewport()->update();
  }
  const QString words = tell(marksAt(at));
  emit pointed(words);
  viewport()->setCursor(words.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
  words.isEmpty() ? QToolTip::hideText()
                  : QToolTip::showText(event->globalPosition().toPoint(), words, viewport());
}

void DiagramView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  held_ = true;
  dragged_ = false;
  grip_ = event->position();
}

void DiagramView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  held_ = false;
  if (dragged_) return;
  const auto marks = marksAt(event->position());
  if (!marks.empty() && marks.front()->row > 0) emit rowChosen(marks.front()->row);
}

void DiagramView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Semicolon:  // where "+" stands on Japanese keyboards
      return zoom(zoomStep, middle());
    case Qt::Key_Minus:
      return zoom(1 / zoomStep, middle());
    case Qt::Key_0:
      return showWhole();
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void DiagramView::leaveEvent(QEvent*) { emit pointed({}); }

}  // namespace qt
