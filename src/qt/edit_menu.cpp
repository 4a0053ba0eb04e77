#include "qt/edit_menu.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>

#include "qt/grid_view.h"

namespace qt {
namespace {

const QString undoCaption = QStringLiteral("元に戻す(&U)");
const QString redoCaption = QStringLiteral("やり直し(&R)");

/// Behind the window's first menu, before its other items.
QAction* placeIn(const QMenuBar& bar) {
  const QList<QAction*> items = bar.actions();
  const qsizetype at = !items.isEmpty() && items.front()->menu() != nullptr ? 1 : 0;
  return items.value(at, nullptr);
}

/// An act that can be taken back is named; with nothing to take back there is nothing to press.
void name(QAction& action, const QString& caption, const QString& act) {
  action.setText(act.isEmpty() ? caption : caption + QStringLiteral(": ") + act);
  action.setEnabled(!act.isEmpty());
}

}  // namespace

EditMenu::EditMenu(QMainWindow& window)
    : QMenu(QStringLiteral("編集(&E)"), &window),
      window_(window),
      undo_(add("editUndo", undoCaption, QKeySequence::Undo, &GridView::undo)),
      redo_(add("editRedo", redoCaption, QKeySequence(Qt::CTRL | Qt::Key_Y), &GridView::redo)) {
  setObjectName(QStringLiteral("editMenu"));
  addSeparator();
  add("editCopy", QStringLiteral("コピー(&C)"), QKeySequence::Copy, &GridView::copy);
  add("editPaste", QStringLiteral("貼り付け(&P)"), QKeySequence::Paste, &GridView::paste);
  add("editFill", QStringLiteral("下へフィル(&D)"), QKeySequence(Qt::CTRL | Qt::Key_D), &GridView::fillDown);
  add("editDelete", QStringLiteral("削除(&L)"), QKeySequence::Delete, &GridView::emptySelection);
  addSeparator();
  add("editFind", QStringLiteral("検索(&F)..."), QKeySequence::Find, &GridView::startFinding);
  QMenuBar& bar = *window.menuBar();
  bar.insertMenu(placeIn(bar), this);
  setUpKeys();
  connect(this, &QMenu::aboutToShow, this, &EditMenu::update);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    auto* view = qobject_cast<GridView*>(now);
    if (view != nullptr && view->window() == &window_) last_ = view;
  });
}

/// The keys stand beside the items for the eye; the table takes them itself.
QAction& EditMenu::add(const char* name, const QString& caption, const QKeySequence& keys, Act act) {
  QAction* action = addAction(caption);
  action->setObjectName(QLatin1String(name));
  action->setShortcut(keys);
  action->setShortcutContext(Qt::WidgetShortcut);
  connect(action, &QAction::triggered, this, [this, act] { run(act); });
  return *action;
}

/// Steps back and forward and the search answer from everywhere in the window, where no text box takes them.
void EditMenu::setUpKeys() {
  const auto key = [this](const QKeySequence& keys, Act act) {
    connect(new QShortcut(keys, &window_), &QShortcut::activated, this, [this, act] { run(act); });
  };
  key(QKeySequence::Undo, &GridView::undo);
  key(QKeySequence(Qt::CTRL | Qt::Key_Y), &GridView::redo);
  key(QKeySequence::Find, &GridView::startFinding);
}

void EditMenu::run(Act act) {
  if (GridView* view = table()) (view->*act)();
}

GridView* EditMenu::table() const {
  if (last_ != nullptr && last_->isVisible()) return last_;
  for (GridView* view : window_.findChildren<GridView*>())
    if (view->isVisible()) return view;
  return nullptr;
}

void EditMenu::update() {
  const GridView* view = table();
  for (QAction* action : actions()) action->setEnabled(view != nullptr);
  name(undo_, undoCaption, view == nullptr ? QString() : view->undoName());
  name(redo_, redoCaption, view == nullptr ? QString() : view->redoName());
}

}  // namespace qt
