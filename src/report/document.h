#pragma once

#include <string>
#include <variant>
#include <vector>

#include "report/drawing.h"
#include "report/formula.h"

namespace report {

/// A line of a heading, such as 作業名 and what it is.
struct Field {
  std::string name;
  std::string text;

  bool operator==(const Field&) const = default;
};

/// How the texts of a column stand in their cells.
enum class Side {
  Left,
  Middle,
  Right,
  Point  ///< numbers, with their decimal points one below another
};

/// A column of a table.
struct Column {
  std::string heading;
  std::string unit;  ///< "" for none
  Side side = Side::Left;
  bool wraps = false;  ///< long texts go over several lines

  /// Heading and unit in one line: "標高(m)".
  std::string title() const { return unit.empty() ? heading : heading + "(" + unit + ")"; }
};

/// A row of a table. It may have fewer cells than the table has columns; the others are empty then.
struct Row {
  std::vector<std::string> cells;
  bool withNext = false;   ///< stands on the same page as the row below
  bool ruleBelow = false;  ///< a thick line closes it off

  const std::string& cell(std::size_t column) const;
  /// True where no cell holds anything.
  bool blank() const;
};

/// A table.
struct Table {
  std::string name;  ///< stands above it, and names its sheet of a spreadsheet; "" for the rows of the grid
  std::vector<Column> columns;
  std::vector<Row> rows;

  /// True for rows of the grid, which CSV files and the first sheet of a spreadsheet hold.
  bool ofGrid() const { return name.empty(); }
};

/// A line of text; it goes over several where it is long.
struct Note {
  std::string text;
};

/// A drawing with its title, on a page of its own.
struct Figure {
  std::string title;
  Drawing drawing;
};

using Item = std::variant<Table, Note, Figure>;

/// What begins on a page of its own: a route of a family, a saved route among several.
struct Part {
  std::string title;          ///< "" for that of the document
  std::vector<Field> fields;  ///< beside those of the document
  std::vector<Item> items;
};

/// All that is printed or exported in one piece.
struct Document {
  std::string title;
  std::vector<Field> fields;
  std::vector<Part> parts;
  Check check;  ///< sheet 0: the rows of the grid, one part after another; sheet n: the n-th named table
};

/// The tables of a document in their order: first the rows of the grid, gathered from all parts in one table,
/// then the named ones, those of one name in one table too.
std::vector<Table> gathered(const Document& document);

/// Puts the parts of `more`, a document of the same calculation, behind those of `document`, whose title and
/// fields stay.
void append(Document& document, const Document& more);

/// A picture file that fills a page.
Figure pictureFigure(std::string title, std::string bytes);

}  // namespace report
