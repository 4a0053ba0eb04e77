#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace ui {

/// How the texts of a grid column stand in their cells.
enum class Align { Left, Right, Center };

/// What the operator may do in a cell.
enum class CellUse {
  Shown,   ///< nothing; keys are ignored
  Number,  ///< type figures; input methods stay out
  Text     ///< type any text, with input methods
};

/// Somebody who shows a grid. Cell notices come singly and often: gather them.
class GridObserver : public ControlObserver {
 public:
  /// The text of one cell is another.
  virtual void cellChanged(int row, int col) = 0;
};

/// Key codes with a meaning of their own; every other code is the character it stands for.
namespace key {
constexpr char32_t backspace = 8;
constexpr char32_t enter = 13;
}  // namespace key

/// Rows × columns of text, the working model of every calculation. The top `fixedRows` rows are headers. Rows
/// and columns are counted from 0; there are at most 32,767 rows, as row numbers are of 16 bits.
///
/// Every member that takes a row or column raises Subscript where it lies outside the grid.
class Grid : public Control {
 public:
  explicit Grid(std::string name = "Grid1", Screen* screen = nullptr);

  int rows() const { return rows_; }
  int cols() const { return cols_; }
  int fixedRows() const { return fixedRows_; }
  int fixedCols() const { return fixedCols_; }
  /// New rows and columns are empty. Raises Overflow beyond 32,767 rows, Subscript for less than 1.
  void setRows(int rows);
  void setCols(int cols);
  void setFixed(int rows, int cols);

  const std::string& text(int row, int col) const;
  void setText(int row, int col, std::string_view text);
  /// Empties every cell, headers too; the shape stays.
  void clearText();

  /// Adds a row at the end, or before row `at`, with `text` in its first column. Raises Overflow beyond
  /// 32,767 rows.
  void addItem(std::string_view text);
  void addItem(std::string_view text, int at);
  /// Removes a row; not a header and not the last row below them (Subscript).
  void removeItem(int row);

  /// Column width in twips; 0 hides the column.
  int colWidth(int col) const;
  void setColWidth(int col, int twips);
  Align align(int col) const;
  void setAlign(int col, Align align);
  Align fixedAlign(int col) const;
  void setFixedAlign(int col, Align align);
  /// Row height in twips; 0 leaves it to the font.
  int rowHeight() const { return rowHeight_; }
  void setRowHeight(int twips);

  /// The current cell, and the far corner of the selection that starts there.
  int row() const { return row_; }
  int col() const { return col_; }
  int rowSel() const { return rowSel_; }
  int colSel() const { return colSel_; }
  /// Moves the current cell; the selection shrinks to it, and keys go to it.
  void setRow(int row);
  void setCol(int col);
  void setCurrent(int row, int col);
  /// Highlights the whole current row: selection from column 0 to the last. Keys still go to the cell they
  /// went to.
  void selectWholeRow();

  /// The cell that keys go to: the current cell, or after selectWholeRow the one that was clicked.
  int keyRow() const { return keyRow_; }
  int keyCol() const { return keyCol_; }

  /// The screen says what may be done in a cell; without that, every cell is Shown.
  void setCellUse(std::function<CellUse(int row, int col)> use) { use_ = std::move(use); }
  CellUse cellUse(int row, int col) const;

  /// The screen says which of the cells that take keys are entries; without that, all of them are.
  void setEntry(std::function<bool(int row, int col)> entry) { entry_ = std::move(entry); }
  /// The screen says so when what setCellUse answers has become another by something outside the grid, such
  /// as a list beside it: a window shows the cells anew.
  void usesChanged() { notify(); }
  /// True for an entry: a cell that the operator is led to, by the keys that go on to the next one, by a
  /// paste, a fill or a delete. A cell that takes keys without being an entry is reached by a click or the
  /// arrows alone.
  bool isEntry(int row, int col) const;

  /// True for a cell that can be clicked: below the headers and not in a hidden column.
  bool clickable(int row, int col) const;

  Event onClick;
  std::function<void(char32_t code)> onKeyPress;

  /// The operator clicks a cell: it becomes the current cell, then onClick. Raises Subscript where it cannot
  /// be clicked.
  void click(int row, int col);
  /// The operator goes to a cell with the keyboard, or stretches the selection to one. No event.
  void moveTo(int row, int col);
  void selectTo(int row, int col);
  /// The operator presses a key. Control characters other than Enter and Backspace write nothing and are not
  /// passed on.
  void pressKey(char32_t code);

  /// One observer at a time, as every control has; null for none.
  void observeGrid(GridObserver* observer);

 private:
  struct ColumnLook {
    int width = 960;
    Align align = Align::Left;
    Align fixedAlign = Align::Left;
  };

  std::size_t index(int row, int col) const;
  const ColumnLook& look(int col) const;
  ColumnLook& look(int col);
  void clampCurrent();

  int rows_ = 2;
  int cols_ = 2;
  int fixedRows_ = 1;
  int fixedCols_ = 0;
  int rowHeight_ = 0;
  int row_ = 1;
  int col_ = 0;
  int rowSel_ = 1;
  int colSel_ = 0;
  int keyRow_ = 1;
  int keyCol_ = 0;
  std::vector<std::string> cells_;
  std::vector<ColumnLook> looks_;
  std::function<CellUse(int, int)> use_;
  std::function<bool(int, int)> entry_;
  GridObserver* gridObserver_ = nullptr;
};

}  // namespace ui
