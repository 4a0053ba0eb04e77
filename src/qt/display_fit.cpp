#include "qt/display_fit.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/screen_window.h"

namespace qt {
namespace {

const QString scrollName = QStringLiteral("displayScroll");

/// What stands around a window that is not open yet, as far as it can be told.
QSize frameOf(const QWidget& window) {
  return window.isVisible() ? window.frameGeometry().size() - window.size()
                            : QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

/// What a window holds, taken out of it to be put elsewhere.
QWidget* contentsOf(QWidget& window) {
  if (auto* main = qobject_cast<QMainWindow*>(&window)) return main->takeCentralWidget();
  auto* contents = new QWidget;
  contents->setLayout(window.layout());
  return contents;
}

void putInto(QWidget& window, QScrollArea* area) {
  if (auto* main = qobject_cast<QMainWindow*>(&window)) return main->setCentralWidget(area);
  auto* column = new QVBoxLayout(&window);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(area);
}

/// Windows that know neither display nor size of their own. A screen's window is opened with its place, and
/// the toolkit's own dialogs look after themselves.
bool opensByItself(const QWidget& window) {
  const bool main = qobject_cast<const QMainWindow*>(&window) != nullptr &&
                    qobject_cast<const ScreenWindow*>(&window) == nullptr;
  const bool dialog = qobject_cast<const QDialog*>(&window) != nullptr &&
                      !QByteArrayView(window.metaObject()->className()).startsWith('Q');
  return window.isWindow() && (main || dialog);
}

}  // namespace

QRect displayFor(const std::optional<QRect>& place, const std::vector<QRect>& displays) {
  const auto found = std::find_if(displays.begin(), displays.end(), [&](const QRect& display) {
    return place && display.contains(place->center());
  });
  return found == displays.end() ? displays.front() : *found;
}

QRect displayFor(const std::optional<QRect>& place) {
  std::vector<QRect> displays{QApplication::primaryScreen()->availableGeometry()};
  for (const QScreen* screen : QApplication::screens()) displays.push_back(screen->availableGeometry());
  return displayFor(place, displays);
}

QRect fitted(const QRect& frame, const QRect& room) {
  const QSize size = frame.size().boundedTo(room.size());
  const int left = std::clamp(frame.left(), room.left(), room.right() + 1 - size.width());
  const int top = std::clamp(frame.top(), room.top(), room.bottom() + 1 - size.height());
  return {QPoint(left, top), size};
}

void fitInto(QWidget& window, const QRect& room) {
  const QRect frame = window.frameGeometry();
  const QRect wanted = fitted(frame, room);
  if (wanted.size() != frame.size()) window.resize(window.size() - (frame.size() - wanted.size()));
  if (wanted.topLeft() != frame.topLeft()) window.move(wanted.topLeft());
}

void scrollWhereTooLarge(QWidget& window, const QSize& room) {
  const QSize most = room - frameOf(window);
  const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
  if (least.width() <= most.width() && least.height() <= most.height()) return;
  const QSize before = window.size();
  QWidget* const contents = contentsOf(window);
  contents->setMinimumSize(contents->minimumSizeHint().expandedTo(contents->minimumSize()));
  auto* area = new QScrollArea;
  area->setObjectName(scrollName);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(contents);
  putInto(window, area);
  QObject::connect(qApp, &QApplication::focusChanged, area, [area](const QWidget*, QWidget* now) {
    if (now != nullptr && area->isAncestorOf(now)) area->ensureWidgetVisible(now);
  });
  contents->show();
  area->show();
  window.setMinimumSize(QSize(0, 0));
  window.resize(before.boundedTo(most));
}

void keepKeysInSight(const QWidget& window) {
  auto* area = window.findChild<QScrollArea*>(scrollName);
  QWidget* const keys = window.focusWidget();
  if (area != nullptr && keys != nullptr && area->isAncestorOf(keys)) area->ensureWidgetVisible(keys);
}

bool DisplayFit::eventFilter(QObject* watched, QEvent* event) {
  auto* window =
      event->type() == QEvent::Show && !event->spontaneous() ? qobject_cast<QWidget*>(watched) : nullptr;
  if (window == nullptr || !opensByItself(*window)) return false;
  const QWidget* const parent = window->parentWidget();
  const QRect room = displayFor((parent == nullptr ? window : parent->window())->frameGeometry());
  scrollWhereTooLarge(*window, room.size());
  const QSize most = room.size() - frameOf(*window);
  window->resize(window->size().boundedTo(most));
  return false;
}

}  // namespace qt
