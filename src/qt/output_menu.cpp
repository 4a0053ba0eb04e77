#include "qt/output_menu.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QProgressDialog>

#include "qt/convert.h"
#include "qt/page_writer.h"
#include "text/error.h"
#include "ui/controls.h"

namespace qt {
namespace {

constexpr int patience = 300;  // ms before a work shows how far it has come

QMenu* fileMenu(const QMainWindow& window) {
  const auto* bar = qobject_cast<QMenuBar*>(window.menuWidget());
  return bar == nullptr || bar->actions().isEmpty() ? nullptr : bar->actions().first()->menu();
}

}  // namespace

OutputMenu::OutputMenu(QMainWindow& window, const ui::Screen& screen, Host& host)
    : window_(window), screen_(screen), host_(host), source_(dynamic_cast<const report::Source*>(&screen)) {
  QMenu* const menu = fileMenu(window);
  if (source_ != nullptr && menu != nullptr) addItems(*menu);
}

void OutputMenu::addItems(QMenu& menu) {
  const auto add = [&](const char* text, const auto& act) {
    QAction* const action = menu.addAction(QString::fromUtf8(text));
    connect(action, &QAction::triggered, this, act);
    return action;
  };
  menu.addSeparator();
  add("印刷プレビュー(&V)...", [this] { preview(); });
  add("印刷(&P)...", [this] { print(); })->setShortcut(QKeySequence::Print);
  menu.addSeparator();
  add("PDF に出力(&D)...", [this] { exportTable(QStringLiteral(".pdf"), QStringLiteral("PDF (*.pdf)")); });
  add("Excel に出力(&E)...",
      [this] { exportTable(QStringLiteral(".xlsx"), QStringLiteral("Excel (*.xlsx)")); });
  add("CSV に出力(&T)...", [this] {
    exportTable(QStringLiteral(".csv"), QStringLiteral("CSV UTF-8 (*.csv);;CSV CP932 (*.csv)"));
  });
  add("図を出力(&G)...", [this] { exportDiagram(); });
}

/// Runs a work as an act of the operator: an error is told in a message box, a long work shows how far it has
/// come and can be cancelled.
void OutputMenu::run(const std::function<void(const report::Progress&)>& work) {
  if (source_ == nullptr) return;
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
      screen_.desktop().message({"出力", error.what(), ui::Icon::Critical});
    }
  });
}

QString OutputMenu::baseName() const {
  QString name = toQString(screen_.caption());
  if (const auto* route = dynamic_cast<const ui::Label*>(screen_.find("lblRosenbango")))
    name += QStringLiteral(" ") + toQString(route->text()).trimmed();
  return name.trimmed();
}

void OutputMenu::preview() {
  run([this](const report::Progress& progress) {
    const report::Document document = source_->document();
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, &window_);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
            [&](QPrinter* paper) { printDocument(document, *paper, {}); });
    report::tell(progress, 0, 1);
    dialog.resize(window_.size().expandedTo(QSize(900, 700)));
    dialog.exec();
  });
}

void OutputMenu::print() {
  run([this](const report::Progress& progress) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setDocName(baseName());
    QPrintDialog dialog(&printer, &window_);
    if (dialog.exec() == QDialog::Accepted) printDocument(source_->document(), printer, progress);
  });
}

void OutputMenu::save(
    const QString& name, const QString& kinds,
    const std::function<report::Exported(const std::string& path, const report::Exporting&)>& write) {
  run([&](const report::Progress& progress) {
    QString kind;
    const QString path = QFileDialog::getSaveFileName(&window_, QStringLiteral("出力"), name, kinds, &kind);
    if (path.isEmpty()) return;
    report::Exporting how{.pageWriter = [] { return pageWriter(); }, .progress = progress};
    if (kind.contains(QStringLiteral("CP932"))) how.encoding = platform::Encoding::Cp932;
    write(fromQString(path), how);
  });
}

void OutputMenu::exportTable(const QString& suffix, const QString& kinds) {
  save(baseName() + suffix, kinds, [&](const std::string& path, const report::Exporting& how) {
    const std::string end = fromQString(suffix);
    return report::exportDocument(source_->document(), path.ends_with(end) ? path : path + end, how);
  });
}

void OutputMenu::exportDiagram() {
  save(baseName() + QStringLiteral(" 図.pdf"), QStringLiteral("PDF (*.pdf);;SVG (*.svg);;PNG (*.png)"),
       [this](const std::string& path, const report::Exporting& how) {
         return report::exportDrawing(source_->diagram(),
                                      report::canExportDrawing(path) ? path : path + ".pdf", how);
       });
}

}  // namespace qt
