#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/files.h"
#include "qt/desk.h"
#include "route/picture_paste.h"
#include "support/temporary_folder.h"
#include "support/tool.h"

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

/// A window whose button runs the picture-paste tool, here one that takes two seconds.
class PictureRoad : public testing::Test {
 protected:
  PictureRoad() : button(open.widget<QPushButton>(open.screen.cmdGo)) {
    test::placeTool(folder, "map_app/PicturePaste.exe", "sleep 2000\nwrite temp.bmp|map");
    context.gExeDir = folder.path() + "/";
    context.gJobId = "3";
    open.screen.SSTab1.setCurrent(1);
    open.settle();
    open.screen.events.clear();
    open.screen.cmdGo.onClick.handle([this] {
      ++runs;
      route::FcPicturePaste(open.desk.windows, context, context.gExeDir + "map_app/PicturePaste.exe",
                            "図.bmp");
    });
  }

  /// What the mouse does over the button, as the window system reports it: it waits in the queue.
  void clickFromOutside() {
    QWindow* window = open.window().windowHandle();
    const QPoint place = button.mapTo(&open.window(), button.rect().center());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      qt_handleMouseEvent(window, place, button.mapToGlobal(button.rect().center()),
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton,
                          type, {}, ++time);
  }

  OpenScreen open;
  QPushButton& button;
  test::TemporaryFolder folder;
  job::JobContext context;
  int runs = 0;
  int time = 1000;  // ms, of the window system
};

TEST_F(PictureRoad, AClickFromOutsideIsAPress) {
  open.screen.cmdGo.onClick.handle([this] { ++runs; });
  clickFromOutside();
  QApplication::processEvents();
  EXPECT_EQ(runs, 1);
}

TEST_F(PictureRoad, TheWindowRepaintsAndTakesNothingInWhileTheToolRuns) {
  PaintCounter counter(button);
  int turns = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    ++turns;
    button.update();
    clickFromOutside();
    open.window().close();
  });
  timer.start(100);
  button.click();
  timer.stop();
  QApplication::processEvents();
  EXPECT_GE(turns, 10) << "two seconds, a turn each tenth";
  EXPECT_GE(counter.paints, 10);
  EXPECT_EQ(runs, 1) << "nor later, when the tool has ended";
  EXPECT_TRUE(open.window().isVisible());
  EXPECT_TRUE(open.screen.events.empty());
  EXPECT_TRUE(open.desk.boxes.empty());
  EXPECT_EQ(platform::readFile(folder.path("3/bmp_data/図.bmp")), "map");
}

}  // namespace
