#pragma once

#include <QTableView>
#include <functional>
#include <vector>

#include "qt/fixed_columns.h"
#include "qt/grid_model.h"

namespace qt {

/// A grid in a window. It paints and scrolls; the current cell, the selection and every key are the grid's,
/// and the view follows it. Its fixed columns stay in view when it scrolls sideways.
///
/// Keys: characters, Enter and Backspace go to the grid's key cell, Delete empties it, input methods come in
/// where text may be typed. Arrows, Page Up and Down, Home and End (with Ctrl: of the whole grid) go from
/// cell to cell, with Shift they stretch the selection. F2 goes to the next cell that takes figures, with
/// Shift back. Ctrl+C copies, Ctrl+V types the lines of the clipboard down a column, Ctrl+A marks everything.
class GridView : public QTableView {
  Q_OBJECT

 public:
  /// Runs an act of the operator on the grid.
  using Act = std::function<void(const std::function<void()>& what)>;

  explicit GridView(QWidget* parent = nullptr);

  /// The grid to show, and the way for acts on it. Null for none.
  void setGrid(ui::Grid* grid, Act act);
  GridModel& gridModel() { return model_; }
  const GridModel& gridModel() const { return model_; }

  /// Brings the view to the grid's state.
  void showGrid();

  /// The place of a cell, counted as the grid counts.
  QModelIndex indexOf(int row, int col) const;
  /// The selected cells of visible columns: one line a row, tabs between the cells.
  QString selectedText() const;
  /// What an input method has in hand for the key cell and has not yet given.
  const QString& preedit() const { return preedit_; }
  bool isKeyCell(const QModelIndex& index) const;
  /// True where more than the current cell is selected.
  bool rangeSelected() const;

  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  /// Brings a cell into view, out from under the fixed columns.
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Cell {
    int row = -1;
    int col = -1;
    bool operator==(const Cell&) const = default;
  };

  void setUpLook();
  void act(const std::function<void()>& what);
  void showColumns();
  void showFixedColumns();
  void fitWidestColumn();
  void showSelection();
  void showInputMethod();

  bool isTyping(const QKeyEvent& event) const;
  void type(const QString& text);
  void emptyKeyCell();
  void goToEntry(int step);
  void goTo(Cell cell);
  bool takesKeys(int row, int col) const;
  void copy();
  void paste();
  void selectAll() override;
  bool travel(const QKeyEvent& event);
  Cell destination(const QKeyEvent& event, Cell from) const;
  Cell cellAt(const QPoint& position) const;
  int nextColumn(int from, int step) const;
  int edgeColumn(int step) const;
  int rowsInView() const;

  GridModel model_;
  FixedColumns* fixed_ = nullptr;  // none before a grid with fixed columns is shown
  ui::Grid* grid_ = nullptr;
  Act act_;
  std::vector<int> widths_;
  QString preedit_;
  Cell pressed_;
  bool dragged_ = false;
  bool follow_ = false;
  bool fitting_ = false;
};

}  // namespace qt
