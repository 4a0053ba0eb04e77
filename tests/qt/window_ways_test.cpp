#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <QWheelEvent>
#include <memory>

#include "hands/operator.h"
#include "platform/settings.h"
#include "qt/desk.h"
#include "qt/forms.h"
#include "qt/manual_window.h"
#include "qt/selection_page.h"
#include "shell/calculations.h"
#include "shell/menu.h"

// What every window has beside its screen: the line along its lower edge, its title, its commands.

namespace {

/// The screen of a calculation (0 to 4, as the menu lists them) in its real form, nothing loaded.
class RealScreen {
 public:
  explicit RealScreen(std::size_t calculation, std::int16_t grade = 1) {
    context_.gJobId = "3";
    context_.gTokyu = grade;
    screen_ = shell::calculations()[calculation](context_, desktop_);
    desktop_.show(*screen_);
    settle();
  }
  ~RealScreen() { desktop_.hide(*screen_); }
  RealScreen(const RealScreen&) = delete;
  RealScreen& operator=(const RealScreen&) = delete;

  void settle() {
    QApplication::processEvents();
    desktop_.refresh();
    QApplication::processEvents();
  }
  template <class ControlKind>
  ControlKind& control(const char* name) {
    return dynamic_cast<ControlKind&>(*screen_->find(name));
  }
  template <class WidgetKind>
  WidgetKind& widget(const char* name) {
    return *window().findChild<WidgetKind*>(name);
  }
  qt::ScreenWindow& window() { return *desktop_.windowOf(*screen_); }
  ui::Screen& screen() { return *screen_; }
  void press(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* at = window().focusWidget() == nullptr ? &window() : window().focusWidget();
    hands::key(*at, key, {}, held);
    settle();
  }

