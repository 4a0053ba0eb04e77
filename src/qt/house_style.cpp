#include "qt/house_style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace qt {
namespace {

/// One pixel along each edge, as filled rectangles: at scales between the whole ones a line that is drawn
/// falls off the edge of its widget.
void drawFrame(QPainter& painter, const QRect& frame, const QColor& colour) {
  painter.fillRect(QRect(frame.left(), frame.top(), frame.width(), 1), colour);
  painter.fillRect(QRect(frame.left(), frame.bottom(), frame.width(), 1), colour);
  painter.fillRect(QRect(frame.left(), frame.top(), 1, frame.height()), colour);
  painter.fillRect(QRect(frame.right(), frame.top(), 1, frame.height()), colour);
}

}  // namespace

QColor frameColour(const QPalette& palette) {
  constexpr int darker = 140;  // per cent
  constexpr int lighter = 108;
  return palette.color(QPalette::Window).darker(darker).lighter(lighter);
}

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  const bool popup = widget != nullptr && widget->inherits("QComboBoxPrivateContainer");
  if (element != PE_Frame || popup) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool keys =
      option->state.testFlag(State_HasFocus) && qobject_cast<const QAbstractItemView*>(widget) != nullptr;
  drawFrame(
      *painter, option->rect,
      keys ? option->palette.color(QPalette::Active, QPalette::Highlight) : frameColour(option->palette));
}

}  // namespace qt
