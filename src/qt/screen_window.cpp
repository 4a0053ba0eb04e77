#include "qt/screen_window.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QLayout>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <utility>

#include "qt/convert.h"
#include "qt/display_fit.h"
#include "qt/edit_menu.h"
#include "qt/screen_commands.h"
#include "text/error.h"
#include "ui/leading.h"
#include "ui/situation.h"

namespace qt {
namespace {

const QString afterCaption = QStringLiteral(" \u2014 ");  // a dash, between caption and work in a title
/// A screen that is only half set up, as before its load, has nothing to tell.
ui::Findings findingsOf(const ui::Screen& screen) try {
  return screen.findings();
} catch (const text::RuntimeError&) {
  return {};
}

constexpr int restTime = 200;  // ms without an act after which the screen is looked through

}  // namespace

ScreenWindow::ScreenWindow(ui::Screen& screen, Host& host, const std::function<void(QMainWindow&)>& setUp)
    : screen_(&screen), host_(host), status_(*new StatusLine(this)) {
  setUp(*this);
  setStatusBar(&status_);
  client_ = centralWidget();
  least_ = client_->minimumSize();
  client_->setMinimumSize(0, 0);
  new ScreenCommands(*this, toQString(screen.name()));
  setWindowTitle(toQString(screen.caption()));
  for (ui::Control* control : screen.controls()) bindings_.push_back(bind(*control, *this, host));
  for (const auto& binding : bindings_) binding->tie();
  setUpTabs();
  if (hasGrid()) new EditMenu(*this);
  nameCells();
  if (hasGrid()) setUpFindings();
  client_->installEventFilter(this);
  output_ = std::make_unique<OutputMenu>(*this, screen, host);
}

/// Tab passes the headers of pages by: what is typed there would go nowhere. Ctrl+Tab turns the page from
/// everywhere.
void ScreenWindow::setUpTabs() {
  auto* pages = findChild<QTabWidget*>();
  if (pages == nullptr) return;
  for (QTabWidget* tabs : findChildren<QTabWidget*>()) {
    tabs->setFocusPolicy(Qt::NoFocus);
    tabs->tabBar()->setFocusPolicy(Qt::NoFocus);
  }
  const auto turn = [this, pages](const QKeySequence& keys, int step) {
    connect(new QShortcut(keys, this), &QShortcut::activated, pages, [pages, step] {
      pages->setCurrentIndex((pages->currentIndex() + step + pages->count()) % pages->count());
    });
  };
  turn(QKeySequence(Qt::CTRL | Qt::Key_Tab), 1);
  turn(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab), -1);
}

/// The findings stand where the form has room for them, else along the lower edge of the window.
void ScreenWindow::setUpFindings() {
  pane_ = client_->findChild<FindingsPane*>();
  if (pane_ == nullptr) {
    auto* dock = new QDockWidget(this);
    pane_ = new FindingsPane(dock);
    dock->setObjectName(QStringLiteral("findingsDock"));
    dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    dock->setTitleBarWidget(new QWidget(dock));
    dock->setWidget(pane_);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
  }
  rest_.setSingleShot(true);
  rest_.setInterval(restTime);
  connect(&rest_, &QTimer::timeout, this, &ScreenWindow::check);
  connect(pane_, &FindingsPane::chosen, this, &ScreenWindow::leadTo);
}

void ScreenWindow::check() {
  rest_.stop();
  if (screen_ == nullptr || pane_ == nullptr) return;
  if (host_.busy()) return rest_.start();
  pane_->setFindings(findingsOf(*screen_));
  if (const ui::Grid* grid = ui::checkedGrid(*screen_))
    if (auto* view = qobject_cast<GridView*>(shown(*grid))) view->gridModel().setMarks(pane_->findings());
  status_.count(pane_->findings());
  emit checked();
}

const ui::Findings& ScreenWindow::findings() {
  static const ui::Findings none;
  if (pane_ == nullptr) return none;
  if (rest_.isActive()) check();
  return pane_->findings();
}

void ScreenWindow::leadTo(const ui::Finding& finding) {
  if (screen_ == nullptr) return;
  host_.act([&] { ui::leadTo(*screen_, finding); });
  const ui::Grid* grid = screen_ == nullptr ? nullptr : ui::checkedGrid(*screen_);
  if (grid == nullptr || finding.row < 0) return;
  if (auto* view = qobject_cast<GridView*>(shown(*grid))) view->setFocus(Qt::OtherFocusReason);
}

ScreenWindow::~ScreenWindow() { letGo(); }

void ScreenWindow::letGo() {
  for (const auto& binding : bindings_) binding->untie();
  screen_ = nullptr;
  rest_.stop();
  if (output_) output_->letGo();
}

void ScreenWindow::refresh() {
  for (const auto& binding : bindings_) binding->refresh();
  if (output_) output_->refresh();
  if (pane_ != nullptr) rest_.start();
  tell();
  keepKeysInSight(*this);
}

