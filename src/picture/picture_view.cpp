#include "picture/picture_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace picture {
namespace {

constexpr int shade = 90;     // of 255, over what would be cut off
constexpr int longStep = 10;  // pixels, with Ctrl
constexpr int thinning = 4;   // times the pixels of the screen, in both directions

/// The rectangle that has both pixels in its corners.
QRect between(const QPoint& a, const QPoint& b) {
  return QRect(QPoint(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
               QPoint(std::max(a.x(), b.x()), std::max(a.y(), b.y())));
}

QPoint direction(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {0, 0};
  }
}

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::CrossCursor);
  setMinimumSize(320, 200);
}

void PictureView::setImage(const QImage& image) {
  image_ = image;
  shrunk_ = {};
  setMark({});
  update();
}

void PictureView::setMark(const QRect& mark) {
  const QRect inside = mark.intersected(image_.rect());
  if (inside == mark_) return;
  mark_ = inside.isEmpty() ? QRect() : inside;
  update();
  emit marked(mark_);
}

QRect PictureView::shownRect() const {
  QSize size = image_.size();
  if (size.width() > width() || size.height() > height()) size.scale(this->size(), Qt::KeepAspectRatio);
  size = size.expandedTo(QSize(1, 1));
  return {QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

QPoint PictureView::placeOf(const QPoint& pixel) const {
  const QRect shown = shownRect();
  return {shown.left() + pixel.x() * shown.width() / std::max(image_.width(), 1),
          shown.top() + pixel.y() * shown.height() / std::max(image_.height(), 1)};
}

QPoint PictureView::pixelAt(const QPoint& place) const {
  const QRect shown = shownRect();
  const int x = (place.x() - shown.left()) * image_.width() / shown.width();
  const int y = (place.y() - shown.top()) * image_.height() / shown.height();
  return {std::clamp(x, 0, std::max(image_.width() - 1, 0)),
          std::clamp(y, 0, std::max(image_.height() - 1, 0))};
}

void PictureView::resizeEvent(QResizeEvent*) { shrunk_ = {}; }

/// The picture in the pixels of the screen. A huge one is thinned out first: to average hundreds of millions
/// of pixels at every move of the mark would take seconds.
const QImage& PictureView::shown() {
  const QSize size = shownRect().size() * devicePixelRatioF();
  if (size.width() >= image_.width()) return image_;
  if (shrunk_.isNull()) {
    const bool isHuge = image_.width() > thinning * size.width();
    const QImage thin = isHuge ? image_.scaled(size * thinning) : image_;
    shrunk_ = thin.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return shrunk_;
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().mid());
  if (image_.isNull()) {
    painter.drawText(
        rect(), Qt::AlignCenter,
        QStringLiteral("画像がありません。\nクリップボードから取り込むか、ファイルを開いてください。"));
    return;
  }
  painter.fillRect(shownRect(), Qt::white);
  painter.drawImage(shownRect(), shown());
  if (!mark_.isEmpty()) paintMark(painter);
  if (hasFocus()) painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PictureView::paintMark(QPainter& painter) const {
  const QRect kept(placeOf(mark_.topLeft()), placeOf(mark_.bottomRight() + QPoint(1, 1)) - QPoint(1, 1));
  QRegion cutOff(shownRect());
  cutOff -= kept;
  for (const QRect& piece : cutOff) painter.fillRect(piece, QColor(0, 0, 0, shade));
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
  painter.drawRect(kept.adjusted(0, 0, -1, -1));
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || image_.isNull()) return;
  anchor_ = pixelAt(event->position().toPoint());
  setMark({});
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton) || image_.isNull()) return;
  setMark(between(anchor_, pixelAt(event->position().toPoint())));
}

void PictureView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::SelectAll))
    setMark(image_.rect());
  else if (event->key() == Qt::Key_Escape && !mark_.isEmpty())
    setMark({});
  else if (!moveMark(*event))
    QWidget::keyPressEvent(event);
}

/// Returns false for a key that is none of the mark's. Without a mark it begins with everything.
bool PictureView::moveMark(const QKeyEvent& event) {
  QPoint step = direction(event.key());
  if (step.isNull() || image_.isNull()) return false;
  if (event.modifiers().testFlag(Qt::ControlModifier)) step *= longStep;
  const QRect from = mark_.isEmpty() ? image_.rect() : mark_;
  if (event.modifiers().testFlag(Qt::ShiftModifier)) {
    const QPoint corner = from.bottomRight() + step;
    setMark(between(from.topLeft(), {std::max(corner.x(), from.left()), std::max(corner.y(), from.top())}));
  } else {
    const int right = std::clamp(step.x(), -from.left(), image_.width() - 1 - from.right());
    const int down = std::clamp(step.y(), -from.top(), image_.height() - 1 - from.bottom());
    setMark(from.translated(right, down));
  }
  return true;
}

}  // namespace picture
