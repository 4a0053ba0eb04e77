#include "qt/grid_painter.h"

#include <QPainter>

#include "qt/grid_view.h"

namespace qt {
namespace {

constexpr int textMargin = 4;  // pixels left and right of a text
constexpr int frameWidth = 2;  // pixels
constexpr int markSize = 6;    // pixels of a mark in the corner of a cell
constexpr int markEdge = 2;    // pixels from it to the edges, which the frame leaves free
constexpr QColor wrongColour(0xd0, 0x10, 0x10);

/// `share` (0 to 1) of `over`, the rest `under`.
QColor mixed(const QColor& under, const QColor& over, double share) {
  const auto channel = [share](int a, int b) { return static_cast<int>(a + (b - a) * share + 0.5); };
  return {channel(under.red(), over.red()), channel(under.green(), over.green()),
          channel(under.blue(), over.blue())};
}

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

void GridPainter::paintGround(QPainter& painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  const QColor base = option.palette.color(QPalette::Base);
  QColor ground = canBeTypedInto(index) ? base : mixed(base, option.palette.color(QPalette::Text), 0.06);
  if (option.state.testFlag(QStyle::State_Selected) && view_.rangeSelected())
    ground = mixed(ground, option.palette.color(QPalette::Highlight), view_.hasFocus() ? 0.30 : 0.18);
  if (isWrong(index)) ground = mixed(ground, wrongColour, 0.22);
  painter.fillRect(option.rect, ground);
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
  const QColor colour = option.palette.color(QPalette::Link);
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
  const QColor strong = option.palette.color(QPalette::Active, QPalette::Highlight);
  painter.setPen(QPen(view_.hasFocus() ? strong : mixed(strong, option.palette.color(QPalette::Base), 0.35),
                      frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
}

}  // namespace qt