/// The title and the line along the lower edge.
void ScreenWindow::tell() {
  if (screen_ == nullptr) return;
  const ui::Grid* front = nullptr;
  for (const auto& binding : bindings_) {
    const auto* view = qobject_cast<const GridView*>(&binding->shown());
    if (view != nullptr && view->isVisible() && (front == nullptr || view->hasFocus()))
      front = dynamic_cast<const ui::Grid*>(&binding->control());
  }
  status_.tell(*screen_, front);
  const ui::Situation situation = screen_->situation();
  QStringList title{toQString(screen_->caption())};
  QStringList work;
  for (const std::string& part : {situation.job, situation.open})
    if (!part.empty()) work << toQString(part);
  if (!work.isEmpty()) title << work.join(u' ');
  const QString whole = title.join(afterCaption);
  if (windowTitle() != whole) setWindowTitle(whole);
}

QString ScreenWindow::caption() const { return windowTitle().section(afterCaption, 0, 0); }

/// Where the form scrolls the findings leave it all the room that they can.
void ScreenWindow::keepMinimum(const QSize& room) {
  client_->setMinimumSize(least_);
  scrollWhereTooLarge(*this, room);
  if (centralWidget() == client_) return;
  if (auto* dock = findChild<QDockWidget*>()) resizeDocks({dock}, {0}, Qt::Vertical);
}

QList<GridView*> ScreenWindow::tables() const { return findChildren<GridView*>(); }

void ScreenWindow::open(const QSize& client, bool maximised) {
  setClientSize(client);
  maximised ? showMaximized() : show();
  if (!maximised) setClientSize(client);
  activateWindow();
  focusFirst();
}

/// Keys go to the first field or button at once; the tabs of a tab control come later.
void ScreenWindow::focusFirst() {
  for (QWidget* at = client_->nextInFocusChain(); at != client_; at = at->nextInFocusChain()) {
    const bool takesKeys = (at->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && at->isEnabled();
    if (takesKeys && at->isVisibleTo(this) && client_->isAncestorOf(at) &&
        qobject_cast<QTabBar*>(at) == nullptr && qobject_cast<QTabWidget*>(at) == nullptr)
      return at->setFocus(Qt::OtherFocusReason);
  }
}

/// The window is the client and whatever stands around it; how much that is shows once it is laid out.
void ScreenWindow::setClientSize(const QSize& client) {
  const QSize around = isVisible() ? size() - clientSize() : QSize(0, heightOfBars());
  resize(client + around);
  layout()->activate();
}

int ScreenWindow::heightOfBars() const {
  const int menu = menuWidget() == nullptr ? 0 : menuWidget()->sizeHint().height();
  const auto* dock = findChild<QDockWidget*>();
  return menu + status_.sizeHint().height() + (dock == nullptr ? 0 : dock->sizeHint().height());
}

void ScreenWindow::resizeClient(float width, float height) {
  const QSize wanted = toPixels(width, height);
  settingSize_ = true;
  setClientSize(wanted);
  settingSize_ = false;
  const QSize got = clientSize();
  host_.act([&] {
    screen_->resize(got.width() == wanted.width() ? width : static_cast<float>(toTwips(got.width())),
                    got.height() == wanted.height() ? height : static_cast<float>(toTwips(got.height())));
  });
}

void ScreenWindow::clientResized() {
  sizeWaits_ = false;
  const QSize client = clientSize();
  if (screen_ == nullptr || settingSize_ || client == toPixels(screen_->width(), screen_->height())) return;
  sizeWaits_ = host_.busy();
  if (sizeWaits_) return;
  host_.act([&] {
    screen_->resize(static_cast<float>(toTwips(client.width())),
                    static_cast<float>(toTwips(client.height())));
  });
}

void ScreenWindow::catchUpSize() {
  if (sizeWaits_) clientResized();
}

QObject* ScreenWindow::shown(const ui::Control& control) const {
  const auto found = std::find_if(bindings_.begin(), bindings_.end(),
                                  [&](const auto& binding) { return &binding->control() == &control; });
  return found == bindings_.end() ? nullptr : &(*found)->shown();
}

bool ScreenWindow::hasGrid() const {
  return std::any_of(bindings_.begin(), bindings_.end(),
                     [](const auto& binding) { return binding->control().kind() == ui::Kind::Grid; });
}

/// The close box ends the screen; the window goes when the screen has gone.
void ScreenWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(screen_ == nullptr);
  if (screen_ != nullptr) host_.act([this] { screen_->leave(); });
}

void ScreenWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  for (const auto& binding : bindings_) binding->showAnew();
}

/// Screen readers and tips tell of a cell what the line along the lower edge tells.
void ScreenWindow::nameCells() {
  for (const auto& binding : bindings_) {
    auto* view = qobject_cast<GridView*>(&binding->shown());
    if (view == nullptr) continue;
    const auto& grid = dynamic_cast<const ui::Grid&>(binding->control());
    view->gridModel().setNames({
        .cell = [this, &grid](int row, int col) { return toQString(ui::cellName(*screen_, grid, row, col)); },
        .column = [this, &grid](int col) { return toQString(ui::columnName(*screen_, grid, col)); },
    });
  }
}

bool ScreenWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == client_ && event->type() == QEvent::Resize) clientResized();
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace qt
