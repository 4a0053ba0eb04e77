#include "ui/grid_block.h"

#include <algorithm>
#include <vector>

#include "text/padding.h"
#include "ui/act_witness.h"

namespace ui {
namespace {

using Cells = std::vector<std::vector<std::string>>;

std::vector<std::string> split(std::string_view text, char at) {
  std::vector<std::string> parts;
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find(at, start);
    parts.emplace_back(text.substr(start, end - start));
    if (end == std::string_view::npos) return parts;
    start = end + 1;
  }
}

/// The rows and columns of a text; lines end with a line feed, a carriage return or both.
Cells cellsOf(std::string_view text) {
  std::string lines;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') continue;
    lines += text[at] == '\r' ? '\n' : text[at];
  }
  if (lines.empty()) return {};
  if (lines.ends_with('\n')) lines.pop_back();
  Cells cells;
  for (const std::string& line : split(lines, '\n')) cells.push_back(split(line, '\t'));
  return cells;
}

std::string inOneCell(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n'; }, ' ');
  return text;
}

std::vector<int> visibleColumns(const Grid& grid, int from, int to) {
  std::vector<int> columns;
  for (int col = from; col <= to; ++col)
    if (grid.colWidth(col) > 0) columns.push_back(col);
  return columns;
}

/// The cells that an act fills, and what Enter does in them afterwards.
class Block {
 public:
  explicit Block(Grid& grid) : grid_(grid) {}

  void fill(int row, int col, std::string_view text) {
    if (row >= grid_.rows() || !grid_.isEntry(row, col)) return passOver();
    grid_.setText(row, col, grid_.asTyped(row, col, text));
    filled_.push_back({row, col});
    ++count_.taken;
  }
  /// An entry that is empty already stays as it is, without Enter.
  void empty(int row, int col) {
    if (grid_.isEntry(row, col) && grid_.text(row, col).empty())
      ++count_.taken;
    else
      fill(row, col, {});
  }
  void passOver() { ++count_.passedOver; }

  BlockCount enter() {
    std::sort(filled_.begin(), filled_.end(), [](const CellPlace& a, const CellPlace& b) {
      return a.row != b.row ? a.row < b.row : a.col < b.col;
    });
    if (!filled_.empty() && grid_.onBlock) grid_.onBlock(filled_);
    return count_;
  }

 private:
  Grid& grid_;
  std::vector<CellPlace> filled_;
  BlockCount count_;
};

/// Where the cells of a pasted text go.
class Pasting {
 public:
  Pasting(Grid& grid, Cells cells) : grid_(grid), cells_(std::move(cells)) {
    for (const auto& line : cells_) width_ = std::max(width_, line.size());
    const CellRange range = grid.block();
    const CellRange shown = grid.selection();
    const bool asSelected = width_ == visibleColumns(grid, shown.left, shown.right).size();
    top_ = asSelected ? shown.top : range.top;
    columns_ = visibleColumns(grid, asSelected ? shown.left : range.left, grid.cols() - 1);
  }

  BlockCount run() {
    const GridPlace stood = grid_.place();
    const std::vector<int> rows = isList() ? entryRows() : rowsFromTop();
    Block block(grid_);
    for (std::size_t line = 0; line < cells_.size(); ++line) fillRow(block, rows[line], cells_[line]);
    const BlockCount count = block.enter();
    if (!columns_.empty()) mark(stood, rows);
    return count;
  }

 private:
  /// Lines beyond the grid go to the row behind its last one, which takes nothing.
  std::vector<int> rowsFromTop() const {
    std::vector<int> rows;
    for (std::size_t line = 0; line < cells_.size(); ++line)
      rows.push_back(static_cast<int>(std::min<std::size_t>(static_cast<std::size_t>(top_) + line,
                                                            static_cast<std::size_t>(grid_.rows()))));
    return rows;
  }

  std::vector<int> entryRows() const {
    std::vector<int> rows;
    int row = top_;
    for (std::size_t line = 0; line < cells_.size(); ++line, ++row) {
      while (row < grid_.rows() && !grid_.isEntry(row, columns_.front())) ++row;
      row = std::min(row, grid_.rows());
      rows.push_back(row);
    }
    return rows;
  }

  bool isList() const {
    if (width_ != 1 || columns_.empty()) return false;
    const int col = columns_.front();
    for (std::size_t line = 0; line < cells_.size(); ++line) {
      const std::size_t row = static_cast<std::size_t>(top_) + line;
      if (row >= static_cast<std::size_t>(grid_.rows())) return false;
      const std::string& value = cells_[line].front();
      if (text::trimmed(value).empty() || grid_.isEntry(static_cast<int>(row), col)) continue;
      if (value != inOneCell(grid_.text(static_cast<int>(row), col))) return true;
    }
    return false;
  }

