#include "qt/window_desktop.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "qt/convert.h"
#include "qt/input_stop.h"

namespace qt {
namespace {

constexpr double shareOfDisplay = 0.65;  // how much of the display a window may take at first
constexpr double largestWork = 1.8;      // times the design size
constexpr double largestMenu = 1.2;

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
  return pressed == buttons.end() ? question.safe : static_cast<std::size_t>(pressed - buttons.begin());
}

void WindowDesktop::showBox(QMessageBox& box) {
  refresh();
  const bool wasHourglass = hourglass_;
  setMousePointer(ui::Pointer::Default);
  box.setTextFormat(Qt::PlainText);
  owner_.ask(box);
  if (wasHourglass) setMousePointer(ui::Pointer::Hourglass);
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
  open(*windows_.back());
}

void WindowDesktop::hide(ui::Screen& screen) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return window->screen() == &screen; });
  if (found == windows_.end()) return;
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

void WindowDesktop::open(ScreenWindow& window) {
  const QSize design = toPixels(window.screen()->width(), window.screen()->height());
  if (opening_ == Opening::Design) return window.open(design, false);
  if (last_ && window.hasGrid()) return window.open(last_->client, last_->maximised);
  window.open(comfortable(window), false);
}

QSize WindowDesktop::comfortable(const ScreenWindow& window) const {
  const QSize design = toPixels(window.screen()->width(), window.screen()->height());
  const QSize room = QApplication::primaryScreen()->availableGeometry().size() * shareOfDisplay;
  const double across = static_cast<double>(room.width()) / design.width();
  const double down = static_cast<double>(room.height()) / design.height();
  const double largest = window.hasGrid() ? largestWork : largestMenu;
  return design * std::clamp(std::min(across, down), 1.0, largest);
}

/// The next window of work opens like the operator left this one.
void WindowDesktop::remember(const ScreenWindow& window) {
  if (opening_ == Opening::Design || !window.hasGrid()) return;
  const QSize around = window.size() - window.clientSize();
  const QSize normal = window.isMaximized() ? window.normalGeometry().size() - around : window.clientSize();
  last_ = LastSize{normal, window.isMaximized()};
}

}  // namespace qt
