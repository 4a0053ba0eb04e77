#include "qt/print_pages.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "qt/drawing_painter.h"
#include "report/exporting.h"
#include "report/paginate.h"
#include "text/error.h"

namespace qt {
namespace {

constexpr double tenthsInInch = 254;  // 0.1 mm
constexpr double leastScale = 0.6;    // of letters that can still be read

/// Lying pages lie on the paper, upright ones stand.
void turn(QPrinter& printer, const report::Drawing& page) {
  printer.setPageOrientation(page.width > page.height ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool isWanted(const QPrinter& printer, int page) {
  return printer.fromPage() == 0 || (page >= printer.fromPage() && page <= printer.toPage());
}

[[noreturn]] void refuse() {
  throw text::RuntimeError(text::ErrorCode::PathNotFound, "プリンターを使えません。");
}

}  // namespace

void printDrawing(const report::Figure& figure, QPrinter& printer) {
  printer.setFullPage(true);
  printer.setPageOrientation(QPageLayout::Landscape);
  const report::Drawing page = report::pageOf(figure);
  const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Millimeter).size() * 10;
  const double upright = paper.height() / page.height;
  const double whole = std::min(upright, paper.width() / page.width);
  const double scale = whole < leastScale ? upright : whole;
  QPainter painter(&printer);
  if (!painter.isActive()) refuse();
  const int sheets = std::max(1, static_cast<int>(std::ceil(page.width * scale / paper.width() - 0.01)));
  for (int sheet = 0; sheet < sheets; ++sheet) {
    if (sheet > 0) printer.newPage();
    painter.resetTransform();
    painter.scale(printer.resolution() / tenthsInInch * scale, printer.resolution() / tenthsInInch * scale);
    painter.translate(-sheet * paper.width() / scale, 0);
    DrawingPainter(painter).paint(page);
  }
}

void printDocument(const report::Document& document, QPrinter& printer, const report::Progress& progress) {
  printer.setFullPage(true);
  const QSizeF paper = printer.pageLayout().pageSize().size(QPageSize::Millimeter);
  const auto pages =
      report::paginate(document, {paper.width() * 10, paper.height() * 10, false}, pageMeasure(), progress);
  turn(printer, pages.front());
  QPainter painter(&printer);
  if (!painter.isActive()) refuse();
  bool first = true;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    report::tell(progress, i, pages.size());
    if (!isWanted(printer, static_cast<int>(i) + 1)) continue;
    turn(printer, pages[i]);
    if (!first) printer.newPage();
    first = false;
    painter.resetTransform();
    painter.scale(printer.resolution() / tenthsInInch, printer.resolution() / tenthsInInch);
    DrawingPainter(painter).paint(pages[i]);
  }
}

}  // namespace qt
