#include "qt/window_desktop.h"

#include <QApplication>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "qt/convert.h"
#include "qt/display_fit.h"
#include "qt/input_stop.h"
#include "qt/look_menu.h"
#include "qt/reading_bar.h"
#include "qt/settings_menu.h"
#include "ui/act_witness.h"

namespace qt {
namespace {

constexpr double shareOfDisplay = 0.65;       // how much of the display a window may take at first
constexpr double shareOfSmallDisplay = 0.85;  // the same of one that is less than this wide, in pixels
constexpr int smallDisplay = 1100;
constexpr double largestWork = 1.8;  // times the design size
constexpr double largestMenu = 1.2;
constexpr const char* foldedKey = "findings.folded";

/// Under which settings a window and the columns of its tables are remembered.
std::string windowKey(const ScreenWindow& window) { return "window." + window.screen()->name() + "."; }

std::string columnsKey(const ScreenWindow& window, const GridView& table) {
  return "columns." + window.screen()->name() + "." + fromQString(table.objectName());
}

/// The columns that the operator has drawn, as "COLUMN:PIXELS COLUMN:PIXELS".
std::string widthsText(const GridView& table) {
  std::string text;
  for (const auto& [col, width] : table.drawnColumns())
    text += (text.empty() ? "" : " ") + std::to_string(col) + ":" + std::to_string(width);
  return text;
}

QMessageBox::Icon toolkitIcon(ui::Icon icon) {
  switch (icon) {
    case ui::Icon::Information:
      return QMessageBox::Information;
    case ui::Icon::Critical:
      return QMessageBox::Critical;
    case ui::Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

WindowDesktop::WindowDesktop(Opening opening, DesktopOwner owner)
    : opening_(opening), owner_(std::move(owner)) {}

WindowDesktop::~WindowDesktop() { setMousePointer(ui::Pointer::Default); }

void WindowDesktop::message(const ui::Message& message) {
  QMessageBox box(toolkitIcon(message.icon), toQString(message.title), toQString(message.text),
                  QMessageBox::Ok, front());
  showBox(box);
}

/// A note waits until the keyboard rests: then its screen is looked through, and what is found goes with it.
void WindowDesktop::note(const ui::WorkNote& note) {
  if (owner_.record) notes_.push_back(note);
}

void WindowDesktop::writeNotes(const ui::Findings& findings) {
  for (const ui::WorkNote& note : std::exchange(notes_, {})) owner_.record(note, findings);
}

void WindowDesktop::noteAnswer(const ui::Question& question, std::size_t answer) {
  const ui::Screen* screen = windows_.empty() ? nullptr : windows_.back()->screen();
  if (screen == nullptr) return;
  const ui::Situation now = screen->situation();
  note({now.job, now.open, screen->caption(), "回答", question.text + " → " + question.buttons[answer]});
}

std::string WindowDesktop::setting(std::string_view key) const { return settings().text(key); }

/// Enter, Esc and the close box all stand for the safe button.
std::size_t WindowDesktop::ask(const ui::Question& question) {
  QMessageBox box(QMessageBox::Question, {}, toQString(question.text), QMessageBox::NoButton, front());
  std::vector<QAbstractButton*> buttons;
  for (const std::string& caption : question.buttons)
    buttons.push_back(box.addButton(toQString(caption), QMessageBox::ActionRole));
  auto* const safe = qobject_cast<QPushButton*>(buttons[question.safe]);
  box.setDefaultButton(safe);
  box.setEscapeButton(safe);
  showBox(box);
  const auto pressed = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  const std::size_t answer =
      pressed == buttons.end() ? question.safe : static_cast<std::size_t>(pressed - buttons.begin());
  noteAnswer(question, answer);
  if (ui::ActWitness* seeing = witness()) seeing->answered(question.buttons[answer]);
  return answer;
}

void WindowDesktop::showBox(QMessageBox& box) {
  refresh();
  const bool wasHourglass = hourglass_;
  setMousePointer(ui::Pointer::Default);
  box.setTextFormat(Qt::PlainText);
  owner_.ask(box);
  if (wasHourglass) setMousePointer(ui::Pointer::Hourglass);
}

/// A desk that opens its windows as designed belongs to a script, which nobody looks at.
std::unique_ptr<ui::WorkBar> WindowDesktop::workBar(const std::string& words) {
  if (opening_ == Opening::Design) return nullptr;
  return std::make_unique<ReadingBar>(front(), toQString(words), owner_.patience);
}

void WindowDesktop::setMousePointer(ui::Pointer pointer) {
  const bool hourglass = pointer == ui::Pointer::Hourglass;
  if (std::exchange(hourglass_, hourglass) == hourglass) return;
  if (hourglass)
    QApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QApplication::restoreOverrideCursor();
}

void WindowDesktop::breathe() {
  refresh();
  const InputStop stop;
  QApplication::processEvents();
}

void WindowDesktop::show(ui::Screen& screen) {
  windows_.push_back(std::make_unique<ScreenWindow>(
      screen, *this, [&](QMainWindow& window) { owner_.setUpForm(screen.name(), window); }));
  ScreenWindow& window = *windows_.back();
  QObject::connect(&window, &ScreenWindow::checked, &turns_,
                   [this, &window] { writeNotes(window.findings()); });
  open(window);
}

void WindowDesktop::hide(ui::Screen& screen) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return window->screen() == &screen; });
  if (found == windows_.end()) return;
  if (!notes_.empty()) writeNotes((*found)->findings());
  remember(**found);
  (*found)->letGo();
  (*found)->hide();
  leaving_.push_back(std::move(*found));
  windows_.erase(found);
  later(&WindowDesktop::sweep);
}

void WindowDesktop::act(const std::function<void()>& what) {
  if (busy_ || error_) return;
  busy_ = true;
  try {
    what();
  } catch (...) {
    error_ = std::current_exception();
  }
  busy_ = false;
  settle();
}

void WindowDesktop::settle() {
  if (error_) {
    setMousePointer(ui::Pointer::Default);
    return owner_.failed(error_);
  }
  refresh();
  for (std::size_t i = 0; i < windows_.size(); ++i) windows_[i]->catchUpSize();
  if (!leaving_.empty()) later(&WindowDesktop::sweep);
  owner_.settled();
}

void WindowDesktop::stale() {
  if (!std::exchange(refreshWaits_, true)) later(&WindowDesktop::refresh);
}

void WindowDesktop::later(void (WindowDesktop::*what)()) {
  QMetaObject::invokeMethod(
      &turns_, [this, what] { (this->*what)(); }, Qt::QueuedConnection);
}

void WindowDesktop::refresh() {
  refreshWaits_ = false;
  const bool halfFilled = !windows_.empty() && !windows_.back()->updatesEnabled();
  if (halfFilled) return;  // the end of the act shows all of it
  for (const auto& window : windows_) window->refresh();
}

void WindowDesktop::sweep() {
  if (busy_ || leaving_.empty()) return;
  leaving_.clear();
  owner_.sweep();
}

ScreenWindow* WindowDesktop::windowOf(const ui::Screen& screen) const {
  for (const auto& window : windows_)
    if (window->screen() == &screen) return window.get();
  return nullptr;
}

QObject* WindowDesktop::shown(const ui::Control& control) const {
  for (const auto& window : windows_)
    if (QObject* object = window->shown(control)) return object;
  return nullptr;
}

platform::Settings& WindowDesktop::settings() { return owner_.settings == nullptr ? own_ : *owner_.settings; }

/// The window comes where the last one stood, on the display of that one, and inside of it.
void WindowDesktop::open(ScreenWindow& window) {
  const QSize design = toPixels(window.screen()->width(), window.screen()->height());
  if (opening_ == Opening::Design) return window.open(design, false);
  const QRect room = displayFor(last_);
  const std::string key = windowKey(window);
  QSize client(settings().number(key + "width", 0), settings().number(key + "height", 0));
  if (client.isEmpty()) client = comfortable(window, room.size());
  if (window.hasGrid()) new LookMenu(window, settings());
  if (window.hasGrid()) new SettingsMenu(window, settings());
  if (owner_.dress) owner_.dress(window);
  if (window.findingsPane() != nullptr) rememberFolding(*window.findingsPane());
  window.keepMinimum(room.size());
  if (last_) window.move(last_->topLeft());
  window.open(client, settings().flag(key + "maximised", false));
  if (!window.isMaximized()) fitInto(window, room);
  restoreColumns(window);
}

QSize WindowDesktop::comfortable(const ScreenWindow& window, const QSize& room) const {
  const QSize design = toPixels(window.screen()->width(), window.screen()->height());
  const double share = room.width() < smallDisplay ? shareOfSmallDisplay : shareOfDisplay;
  const double across = room.width() * share / design.width();
  const double down = room.height() * share / design.height();
  const double largest = window.hasGrid() ? largestWork : largestMenu;
  return design * std::clamp(std::min(across, down), 1.0, largest);
}

/// Each screen opens the next time as the operator left it now.
void WindowDesktop::remember(const ScreenWindow& window) {
  if (opening_ == Opening::Design) return;
  last_ = window.frameGeometry();
  const std::string key = windowKey(window);
  const QSize around = window.size() - window.clientSize();
  const QSize normal = window.isMaximized() ? window.normalGeometry().size() - around : window.clientSize();
  settings().set(key + "width", normal.width());
  settings().set(key + "height", normal.height());
  settings().set(key + "maximised", window.isMaximized() ? 1 : 0);
  for (const GridView* table : window.tables())
    if (!table->drawnColumns().empty()) settings().set(columnsKey(window, *table), widthsText(*table));
}

/// The list of findings stays folded away on every screen until the operator unfolds it.
void WindowDesktop::rememberFolding(FindingsPane& pane) {
  pane.fold(settings().flag(foldedKey, false));
  QObject::connect(&pane, &FindingsPane::folded, &turns_,
                   [this](bool away) { settings().set(foldedKey, away ? 1 : 0); });
}

void WindowDesktop::restoreColumns(ScreenWindow& window) {
  for (GridView* table : window.tables()) {
    const QString widths = toQString(settings().text(columnsKey(window, *table)));
    for (const QString& column : widths.split(u' ', Qt::SkipEmptyParts))
      table->drawColumn(column.section(u':', 0, 0).toInt(), column.section(u':', 1).toInt());
  }
}

}  // namespace qt
