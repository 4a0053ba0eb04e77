#include "qt/grid_model.h"

#include <algorithm>
#include <utility>

#include "qt/convert.h"
#include "text/error.h"

namespace qt {
namespace {

Qt::Alignment toolkitAlign(ui::Align align) {
  switch (align) {
    case ui::Align::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case ui::Align::Center:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case ui::Align::Left:
      break;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

QString markText(ui::CellMark mark) {
  switch (mark) {
    case ui::CellMark::NotTaken:
      return QStringLiteral("まだ計算に入っていません");
    case ui::CellMark::ByHand:
      return QStringLiteral("手で直した値です");
    case ui::CellMark::None:
      break;
  }
  return {};
}

}  // namespace

void GridModel::setGrid(const ui::Grid* grid) {
  grid_ = grid;
  reset();
}

void GridModel::reset() {
  beginResetModel();
  fixedRows_ = grid_ == nullptr ? 0 : grid_->fixedRows();
  rows_ = grid_ == nullptr ? 0 : grid_->rows() - fixedRows_;
  cols_ = grid_ == nullptr ? 0 : grid_->cols();
  endResetModel();
}

void GridModel::noteChange() {
  changed_ = true;
  if (grid_->rows() <= grid_->fixedRows() + 1) emptied_ = true;
}

void GridModel::noteCell(int row, int col) {
  firstRow_ = cellsChanged_ ? std::min(firstRow_, row) : row;
  lastRow_ = cellsChanged_ ? std::max(lastRow_, row) : row;
  firstCol_ = cellsChanged_ ? std::min(firstCol_, col) : col;
  lastCol_ = cellsChanged_ ? std::max(lastCol_, col) : col;
  cellsChanged_ = true;
}

bool GridModel::flush() {
  if (grid_ == nullptr) return false;
  const bool changed = std::exchange(changed_, false);
  const bool cellsChanged = std::exchange(cellsChanged_, false);
  const int rows = grid_->rows() - grid_->fixedRows();
  const bool filledAnew = std::exchange(emptied_, false) && rows != rows_;
  if (filledAnew || grid_->cols() != cols_ || grid_->fixedRows() != fixedRows_) {
    reset();
  } else if (changed) {
    tellRows(rows);
    tellCells(0, grid_->rows() - 1, 0, cols_ - 1);
  } else if (cellsChanged) {
    tellCells(firstRow_, lastRow_, firstCol_, lastCol_);
  }
  return filledAnew;
}

/// Rows come and go at the end here; what stands in the others is told with the cells.
void GridModel::tellRows(int rows) {
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
}

void GridModel::tellCells(int firstRow, int lastRow, int firstCol, int lastCol) {
  if (firstRow < fixedRows_) emit headerDataChanged(Qt::Horizontal, firstCol, lastCol);
  const int top = std::max(firstRow - fixedRows_, 0);
  const int bottom = std::min(lastRow - fixedRows_, rows_ - 1);
  // What one cell holds may decide what can be typed into the cells around it.
  if (top <= bottom) emit dataChanged(index(top, 0), index(bottom, cols_ - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : cols_; }

QString GridModel::cellText(int row, int col) const {
  if (grid_ == nullptr || row < 0 || row >= grid_->rows() || col < 0 || col >= grid_->cols()) return {};
  return toQString(grid_->text(row, col));
}

QString GridModel::problem(int row, int col) const {
  if (grid_ == nullptr || row >= grid_->rows() || col >= grid_->cols()) return {};
  return toQString(grid_->problem(row, col));
}

ui::CellMark GridModel::mark(int row, int col) const {
  const auto found = marks_.find({row, col});
  return found == marks_.end() ? ui::CellMark::None : found->second;
}

/// What is the matter with a cell: what is wrong with its text, else what its mark means.
QString GridModel::remark(int row, int col) const {
  const QString wrong = problem(row, col);
  return wrong.isEmpty() ? markText(mark(row, col)) : wrong;
}

/// A cell as screen readers tell of it: bench mark, column and unit, text, what is the matter.
QString GridModel::spoken(int row, int col) const {
  const QString words = names_.cell(row, col) + QStringLiteral(": ") + cellText(row, col);
  const QString more = remark(row, col);
  return more.isEmpty() ? words : words + QStringLiteral("、") + more;
}

void GridModel::setMarks(const ui::Findings& findings) {
  std::map<std::pair<int, int>, ui::CellMark> marks;
  for (const ui::Finding& finding : findings)
    if (finding.mark != ui::CellMark::None) marks.emplace(std::pair(finding.row, finding.col), finding.mark);
  if (marks == marks_) return;
  marks_ = std::move(marks);
  if (rows_ > 0 && cols_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1));
}

ui::CellUse GridModel::cellUse(int row, int col) const {
  try {
    return grid_ == nullptr ? ui::CellUse::Shown : grid_->cellUse(row, col);
  } catch (const text::RuntimeError&) {
    return ui::CellUse::Shown;
  }
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (grid_ == nullptr || !index.isValid() || index.column() >= grid_->cols()) return {};
  const int row = index.row() + fixedRows_;
  if (role == Qt::DisplayRole) return cellText(row, index.column());
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(toolkitAlign(grid_->align(index.column())));
  if (role == Qt::AccessibleTextRole && names_.cell) return spoken(row, index.column());
  if (role == UseRole) return static_cast<int>(cellUse(row, index.column()));
  if (role == MarkRole) return static_cast<int>(mark(row, index.column()));
  if (role == ProblemRole) return problem(row, index.column());
  if (role == Qt::ToolTipRole) return remark(row, index.column());
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (grid_ == nullptr || orientation != Qt::Horizontal || section < 0 || section >= grid_->cols()) return {};
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(toolkitAlign(grid_->fixedAlign(section)));
  if (role == Qt::ToolTipRole && names_.column) return names_.column(section);
  if (role != Qt::DisplayRole) return {};
  QStringList lines;
  for (int row = 0; row < fixedRows_; ++row) lines << cellText(row, section);
  return lines.join(u'\n');
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                         : Qt::NoItemFlags;
}

}  // namespace qt