  void fillRow(Block& block, int row, const std::vector<std::string>& line) {
    for (std::size_t at = 0; at < line.size(); ++at)
      at < columns_.size() ? block.fill(row, columns_[at], line[at]) : block.passOver();
  }

  /// The text's cells become the selection; keys go to its first one, or stay where a click has put them.
  void mark(const GridPlace& stood, const std::vector<int>& rows) {
    GridPlace place = stood;
    place.row = top_;
    place.col = columns_.front();
    place.rowSel = std::min(rows.back(), grid_.rows() - 1);
    place.colSel = columns_[std::min(width_, columns_.size()) - 1];
    place.headings = false;
    if (!stood.wholeRow) {
      place.keyRow = place.row;
      place.keyCol = place.col;
    }
    place.wholeRow = false;
    grid_.setPlace(place);
  }

  Grid& grid_;
  Cells cells_;
  std::size_t width_ = 0;
  int top_ = 0;
  std::vector<int> columns_;
};

/// The next entry of a column above `row`; −1 where there is none.
int entryAbove(const Grid& grid, int row, int col) {
  while (--row >= grid.fixedRows())
    if (grid.isEntry(row, col)) return row;
  return -1;
}

void fillColumn(const Grid& grid, Block& block, const CellRange& range, int col) {
  int from = range.top == range.bottom ? entryAbove(grid, range.top, col) : -1;
  for (int row = range.top; row <= range.bottom; ++row) {
    if (!grid.isEntry(row, col))
      block.passOver();
    else if (from < 0)
      from = row;
    else
      block.fill(row, col, std::string(grid.text(from, col)));
  }
}

/// The texts of the visible columns of a range: a line for each row, a tab between the cells.
std::string textOf(const Grid& grid, const CellRange& range) {
  const std::vector<int> columns = visibleColumns(grid, range.left, range.right);
  std::string text;
  for (int row = range.top; row <= range.bottom; ++row) {
    for (const int col : columns) {
      if (col != columns.front()) text += '\t';
      text += inOneCell(grid.text(row, col));
    }
    text += '\n';
  }
  return text;
}

/// A fill as what it comes to: the filled texts, pasted at the range's first cell.
OperatorAct filling(const Grid& grid, const CellRange& range) {
  return {"fill", grid.name(), {std::to_string(range.top), std::to_string(range.left), textOf(grid, range)}};
}

}  // namespace

std::string copiedText(const Grid& grid) {
  const CellRange range = grid.selection();
  const std::vector<int> columns = visibleColumns(grid, range.left, range.right);
  std::string text;
  std::string line;
  const auto addRow = [&](int row) {
    line.clear();
    for (const int col : columns) {
      if (col != columns.front()) line += '\t';
      line += inOneCell(grid.text(row, col));
    }
    text += line;
    if (row != range.bottom) text += '\n';
  };
  for (int row = 0; grid.headingsSelected() && row < grid.fixedRows(); ++row) addRow(row);
  for (int row = range.top; row <= range.bottom; ++row) addRow(row);
  return line.empty() ? text + '\n' : text;
}

BlockCount paste(Grid& grid, std::string_view text) {
  Cells cells = cellsOf(text);
  if (!grid.enabled() || cells.empty()) return {};
  const Witnessed seen(grid.desktop(), [&] {
    return OperatorAct{"paste", grid.name(), {std::string(text)}};
  });
  const History::Act act(grid.history(), act::pasting);
  return Pasting(grid, std::move(cells)).run();
}

BlockCount emptyBlock(Grid& grid) {
  if (!grid.enabled()) return {};
  const CellRange range = grid.block();
  const Witnessed seen(grid.desktop(), [&] {
    return OperatorAct{"delete",
                       grid.name(),
                       {std::to_string(range.top), std::to_string(range.left), std::to_string(range.bottom),
                        std::to_string(range.right)}};
  });
  const History::Act act(grid.history(), act::deleting);
  const std::vector<int> columns = visibleColumns(grid, range.left, range.right);
  Block block(grid);
  for (int row = range.top; row <= range.bottom; ++row)
    for (const int col : columns) block.empty(row, col);
  return block.enter();
}

BlockCount fillDown(Grid& grid) {
  if (!grid.enabled()) return {};
  const History::Act act(grid.history(), act::filling);
  const CellRange range = grid.block();
  Block block(grid);
  for (const int col : visibleColumns(grid, range.left, range.right)) fillColumn(grid, block, range, col);
  const Witnessed seen(grid.desktop(), [&] { return filling(grid, range); });
  return block.enter();
}

std::string undo(Grid& grid) {
  const Witnessed seen(grid.desktop(), [&] { return OperatorAct{"undo", grid.name()}; });
  return grid.history() == nullptr ? std::string() : grid.history()->undo();
}

std::string redo(Grid& grid) {
  const Witnessed seen(grid.desktop(), [&] { return OperatorAct{"redo", grid.name()}; });
  return grid.history() == nullptr ? std::string() : grid.history()->redo();
}

}  // namespace ui
