#include <QPainter>

#include "qt/drawing_painter.h"
#include "qt/output_menu.h"
#include "report/paginate.h"
#include "text/error.h"

namespace qt {
namespace {

constexpr double tenthsInInch = 254;  // 0.1 mm

/// Lying pages lie on the paper, upright ones stand.
void turn(QPrinter& printer, const report::Drawing& page) {
  printer.setPageOrientation(page.width > page.height ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool isWanted(const QPrinter& printer, int page) {
  return printer.fromPage() == 0 || (page >= printer.fromPage() && page <= printer.toPage());
}

}  // namespace

void printDocument(const report::Document& document, QPrinter& printer, const report::Progress& progress) {
  printer.setFullPage(true);
  const QSizeF paper = printer.pageLayout().pageSize().size(QPageSize::Millimeter);
  const auto pages =
      report::paginate(document, {paper.width() * 10, paper.height() * 10, false}, pageMeasure(), progress);
  turn(printer, pages.front());
  QPainter painter(&printer);
  if (!painter.isActive())
    throw text::RuntimeError(text::ErrorCode::PathNotFound, "プリンターを使えません。");
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
