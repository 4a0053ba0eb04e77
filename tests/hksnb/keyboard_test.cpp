#include <gtest/gtest.h>

#include <QApplication>
#include <stdexcept>
#include <string>
#include <vector>

#include "hands/operator.h"
#include "hksnb/book_job.h"
#include "hksnb/screen.h"
#include "qt/application.h"
#include "qt/forms.h"
#include "qt/window_desktop.h"

namespace {

/// The variation book in its window, worked with keys alone.
class BookKeys : public testing::Test {
 protected:
  BookKeys() {
    job.twoRoutes();
    screen.load();
    desktop.show(screen);
    settle();
  }
  ~BookKeys() override { desktop.hide(screen); }

  void settle() {
    QApplication::processEvents();
    desktop.refresh();
    QApplication::processEvents();
  }

  QWidget& focus() {
    QWidget* focused = desktop.windowOf(screen)->focusWidget();
    if (focused == nullptr) throw std::logic_error("no widget has the keys");
    return *focused;
  }

  void key(int code, const QString& text = {}) {
    hands::key(focus(), code, text);
    settle();
  }

  void type(const QString& text) {
    for (const QChar character : text) key(0, character);
  }

  /// Goes to a control with the Tab key.
  void tabTo(const ui::Control& control) {
    const QObject* wanted = desktop.shown(control);
    for (int tabs = 0; tabs < 50; ++tabs) {
      if (&focus() == wanted) return;
      key(Qt::Key_Tab, "\t");
    }
    FAIL() << "Tab does not lead to " << control.name();
  }

  void press(const ui::Control& button) {
    tabTo(button);
    key(Qt::Key_Space, " ");
  }

  test::BookJob job;
  std::vector<std::string> boxes;  // texts of the message boxes
  qt::WindowDesktop desktop{
      qt::Opening::Design,
      {.ask = [this](QMessageBox& box) { boxes.push_back(box.text().toStdString()); },
       .failed = [this](std::exception_ptr error) { boxes.push_back(qt::describe(error)); },
       .settled = [] {},
       .sweep = [] {},
       .setUpForm = qt::setUpForm}};
  hksnb::fHHksb screen{job.context(), desktop};
};

TEST_F(BookKeys, LeadFromTheRoutesToTheSavedBookAndBack) {
  tabTo(screen.LstRosenNo1);
  key(Qt::Key_Down);
  press(screen.CmdExeC3);
  EXPECT_EQ(screen.LstRosenNo2.count(), 1);
  press(screen.CmdExeC2);
  EXPECT_EQ(screen.lblShoriShiji.text(), "処理B");
  EXPECT_EQ(&focus(), desktop.shown(screen.Grid1)) << "the grid is ready for typing";

  type("9.995\r10.9975\r");
  EXPECT_EQ(screen.Grid1.text(1, 9), "9.995");
  EXPECT_EQ(screen.Grid1.text(3, 9), "10.9975");
  tabTo(screen.LstHyousekiNo);
  key(Qt::Key_Down);
  press(screen.CmdExeD3);
  EXPECT_EQ(screen.lblStartNo.text(), "A");
  tabTo(screen.txtKansokuNen);
  type("2022");
  press(screen.cmdSetNen);
  press(screen.CmdHendryocal);
  EXPECT_EQ(screen.Grid1.text(0, 8), "観測成果:2022");
  EXPECT_EQ(screen.Grid1.text(3, 10), "3.0");  // 11.0005 − 10.9975

  press(screen.CmdExeD2);
  EXPECT_EQ(screen.lblShoriShiji.text(), "処理C");
  EXPECT_EQ(&focus(), desktop.shown(screen.txtHksnbNo)) << "the number comes first";
  type("1a2");
  EXPECT_EQ(screen.txtHksnbNo.text(), "2");
  press(screen.CmdExeE2);
  EXPECT_EQ(boxes, std::vector<std::string>{"保存しました"});
  press(screen.CmdExeE1);
  press(screen.CmdExeD1);
  EXPECT_EQ(screen.lblShoriShiji.text(), "処理A");
  tabTo(screen.LstHksnbNo);
}

TEST_F(BookKeys, TheTabsThemselvesNameTheStepToo) {
  hands::bringToFront(dynamic_cast<QTabWidget&>(*desktop.shown(screen.SSTab1)), 2);
  settle();
  EXPECT_EQ(screen.lblShoriShiji.text(), "処理C");
}

}  // namespace
