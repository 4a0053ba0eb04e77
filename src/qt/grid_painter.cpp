#include "qt/grid_painter.h"

#include <QPainter>

#include "qt/cell_colours.h"
#include "qt/grid_view.h"

namespace qt {
namespace {

constexpr int textMargin = 4;  // pixels left and right of a text
constexpr int frameWidth = 2;  // pixels
constexpr int markSize = 6;    // pixels of a mark in the corner of a cell
constexpr int markEdge = 2;    // pixels from it to the edges, which the frame leaves free

/// A text that its column does not take.
bool isWrong(const QModelIndex& index) { return !index.data(GridModel::ProblemRole).toString().isEmpty(); }

bool canBeTypedInto(const QModelIndex& index) {
  return index.data(GridModel::UseRole).toInt() != static_cast<int>(ui::CellUse::Shown);
}

}  // namespace

GridPainter::GridPainter(GridView& view) : QStyledItemDelegate(&view), view_(view) {}

void GridPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  painter->save();
  paintGround(*painter, option, index);
  paintText(*painter, option, index);
  paintMark(*painter, option, index);
  if (view_.isKeyCell(index)) paintFrame(*painter, option);
  painter->restore();
}

CellLook GridPainter::lookOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {.entry = canBeTypedInto(index),
          .selected = option.state.testFlag(QStyle::State_Selected) && view_.rangeSelected(),
          .keys = view_.hasFocus(),
          .wrong = isWrong(index)};
}

void GridPainter::paintGround(QPainter& painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  painter.fillRect(option.rect, cellGround(option.palette, lookOf(option, index)));
}

void GridPainter::paintText(QPainter& painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const QString underWay = view_.isKeyCell(index) ? view_.preedit() : QString();
  const QRect place = option.rect.adjusted(textMargin, 0, -textMargin, 0);
  QFont font = option.font;
  font.setUnderline(!underWay.isEmpty() || isWrong(index));
  painter.setFont(font);
  painter.setPen(
      option.palette.color(view_.isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
  const QString text = index.data().toString() + underWay;
  const auto align = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  const auto end = underWay.isEmpty() ? Qt::ElideRight : Qt::ElideLeft;
  painter.drawText(place, static_cast<int>(align) | Qt::TextSingleLine,
                   option.fontMetrics.elidedText(text, end, place.width()));
}

/// A corner of the upper edge: the left one full for an entry that waits, the right one hollow for a value
/// changed by hand.
void GridPainter::paintMark(QPainter& painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const auto mark = static_cast<ui::CellMark>(index.data(GridModel::MarkRole).toInt());
  if (mark == ui::CellMark::None) return;
  const bool waits = mark == ui::CellMark::NotTaken;
  const QColor colour = cellMark(option.palette, lookOf(option, index));
  const QPoint corner =
      option.rect.topLeft() + QPoint(waits ? markEdge : option.rect.width() - 1 - markEdge, markEdge);
  const QPoint corners[] = {corner, corner + QPoint(waits ? markSize : -markSize, 0),
                            corner + QPoint(0, markSize)};
  painter.save();
  painter.setPen(colour);
  painter.setBrush(waits ? QBrush(colour) : QBrush(Qt::NoBrush));
  painter.drawPolygon(corners, 3);
  painter.restore();
}

void GridPainter::paintFrame(QPainter& painter, const QStyleOptionViewItem& option) const {
  const QColor colour = cellFrame(option.palette, view_.hasFocus());
  painter.setPen(QPen(colour, frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
}

}  // namespace qt
