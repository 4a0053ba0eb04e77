#include "report/xlsx_book.h"

#include <utility>

#include "text/error.h"

namespace report {
namespace {

[[noreturn]] void refuse(lxw_error error) {
  throw text::RuntimeError(text::ErrorCode::PathNotFound,
                           std::string("Excel ファイルに書き込めません。(") + lxw_strerror(error) + ")");
}

/// The number format that shows these decimals.
std::string numberFormat(Decimals decimals) {
  std::string format = "0";
  if (decimals.count > 0) format += "." + std::string(static_cast<std::size_t>(decimals.count), '0');
  return decimals.exponent ? format + "E+00" : format;
}

}  // namespace

void require(lxw_error error) {
  if (error != LXW_NO_ERROR) refuse(error);
}

XlsxBook::XlsxBook(const std::string& path) : book_(workbook_new(path.c_str())) {
  if (book_ == nullptr) refuse(LXW_ERROR_CREATING_XLSX_FILE);
}

XlsxBook::~XlsxBook() {
  if (book_ != nullptr) lxw_workbook_free(book_);
}

lxw_worksheet* XlsxBook::addSheet(const std::string& name) {
  lxw_worksheet* const sheet = workbook_add_worksheet(book_, name.c_str());
  if (sheet == nullptr) refuse(LXW_ERROR_SHEETNAME_ALREADY_USED);
  return sheet;
}

lxw_format* XlsxBook::look(const CellLook& look) {
  lxw_format*& made = looks_[look];
  if (made != nullptr) return made;
  made = workbook_add_format(book_);
  format_set_border(made, LXW_BORDER_HAIR);
  if (look.numbers) format_set_num_format(made, numberFormat(*look.numbers).c_str());
  if (look.typedAsText) format_set_num_format(made, "@");
  if (look.ruleBelow) format_set_bottom(made, LXW_BORDER_MEDIUM);
  if (look.heading) {
    format_set_bold(made);
    format_set_border(made, LXW_BORDER_THIN);
    format_set_align(made, LXW_ALIGN_CENTER);
    format_set_bg_color(made, 0xE8ECF0);
  }
  return made;
}

lxw_format* XlsxBook::title() {
  if (title_ != nullptr) return title_;
  title_ = workbook_add_format(book_);
  format_set_bold(title_);
  format_set_font_size(title_, 14);
  return title_;
}

void XlsxBook::describe(const std::string& title) {
  std::string words = title;
  lxw_doc_properties properties{};
  properties.title = words.data();
  require(workbook_set_properties(book_, &properties));
}

void XlsxBook::finish() { require(workbook_close(std::exchange(book_, nullptr))); }

int rowsAboveHeadings(const Document& document) {
  std::size_t fields = document.fields.size();
  if (document.parts.size() == 1) fields += document.parts.front().fields.size();
  return static_cast<int>(2 + (fields + 1) / 2);
}

std::string cellName(int row, int col) {
  std::string letters;
  for (int rest = col + 1; rest > 0; rest = (rest - 1) / 26)
    letters.insert(letters.begin(), static_cast<char>('A' + (rest - 1) % 26));
  return "$" + letters + "$" + std::to_string(row + 1);
}

}  // namespace report
