#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"
#include "ui/history.h"

namespace ui {

/// How the texts of a grid column stand in their cells.
enum class Align { Left, Right, Center };

/// What the texts of a column are to be, blank ones aside.
enum class Content {
  Anything,
  Number,   ///< a number and nothing else
  Date,     ///< a day of the calendar, as text::Date reads it
  Latitude  ///< degrees, "°" and minutes below 60, from −90 to 90 degrees
};

/// The place of a cell, counted as the grid counts.
struct CellPlace {
  int row = 0;
  int col = 0;

  bool operator==(const CellPlace&) const = default;
};

/// A rectangle of cells; all four edges belong to it.
struct CellRange {
  int top = 0;
  int left = 0;
  int bottom = 0;
  int right = 0;

  bool operator==(const CellRange&) const = default;
};

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

/// Raises Subscript.
[[noreturn]] void raiseSubscript();

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

  const std::string& text(int row, int col) const {
    needCell(row, col);
    return columns_[static_cast<std::size_t>(col)][static_cast<std::size_t>(row)];
  }
  void setText(int row, int col, std::string_view text);
  /// The number that a cell's text begins with, as text::readNumber reads it; a plain one is remembered for
  /// as long as the text stays, so that calculations and checks may ask again at little cost. Raises Overflow
  /// as well.
  double number(int row, int col) const {
    needCell(row, col);
    const std::vector<double>& known = numbers_[static_cast<std::size_t>(col)];
    if (!known.empty() && !std::isnan(known[static_cast<std::size_t>(row)]))
      return known[static_cast<std::size_t>(row)];
    return readNumber(row, col);
  }
  /// True where a cell is empty or holds a plain number and nothing else (text::plainNumber).
  bool isPlain(int row, int col) const {
    needCell(row, col);
    const std::vector<double>& known = numbers_[static_cast<std::size_t>(col)];
    return (!known.empty() && !std::isnan(known[static_cast<std::size_t>(row)])) || readsPlain(row, col);
  }
  /// Counts the changes of a column's texts and of the grid's shape: the same as before where nothing has
  /// changed.
  std::uint64_t columnVersion(int col) const;
  /// Empties every cell, headers too; the shape stays.
  void clearText();

  /// Adds `count` rows before row `at`, with these cells row by row, or empty ones where none are given.
  /// Raises Overflow beyond 32,767 rows, Subscript outside the grid.
  void insertRows(int at, int count, const std::vector<std::string>& cells = {});
  /// Takes out `count` rows from row `at` on. Raises Subscript outside the grid and where no row would be
  /// left.
  void eraseRows(int at, int count);

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
  /// What the texts of the column below the headers are to be.
  Content content(int col) const;
  void setContent(int col, Content content);
  /// Row height in twips; 0 leaves it to the font.
  int rowHeight() const { return rowHeight_; }
  void setRowHeight(int twips);

  /// The current cell, and the far corner of the selection that starts there.
  int row() const { return place_.row; }
  int col() const { return place_.col; }
  int rowSel() const { return place_.rowSel; }
  int colSel() const { return place_.colSel; }
  /// Moves the current cell; the selection shrinks to it, and keys go to it.
  void setRow(int row);
  void setCol(int col);
  void setCurrent(int row, int col);
  /// Highlights the whole current row: selection from column 0 to the last. Keys still go to the cell they
  /// went to.
  void selectWholeRow();

  /// Shape, texts, looks of the columns and place, as they are at one time.
  class Contents;
  Contents contents() const;
  /// Brings such contents back. No history is told of it.
  void setContents(Contents contents);

  /// All of it: current cell, selection and key cell. Set to where it lay before the grid became smaller, it
  /// moves into the grid.
  GridPlace place() const { return place_; }
  void setPlace(const GridPlace& place);

  /// The selected cells.
  CellRange selection() const;
  /// True where the headings of the selected columns are selected with them.
  bool headingsSelected() const { return place_.headings; }
  /// The cells that an act on a block works on: the selection, or the key cell where the selection is no more
  /// than the highlight of a clicked row.
  CellRange block() const;

  /// The cell that keys go to: the current cell, or after selectWholeRow the one that was clicked.
  int keyRow() const { return place_.keyRow; }
  int keyCol() const { return place_.keyCol; }

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

