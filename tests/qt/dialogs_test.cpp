#include "qt/dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>

#include "qt/display_fit.h"
#include "qt/find_bar.h"
#include "qt/forms.h"
#include "qt/seen.h"
#include "qt/window_desktop.h"
#include "shell/calculations.h"

// Whether all that stands in the windows beside the screens can be seen and heard, on the display that the
// test runs on.

namespace {

QRect room() { return QApplication::primaryScreen()->availableGeometry(); }

void settle() {
  for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
}

class OtherWindows : public testing::Test {
 protected:
  OtherWindows() {
    context_.gJobId = "1";
    context_.gTokyu = 1;
    screen_ = shell::calculations().front()(context_, desktop_);
    desktop_.show(*screen_);
    settle();
  }
  ~OtherWindows() override { desktop_.hide(*screen_); }

  qt::ScreenWindow& window() { return *desktop_.windowOf(*screen_); }

  job::JobContext context_;
  qt::WindowDesktop desktop_{qt::Opening::Comfortable,
                             {.ask = [](QMessageBox&) {},
                              .failed = [](std::exception_ptr) {},
                              .settled = [] {},
                              .sweep = [] {},
                              .setUpForm = qt::setUpForm}};
  std::unique_ptr<ui::Screen> screen_;
};

TEST_F(OtherWindows, ShowAllThatStandsInThemAndHaveNoNamelessControl) {
  const test::Dialogs dialogs(window(), *screen_, desktop_);
  for (const auto& kind : dialogs.kinds()) {
    SCOPED_TRACE(kind.name);
    const auto open = kind.make();
    open->show();
    settle();
    EXPECT_TRUE(room().contains(open->frameGeometry())) << "inside the display";
    test::expectThatAllIsSeen(*open);
    const test::Announced found = test::announced(*open);
    EXPECT_GE(found.controls, 1);
    EXPECT_EQ(found.nameless, std::vector<std::string>{});
    open->resize(1, 1);
    settle();
    test::expectThatAllIsSeen(*open);
    open->resize(room().size());
    settle();
    test::expectThatAllIsSeen(*open);
  }
}

/// What has the keys is seen, wherever Tab leads.
TEST_F(OtherWindows, BringWhatTabLeadsToIntoSight) {
  const test::Dialogs dialogs(window(), *screen_, desktop_);
  for (const auto& kind : dialogs.kinds()) {
    SCOPED_TRACE(kind.name);
    const auto open = kind.make();
    open->show();
    test::expectThatTabLeadsIntoSight(*open);
  }
}

/// The bar stands below the rows that it searches and covers none of them.
TEST_F(OtherWindows, TheFindBarCoversNoCell) {
  for (auto* table : window().findChildren<qt::GridView*>()) {
    if (!table->isVisible()) continue;
    auto& bar = *table->findChild<qt::FindBar*>();
    bar.open();
    settle();
    EXPECT_TRUE(table->rect().contains(bar.geometry()));
    const QRect cells(table->viewport()->mapTo(table, QPoint(0, 0)), table->viewport()->size());
    EXPECT_FALSE(bar.geometry().intersects(cells));
    test::expectThatAllIsSeen(bar);
    EXPECT_EQ(test::announced(bar).nameless, std::vector<std::string>{});
  }
}

// A display of 1024 × 768 and one of 1920 × 1080 on its right.
const std::vector<QRect> two = {QRect(0, 0, 1024, 768), QRect(1024, 0, 1920, 1080)};

TEST(Displays, AWindowOpensOnTheDisplayWhereTheLastOneStood) {
  EXPECT_EQ(qt::displayFor(QRect(1500, 100, 800, 600), two), two[1]);
  EXPECT_EQ(qt::displayFor(QRect(100, 100, 800, 600), two), two[0]);
  EXPECT_EQ(qt::displayFor({}, two), two[0]);
}

/// Its middle says where it stood: at x = 980 + 200 / 2 = 1080 on the right one.
TEST(Displays, AWindowThatStandsOnBothBelongsToTheOneWithItsMiddle) {
  EXPECT_EQ(qt::displayFor(QRect(980, 100, 200, 200), two), two[1]);
  EXPECT_EQ(qt::displayFor(QRect(900, 100, 200, 200), two), two[0]);
}

TEST(Displays, APlaceOnADisplayThatIsGoneLeadsToTheOneThatIsThere) {
  const std::vector<QRect> one = {two[0]};
  const QRect gone(1500, 100, 800, 600);
  EXPECT_EQ(qt::displayFor(gone, one), two[0]);
  EXPECT_EQ(qt::fitted(gone, two[0]), QRect(224, 100, 800, 600));
}

TEST(Displays, AWindowIsBroughtInsideAndMadeNoLargerThanItsDisplay) {
  EXPECT_EQ(qt::fitted(QRect(10, 20, 300, 200), two[0]), QRect(10, 20, 300, 200));
  EXPECT_EQ(qt::fitted(QRect(-40, 700, 300, 200), two[0]), QRect(0, 568, 300, 200));
  EXPECT_EQ(qt::fitted(QRect(900, 50, 4000, 3000), two[1]), two[1]);
  EXPECT_EQ(qt::fitted(QRect(900, 50, 4000, 200), two[1]), QRect(1024, 50, 1920, 200));
}

}  // namespace
