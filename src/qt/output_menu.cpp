#include "qt/output_menu.h"

#include <QMenu>
#include <QMenuBar>

#include "qt/convert.h"
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
      source_(dynamic_cast<report::Source*>(&screen)),
      saved_(dynamic_cast<const report::SavedResults*>(&screen)) {
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
  const OutputAct::Maker shown = [this](const report::Progress&) { return source_->document(); };
  const auto onTable = [this, shown](void (OutputAct::*act)(const OutputAct::Maker&, const QString&) const) {
    return [this, shown, act] {
      if (source_ != nullptr) (act_.*act)(shown, baseName());
    };
  };
  add("印刷プレビュー(&V)...", [this, shown] {
    if (source_ != nullptr) act_.preview(shown);
  });
  add("印刷(&P)...", onTable(&OutputAct::print))->setShortcut(QKeySequence::Print);
  menu.addSeparator();
  add("PDF に出力(&D)...", onTable(&OutputAct::savePdf));
  add("Excel に出力(&E)...", onTable(&OutputAct::saveXlsx));
  add("CSV に出力(&T)...", onTable(&OutputAct::saveCsv));
  menu.addSeparator();
  add((source_->diagramName() + "(&F)").c_str(), [this] { showDiagram(); });
  add("図を出力(&G)...", [this] { exportDiagram(); });
  if (saved_ == nullptr) return;
  menu.addSeparator();
  add("保存した路線を出力(&R)...", [this] { showSaved(SavedDialog::What::Routes); });
  if (saved_->hasResultList()) add("成果一覧(&L)...", [this] { showSaved(SavedDialog::What::List); });
}

QString OutputMenu::baseName() const {
  QString name = toQString(screen_.caption());
  if (const auto* route = dynamic_cast<const ui::Label*>(screen_.find("lblRosenbango")))
    name += QStringLiteral(" ") + toQString(route->text()).trimmed();
  return name.trimmed();
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

void OutputMenu::showSaved(SavedDialog::What what) {
  if (source_ == nullptr) return;
  try {
    SavedDialog(window_, *saved_, what, host_, screen_.desktop()).exec();
  } catch (const text::RuntimeError& error) {
    screen_.desktop().message({"出力", error.what(), ui::Icon::Critical});
  }
}

void OutputMenu::refresh() {
  if (source_ != nullptr && diagram_ != nullptr) diagram_->follow();
}

void OutputMenu::letGo() {
  source_ = nullptr;
  delete diagram_;
}

}  // namespace qt
