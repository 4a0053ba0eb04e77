#pragma once

#include <QAbstractScrollArea>
#include <vector>

#include "report/drawing.h"

namespace qt {

/// Shows a drawing: as a whole at first, then as near as the operator likes (wheel, +, −, 0 for the whole).
/// Tells what stands under the pointer, and which row a clicked mark shows.
class DiagramView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit DiagramView(QWidget* parent = nullptr);

  /// Shows another drawing, as near as the one before. `row`: the grid row where the operator is; a line
  /// marks its bench mark.
  void show(report::Drawing drawing, int row);
  /// Shows words in place of a drawing.
  void say(const QString& words);

  /// How many pixels of the window 0.1 mm of the drawing has.
  double scale() const;
  /// Comes nearer by `factor` (below 1: goes away); what stands at `at` (pixels of the view) stays there.
  void zoom(double factor, QPointF at);
  void showWhole();

  /// Where a point of the drawing stands in the view.
  QPointF onView(report::Point point) const;
  /// The marks that stand nearest to a place of the view, all of one bench mark; none where none is near.
  std::vector<const report::Mark*> marksAt(QPointF at) const;
  /// What is told of these marks: the bench mark with its number on each line. "" for none.
  static QString tell(const std::vector<const report::Mark*>& marks);

 signals:
  /// The operator has clicked the mark of a grid row.
  void rowChosen(int row);
  /// The pointer stands on marks, or on none any more (an empty text).
  void pointed(const QString& words);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  double wholeScale() const;
  QPointF origin() const;
  void setBars();
  void paintRow(QPainter& painter) const;
  QPointF middle() const;

  report::Drawing drawing_;
  QString words_;
  int row_ = 0;
  double zoom_ = 1;  ///< against the scale that shows the whole
  QPointF grip_;     ///< where the pointer holds the drawing
  bool held_ = false;
  bool dragged_ = false;
};

}  // namespace qt
