#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace report {

/// A cell of a table that stands on a sheet of its own. Sheet 0 holds the rows of the grid; rows and columns
/// count from 0, headings aside.
struct CellPlace {
  int sheet = 0;
  int row = 0;
  int col = 0;

  bool operator==(const CellPlace&) const = default;
};

/// Reckons one number from others, the same way in a spreadsheet and here.
///
/// A blank cell counts as 0, as does one that holds no number.
class Formula {
 public:
  /// What a piece of the formula does; those with operands take them from what stands before.
  enum class Op {
    Number,    ///< a number as it stands
    Given,     ///< the number of a cell of a table
    Reckoned,  ///< what was reckoned for a row, in a column of reckoned numbers (`cell.col`)
    Sum,       ///< of one column, from `cell` down to row `last`
    SumWhere,  ///< the same of those rows alone in which column `number` holds something
    Days,      ///< the date text "YYYY/MM/DD" of a cell, in days
    Minutes,   ///< the latitude text "degrees°minutes" of a cell, in minutes of arc
    Add,
    Subtract,
    Multiply,
    Divide,
    Round,   ///< to `number` decimals, halves away from zero
    HalfUp,  ///< to `number` decimals, halves upwards
    Truncate,
    Floor,
    Absolute,
    Sine  ///< of an angle in degrees
  };
  struct Piece {
    Op op = Op::Number;
    double number = 0;
    CellPlace cell;
    int last = 0;
  };

  /// A number.
  Formula(double number) : pieces_{{Op::Number, number, {}, 0}} {}

  static Formula given(CellPlace cell) { return Formula({Op::Given, 0, cell, 0}); }
  static Formula reckoned(CellPlace cell) { return Formula({Op::Reckoned, 0, cell, 0}); }
  /// The numbers of column `first.col` in the rows `first.row` to `last`.
  static Formula sum(CellPlace first, int last) { return Formula({Op::Sum, 0, first, last}); }
  /// The same of those rows alone in which column `filled` holds something.
  static Formula sumWhere(int filled, CellPlace first, int last) {
    return Formula({Op::SumWhere, static_cast<double>(filled), first, last});
  }
  static Formula days(CellPlace cell) { return Formula({Op::Days, 0, cell, 0}); }
  static Formula minutes(CellPlace cell) { return Formula({Op::Minutes, 0, cell, 0}); }

  Formula rounded(int decimals) const { return with({Op::Round, static_cast<double>(decimals), {}, 0}); }
  Formula halfUp(int decimals) const { return with({Op::HalfUp, static_cast<double>(decimals), {}, 0}); }
  Formula truncated() const { return with({Op::Truncate, 0, {}, 0}); }
  Formula floored() const { return with({Op::Floor, 0, {}, 0}); }
  Formula absolute() const { return with({Op::Absolute, 0, {}, 0}); }
  Formula sine() const { return with({Op::Sine, 0, {}, 0}); }

  friend Formula operator+(const Formula& a, const Formula& b) { return a.with(b, Op::Add); }
  friend Formula operator-(const Formula& a, const Formula& b) { return a.with(b, Op::Subtract); }
  friend Formula operator*(const Formula& a, const Formula& b) { return a.with(b, Op::Multiply); }
  friend Formula operator/(const Formula& a, const Formula& b) { return a.with(b, Op::Divide); }

  const std::vector<Piece>& pieces() const { return pieces_; }

  /// Moves every cell of sheet n down by `rows[n]` rows, where there is such.
  void shift(const std::vector<int>& rows);

 private:
  explicit Formula(const Piece& piece) : pieces_{piece} {}
  Formula with(const Piece& piece) const;
  Formula with(const Formula& other, Op op) const;

  std::vector<Piece> pieces_;
};

/// How a formula finds the cells that it names.
struct Cells {
  std::function<const std::string&(CellPlace)> given;  ///< text of a cell
  std::function<double(CellPlace)> reckoned;           ///< reckoned before
};

/// The number that a formula gives. Dividing by 0 gives 0.
double valueOf(const Formula& formula, const Cells& cells);

/// How a spreadsheet names the cells of a formula: "成果表!$B$5" and the like.
struct CellNames {
  std::function<std::string(CellPlace)> given;
  std::function<std::string(CellPlace)> reckoned;
};

/// The formula as a spreadsheet reads it, without the leading "=".
std::string spreadsheetText(const Formula& formula, const CellNames& names);

/// A column of reckoned numbers.
struct CheckColumn {
  std::string heading;
  int sheet = 0;    ///< the table that it reckons
  int column = -1;  ///< the column of that table that it reckons; −1 for a number on the way
};

/// A cell that is reckoned again.
struct CheckCell {
  int column = 0;  ///< of the check's columns
  int row = 0;     ///< of the table
  Formula formula;
};

/// All that is reckoned again of a document. A cell comes after those that its formula names.
struct Check {
  std::vector<CheckColumn> columns;
  std::vector<CheckCell> cells;
};

}  // namespace report
