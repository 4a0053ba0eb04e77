#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <QTransform>
#include <unordered_map>

#include "report/drawing.h"
#include "report/measure.h"

namespace qt {

/// The font that pages and drawings are written in: that of the house, else the nearest Japanese one.
QFont pageFont();

/// The widths of texts in that font.
report::Measure pageMeasure();

/// Paints drawings, on a window, on paper or into a picture alike.
class DrawingPainter {
 public:
  /// `painter` is set up so that one unit is 0.1 mm, as in the drawing; it must outlive this object.
  explicit DrawingPainter(QPainter& painter);

  void paint(const report::Drawing& drawing);
  /// The same, but for shapes of which nothing stands in `seen`.
  void paint(const report::Drawing& drawing, const report::Box& seen);

  void operator()(const report::Line& line);
  void operator()(const report::Area& area);
  void operator()(const report::Mark& mark);
  void operator()(const report::Words& words);
  void operator()(const report::Picture& picture);

 private:
  void begin();
  void choose(const report::Pen& pen);
  void chooseFont(bool bold);
  /// From here on a unit is `scale` units of the page, as large letters are drawn; leaveText ends that.
  void enterText(double scale);
  void leaveText();

  QPainter& painter_;
  report::Measure measure_;
  QFont font_;
  report::Pen pen_;
  QTransform page_;       // of the painter, in which a unit is 0.1 mm
  double textScale_ = 0;  // in force beside it; 0 for none
  bool bold_ = false;
  bool fontChosen_ = false;
  bool penChosen_ = false;
};

}  // namespace qt
