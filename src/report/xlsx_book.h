#pragma once

#include <xlsxwriter.h>

#include <map>
#include <optional>
#include <string>

#include "report/check.h"
#include "report/document.h"
#include "report/progress.h"

namespace report {

/// How a cell of a spreadsheet looks.
struct CellLook {
  std::optional<Decimals> numbers;  ///< what a number shows; nothing for texts
  bool heading = false;
  bool ruleBelow = false;
  bool typedAsText = false;  ///< what is typed into it stays a text, whatever it looks like

  auto operator<=>(const CellLook&) const = default;
};

/// A spreadsheet file under work, with each look made once. Not finished, it leaves nothing behind but a file
/// that its owner deletes.
class XlsxBook {
 public:
  /// Raises RuntimeError where the file cannot be made.
  explicit XlsxBook(const std::string& path);
  ~XlsxBook();
  XlsxBook(const XlsxBook&) = delete;
  XlsxBook& operator=(const XlsxBook&) = delete;

  lxw_worksheet* addSheet(const std::string& name);
  lxw_format* look(const CellLook& look);
  lxw_format* title();
  void describe(const std::string& title);

  /// Puts everything into the file. Raises RuntimeError where that fails.
  void finish();

 private:
  lxw_workbook* book_;
  std::map<CellLook, lxw_format*> looks_;
  lxw_format* title_ = nullptr;
};

/// Raises RuntimeError where the library could not write a cell.
void require(lxw_error error);

/// The rows that stand above the headings of every sheet: the title, the fields in pairs, and an empty one.
int rowsAboveHeadings(const Document& document);

/// Writes the sheet 検算. `sheets` are the names of the sheets of `tables`.
void writeCheckSheet(XlsxBook& book, lxw_worksheet* sheet, const Document& document,
                     const std::vector<Table>& tables, const std::vector<std::string>& sheets,
                     const Progress& progress);

/// The name of a cell, such as "$B$5".
std::string cellName(int row, int col);

}  // namespace report
