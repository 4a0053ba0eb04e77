#include "qt/output_act.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QProgressDialog>

#include "qt/convert.h"
#include "qt/page_writer.h"
#include "qt/print_pages.h"
#include "text/error.h"

namespace qt {
namespace {

constexpr int patience = 300;  // ms before a work shows how far it has come

}  // namespace

void OutputAct::run(const std::function<void(const report::Progress&)>& work) const {
  host_.act([&] {
    QProgressDialog dialog(QStringLiteral("出力しています…"), QStringLiteral("中止"), 0, 0, &window_);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(patience);
    dialog.reset();
    const auto progress = [&dialog](std::size_t done, std::size_t all) {
      dialog.setMaximum(static_cast<int>(all));
      dialog.setValue(static_cast<int>(done));
      return !dialog.wasCanceled();
    };
    try {
      work(progress);
    } catch (const report::Cancelled&) {  // the operator knows
    } catch (const text::RuntimeError& error) {
      dialog.reset();
      desktop_.message({"出力", error.what(), ui::Icon::Critical});
    }
  });
}

void OutputAct::save(
    const QString& name, const QString& kinds,
    const std::function<void(const std::string& path, const report::Exporting&)>& write) const {
  run([&](const report::Progress& progress) {
    QString kind;
    const QString path = QFileDialog::getSaveFileName(&window_, QStringLiteral("出力"), name, kinds, &kind);
    if (path.isEmpty()) return;
    report::Exporting how{.pageWriter = [] { return pageWriter(); }, .progress = progress};
    if (kind.contains(QStringLiteral("CP932"))) how.encoding = platform::Encoding::Cp932;
    write(fromQString(path), how);
  });
}

void OutputAct::preview(const Maker& make) const {
  run([&](const report::Progress& progress) {
    const report::Document document = make(progress);
    report::tell(progress, 1, 1);
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, &window_);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&](QPrinter* paper) { printDocument(document, *paper, {}); });
    dialog.resize(window_.size().expandedTo(QSize(900, 700)));
    dialog.exec();
  });
}

void OutputAct::print(const Maker& make, const QString& name) const {
  run([&](const report::Progress& progress) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setDocName(name);
    QPrintDialog dialog(&printer, &window_);
    if (dialog.exec() == QDialog::Accepted) printDocument(make(progress), printer, progress);
  });
}

void OutputAct::saveTable(const Maker& make, const QString& name, const QString& suffix,
                          const QString& kinds) const {
  save(name + suffix, kinds, [&](const std::string& path, const report::Exporting& how) {
    const std::string end = fromQString(suffix);
    report::exportDocument(make(how.progress), path.ends_with(end) ? path : path + end, how);
  });
}

void OutputAct::savePdf(const Maker& make, const QString& name) const {
  saveTable(make, name, QStringLiteral(".pdf"), QStringLiteral("PDF (*.pdf)"));
}

void OutputAct::saveXlsx(const Maker& make, const QString& name) const {
  saveTable(make, name, QStringLiteral(".xlsx"), QStringLiteral("Excel (*.xlsx)"));
}

void OutputAct::saveCsv(const Maker& make, const QString& name) const {
  saveTable(make, name, QStringLiteral(".csv"), QStringLiteral("CSV UTF-8 (*.csv);;CSV CP932 (*.csv)"));
}

void OutputAct::saveDrawing(const QString& name, const std::function<report::Figure()>& figure) const {
  save(name + QStringLiteral(".pdf"), QStringLiteral("PDF (*.pdf);;SVG (*.svg);;PNG (*.png)"),
       [&](const std::string& path, const report::Exporting& how) {
         report::exportDrawing(figure(), report::canExportDrawing(path) ? path : path + ".pdf", how);
       });
}

}  // namespace qt
