#include "report/xlsx_writer.h"

#include <algorithm>
#include <cmath>

#include "report/measure.h"
#include "report/paginate.h"
#include "report/xlsx_book.h"
#include "text/number.h"

namespace report {
namespace {

constexpr std::string_view gridSheet = "成果表";
constexpr std::string_view checkSheet = "検算";
constexpr int paperA4 = 9;
constexpr double inch = 25.4;
constexpr std::size_t tellEvery = 1000;  // rows

/// A sheet with the rows of one table.
class TableSheet {
 public:
  TableSheet(XlsxBook& book, lxw_worksheet* sheet, const Document& document, const Table& table)
      : book_(book), sheet_(sheet), document_(document), table_(table), head_(rowsAboveHeadings(document)) {}

  void write(const Progress& progress) {
    heading();
    columns();
    for (std::size_t i = 0; i < table_.rows.size(); ++i) {
      if (i % tellEvery == 0) tell(progress, i, table_.rows.size());
      row(i);
    }
    printSetUp();
  }

 private:
  void text(int row, int col, const std::string& words, lxw_format* look) {
    require(worksheet_write_string(sheet_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(col),
                                   words.c_str(), look));
  }

  void heading() {
    text(0, 0, document_.title + (table_.ofGrid() ? "" : "　" + table_.name), book_.title());
    std::vector<Field> fields = document_.fields;
    if (document_.parts.size() == 1)
      fields.insert(fields.end(), document_.parts[0].fields.begin(), document_.parts[0].fields.end());
    const int second = static_cast<int>((table_.columns.size() + 1) / 2);
    for (std::size_t i = 0; i < fields.size(); ++i)
      text(1 + static_cast<int>(i / 2), i % 2 == 0 ? 0 : second, fields[i].name + ": " + fields[i].text,
           nullptr);
  }

  void columns() {
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
      const Column& column = table_.columns[i];
      double letters = fixedPitch(column.title());
      for (const Row& row : table_.rows) letters = std::max(letters, fixedPitch(row.cell(i)));
      constexpr double most = 40;
      require(worksheet_set_column(sheet_, static_cast<lxw_col_t>(i), static_cast<lxw_col_t>(i),
                                   std::min(letters, most) * 2 + 2, nullptr));
      text(head_, static_cast<int>(i), column.title(), book_.look({{}, true, false}));
    }
    worksheet_freeze_panes(sheet_, static_cast<lxw_row_t>(head_ + 1), 0);
  }

  void row(std::size_t at) {
    const Row& row = table_.rows[at];
    const int line = head_ + 1 + static_cast<int>(at);
    for (std::size_t i = 0; i < table_.columns.size(); ++i) cell(line, i, row.cell(i), row.ruleBelow);
  }

  void cell(int line, std::size_t column, const std::string& words, bool ruleBelow) {
    const auto row = static_cast<lxw_row_t>(line);
    const auto col = static_cast<lxw_col_t>(column);
    const bool isNumber = table_.columns[column].side == Side::Point && text::isNumeric(words);
    lxw_format* const look =
        book_.look({isNumber ? std::optional(decimalsOf(words)) : std::nullopt, false, ruleBelow});
    if (words.empty())
      require(worksheet_write_blank(sheet_, row, col, look));
    else if (isNumber)
      require(worksheet_write_number(sheet_, row, col, text::readNumber(words), look));
    else
      require(worksheet_write_string(sheet_, row, col, words.c_str(), look));
  }

  /// As the pages of paper are: A4, one page across, headings on each, page numbers below.
  void printSetUp() {
    worksheet_set_paper(sheet_, paperA4);
    if (needsLyingPages(document_, {}, fixedPitch)) worksheet_set_landscape(sheet_);
    worksheet_set_margins(sheet_, 20 / inch, 15 / inch, 15 / inch, 16 / inch);
    worksheet_fit_to_pages(sheet_, 1, 0);
    const auto head = static_cast<lxw_row_t>(head_);
    require(worksheet_repeat_rows(sheet_, head, head));
    require(worksheet_set_footer(sheet_, "&C&P / &N"));
  }

  XlsxBook& book_;
  lxw_worksheet* sheet_;
  const Document& document_;
  const Table& table_;
  int head_;
};

}  // namespace

void writeXlsx(const Document& document, const std::string& path, const Progress& progress) {
  const std::vector<Table> tables = gathered(document);
  XlsxBook book(path);
  book.describe(document.title);
  std::vector<std::string> names;
  std::vector<lxw_worksheet*> sheets;
  lxw_worksheet* check = nullptr;
  for (const Table& table : tables) {
    names.emplace_back(table.ofGrid() ? std::string(gridSheet) : table.name);
    sheets.push_back(book.addSheet(names.back()));
    if (check == nullptr) check = book.addSheet(std::string(checkSheet));
  }
  for (std::size_t i = 0; i < tables.size(); ++i)
    TableSheet(book, sheets[i], document, tables[i]).write(progress);
  if (check != nullptr) writeCheckSheet(book, check, document, tables, names, progress);
  book.finish();
}

}  // namespace report
