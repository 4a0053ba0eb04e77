#include "qt/house_style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace qt {

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element != PE_Frame || !option->state.testFlag(State_HasFocus) ||
      qobject_cast<const QAbstractItemView*>(widget) == nullptr)
    return;
  painter->save();
  painter->setPen(option->palette.color(QPalette::Active, QPalette::Highlight));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

}  // namespace qt
