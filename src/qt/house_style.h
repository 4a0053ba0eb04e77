#pragma once

#include <QProxyStyle>

namespace qt {

/// The colour of the frames around lists, tables and shown texts.
QColor frameColour(const QPalette& palette);

/// The toolkit's own drawing, the same on every system, with a frame around the list or table that has the
/// keys.
class HouseStyle : public QProxyStyle {
 public:
  HouseStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace qt
