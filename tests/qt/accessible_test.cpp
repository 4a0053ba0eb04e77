#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTabWidget>
#include <memory>

#include "qt/forms.h"
#include "qt/grid_view.h"
#include "qt/seen.h"
#include "qt/window_desktop.h"
#include "shell/calculations.h"
#include "shell/menu.h"

// What a screen reader finds in the windows.

namespace {

class AccessibleScreens : public testing::Test {
 protected:
  AccessibleScreens() {
    context_.gJobId = "1";
    context_.gTokyu = 1;
    screens_.push_back(
        std::make_unique<shell::SeikMenu>(commandLine_, desktop_, context_, [](std::size_t) {}));
    for (const shell::ScreenMaker& maker : shell::calculations())
      screens_.push_back(maker(context_, desktop_));
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

TEST_F(AccessibleScreens, HaveNoNamelessControl) {
  for (const auto& screen : screens_) {
    SCOPED_TRACE(screen->name());
    desktop_.show(*screen);
    qt::ScreenWindow& window = *desktop_.windowOf(*screen);
    auto* tabs = window.findChild<QTabWidget*>();
    for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
      if (tabs != nullptr) tabs->setCurrentIndex(page);
      QApplication::processEvents();
      const test::Announced found = test::announced(window);
      EXPECT_GE(found.controls, 6) << "page " << page;
      EXPECT_EQ(found.nameless, std::vector<std::string>{}) << "page " << page;
    }
    desktop_.hide(*screen);
  }
}

TEST_F(AccessibleScreens, TheMenusButtonsSayWhatTheyStart) {
  desktop_.show(*screens_[0]);
  auto* button = desktop_.windowOf(*screens_[0])->findChild<QWidget*>("Command1");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name), "正標高補正計算を実行");
  desktop_.hide(*screens_[0]);
}

TEST_F(AccessibleScreens, ACellSaysItsBenchMarkColumnAndUnit) {
  ui::Screen& screen = *screens_[1];
  auto& grid = dynamic_cast<ui::Grid&>(*screen.find("Grid1"));
  desktop_.show(screen);
  grid.setRows(4);
  grid.setCols(7);
  grid.setText(0, 2, "正標高補正数");
  grid.setText(1, 0, "A101");
  grid.setText(3, 0, "A102");
  grid.setText(2, 2, "5");
  desktop_.refresh();
  auto& view = *desktop_.windowOf(screen)->findChild<qt::GridView*>("Grid1");
  EXPECT_EQ(view.model()->index(1, 2).data(Qt::AccessibleTextRole).toString(),
            "A101 → A102  正標高補正数 [0.1 mm]: 5");
  EXPECT_EQ(view.model()->headerData(2, Qt::Horizontal, Qt::ToolTipRole).toString(), "正標高補正数 [0.1 mm]");
  desktop_.hide(screen);
}

}  // namespace
