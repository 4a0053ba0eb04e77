#include <gtest/gtest.h>

#include <QApplication>
#include <QFrame>
#include <QImage>
#include <QKeyEvent>
#include <QScreen>
#include <QTabWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/settings.h"
#include "qt/fixed_columns.h"
#include "qt/forms.h"
#include "qt/house_style.h"
#include "qt/seen.h"
#include "qt/window_desktop.h"
#include "shell/calculations.h"
#include "shell/menu.h"
#include "support/job_file.h"

// Whether everything in a window can be seen, on the display that the test runs on: CTest runs it on several,
// of different sizes and scales.

namespace {

class Fit : public testing::Test {
 protected:
  Fit() {
    context_.gDbPath = job_.path();
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
      test::expectThatAllIsSeen(window);
    }
  }

  /// The colour of a frame lies within a pixel of each edge, half way along it.
  static void expectWholeFrames(const QImage& picture, const QWidget& window) {
    const QPalette palette = QApplication::palette();
    const auto isFrame = [&](QPointF at) {
      const QPointF exact = at * picture.devicePixelRatio();
      const QPoint pixel(static_cast<int>(exact.x()), static_cast<int>(exact.y()));
      if (!picture.rect().contains(pixel)) return false;
      const QRgb colour = picture.pixelColor(pixel).rgb();
      return colour == qt::frameColour(palette).rgb() || colour == palette.color(QPalette::Highlight).rgb();
    };
    for (const QFrame* framed : window.findChildren<QFrame*>()) {
      if (!framed->isVisible() || framed->frameShape() != QFrame::StyledPanel ||
          test::seenPart(*framed, window).size() != framed->size())
        continue;
      const QRectF place(framed->mapTo(&window, QPoint(0, 0)), framed->size());
      const auto edge = [&](QPointF middle, QPointF across) {
        return isFrame(middle) || isFrame(middle + across * 0.4) || isFrame(middle - across * 0.4);
      };
      const QPointF centre = place.center();
      const bool whole =
          edge({centre.x(), place.top() + 0.5}, {0, 1}) && edge({centre.x(), place.bottom() - 0.5}, {0, 1}) &&
          edge({place.left() + 0.5, centre.y()}, {1, 0}) && edge({place.right() - 0.5, centre.y()}, {1, 0});
      EXPECT_TRUE(whole) << framed->objectName().toStdString();
    }
  }

  static QRect room() { return QApplication::primaryScreen()->availableGeometry(); }

  test::JobFile job_;
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

/// Also where the form is larger than the display and scrolls.
TEST_F(Fit, WhereverTabLeads) {
  for (const auto& screen : screens_) {
    SCOPED_TRACE(screen->name());
    if (screen != screens_.front()) screen->load();
    desktop_.show(*screen);
    qt::ScreenWindow& window = *desktop_.windowOf(*screen);
    auto* tabs = window.findChild<QTabWidget*>();
    for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
      if (tabs != nullptr) tabs->setCurrentIndex(page);
      test::expectThatTabLeadsIntoSight(window);
    }
    desktop_.hide(*screen);
    settle();
  }
}

/// The cell that keys go to is seen, also where table and form both scroll.
TEST_F(Fit, WhereverTheKeyCellGoes) {
  ui::Screen& screen = *screens_.back();
  screen.load();
  desktop_.show(screen);
  qt::ScreenWindow& window = *desktop_.windowOf(screen);
  auto& grid = dynamic_cast<ui::Grid&>(*screen.find("Grid1"));
  desktop_.act([&] { grid.setRows(200); });
  auto& view = *window.findChild<qt::GridView*>(QStringLiteral("Grid1"));
  auto* tabs = window.findChild<QTabWidget*>();
  for (int page = 0; page < tabs->count(); ++page)
    if (tabs->widget(page)->isAncestorOf(&view)) tabs->setCurrentIndex(page);
  view.setFocus();
  settle();
  desktop_.act([&] { grid.moveTo(1, 1); });
  for (int row = 1; row <= 40; ++row) {
    settle();
    EXPECT_EQ(grid.keyRow(), row);
    const QRect cell = view.visualRect(view.model()->index(row - grid.fixedRows(), 1));
    const QPoint at = view.viewport()->mapTo(&window, cell.center());
    EXPECT_TRUE(test::seenPart(*view.viewport(), window).contains(at)) << row;
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&view, &down);
  }
  desktop_.hide(screen);
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

/// All four edges of the frames around tables, lists and shown texts are seen, also at scales between whole
/// ones.
TEST_F(Fit, WithWholeFrames) {
  for (const auto& screen : screens_) {
    SCOPED_TRACE(screen->name());
    desktop_.show(*screen);
    settle();
    const qt::ScreenWindow& window = *desktop_.windowOf(*screen);
    expectWholeFrames(desktop_.windowOf(*screen)->grab().toImage(), window);
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