  /// Why the text of a cell is not what its column's content wants, such as "数値ではありません"; empty where
  /// it is.
  std::string problem(int row, int col) const;

  /// True for a cell that can be clicked: below the headers and not in a hidden column.
  bool clickable(int row, int col) const;

  Event onClick;
  std::function<void(char32_t code)> onKeyPress;
  /// Entries were filled by one act, a paste, a fill or a delete: what Enter in each of them does is to be
  /// done, once. They come in reading order.
  std::function<void(const std::vector<CellPlace>& cells)> onBlock;

  /// The operator clicks a cell: it becomes the current cell, then onClick. Raises Subscript where it cannot
  /// be clicked.
  void click(int row, int col);
  /// The operator goes to a cell with the keyboard, or stretches the selection to one. No event.
  void moveTo(int row, int col);
  void selectTo(int row, int col);
  /// The operator marks all that can be seen below the headings; done again, with the headings.
  void selectAll();
  /// The operator marks a column with its heading, or stretches such a selection to a column. Raises
  /// Subscript for a hidden one.
  void selectColumn(int col);
  void selectColumnsTo(int col);

  /// The operator presses a key. Control characters other than Enter and Backspace write nothing and are not
  /// passed on. Full-width figures become half-width ones in a cell that takes numbers.
  void pressKey(char32_t code);
  /// The operator takes back what was typed into the key cell since it was reached or Enter was pressed.
  void takeBackTyping();
  /// The operator has edited the key cell in place: its text becomes `text`, then Enter is pressed in it
  /// where `enter` says so. One act. Nothing in a cell that takes no keys.
  void takeEdit(std::string_view text, bool enter);
  /// `text` as it comes into a cell from outside: without control characters; for a cell that takes numbers
  /// with half-width figures and without blanks at its ends.
  std::string asTyped(int row, int col, std::string_view text) const;

  /// True where the first character typed into a cell that was just reached replaces its text; off at first.
  bool replacesTyped() const { return replacesTyped_; }
  void setReplacesTyped(bool replaces) { replacesTyped_ = replaces; }
  /// What is typed next begins anew, as in a cell that was just reached.
  void endTyping() { typedOver_.reset(); }

  /// One observer at a time, as every control has; null for none.
  void observeGrid(GridObserver* observer);

 private:
  struct ColumnLook {
    int width = 960;
    Align align = Align::Left;
    Align fixedAlign = Align::Left;
    Content content = Content::Anything;
  };

  /// Raises Subscript for a cell outside the grid.
  void needCell(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) raiseSubscript();
  }
  std::string& cell(int row, int col);
  double readNumber(int row, int col) const;
  bool readsPlain(int row, int col) const;
  void textChanged(int row, int col);
  void makeRoom(std::size_t count);
  std::vector<std::string> cellsOf(int at, int count) const;
  const ColumnLook& look(int col) const;
  ColumnLook& look(int col);
  void clampCurrent();
  bool beginsAnew() const;
  bool recording();
  void select(const GridPlace& place);
  int edgeColumn(int step) const;

  int rows_ = 2;
  int cols_ = 2;
  int fixedRows_ = 1;
  int fixedCols_ = 0;
  int rowHeight_ = 0;
  GridPlace place_;
  // Column by column: a calculation runs down a few of them, and what it reads next lies beside what it has
  // read.
  std::vector<std::vector<std::string>> columns_;
  // Column by column too, the numbers read so far, each no number where its text was not read since it
  // changed or is no plain one; empty for a column that nobody has read.
  mutable std::vector<std::vector<double>> numbers_;
  std::vector<std::uint64_t> changes_;  // of a column's texts
  std::uint64_t reshaped_ = 0;          // how often rows or columns came or went
  std::vector<ColumnLook> looks_;
  std::function<CellUse(int, int)> use_;
  std::function<bool(int, int)> entry_;
  std::optional<std::string> typedOver_;  // what the key cell held before it was typed into
  bool replacesTyped_ = false;
  GridObserver* gridObserver_ = nullptr;
};

class Grid::Contents {
 private:
  friend class Grid;

  int rows = 0;
  int cols = 0;
  int fixedRows = 0;
  int fixedCols = 0;
  int rowHeight = 0;
  GridPlace place;
  std::vector<std::vector<std::string>> columns;
  std::vector<ColumnLook> looks;
};

}  // namespace ui
