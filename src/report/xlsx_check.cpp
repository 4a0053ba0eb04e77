#include <algorithm>

#include "report/check.h"
#include "report/xlsx_book.h"
#include "text/decimal.h"
#include "text/number.h"

namespace report {
namespace {

constexpr std::size_t tellEvery = 1000;  // cells
constexpr double columnWidth = 18;

/// The sheet that reckons a document again. Each table has a column that names its rows, and to each column
/// of the check one for the number and, where a cell shows it, one for the difference.
class CheckSheet {
 public:
  CheckSheet(XlsxBook& book, lxw_worksheet* sheet, const Document& document, const std::vector<Table>& tables,
             const std::vector<std::string>& sheets)
      : book_(book),
        sheet_(sheet),
        document_(document),
        check_(document.check),
        tables_(tables),
        sheets_(sheets),
        head_(rowsAboveHeadings(document)) {}

  void write(const Progress& progress) {
    placeColumns();
    cells(progress);
    summary();
    worksheet_freeze_panes(sheet_, static_cast<lxw_row_t>(head_ + 1), 1);
  }

 private:
  void text(int row, int col, const std::string& words, lxw_format* look) {
    require(worksheet_write_string(sheet_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(col),
                                   words.c_str(), look));
  }

  void formula(int row, int col, const std::string& words, double value, lxw_format* look) {
    require(worksheet_write_formula_num(sheet_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(col),
                                        ("=" + words).c_str(), look, value));
  }

  void placeColumns() {
    place_.resize(check_.columns.size());
    for (std::size_t table = 0; table < tables_.size(); ++table) {
      if (!reckons(table)) continue;
      labels(table);
      for (std::size_t i = 0; i < check_.columns.size(); ++i)
        if (check_.columns[i].sheet == static_cast<int>(table)) placeColumn(i);
    }
    require(worksheet_set_column(sheet_, 0, static_cast<lxw_col_t>(next_), columnWidth, nullptr));
  }

  bool reckons(std::size_t table) const {
    return std::any_of(check_.columns.begin(), check_.columns.end(),
                       [&](const CheckColumn& column) { return column.sheet == static_cast<int>(table); });
  }

  void labels(std::size_t table) {
    lxw_format* const heading = book_.look({{}, true, false});
    text(head_, next_, tables_[table].ofGrid() ? tables_[table].columns.front().heading : tables_[table].name,
         heading);
    const std::vector<Row>& rows = tables_[table].rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
      if (!rows[i].cell(0).empty()) text(head_ + 1 + static_cast<int>(i), next_, rows[i].cell(0), nullptr);
    ++next_;
  }

  void placeColumn(std::size_t column) {
    lxw_format* const heading = book_.look({{}, true, false});
    place_[column] = next_;
    const CheckColumn& wanted = check_.columns[column];
    text(head_, next_++, wanted.heading, heading);
    if (wanted.column >= 0) text(head_, next_++, wanted.heading + " 差", heading);
  }

  std::string given(CellPlace cell) const {
    return sheets_[static_cast<std::size_t>(cell.sheet)] + "!" + cellName(head_ + 1 + cell.row, cell.col);
  }

  std::string reckoned(CellPlace cell) const {
    return cellName(head_ + 1 + cell.row, place_[static_cast<std::size_t>(cell.col)]);
  }

  void cells(const Progress& progress) {
    const CellNames names{[this](CellPlace cell) { return given(cell); },
                          [this](CellPlace cell) { return reckoned(cell); }};
    const std::vector<Checked> values = checked(tables_, check_);
    for (std::size_t i = 0; i < check_.cells.size(); ++i) {
      if (i % tellEvery == 0) tell(progress, i, check_.cells.size());
      cell(check_.cells[i], values[i], names);
    }
  }

  void cell(const CheckCell& cell, const Checked& value, const CellNames& names) {
    const CheckColumn& column = check_.columns[static_cast<std::size_t>(cell.column)];
    const int row = head_ + 1 + cell.row;
    const int col = place_[static_cast<std::size_t>(cell.column)];
    formula(row, col, spreadsheetText(cell.formula, names), value.reckoned, nullptr);
    if (column.column < 0) return;
    const CellPlace shown{column.sheet, cell.row, column.column};
    const std::string& words =
        tables_[static_cast<std::size_t>(shown.sheet)].rows[static_cast<std::size_t>(shown.row)].cell(
            static_cast<std::size_t>(shown.col));
    const Decimals decimals = decimalsOf(words);
    formula(row, col + 1, differenceText(given(shown), cellName(row, col), value.reckoned, decimals),
            value.difference,
            book_.look({text::isNumeric(words) ? std::optional(decimals) : std::nullopt, false, false}));
    largest_ = std::max(largest_, std::abs(value.difference));
    last_ = std::max(last_, row);
  }

  /// What is shown less what was reckoned, to the decimals that are shown. Cells show the decimal of 15
  /// digits of a number, rounded; a spreadsheet is told to go the same way, or the noise of binary sums would
  /// turn some halves into less.
  static std::string differenceText(const std::string& shown, const std::string& cell, double reckoned,
                                    Decimals decimals) {
    std::string places = std::to_string(decimals.count);
    std::string all = std::to_string(decimalsOfDigits(reckoned));
    if (decimals.exponent) {
      const std::string magnitude = "INT(LOG10(ABS(" + cell + ")))";
      all = "IF(" + cell + "=0," + places + ",14-" + magnitude + ")";
      places = "IF(" + cell + "=0," + places + "," + places + "-" + magnitude + ")";
    }
    return "ROUND(N(" + shown + ")-ROUND(ROUND(" + cell + "," + all + ")," + places + ")," + places + ")";
  }

  /// The decimals of a number's decimal of 15 digits.
  static int decimalsOfDigits(double number) { return 14 - text::Decimal(number).exponent; }

  /// The largest difference of all, above the table.
  void summary() {
    text(0, 0, document_.title + "　検算", book_.title());
    text(1, 0, "最大の差", nullptr);
    std::string most;
    for (std::size_t i = 0; i < place_.size(); ++i) {
      if (check_.columns[i].column < 0 || last_ == 0) continue;
      const std::string range = cellName(head_ + 1, place_[i] + 1) + ":" + cellName(last_, place_[i] + 1);
      most += (most.empty() ? "" : ",") + ("MAX(" + range + "),-MIN(" + range + ")");
    }
    if (most.empty())
      text(1, 1, "計算で求めた値はありません。", nullptr);
    else
      formula(1, 1, "MAX(" + most + ")", largest_, nullptr);
  }

  XlsxBook& book_;
  lxw_worksheet* sheet_;
  const Document& document_;
  const Check& check_;
  const std::vector<Table>& tables_;
  const std::vector<std::string>& sheets_;
  int head_;
  int next_ = 0;
  int last_ = 0;  // the lowest row with a difference
  double largest_ = 0;
  std::vector<int> place_;  // of each column of the check
};

}  // namespace

void writeCheckSheet(XlsxBook& book, lxw_worksheet* sheet, const Document& document,
                     const std::vector<Table>& tables, const std::vector<std::string>& sheets,
                     const Progress& progress) {
  CheckSheet(book, sheet, document, tables, sheets).write(progress);
}

}  // namespace report
