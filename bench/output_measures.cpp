#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include <xlsxwriter.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "measured_route.h"
#include "qt/convert.h"
#include "qt/drawing_painter.h"
#include "qt/page_writer.h"
#include "report/exporting.h"
#include "report/paginate.h"
#include "seihyou/calculation.h"
#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "seihyou/tables.h"
#include "text/number.h"

namespace bench {
namespace {

/// The document of the measuring route, and what it comes to on paper.
struct Output : MeasuredRoute {
  explicit Output(const Job& job) : MeasuredRoute(job, seihyou::columnCount) {
    seihyou::FcDBOpen(selection, context, grid);
    for (int row = 2; row < grid.rows(); row += 2)
      grid.setText(row, seihyou::colCorrection, std::to_string(row % 41 - 20));
    seihyou::FcCalcSeihyou(grid, 1, context.grade());
    folder = (std::filesystem::temp_directory_path() / "seikahyou-measure").string();
    std::filesystem::create_directories(folder);
    const report::Document whole = document();
    pages = report::paginate(whole, {}, qt::pageWriter()->measure());
    for (const report::CheckCell& cell : whole.check.cells)
      formulas.push_back("=" + report::spreadsheetText(cell.formula, {given, reckoned}));
  }
  ~Output() { std::filesystem::remove_all(folder); }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  report::Document document() const { return seihyou::tables(grid, context.grade(), "01N00101"); }

  void write(const char* suffix) const {
    report::exportDocument(document(), folder + "/program" + suffix,
                           {.pageWriter = [] { return qt::pageWriter(); }});
  }

  static std::string given(report::CellPlace cell) {
    return "成果表!$" + std::string(1, static_cast<char>('A' + cell.col)) + "$" +
           std::to_string(cell.row + 11);
  }
  static std::string reckoned(report::CellPlace cell) { return "$B$" + std::to_string(cell.row + 11); }

  /// The same cells with the same formulas.
  void bareXlsx() const {
    lxw_workbook* const book = workbook_new((folder + "/bare.xlsx").c_str());
    lxw_worksheet* const sheet = workbook_add_worksheet(book, "cells");
    lxw_worksheet* const check = workbook_add_worksheet(book, "check");
    lxw_format* const number = workbook_add_format(book);
    format_set_num_format(number, "0.0000");
    for (int row = 1; row < grid.rows(); ++row)
      for (int col = 0; col < 5; ++col) bareCell(sheet, row, col, number);
    for (std::size_t i = 0; i < formulas.size(); ++i) {
      const auto at = static_cast<lxw_row_t>(i + 10);
      const std::string place = "$" + std::to_string(i + 11);
      worksheet_write_formula_num(check, at, 1, formulas[i].c_str(), nullptr, 1.5);
      worksheet_write_formula_num(
          check, at, 2, ("=ROUND(N(成果表!$D" + place + ")-ROUND(ROUND($B" + place + ",12),4),4)").c_str(),
          number, 0);
    }
    workbook_close(book);
  }

  void bareCell(lxw_worksheet* sheet, int row, int col, lxw_format* number) const {
    const std::string& text = grid.text(row, col);
    const auto at = static_cast<lxw_row_t>(row);
    const auto column = static_cast<lxw_col_t>(col);
    if (text.empty())
      worksheet_write_blank(sheet, at, column, number);
    else if (col > 0 && col < 4)
      worksheet_write_number(sheet, at, column, text::readNumber(text), number);
    else
      worksheet_write_string(sheet, at, column, text.c_str(), nullptr);
  }

  /// The same texts and lines on as many pages.
  void barePdf() const {
    QFile file(qt::toQString(folder + "/bare.pdf"));
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setResolution(1200);
    QPainter painter(&writer);
    painter.scale(1200 / 254.0, 1200 / 254.0);
    QFont font = qt::pageFont();
    font.setPixelSize(32);
    painter.setFont(font);
    for (std::size_t i = 0; i < pages.size(); ++i) {
      if (i > 0) writer.newPage();
      for (const report::Shape& shape : pages[i].shapes) {
        if (const auto* words = std::get_if<report::Words>(&shape))
          painter.drawText(QPointF(words->at.x, words->at.y), qt::toQString(words->text));
        if (const auto* line = std::get_if<report::Line>(&shape))
          painter.drawLine(QPointF(line->points[0].x, line->points[0].y),
                           QPointF(line->points[1].x, line->points[1].y));
      }
    }
  }

  std::string folder;
  std::vector<report::Drawing> pages;
  std::vector<std::string> formulas;  // of the check
};

}  // namespace

std::vector<Measure> outputMeasures(const Job& job) {
  const auto output = std::make_shared<Output>(job);
  return {{"output pdf", 1.5, {}, [output] { output->write(".pdf"); }, [output] { output->barePdf(); }},
          {"output xlsx", 1.5, {}, [output] { output->write(".xlsx"); }, [output] { output->bareXlsx(); }}};
}

}  // namespace bench
