#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <map>
#include <utility>

#include "ui/finding.h"
#include "ui/grid.h"

namespace qt {

/// The toolkit's view of a grid: it reads straight from the grid and keeps no cells. Its rows are those below
/// the grid's headers; the headers are the horizontal header.
///
/// Changes of the grid are noted as they come and told to the toolkit by flush(). In between the model keeps
/// the shape that it last told, and cells beyond the grid's real shape are empty.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Roles beyond the toolkit's own.
  enum Role {
    UseRole = Qt::UserRole,  ///< what may be done in the cell: ui::CellUse as int
    ProblemRole,             ///< why its text is not what its column takes, empty where it is
    MarkRole                 ///< how it is marked: ui::CellMark as int
  };

  /// How cells and columns are called, counted as the grid counts.
  struct Names {
    std::function<QString(int row, int col)> cell;  ///< bench mark, column and unit
    std::function<QString(int col)> column;         ///< header and unit
  };
  void setNames(Names names) { names_ = std::move(names); }

  /// Marks the cells of the findings that ask for it, and no others. Tips and screen readers tell why.
  void setMarks(const ui::Findings& findings);

  /// `grid` may be null: no rows and no columns.
  void setGrid(const ui::Grid* grid);

  /// Something other than the text of one cell has changed.
  void noteChange();
  /// The text of one cell has changed.
  void noteCell(int row, int col);
  /// Tells the toolkit all that has been noted. Returns true where the grid was emptied in between: it has
  /// been filled anew.
  bool flush();

  /// The number of header rows: row 0 of the model is this row of the grid.
  int headerRows() const { return fixedRows_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  /// The headers of a column; those of several header rows stand one under another.
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// The text of a cell, counted as the grid counts; empty outside of it.
  QString cellText(int row, int col) const;
  /// What may be done in a cell, counted as the grid counts; nothing while the screen cannot say so, as with
  /// a grid that is only half set up.
  ui::CellUse cellUse(int row, int col) const;
  /// Why the text of a cell is not what its column takes, counted as the grid counts; empty where it is.
  QString problem(int row, int col) const;

 private:
  void reset();
  void tellRows(int rows);
  void tellCells(int firstRow, int lastRow, int firstCol, int lastCol);

  ui::CellMark mark(int row, int col) const;
  QString remark(int row, int col) const;
  QString spoken(int row, int col) const;

  const ui::Grid* grid_ = nullptr;
  Names names_;
  std::map<std::pair<int, int>, ui::CellMark> marks_;  // by row and column as the grid counts
  int rows_ = 0;
  int cols_ = 0;
  int fixedRows_ = 0;
  bool changed_ = false;
  bool emptied_ = false;
  bool cellsChanged_ = false;
  int firstRow_ = 0;
  int lastRow_ = 0;
  int firstCol_ = 0;
  int lastCol_ = 0;
};

}  // namespace qt
