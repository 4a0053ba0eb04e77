#include "qt/findings_pane.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QListView>
#include <QTest>
#include <QToolButton>

#include "hands/operator.h"
#include "platform/settings.h"
#include "qt/forms.h"
#include "qt/window_desktop.h"
#include "shell/calculations.h"
#include "ui/controls.h"

namespace {

/// The orthometric screen in its real form with a route of A and B: 10.0000 and 11.0000, calculated, as the
/// operator's windows open it.
class CheckedScreen {
 public:
  CheckedScreen() {
    context_.gJobId = "1";
    context_.gTokyu = 1;
    open();
  }
  ~CheckedScreen() { desktop_.hide(*screen_); }
  CheckedScreen(const CheckedScreen&) = delete;
  CheckedScreen& operator=(const CheckedScreen&) = delete;

  void open() {
    if (screen_) desktop_.hide(*screen_);
    screen_ = shell::calculations()[0](context_, desktop_);
    desktop_.show(*screen_);
    fill();
    settle();
  }

  /// The keyboard rests.
  void settle() {
    QApplication::processEvents();
    desktop_.refresh();
    window().findings();
    QApplication::processEvents();
  }
  void type(const char* text) {
    for (; *text != 0; ++text) hands::keyInGrid(view(), static_cast<char32_t>(*text));
    settle();
  }
  qt::ScreenWindow& window() { return *desktop_.windowOf(*screen_); }
  ui::Grid& grid() { return dynamic_cast<ui::Grid&>(*screen_->find("Grid1")); }
  qt::GridView& view() { return dynamic_cast<qt::GridView&>(*window().shown(grid())); }
  qt::FindingsPane& pane() { return *window().findingsPane(); }
  QListView& list() { return *pane().findChild<QListView*>(); }
  QString status() { return window().findChild<QLabel*>("statusChecks")->text(); }
  platform::Settings settings;

 private:
  void fill() {
    auto& at = grid();
    dynamic_cast<ui::TabControl&>(*screen_->find("SSTab1")).setCurrent(0);
    at.setRows(4);
    at.setCols(7);
    at.setText(0, 2, "正標高補正数");
    at.setText(1, 0, "A");
    at.setText(1, 1, "10.0000");
    at.setText(1, 3, "10.0000");
    at.setText(2, 1, "1.0000");
    at.setText(3, 0, "B");
    at.setText(3, 3, "11.0000");
    at.setText(3, 5, "-1");
    at.setCurrent(2, 2);
  }

  job::JobContext context_;
  qt::WindowDesktop desktop_{qt::Opening::Comfortable,
                             {.ask = [](QMessageBox&) {},
                              .failed = [](std::exception_ptr) {},
                              .settled = [] {},
                              .sweep = [] {},
                              .setUpForm = qt::setUpForm,
                              .settings = &settings}};
  std::unique_ptr<ui::Screen> screen_;
};

TEST(FindingsPane, ASoundRouteHasNothingToTell) {
  CheckedScreen checked;
  EXPECT_EQ(checked.list().model()->rowCount(), 0);
  EXPECT_EQ(checked.status(), "");
  EXPECT_EQ(checked.pane().findChild<QLabel*>("findingsCount")->text(), "指摘なし");
}

// 5 is typed and waits: an error, and the line along the lower edge counts it. Enter takes it.
TEST(FindingsPane, FollowsWhatIsTyped) {
  CheckedScreen checked;
  checked.type("5");
  ASSERT_EQ(checked.list().model()->rowCount(), 1);
  EXPECT_EQ(checked.list().model()->index(0, 0).data().toString(),
            "【誤り】区間 A-Bの正標高補正数「5」は、まだ計算に入っていません。 → そのセルで Enter "
            "を押してください。");
  EXPECT_EQ(checked.status(), "誤り 1、注意 0");
  checked.type("\r");
  EXPECT_EQ(checked.list().model()->rowCount(), 0);
  EXPECT_EQ(checked.status(), "");
}

TEST(FindingsPane, ComesToTheFindingsWhenTheKeyboardRests) {
  CheckedScreen checked;
  hands::keyInGrid(checked.view(), U'5');
  QTest::qWait(0);
  EXPECT_EQ(checked.list().model()->rowCount(), 0) << "not between two keys";
  EXPECT_TRUE(QTest::qWaitFor([&] { return checked.list().model()->rowCount() == 1; }, 5000));
}

TEST(FindingsPane, AClickAndEnterLeadToTheCell) {
  CheckedScreen checked;
  checked.type("5");
  for (const bool byKey : {false, true}) {
    checked.grid().setCurrent(3, 4);
    checked.window().findChild<QTabWidget*>()->setCurrentIndex(1);
    checked.settle();
    QListView& list = checked.list();
    const QModelIndex first = list.model()->index(0, 0);
    list.setCurrentIndex(first);
    list.setFocus();
    if (byKey) hands::key(list, Qt::Key_Return, "\r");
    if (!byKey) hands::click(*list.viewport(), list.visualRect(first).center());
    checked.settle();
    EXPECT_EQ(checked.grid().keyRow(), 2) << byKey;
    EXPECT_EQ(checked.grid().keyCol(), 2) << byKey;
    EXPECT_EQ(checked.window().findChild<QTabWidget*>()->currentIndex(), 0) << byKey;
    EXPECT_EQ(checked.window().focusWidget(), &checked.view()) << byKey;
  }
}

TEST(FindingsPane, FoldedAwayItStaysSoAndGoesOnCounting) {
  CheckedScreen checked;
  EXPECT_FALSE(checked.pane().isFolded());
  checked.pane().findChild<QToolButton*>()->click();
  EXPECT_TRUE(checked.pane().isFolded());
  checked.open();
  EXPECT_TRUE(checked.pane().isFolded()) << "remembered";
  checked.type("5");
  EXPECT_EQ(checked.status(), "誤り 1、注意 0");
  checked.pane().findChild<QToolButton*>()->click();
  EXPECT_FALSE(checked.pane().isFolded());
}

TEST(CellMarks, TellOfAnEntryThatWaits) {
  CheckedScreen checked;
  const auto mark = [&] { return checked.view().indexOf(2, 2).data(qt::GridModel::MarkRole).toInt(); };
  EXPECT_EQ(mark(), static_cast<int>(ui::CellMark::None));
  checked.type("5");
  EXPECT_EQ(mark(), static_cast<int>(ui::CellMark::NotTaken));
  EXPECT_EQ(checked.view().indexOf(2, 2).data(Qt::ToolTipRole).toString(), "まだ計算に入っていません");
  EXPECT_TRUE(checked.view()
                  .indexOf(2, 2)
                  .data(Qt::AccessibleTextRole)
                  .toString()
                  .endsWith("5、まだ計算に入っていません"));
  const QImage waiting = checked.view().viewport()->grab().toImage();
  checked.type("\r");
  EXPECT_EQ(mark(), static_cast<int>(ui::CellMark::None));
  checked.grid().setCurrent(2, 2);
  checked.settle();
  EXPECT_NE(checked.view().viewport()->grab().toImage(), waiting);
}

TEST(StatusLine, TellsWhyACellIsWrong) {
  CheckedScreen checked;
  checked.grid().setContent(2, ui::Content::Number);
  checked.type("5x");
  EXPECT_TRUE(checked.window().findChild<QLabel*>("statusCell")->text().endsWith("数値ではありません"));
}

}  // namespace
