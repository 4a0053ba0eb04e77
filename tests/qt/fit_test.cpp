#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/settings.h"
#include "qt/fixed_columns.h"
#include "qt/forms.h"
#include "qt/window_desktop.h"
#include "shell/calculations.h"
#include "shell/menu.h"

// Whether everything in a window can be seen, on the display that the test runs on: CTest runs it on several,
// of different sizes and scales.

namespace {

/// Something that the operator reads or works. Containers are none, and what lies inside another is part of
/// it.
bool isControl(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLabel*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
}

void gather(const QWidget& parent, std::vector<const QWidget*>& found) {
  for (const QObject* child : parent.children()) {
    const auto* widget = qobject_cast<const QWidget*>(child);
    if (widget == nullptr || !widget->isVisible() || widget->isWindow()) continue;
    if (isControl(*widget))
      found.push_back(widget);
    else
      gather(*widget, found);
  }
}

/// Where a control stands in the window. Of a bar of tabs only the tabs count.
QRect placeOf(const QWidget& widget, const QWidget& window) {
  QRect place = widget.rect();
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
    place = place.intersected(tabs->tabRect(0).united(tabs->tabRect(tabs->count() - 1)));
  return {widget.mapTo(&window, place.topLeft()), place.size()};
}

std::string nameOf(const QWidget& widget) {
  return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ")";
}

/// The room that the words of a button need.
int textWidth(const QWidget& widget) {
  const auto& button = dynamic_cast<const QAbstractButton&>(widget);
  return widget.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + 6;
}

/// Every visible control lies wholly within all that it stands on, and over no other; words are not cut.
void expectThatAllIsSeen(const QMainWindow& window) {
  std::vector<const QWidget*> controls;
  gather(*window.centralWidget(), controls);
  if (const auto* dock = window.findChild<QDockWidget*>()) gather(*dock, controls);
  EXPECT_GT(controls.size(), 3U);
  for (const QWidget* control : controls) {
    const QRect place = placeOf(*control, window);
    for (const QWidget* at = control->parentWidget(); at != &window; at = at->parentWidget())
      EXPECT_TRUE(placeOf(*at, window).contains(place))
          << nameOf(*control) << " lies outside " << nameOf(*at);
    const bool button = qobject_cast<const QAbstractButton*>(control) != nullptr;
    EXPECT_LE(button ? textWidth(*control) : 0, control->width()) << nameOf(*control) << " is cut";
    for (const QWidget* other : controls) {
      if (other <= control) continue;
      EXPECT_FALSE(place.intersects(placeOf(*other, window)))
          << nameOf(*control) << " over " << nameOf(*other);
    }
  }
}

class Fit : public testing::Test {
 protected:
  Fit() {
    context_.gJobId = "1";
    context_.gTokyu = 1;
    screens_.push_back(
        std::make_unique<shell::SeikMenu>(commandLine_, desktop_, context_, [](std::size_t) {}));
    for (const shell::ScreenMaker& maker : shell::calculations())
      screens_.push_back(maker(context_, desktop_));
  }

  static void settle() {
    QApplication::processEvents();
    QApplication::processEvents();
  }

  /// Looks at every page of the window.
  static void lookAtAllPages(const qt::ScreenWindow& window) {
    auto* tabs = window.findChild<QTabWidget*>();
    for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
      if (tabs != nullptr) tabs->setCurrentIndex(page);
      settle();
      SCOPED_TRACE("page " + std::to_string(page));
      expectThatAllIsSeen(window);
    }
  }

  static QRect room() { return QApplication::primaryScreen()->availableGeometry(); }

  shell::CommandLine commandLine_;
  job::JobContext context_;
  platform::Settings settings_;
  qt::WindowDesktop desktop_{qt::Opening::Comfortable,
                             {.ask = [](QMessageBox&) {},
                              .failed = [](std::exception_ptr) {},
                              .settled = [] {},
                              .sweep = [] {},
                              .setUpForm = qt::setUpForm,
                              .settings = &settings_}};
  std::vector<std::unique_ptr<ui::Screen>> screens_;
};

TEST_F(Fit, AtFirst) {
  for (const auto& screen : screens_) {
    SCOPED_TRACE(screen->name());
    desktop_.show(*screen);
    settle();
    const qt::ScreenWindow& window = *desktop_.windowOf(*screen);
    EXPECT_TRUE(room().contains(window.frameGeometry())) << "inside the display";
    lookAtAllPages(window);
    desktop_.hide(*screen);
    settle();
  }
}

TEST_F(Fit, AsSmallAsTheyCanBeMade) {
  for (const auto& screen : screens_) {
    SCOPED_TRACE(screen->name());
    desktop_.show(*screen);
    qt::ScreenWindow& window = *desktop_.windowOf(*screen);
    window.resize(1, 1);
    settle();
    lookAtAllPages(window);
    desktop_.hide(*screen);
    settle();
  }
}

TEST_F(Fit, AsLargeAsTheDisplay) {
  for (const auto& screen : screens_) {
    SCOPED_TRACE(screen->name());
    desktop_.show(*screen);
    qt::ScreenWindow& window = *desktop_.windowOf(*screen);
    window.resize(room().size());
    settle();
    lookAtAllPages(window);
    desktop_.hide(*screen);
    settle();
  }
}

/// Each screen has its own size; one that was remembered on a larger display is taken back into this one.
TEST_F(Fit, AsTheOperatorLeftThem) {
  ui::Screen& first = *screens_[1];
  ui::Screen& second = *screens_[2];
  desktop_.show(first);
  desktop_.windowOf(first)->resizeClient(9750, 6450);  // 650 x 430
  desktop_.hide(first);
  desktop_.show(second);
  EXPECT_NE(desktop_.windowOf(second)->clientSize(), QSize(650, 430));
  desktop_.hide(second);
  desktop_.show(first);
  EXPECT_EQ(desktop_.windowOf(first)->clientSize(), QSize(650, 430));
  desktop_.hide(first);
  settings_.set("window." + first.name() + ".width", 9000);
  settings_.set("window." + first.name() + ".height", 9000);
  desktop_.show(first);
  EXPECT_TRUE(room().contains(desktop_.windowOf(first)->frameGeometry()));
  desktop_.hide(first);
}

}  // namespace
