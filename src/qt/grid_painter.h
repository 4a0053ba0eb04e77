#pragma once

#include <QStyledItemDelegate>

#include "qt/cell_colours.h"

namespace qt {

class GridView;

/// Paints the cells of a grid: those that can be typed into white, the others slightly grey, the selection
/// tinted with the text still readable, a text that its column does not take underlined on red, an
/// entry that no calculation has taken up yet with a full corner, a value changed by hand with a hollow one,
/// and a strong frame around the cell that keys go to.
class GridPainter : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// `view` owns the painter.
  explicit GridPainter(GridView& view);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  CellLook lookOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintGround(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintMark(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintFrame(QPainter& painter, const QStyleOptionViewItem& option) const;

  GridView& view_;
};

}  // namespace qt
