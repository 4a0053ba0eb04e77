#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

namespace picture {

/// Shows a picture, made smaller where it does not fit, and lets the operator mark a part of it.
///
/// The mouse draws the mark. Keys: arrows move it, Shift with arrows moves its lower right corner, Ctrl makes
/// the steps ten times as long, Ctrl+A marks everything, Escape marks nothing.
class PictureView : public QWidget {
  Q_OBJECT

 public:
  explicit PictureView(QWidget* parent = nullptr);

  /// Shows another picture, of which nothing is marked. Null for none.
  void setImage(const QImage& image);
  /// The mark in pixels of the picture; empty for none.
  const QRect& mark() const { return mark_; }
  void setMark(const QRect& mark);

  QSize sizeHint() const override { return {640, 420}; }

  /// Where a pixel of the picture stands in the widget, and the nearest pixel to a place in the widget.
  QPoint placeOf(const QPoint& pixel) const;
  QPoint pixelAt(const QPoint& place) const;

 signals:
  void marked(const QRect& mark);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void resizeEvent(QResizeEvent* event) override;
  QRect shownRect() const;
  const QImage& shown();
  void paintMark(QPainter& painter) const;
  bool moveMark(const QKeyEvent& event);

  QImage image_;
  QImage shrunk_;  // image_ in the size in which it is shown; null where that has changed
  QRect mark_;
  QPoint anchor_;
};

}  // namespace picture