 private:
  job::JobContext context_;
  qt::WindowDesktop desktop_{qt::Opening::Design,
                             {.ask = [](QMessageBox&) {},
                              .failed = [](std::exception_ptr) {},
                              .settled = [] {},
                              .sweep = [] {},
                              .setUpForm = qt::setUpForm}};
  std::unique_ptr<ui::Screen> screen_;
};

TEST(StatusLine, TellsJobGradeUnitAndWhatIsOpen) {
  RealScreen real(0, 2);
  EXPECT_EQ(real.widget<QLabel>("statusJob").text(), "ジョブ 3  2級  補正数 mm");
  EXPECT_EQ(real.window().windowTitle(), "正標高補正 — ジョブ 3");
  EXPECT_EQ(real.window().caption(), "正標高補正");
  real.control<ui::Label>("lblJigyobango").setText("1001    ");
  real.control<ui::Label>("lblRosenbango").setText("01A00101");
  real.settle();
  EXPECT_EQ(real.widget<QLabel>("statusOpen").text(), "1001 01A00101");
  EXPECT_EQ(real.window().windowTitle(), "正標高補正 — ジョブ 3 1001 01A00101");
  EXPECT_EQ(real.window().caption(), "正標高補正") << "what scripts print";
}

/// Fills the orthometric grid with A, a section and B, and brings it to the front.
void fill(RealScreen& real) {
  auto& grid = real.control<ui::Grid>("Grid1");
  grid.setRows(4);
  grid.setCols(7);
  for (int col = 0; col < 5; ++col) grid.setColWidth(col, 1500);
  const char* const headers[] = {"水準点", "標高", "正標高補正数", "補正結果", "備考"};
  for (int col = 0; col < 5; ++col) grid.setText(0, col, headers[col]);
  grid.setText(1, 0, "A");
  grid.setText(3, 0, "B");
  grid.setText(1, 1, "10.0000");
  grid.setText(2, 1, "1.5000");
  grid.setText(3, 1, "11.5000");
  real.control<ui::TabControl>("SSTab1").setCurrent(0);
  real.settle();
}

TEST(StatusLine, TellsWhatTheCurrentCellTakesAndInWhichUnit) {
  RealScreen real(0);
  real.control<ui::TabControl>("SSTab1").setCurrent(1);
  real.settle();
  EXPECT_EQ(real.widget<QLabel>("statusCell").text(), "") << "no table in front";
  fill(real);
  auto& grid = real.control<ui::Grid>("Grid1");
  grid.click(2, 2);
  real.settle();
  EXPECT_EQ(real.widget<QLabel>("statusCell").text(), "A → B  正標高補正数 [0.1 mm]  数値を入力できます");
  grid.click(3, 0);
  real.settle();
  EXPECT_EQ(real.widget<QLabel>("statusCell").text(), "B  水準点  表示だけのセルです");
}

// 10.0000 + 1.5000 + 11.5000 = 23.0000
TEST(StatusLine, AddsUpASelectedRange) {
  RealScreen real(0);
  fill(real);
  auto& grid = real.control<ui::Grid>("Grid1");
  grid.click(1, 1);
  grid.selectTo(3, 1);
  real.settle();
  EXPECT_EQ(real.widget<QLabel>("statusCell").text(), "件数 3  合計 23.0000  最小 1.5000  最大 11.5000");
}

TEST(ScreenCommands, CtrlOGoesToTheSelectionAndF1OpensTheManual) {
  for (std::size_t calculation = 0; calculation < 5; ++calculation) {
    RealScreen real(calculation);
    SCOPED_TRACE(real.screen().name());
    auto& tabs = real.widget<QTabWidget>("SSTab1");
    tabs.setCurrentIndex(tabs.count() - 1);
    real.settle();
    EXPECT_EQ(real.widget<QAction>("goToSelection").shortcut(), QKeySequence("Ctrl+O"));
    real.widget<QAction>("goToSelection").trigger();
    real.settle();
    QWidget* page = tabs.currentWidget();
    EXPECT_TRUE(calculation == 4 ? tabs.currentIndex() == 0
                                 : qobject_cast<qt::SelectionPage*>(page) != nullptr);
    EXPECT_EQ(real.widget<QAction>("openManual").shortcut(), QKeySequence("F1"));
    real.widget<QAction>("openManual").trigger();
    real.settle();
    auto* manual = real.window().findChild<qt::ManualWindow*>();
    ASSERT_NE(manual, nullptr);
    EXPECT_EQ(manual->headingInView(),
              qt::ManualWindow::chapterOf(QString::fromStdString(real.screen().name())));
  }
}

TEST(ScreenCommands, CtrlSSavesAndTheFirstItemOfTheMenuLosesNothing) {
  for (std::size_t calculation = 0; calculation < 5; ++calculation) {
    RealScreen real(calculation);
    SCOPED_TRACE(real.screen().name());
    int saves = 0;
    for (QAction* action : real.window().findChildren<QAction*>())
      if (action->shortcut() == QKeySequence("Ctrl+S")) {
        ++saves;
        EXPECT_EQ(action->text(), "保存(&S)");
      }
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(real.window().menuBar()->actions().front()->menu()->actions().front()->objectName(),
              "goToSelection");
  }
}

/// The book has no item for saving: the key leads to the page where it is stored, and there it stores.
TEST(ScreenCommands, CtrlSLeadsToTheButtonThatStoresTheBook) {
  RealScreen real(4);
  int stored = 0;
  real.control<ui::Button>("CmdExeE2").onClick.handle([&] { ++stored; });
  auto& save = real.widget<QAction>("goToSave");
  save.trigger();
  real.settle();
  EXPECT_EQ(real.widget<QTabWidget>("SSTab1").currentIndex(), 2);
  EXPECT_EQ(stored, 0);
  save.trigger();
  EXPECT_EQ(stored, 1);
}

TEST(Manual, HasItsChaptersAndPictures) {
  qt::ManualWindow manual;
  manual.show();
  for (const char* screen : {"SeikMenu", "fSHsei", "fDHsei", "fHHsei", "fTHsei", "fHHksb"})
    EXPECT_TRUE(manual.goTo(qt::ManualWindow::chapterOf(screen))) << screen;
  EXPECT_FALSE(manual.goTo("10. 無い章"));
  auto* text = manual.findChild<QTextBrowser*>("manualText");
  EXPECT_TRUE(text->loadResource(QTextDocument::ImageResource, QUrl("pictures/menu.png")).isValid());
}

TEST(Combo, TheWheelTurnsNothingWhileTheBoxIsClosed) {
  OpenScreen open;
  open.screen.SSTab1.setCurrent(1);
  open.screen.cmbRoute.setListIndex(0);
  open.settle();
  auto& combo = open.widget<QComboBox>(open.screen.cmbRoute);
  combo.setFocus();
  QWheelEvent turn(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&combo, &turn);
  open.settle();
  EXPECT_EQ(combo.currentIndex(), 0);
  EXPECT_EQ(open.screen.events, std::vector<std::string>{});
}

/// What is drawn in one window is there in the next one of the same screen; a double click on an edge fits.
TEST(Columns, AreRememberedAsTheOperatorHasDrawnThem) {
  Desk desk(qt::Opening::Comfortable);
  {
    EveryKind first(desk.windows);
    first.Grid1.setText(1, 0, "とても長い備考が書いてあるセル");
    desk.windows.show(first);
    QApplication::processEvents();
    auto& view = dynamic_cast<qt::GridView&>(*desk.windows.shown(first.Grid1));
    view.horizontalHeader()->resizeSection(1, 33);
    emit view.horizontalHeader()->sectionHandleDoubleClicked(0);
    EXPECT_GE(view.columnWidth(0), view.fontMetrics().horizontalAdvance("とても長い備考が書いてあるセル"));
    desk.windows.hide(first);
  }
  EveryKind second(desk.windows);
  desk.windows.show(second);
  QApplication::processEvents();
  const auto& view = dynamic_cast<qt::GridView&>(*desk.windows.shown(second.Grid1));
  EXPECT_EQ(view.columnWidth(1), 33) << "the widest column too stays as it was drawn";
  desk.windows.hide(second);
}

}  // namespace
