#include "jobs/template.h"

#include <array>
#include <string_view>

#include "intake/columns.h"
#include "platform/files.h"
#include "report/xlsx_book.h"
#include "text/number.h"

namespace jobs {
namespace {

using intake::Field;

/// The worked route, a line for each bench mark, its cells in the order of intake::fields().
constexpr std::size_t width = 16;
constexpr std::array<std::array<std::string_view, width>, 5> route = {{
    {"1001", "01A00101", "0", "1", "B001", "長野県", "諏訪市", "高島", "2026/04/10", "1.85", "1.2345", "", "",
     "759.1234", "既知点", ""},
    {"1001", "01A00101", "0", "2", "B002", "長野県", "諏訪市", "湖岸通り", "2026/04/10", "2.01", "-0.5678",
     "", "", "", "", ""},
    {"1001", "01A00101", "0", "3", "B003", "長野県", "諏訪郡", "下諏訪町", "2026/04/11", "1.94", "3.0012", "",
     "", "", "", ""},
    {"1001", "01A00101", "0", "4", "B004", "長野県", "諏訪郡", "下諏訪町", "2026/04/11", "1.67", "0.4420", "",
     "", "", "", ""},
    {"1001", "01A00101", "0", "5", "B005", "長野県", "岡谷市", "長地", "2026/04/12", "", "", "", "", "",
     "終点", "-1"},
}};

/// What a column takes, in the operator's words.
const char* explained(const intake::FieldInfo& info) {
  switch (info.field) {
    case Field::Project:
    case Field::Route:
      return "8 文字まで。空白なら上の行と同じ";
    case Field::Category:
      return "0 から 4。空白なら上の行と同じ。列がなければ 0";
    case Field::Order:
      return "1 からの整数。路線の全部が空白なら付けます";
    case Field::BenchMark:
      return "必ず入れます";
    case Field::Distance:
      return "次の水準点までの距離。0 以上。見出しを 距離(m) にすれば m で入れられます";
    case Field::Difference:
      return "次の水準点までの比高 (往復の平均)";
    case Field::Height:
      return "既知点の標高。路線の最初の点には入れます";
    case Field::End:
      return "路線の最後は -1、繰り返し点は -2、ほかは空白。最後がなければ付けます";
    default:
      break;
  }
  return info.reading == intake::Reading::Day ? "2026/4/10、20260410、令和8年4月10日 など" : "空白でもよい";
}

std::string headingOf(const intake::FieldInfo& info) {
  const std::string unit = info.unit;
  return info.heading + (unit.empty() ? unit : "(" + unit + ")");
}

class Sheet {
 public:
  Sheet(report::XlsxBook& book, const char* name) : book_(book), sheet_(book.addSheet(name)) {}

  void words(std::size_t row, std::size_t col, const std::string& text, lxw_format* look) {
    report::require(worksheet_write_string(sheet_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(col),
                                           text.c_str(), look));
  }
  void number(std::size_t row, std::size_t col, std::string_view text) {
    report::require(worksheet_write_number(sheet_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(col),
                                           text::readNumber(text),
                                           book_.look({.numbers = report::decimalsOf(text)})));
  }
  void width(std::size_t first, std::size_t last, double letters) {
    report::require(worksheet_set_column(sheet_, static_cast<lxw_col_t>(first), static_cast<lxw_col_t>(last),
                                         letters, nullptr));
  }
  void freeze() { worksheet_freeze_panes(sheet_, 1, 0); }

 private:
  report::XlsxBook& book_;
  lxw_worksheet* sheet_;
};

void writeRoute(report::XlsxBook& book) {
  Sheet sheet(book, "観測成果");
  const auto& fields = intake::fields();
  for (std::size_t col = 0; col < width; ++col) {
    sheet.words(0, col, headingOf(fields[col]), book.look({.numbers = {}, .heading = true}));
    for (std::size_t row = 0; row < route.size(); ++row) {
      const std::string_view cell = route[row][col];
      if (fields[col].reading == intake::Reading::Number && !cell.empty())
        sheet.number(row + 1, col, cell);
      else
        sheet.words(row + 1, col, std::string(cell), book.look({.numbers = {}, .typedAsText = true}));
    }
  }
  sheet.width(0, width - 1, 12);
  sheet.freeze();
}

void writeExplanations(report::XlsxBook& book) {
  Sheet sheet(book, "説明");
  sheet.words(0, 0, "見出し", book.look({.numbers = {}, .heading = true}));
  sheet.words(0, 1, "入れるもの", book.look({.numbers = {}, .heading = true}));
  std::size_t row = 0;
  for (const intake::FieldInfo& info : intake::fields()) {
    sheet.words(++row, 0, headingOf(info), book.look({}));
    sheet.words(row, 1, explained(info), book.look({}));
  }
  sheet.words(row + 2, 0, "1 行目の見出しから範囲を選んでコピーし、「観測成果の取り込み」に貼り付けます。",
              nullptr);
  sheet.width(0, 0, 18);
  sheet.width(1, 1, 70);
}

}  // namespace

void writeTemplate(const std::string& path) {
  platform::GrowingFile file(path);
  report::XlsxBook book(file.path());
  book.describe("観測成果のひな形");
  writeRoute(book);
  writeExplanations(book);
  book.finish();
  file.finish();
}

}  // namespace jobs
