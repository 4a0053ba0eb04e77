#pragma once

#include <QTableView>

namespace qt {

/// The fixed columns at the left of a grid, kept in view: they lie over the view while it is scrolled
/// sideways and show what it shows, on the same rows. They take no keys and no clicks; a wheel above them
/// scrolls both.
class FixedColumns : public QTableView {
 public:
  /// `view`: the grid's view, which owns this. Model, selection, painter and look of it are set up before.
  explicit FixedColumns(QTableView& view);

  /// Shows that many columns; 0 for none.
  void setCount(int count);

  /// How much of the view's left they cover when it is scrolled, in pixels; 0 where they leave no room beside
  /// them.
  int cover() const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void setUpLook();
  void follow();
  void place();

  QTableView& view_;
  int count_ = 0;
};

}  // namespace qt
