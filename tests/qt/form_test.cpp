#include "qt/forms.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <algorithm>
#include <memory>
#include <set>
#include <stdexcept>

#include "qt/window_desktop.h"
#include "shell/calculations.h"
#include "shell/menu.h"

namespace {

/// Every screen of the house, none of them loaded.
class AllScreens : public testing::Test {
 protected:
  AllScreens() {
    screens_.push_back(
        std::make_unique<shell::SeikMenu>(commandLine_, desktop_, context_, [](std::size_t) {}));
    for (const shell::ScreenMaker& maker : shell::calculations())
      if (maker) screens_.push_back(maker(context_, desktop_));
  }

  static bool hasForm(const ui::Screen& screen) {
    return std::any_of(qt::forms().begin(), qt::forms().end(),
                       [&](const qt::Form& form) { return form.screen == screen.name(); });
  }

  shell::CommandLine commandLine_;
  job::JobContext context_;
  qt::WindowDesktop desktop_{qt::Opening::Design,
                             {.ask = [](QMessageBox&) {},
                              .failed = [](std::exception_ptr) {},
                              .settled = [] {},
                              .sweep = [] {},
                              .setUpForm = qt::setUpForm}};
  std::vector<std::unique_ptr<ui::Screen>> screens_;
};

TEST_F(AllScreens, HaveAFormWithEveryControl) {
  for (const auto& screen : screens_) {
    SCOPED_TRACE(screen->name());
    EXPECT_NO_THROW({
      qt::ScreenWindow window(*screen, desktop_,
                              [&](QMainWindow& made) { qt::setUpForm(screen->name(), made); });
      for (const ui::Control* control : screen->controls()) EXPECT_NE(window.shown(*control), nullptr);
    });
  }
}

TEST_F(AllScreens, OpenAtTheirDesignSize) {
  for (const auto& screen : screens_) {
    if (!hasForm(*screen)) continue;
    SCOPED_TRACE(screen->name());
    desktop_.show(*screen);
    const QSize client = desktop_.windowOf(*screen)->clientSize();
    EXPECT_EQ(client.width() * 15, static_cast<int>(screen->width()));
    EXPECT_EQ(client.height() * 15, static_cast<int>(screen->height()));
    desktop_.hide(*screen);
  }
}

/// Two marked keys that are the same would only move the focus between their buttons.
TEST_F(AllScreens, MarkEveryKeyOnce) {
  for (const auto& screen : screens_) {
    if (!hasForm(*screen)) continue;
    SCOPED_TRACE(screen->name());
    qt::ScreenWindow window(*screen, desktop_,
                            [&](QMainWindow& made) { qt::setUpForm(screen->name(), made); });
    std::set<QString> keys;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      const QString key = QKeySequence::mnemonic(button->text()).toString();
      if (key.isEmpty()) continue;
      EXPECT_TRUE(keys.insert(key).second) << key.toStdString();
    }
  }
}

TEST(Forms, AnUnknownScreenIsAnErrorOfOurs) {
  QMainWindow window;
  EXPECT_THROW(qt::setUpForm("fNobody", window), std::logic_error);
}

}  // namespace
