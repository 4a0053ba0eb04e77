#include "qt/output_menu.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrintPreviewDialog>

#include "qt/convert.h"
#include "qt/page_writer.h"
#include "text/error.h"
#include "ui/controls.h"

namespace qt {
namespace {

QMenu* fileMenu(const QMainWindow& window) {
  const auto* bar = qobject_cast<QMenuBar*>(window.menuWidget());
  return bar == nullptr || bar->actions().isEmpty() ? nullptr : bar->actions().first()->menu();
}

}  // namespace

OutputMenu::OutputMenu(QMainWindow& window, ui::Screen& screen, Host& host)
    : window_(window),
      screen_(screen),
      host_(host),
      act_(window, host, screen.desktop()),
      source_(dynamic_cast<report::Source*>(&screen)) {
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
  menu.addSeparator();
  add((source_->diagramName() + "(&F)").c_str(), [this] { showDiagram(); });
  add("図を出力(&G)...", [this] { exportDiagram(); });
}

QString OutputMenu::baseName() const {
  QString name = toQString(screen_.caption());
  if (const auto* route = dynamic_cast<const ui::Label*>(screen_.find("lblRosenbango")))
    name += QStringLiteral(" ") + toQString(route->text()).trimmed();
  return name.trimmed();
}

void OutputMenu::preview() {
  if (source_ == nullptr) return;
  act_.run([this](const report::Progress& progress) {
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
  if (source_ == nullptr) return;
  act_.run([this](const report::Progress& progress) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setDocName(baseName());
    QPrintDialog dialog(&printer, &window_);
    if (dialog.exec() == QDialog::Accepted) printDocument(source_->document(), printer, progress);
  });
}

void OutputMenu::exportTable(const QString& suffix, const QString& kinds) {
  if (source_ == nullptr) return;
  act_.save(baseName() + suffix, kinds, [&](const std::string& path, const report::Exporting& how) {
    const std::string end = fromQString(suffix);
    report::exportDocument(source_->document(), path.ends_with(end) ? path : path + end, how);
  });
}

void OutputMenu::exportDiagram() {
  if (source_ == nullptr) return;
  act_.saveDrawing(baseName() + QStringLiteral(" 図"), [this] { return source_->diagram({}); });
}

void OutputMenu::showDiagram() {
  if (source_ == nullptr) return;
  if (diagram_ == nullptr) diagram_ = new DiagramWindow(window_, screen_, *source_, host_);
  diagram_->showAnew();
}

void OutputMenu::refresh() {
  if (source_ != nullptr && diagram_ != nullptr) diagram_->follow();
}

void OutputMenu::letGo() {
  source_ = nullptr;
  delete diagram_;
}

}  // namespace qt
