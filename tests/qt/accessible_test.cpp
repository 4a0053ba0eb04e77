#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTabWidget>
#include <memory>

#include "qt/forms.h"
#include "qt/grid_view.h"
#include "qt/window_desktop.h"
#include "shell/calculations.h"
#include "shell/menu.h"

// What a screen reader finds in the windows.

namespace {

/// Something that a screen reader names when it comes there.
bool isControl(QAccessible::Role role) {
  switch (role) {
    case QAccessible::PushButton:
    case QAccessible::RadioButton:
    case QAccessible::CheckBox:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::PageTab:
    case QAccessible::MenuItem:
    case QAccessible::StaticText:
    case QAccessible::Grouping:
      return true;
    default:
      return false;
  }
}

/// Walks the tree; what has no name goes to `nameless`. The inside of lists, tables and combo boxes is
/// theirs.
void walk(QAccessibleInterface& at, int& controls, std::vector<std::string>& nameless) {
  if (at.state().invisible) return;
  const QAccessible::Role role = at.role();
  const bool separator = role == QAccessible::Separator;
  if (isControl(role) && !separator) {
    ++controls;
    if (at.text(QAccessible::Name).trimmed().isEmpty())
      nameless.push_back(
          (at.object() == nullptr ? QString::number(role) : at.object()->objectName()).toStdString());
  }
  if (role == QAccessible::List || role == QAccessible::Table || role == QAccessible::ComboBox) return;
  for (int i = 0; i < at.childCount(); ++i)
    if (QAccessibleInterface* child = at.child(i)) walk(*child, controls, nameless);
}

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
      int controls = 0;
      std::vector<std::string> nameless;
      walk(*QAccessible::queryAccessibleInterface(&window), controls, nameless);
      EXPECT_GE(controls, 6) << "page " << page;
      EXPECT_EQ(nameless, std::vector<std::string>{}) << "page " << page;
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
