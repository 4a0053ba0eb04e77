#pragma once

#include <QTableView>
#include <functional>
#include <map>
#include <vector>

#include "qt/fixed_columns.h"
#include "qt/grid_model.h"
#include "ui/find.h"
#include "ui/grid_block.h"

namespace qt {

class CellEditor;
class FindBar;
class GridNote;

/// A grid in a window. It paints and scrolls; the current cell, the selection and every key are the grid's,
/// and the view follows it. Its fixed columns stay in view when it scrolls sideways.
///
/// Keys: characters, Enter and Backspace go to the grid's key cell, input methods come in where text may be
/// typed, Esc takes back what was typed. F2 or a double click opens the key cell in place. Arrows, Page Up
/// and Down, Home and End (with Ctrl: of the whole grid) go from cell to cell, with Shift they stretch the
/// selection; Tab and Shift+Tab go from entry to entry and, after the last, out of the table. Ctrl+A marks
/// everything, a second time with the headings, as a press on a heading marks its column with it. Delete,
/// Ctrl+C, Ctrl+V and Ctrl+D empty, copy, paste and fill the selection; Ctrl+Z and Ctrl+Y go back and forward
/// through what was done; Ctrl+F looks for a text, F3 and Shift+F3 go on.
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

  /// The columns that the operator has drawn to another width, with their widths in pixels. They stay so
  /// until the program sets other widths.
  const std::map<int, int>& drawnColumns() const { return drawn_; }
  /// Draws a column to a width in pixels, as the operator would; passed over where it cannot be.
  void drawColumn(int col, int width);

  /// Brings the view to the grid's state.
  void showGrid();

  /// The place of a cell, counted as the grid counts.
  QModelIndex indexOf(int row, int col) const;
  /// Acts on the selection, as menu and keys have them.
  void copy();
  void paste();
  /// The same with a text that is not on the clipboard.
  void paste(const QString& text);
  void fillDown();
  void emptySelection();
  void undo();
  void redo();
  /// The name of the act that undo or redo would be about; empty for none.
  QString undoName() const;
  QString redoName() const;
  /// Opens the bar under the table in which a text is looked for.
  void startFinding();
  /// Goes to the next cell with that text, or the one before.
  void findAgain(ui::Way way);
  FindBar& findBar() { return findBar_; }
  /// Opens the key cell in place. Nothing where it takes no keys.
  void openEditor();
  /// The line in which the key cell is edited; null while none is open.
  CellEditor* editor() const { return editor_; }
  /// What the last paste took, as the operator was told.
  const ui::BlockCount& pasted() const { return pasted_; }

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
  bool event(QEvent* event) override;
  /// Tab and Shift+Tab.
  bool focusNextPrevChild(bool next) override;

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
  void columnResized(int col, int width);
  void fitWidestColumn();
  void showSelection();
  void showInputMethod();

  void setUpHeader();
  bool command(const QKeyEvent& event);
  bool isTyping(const QKeyEvent& event) const;
  void type(const QString& text);
  void takeBackTyping();
  void goTo(Cell cell);
  void takeEditor(CellEditor& editor, int key);
  void closeEditor();
  void find(ui::Way way);
  void say(const QString& words);
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
  std::map<int, int> drawn_;
  QString preedit_;
  CellEditor* editor_ = nullptr;
  FindBar& findBar_;
  GridNote& note_;
  ui::BlockCount pasted_;
  Cell pressed_;
  bool dragged_ = false;
  bool follow_ = false;
  bool fitting_ = false;
};

}  // namespace qt
