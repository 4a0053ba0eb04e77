#include "qt/settings_menu.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <memory>

#include "hands/operator.h"
#include "platform/settings.h"
#include "qt/forms.h"
#include "qt/limits_dialog.h"
#include "qt/window_desktop.h"
#include "shell/calculations.h"
#include "ui/controls.h"

namespace {

/// A screen of work in an operator's window, nothing loaded.
struct SettingsDesk {
  platform::Settings settings;
  std::vector<std::pair<std::string, int>> record;  ///< what was noted, and how many errors were found
  job::JobContext context;
  qt::WindowDesktop desktop{qt::Opening::Comfortable,
                            {.ask = [](QMessageBox&) {},
                             .failed = [](std::exception_ptr) {},
                             .settled = [] {},
                             .sweep = [] {},
                             .setUpForm = qt::setUpForm,
                             .record =
                                 [this](const ui::WorkNote& note, const ui::Findings& findings) {
                                   record.emplace_back(note.screen + "|" + note.what + "|" + note.details,
                                                       ui::countFindings(findings, ui::Severity::Error));
                                 },
                             .settings = &settings}};
  std::unique_ptr<ui::Screen> screen;

  SettingsDesk() {
    context.gJobId = "1";
    context.gTokyu = 1;
    open();
  }
  ~SettingsDesk() { desktop.hide(*screen); }
  SettingsDesk(const SettingsDesk&) = delete;
  SettingsDesk& operator=(const SettingsDesk&) = delete;

  void open() {
    if (screen) desktop.hide(*screen);
    screen = shell::calculations()[0](context, desktop);
    desktop.show(*screen);
    settle();
  }
  void settle() {
    QApplication::processEvents();
    desktop.refresh();
    QApplication::processEvents();
  }
  qt::ScreenWindow& window() { return *desktop.windowOf(*screen); }
  ui::Grid& grid() { return dynamic_cast<ui::Grid&>(*screen->find("Grid1")); }
  QAction& action(const char* name) { return *window().findChild<QAction*>(name); }
};

TEST(SettingsMenu, TypedTextReplacesOnlyWhereItIsSetSoAndThatIsRemembered) {
  SettingsDesk desk;
  EXPECT_FALSE(desk.grid().replacesTyped());
  desk.action("settingReplaceTyped").trigger();
  EXPECT_TRUE(desk.grid().replacesTyped());
  desk.open();
  EXPECT_TRUE(desk.grid().replacesTyped());
  EXPECT_TRUE(desk.action("settingReplaceTyped").isChecked());
  desk.action("settingReplaceTyped").trigger();
  EXPECT_FALSE(desk.grid().replacesTyped());
}

TEST(SettingsMenu, LimitsAreSetInADialogAndReachTheScreens) {
  SettingsDesk desk;
  QTimer::singleShot(0, &desk.window(), [&] {
    auto* dialog = desk.window().findChild<qt::LimitsDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QLineEdit*>("limitCorrection")->setText("12.5");
    dialog->findChild<QLineEdit*>("limitDouble2")->setText("4");
    dialog->accept();
  });
  desk.action("settingLimits").trigger();
  const route::Limits limits = route::limitsOf(desk.desktop);
  EXPECT_EQ(limits.correction, 12.5);
  EXPECT_EQ(limits.tolerances.grades[1], (route::Tolerance{15, 5, 4}));
  EXPECT_EQ(limits.tolerances.grades[0], (route::Tolerance{15, 2, 2.5}));
}

TEST(LimitsDialog, TakesAmountsOnly) {
  qt::LimitsDialog dialog{route::Limits()};
  auto& field = *dialog.findChild<QLineEdit*>("limitMisclosure4");
  EXPECT_EQ(field.text(), "25");
  QPushButton* ok = nullptr;
  for (auto* button : dialog.findChildren<QPushButton*>())
    if (button->text().startsWith("OK")) ok = button;
  ASSERT_NE(ok, nullptr);
  for (const char* wrong : {"", "0", "-1", "広い", "3mm"}) {
    field.setText(wrong);
    EXPECT_FALSE(ok->isEnabled()) << wrong;
  }
  field.setText("20");
  EXPECT_TRUE(ok->isEnabled());
  EXPECT_EQ(dialog.limits().tolerances.grades[3].misclosure, 20);
  dialog.findChild<QPushButton*>("limitsUsual")->click();
  EXPECT_EQ(dialog.limits(), route::Limits());
}

/// The route A, B, 10.0000 and 11.0000, with 5 typed and not taken: the note of a calculation goes out when
/// the screen has been looked through, with the error that is found then.
TEST(WorkRecord, ANoteGoesOutWithWhatTheChecksFind) {
  SettingsDesk desk;
  auto& grid = desk.grid();
  grid.setRows(4);
  grid.setCols(7);
  grid.setText(1, 0, "A");
  grid.setText(1, 3, "10.0000");
  grid.setText(2, 1, "1.0000");
  grid.setText(2, 2, "5");
  grid.setText(3, 0, "B");
  grid.setText(3, 3, "11.0000");
  grid.setText(3, 5, "-1");
  desk.settle();
  desk.desktop.note({"ジョブ 1", "", "正標高補正", "計算", "試し"});
  EXPECT_TRUE(desk.record.empty());
  desk.window().check();
  EXPECT_EQ(desk.record, (decltype(desk.record){{"正標高補正|計算|試し", 1}}));
  desk.action("calcThroughMeans").trigger();
  desk.window().check();
  ASSERT_EQ(desk.record.size(), 2U);
  EXPECT_EQ(desk.record.back(),
            (std::pair<std::string, int>("正標高補正|計算|繰り返し点の平均を通して計算", 0)));
}

}  // namespace
