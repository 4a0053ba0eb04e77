#include "qt/reading_bar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "qt/forms.h"
#include "qt/window_desktop.h"
#include "seihyou/screen.h"
#include "support/impatient_desktop.h"
#include "support/small_job.h"
#include "text/cancelled.h"

namespace {

/// A long reading: what the operator does and sees in its turns.
class LongReading : public testing::Test {
 protected:
  LongReading() {
    for (const char* route : {"R001", "S002"})
      for (int order = 1; order <= 4; ++order)
        job_.observed(order, route, route + std::to_string(order), "100", "1.5", order == 4 ? "-1" : "");
    screen_.load();
    desktop_.show(screen_);
    screen_.LstDataKubun.choose(0);
    screen_.cmbJIgyoBango1.choose(0);
    choose(0);
    press();
  }
  ~LongReading() override { desktop_.hide(screen_); }

  void choose(int route) { screen_.cmbRosenBango1.choose(route); }
  void press() {
    desktop_.act([this] { screen_.openButton.press(); });
    QApplication::processEvents();
  }
  static QProgressDialog* bar() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->objectName() == QStringLiteral("readingBar")) return qobject_cast<QProgressDialog*>(window);
    return nullptr;
  }
  QWidget& table() { return *qobject_cast<QWidget*>(desktop_.shown(screen_.Grid1)); }

  /// Does `what` in the first turn that a reading gives the windows.
  void inItsTurn(std::function<void(QProgressDialog&)> what) {
    QTimer::singleShot(0, &turns_, [this, what = std::move(what)] {
      ASSERT_NE(bar(), nullptr);
      ++turnsSeen_;
      what(*bar());
    });
  }

  test::SmallJob job_;
  qt::WindowDesktop desktop_{qt::Opening::Comfortable,
                             {.ask = [](QMessageBox&) { FAIL() << "a message"; },
                              .failed = [](std::exception_ptr) { FAIL() << "an error"; },
                              .settled = [] {},
                              .sweep = [] {},
                              .setUpForm = qt::setUpForm,
                              .patience = 0}};
  seihyou::fSHsei screen_{job_.context(), desktop_};
  QObject turns_;
  int turnsSeen_ = 0;
};

TEST_F(LongReading, GivenUpLeavesTheWindowAsItWas) {
  const auto before = test::shownOn(screen_);
  const QImage picture = table().grab().toImage();
  choose(1);
  screen_.SSTab1.setCurrent(0);
  inItsTurn([](QProgressDialog& dialog) { dialog.findChild<QPushButton*>()->click(); });
  press();
  EXPECT_EQ(turnsSeen_, 1);
  EXPECT_EQ(bar(), nullptr);
  choose(0);
  EXPECT_EQ(test::shownOn(screen_), before);
  desktop_.refresh();
  EXPECT_EQ(table().grab().toImage(), picture);
}

TEST_F(LongReading, IsGivenUpWithTheCloseBox) {
  const auto before = test::shownOn(screen_);
  choose(1);
  screen_.SSTab1.setCurrent(0);
  inItsTurn([](QProgressDialog& dialog) { dialog.close(); });
  press();
  choose(0);
  EXPECT_EQ(test::shownOn(screen_), before);
}

/// Nothing but the button is taken in meanwhile, and no half filled table is drawn.
TEST_F(LongReading, KeepsThePictureAndTakesNothingElse) {
  choose(1);
  inItsTurn([this](QProgressDialog& dialog) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_TRUE(dialog.labelText().startsWith(QStringLiteral("読み込んでいます… ")));
    EXPECT_FALSE(table().updatesEnabled());
    EXPECT_TRUE(desktop_.busy());
    desktop_.act([] { FAIL() << "an act within the act"; });
  });
  press();
  EXPECT_EQ(turnsSeen_, 1);
  EXPECT_TRUE(table().updatesEnabled());
  EXPECT_EQ(screen_.Grid1.text(1, 0), "S0021") << "it went on to its end";
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(ReadingBar, WaitsItsTime) {
  constexpr int patience = 60;  // ms
  qt::ReadingBar bar(nullptr, QStringLiteral("読み込んでいます"), patience);
  const auto shown = [] {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->objectName() == QStringLiteral("readingBar")) return true;
    return false;
  };
  bar.goOn();
  EXPECT_FALSE(shown());
  QTest::qSleep(patience + 10);
  bar.goOn();
  EXPECT_TRUE(shown());
}

/// An operation script is not shown how its works go on, in windows as without.
TEST(ReadingBar, IsNotForScripts) {
  qt::WindowDesktop desktop(qt::Opening::Design, {.ask = [](QMessageBox&) {},
                                                  .failed = [](std::exception_ptr) {},
                                                  .settled = [] {},
                                                  .sweep = [] {},
                                                  .setUpForm = qt::setUpForm});
  EXPECT_EQ(desktop.workBar("読み込んでいます"), nullptr);
}

}  // namespace
