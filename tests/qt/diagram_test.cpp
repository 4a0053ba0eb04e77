#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTest>
#include <QToolBar>
#include <QWheelEvent>

#include "hksnb/book_job.h"
#include "hksnb/screen.h"
#include "platform/files.h"
#include "qt/diagram_window.h"
#include "qt/forms.h"
#include "qt/window_desktop.h"

namespace {

/// A book with amounts in its window, and its diagram.
class LiveDiagram : public testing::Test {
 protected:
  LiveDiagram() {
    job.twoRoutes();
    screen.load();
    desk.show(screen);
    screen.LstRosenNo1.choose(0);
    screen.CmdExeC3.press();
    desk.act([this] { screen.CmdExeC2.press(); });
    type(1, "9.999");
    type(3, "11.003");
    desk.act([this] { screen.CmdHendryocal.press(); });
    act(QStringLiteral("変動図(&F)"), fileMenu());
    settle();
  }
  ~LiveDiagram() override { desk.hide(screen); }

  void type(int row, const char* previous) {
    screen.Grid1.click(row, 9);
    for (const char* c = previous; *c != 0; ++c) screen.Grid1.pressKey(static_cast<unsigned char>(*c));
  }

  void settle() {
    for (int turn = 0; turn < 5; ++turn) QApplication::processEvents();
  }

  QList<QAction*> fileMenu() {
    return qobject_cast<QMenuBar*>(desk.windowOf(screen)->menuWidget())->actions().first()->menu()->actions();
  }
  static void act(const QString& text, const QList<QAction*>& actions) {
    for (QAction* action : actions)
      if (action->text() == text) return action->trigger();
    FAIL() << text.toStdString();
  }

  qt::DiagramWindow& window() { return *desk.windowOf(screen)->findChild<qt::DiagramWindow*>(); }
  qt::DiagramView& view() { return window().view(); }

  /// Where the mark of a grid row stands in the view.
  QPoint markOf(int row) {
    const report::Figure figure = screen.diagram(window().wish());
    for (const report::Shape& shape : figure.drawing.shapes)
      if (const auto* mark = std::get_if<report::Mark>(&shape))
        if (mark->row == row) return view().onView(mark->at).toPoint();
    return {};
  }

  void turnWheel(QPoint at, int steps) {
    QWheelEvent event(at, view().viewport()->mapToGlobal(at), {}, QPoint(0, 120 * steps), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view().viewport(), &event);
  }

  test::BookJob job;
  std::vector<std::string> boxes;
  qt::WindowDesktop desk{qt::Opening::Design,
                         {.ask = [this](QMessageBox& box) { boxes.push_back(box.text().toStdString()); },
                          .failed = [](std::exception_ptr) {},
                          .settled = [] {},
                          .sweep = [] {},
                          .setUpForm = qt::setUpForm}};
  hksnb::fHHksb screen{job.context(), desk};
};

TEST_F(LiveDiagram, TellsTheBenchMarkUnderThePointer) {
  // B stands at 11.0005: 11.0005 − 11.003 = −2.5 mm.
  EXPECT_EQ(qt::DiagramView::tell(view().marksAt(markOf(3))).toStdString(), "B  変動量 -2.5 mm");
  EXPECT_TRUE(view().marksAt(QPointF(1, 1)).empty());
}

TEST_F(LiveDiagram, AClickLeadsToTheRowOfTheTable) {
  screen.Grid1.moveTo(5, 9);
  desk.act([this] { screen.SSTab1.setCurrent(0); });
  QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, markOf(3));
  settle();
  EXPECT_EQ(screen.Grid1.row(), 3);
  EXPECT_EQ(screen.SSTab1.current(), 1) << "the page of the table comes to the front";
}

TEST_F(LiveDiagram, DraggingIsNoClick) {
  screen.Grid1.moveTo(5, 9);
  QTest::mousePress(view().viewport(), Qt::LeftButton, {}, markOf(3));
  QTest::mouseMove(view().viewport(), markOf(3) + QPoint(60, 0));
  QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, markOf(3) + QPoint(60, 0));
  EXPECT_EQ(screen.Grid1.row(), 5);
}

TEST_F(LiveDiagram, TheWheelComesNearerToWhatIsUnderThePointer) {
  const double whole = view().scale();
  const QPoint at = markOf(3);
  turnWheel(at, 3);
  EXPECT_NEAR(view().scale(), whole * 1.25 * 1.25 * 1.25, 1e-9);
  EXPECT_NEAR((markOf(3) - at).manhattanLength(), 0, 2);
  turnWheel(at, -10);
  EXPECT_NEAR(view().scale(), whole, 1e-9) << "never smaller than the whole";
  QTest::keyClick(&view(), Qt::Key_Plus);
  EXPECT_NEAR(view().scale(), whole * 1.25, 1e-9);
  QTest::keyClick(&view(), Qt::Key_0);
  EXPECT_NEAR(view().scale(), whole, 1e-9);
}

TEST_F(LiveDiagram, FollowsTheTable) {
  const QPoint before = markOf(1);
  EXPECT_FALSE(view().marksAt(before).empty());
  type(5, "12.9");  // C at 13.0002: 100.2 mm, so the scale becomes another
  desk.act([this] { screen.CmdHendryocal.press(); });
  settle();
  EXPECT_EQ(qt::DiagramView::tell(view().marksAt(markOf(5))).toStdString(), "C  変動量 100.2 mm");
  EXPECT_TRUE(view().marksAt(before).empty());
}

TEST_F(LiveDiagram, OffersTheBenchMarksWithAmountsAsFixedPoints) {
  auto& fixed = *window().findChild<QComboBox*>(QStringLiteral("fixedPoint"));
  ASSERT_EQ(fixed.count(), 3) << "none, A and B";
  fixed.setCurrentIndex(2);
  emit fixed.activated(2);
  EXPECT_EQ(window().wish().fixedRow, 3);
  EXPECT_EQ(qt::DiagramView::tell(view().marksAt(markOf(3))).toStdString(), "B  変動量 0.0 mm");
  // A: 1.0 − (−2.5).
  EXPECT_EQ(qt::DiagramView::tell(view().marksAt(markOf(1))).toStdString(), "A  変動量 3.5 mm");
}

TEST_F(LiveDiagram, StandsInEqualStepsByChoice) {
  window().findChild<QCheckBox*>(QStringLiteral("equalSteps"))->setChecked(true);
  EXPECT_TRUE(window().wish().equalSteps);
}

TEST_F(LiveDiagram, IsFiledWhereThePicturePasteToolsPicturesAre) {
  screen.txtHksnbNo.edit("12");
  act(QStringLiteral("図を登録"), window().findChild<QToolBar*>()->actions());
  const auto filed =
      platform::readFile(job.context().gExeDir + job.context().gJobId + "\\bmp_data\\成果変動図正標高12.bmp");
  ASSERT_TRUE(filed);
  EXPECT_EQ(filed->substr(0, 2), "BM");
  // A lying page of A4 at 150 dots to the inch: 2970 / 254 × 150 = 1753.9, 2100 / 254 × 150 = 1240.2.
  const QImage picture = QImage::fromData(QByteArray::fromStdString(*filed));
  EXPECT_EQ(picture.size(), QSize(1754, 1241));
  EXPECT_EQ(boxes, std::vector<std::string>{"図を「成果変動図正標高12.bmp」として登録しました"});
}

TEST_F(LiveDiagram, ClosesWithTheScreen) {
  const QPointer<qt::DiagramWindow> shown(&window());
  desk.hide(screen);
  desk.sweep();
  settle();
  EXPECT_TRUE(shown.isNull());
}

}  // namespace
