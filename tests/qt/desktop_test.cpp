#include <gtest/gtest.h>

#include <QPushButton>
#include <memory>
#include <stdexcept>

#include "hands/operator.h"
#include "qt/desk.h"
#include "text/error.h"

namespace {

using Strings = std::vector<std::string>;

TEST(WindowDesktop, OpensAtTheDesignSize) {
  OpenScreen open;
  EXPECT_EQ(open.window().clientSize(), QSize(400, 300));  // 6000 × 4500 twips
  EXPECT_TRUE(open.window().isVisible());
}

TEST(WindowDesktop, GivesTheScreenTheTwipsOfItsNewSize) {
  OpenScreen open;
  open.window().resize(open.window().size() + QSize(20, 10));
  open.settle();
  EXPECT_EQ(open.screen.events, Strings{"resize 6300 4650"});
  EXPECT_EQ(open.widget<QWidget>(open.screen.SSTab1).size(), QSize(390, 280));
}

TEST(WindowDesktop, KeepsTwipsThatAreNoWholePixels) {
  OpenScreen open;
  open.window().resizeClient(7007, 5008);
  open.settle();
  EXPECT_EQ(open.screen.events, Strings{"resize 7007 5008"});
  EXPECT_EQ(open.window().clientSize(), QSize(467, 334));  // 467.1 × 333.9 pixels
}

TEST(WindowDesktop, TheCloseBoxUnloadsTheScreen) {
  OpenScreen open;
  open.screen.whenUnloaded([&](ui::Screen& gone) { open.desk.windows.hide(gone); });
  open.window().close();
  EXPECT_EQ(open.screen.events, Strings{"unload"});
  EXPECT_EQ(open.desk.windows.windowOf(open.screen), nullptr);
  EXPECT_EQ(open.desk.sweeps, 0) << "not within the event";
  QApplication::processEvents();
  EXPECT_EQ(open.desk.sweeps, 1);
}

TEST(WindowDesktop, AWindowThatLetGoLeavesItsScreenAlone) {
  Desk desk;
  auto screen = std::make_unique<EveryKind>(desk.windows);
  screen->load();
  desk.windows.show(*screen);
  screen->cmdGo.onClick.handle([&] { desk.windows.hide(*screen); });
  hands::press(*desk.windows.shown(screen->cmdGo));
  screen->Grid1.setText(1, 0, "読まれない");
  screen.reset();
  QApplication::processEvents();
  EXPECT_EQ(desk.sweeps, 1);
}

TEST(WindowDesktop, AnUntrappedErrorEndsTheActsNotTheEventLoop) {
  OpenScreen open;
  open.screen.cmdGo.onClick.handle([] { throw text::RuntimeError(text::ErrorCode::Overflow); });
  auto& button = open.widget<QPushButton>(open.screen.cmdGo);
  open.screen.SSTab1.setCurrent(1);
  open.settle();
  EXPECT_NO_THROW(hands::press(button));
  EXPECT_EQ(open.desk.failures, Strings{"オーバーフローしました。"});
  hands::press(*open.desk.windows.shown(open.screen.clearItem));
  EXPECT_TRUE(open.screen.events.empty());
}

TEST(WindowDesktop, ShowsWhatHasChangedBeforeItAsks) {
  OpenScreen open;
  open.screen.lblName.setText("途中");
  open.desk.windows.message({"FcDBOpen", "説明", ui::Icon::Critical});
  EXPECT_EQ(open.desk.boxes, Strings{"FcDBOpen|説明"});
  EXPECT_EQ(open.widget<QWidget>(open.screen.lblName).property("text").toString(), "途中");
}

TEST(WindowDesktop, ThePointerOfAMessageBoxIsNoHourglass) {
  OpenScreen open;
  open.desk.windows.setMousePointer(ui::Pointer::Hourglass);
  open.desk.windows.setMousePointer(ui::Pointer::Hourglass);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  open.desk.windows.message({{}, "保存しました", ui::Icon::None});
  EXPECT_NE(QApplication::overrideCursor(), nullptr) << "back after the answer";
  open.desk.windows.setMousePointer(ui::Pointer::Default);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(WindowDesktop, TakesNoActWhileOneIsUnderWay) {
  OpenScreen open;
  open.screen.SSTab1.setCurrent(1);
  open.settle();
  auto& button = open.widget<QPushButton>(open.screen.cmdGo);
  int presses = 0;
  open.screen.cmdGo.onClick.handle([&] {
    if (++presses < 5) button.click();
  });
  button.click();
  EXPECT_EQ(presses, 1);
}

TEST(WindowDesktop, CatchesUpASizeThatCameDuringAnAct) {
  OpenScreen open;
  open.screen.cmdGo.onClick.handle([&] {
    open.window().resize(open.window().size() + QSize(2, 0));
    open.screen.events.push_back("still busy");
  });
  open.widget<QPushButton>(open.screen.cmdGo).click();
  EXPECT_EQ(open.screen.events, (Strings{"still busy", "resize 6030 4500"}));
}

TEST(WindowDesktop, AScreenOpensAsTheOperatorLeftIt) {
  Desk desk(qt::Opening::Comfortable);
  EveryKind first(desk.windows);
  EveryKind second(desk.windows);
  desk.windows.show(first);
  EXPECT_GT(desk.windows.windowOf(first)->clientSize().width(), 400)
      << "larger than designed, where there is room";
  desk.windows.windowOf(first)->resizeClient(10500, 7500);
  desk.windows.hide(first);
  desk.windows.show(second);
  EXPECT_EQ(desk.windows.windowOf(second)->clientSize(), QSize(700, 500));
  desk.windows.hide(second);
}

TEST(Application, HandsErrorsOfEventHandlersToItsOwner) {
  struct Thrower : QObject {
    bool event(QEvent*) override { throw std::runtime_error("訳"); }
  } thrower;
  std::string caught;
  auto& application = dynamic_cast<qt::Application&>(*QCoreApplication::instance());
  application.whenFailed([&](std::exception_ptr error) { caught = qt::describe(error); });
  QEvent event(QEvent::User);
  QCoreApplication::sendEvent(&thrower, &event);
  application.whenFailed({});
  EXPECT_EQ(caught, "訳");
}

}  // namespace
