#include "picture/picture_window.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include "qt/convert.h"
#include "support/temporary_folder.h"

namespace {

QImage map() {
  QImage image(200, 100, QImage::Format_RGB32);
  image.fill(Qt::green);
  return image;
}

class PictureTool : public testing::Test {
 protected:
  PictureTool() : target(qt::toQString(folder.path("temp.bmp"))) {
    QGuiApplication::clipboard()->setImage(map());
  }
  ~PictureTool() override { QGuiApplication::clipboard()->clear(); }

  /// Opens the window, with room for the whole picture at its own size.
  void open() {
    window = std::make_unique<picture::PictureWindow>(target);
    window->resize(700, 500);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  picture::PictureView& view() const { return *window->findChild<picture::PictureView*>(); }
  QPushButton& button(const char* name) const {
    return *window->findChild<QPushButton*>(QString::fromLatin1(name));
  }
  void drag(const QPoint& from, const QPoint& to) const {
    QTest::mousePress(&view(), Qt::LeftButton, {}, view().placeOf(from));
    QMouseEvent move(QEvent::MouseMove, view().placeOf(to), view().mapToGlobal(view().placeOf(to)),
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view(), &move);
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, view().placeOf(to));
  }
  void press(const char* name) const { QTest::mouseClick(&button(name), Qt::LeftButton); }

  test::TemporaryFolder folder;
  QString target;
  std::unique_ptr<picture::PictureWindow> window;
};

TEST_F(PictureTool, WritesThePictureOfTheClipboardAndEnds) {
  open();
  press("paste");
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(QImage(target).size(), QSize(200, 100));
}

TEST_F(PictureTool, CutsOutWhatTheMouseHasMarked) {
  open();
  EXPECT_FALSE(button("cut").isEnabled());
  drag({10, 20}, {59, 44});
  EXPECT_EQ(view().mark(), QRect(10, 20, 50, 25));
  press("cut");
  press("paste");
  EXPECT_EQ(QImage(target).size(), QSize(50, 25));
}

TEST_F(PictureTool, ScalesByThePercentageThatIsTyped) {
  open();
  auto& percent = *window->findChild<QSpinBox*>();
  percent.setFocus();
  percent.selectAll();
  QTest::keyClicks(&percent, "50");
  press("paste");
  EXPECT_EQ(QImage(target).size(), QSize(100, 50));
}

// Ctrl makes steps of ten: the corner goes 20 left and 10 up, then the mark 5 right.
TEST_F(PictureTool, IsWorkedWithKeysAlone) {
  open();
  EXPECT_TRUE(view().hasFocus());
  QTest::keyClick(&view(), Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
  QTest::keyClick(&view(), Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
  QTest::keyClick(&view(), Qt::Key_Up, Qt::ShiftModifier | Qt::ControlModifier);
  for (int i = 0; i < 5; ++i) QTest::keyClick(&view(), Qt::Key_Right);
  EXPECT_EQ(view().mark(), QRect(5, 0, 180, 90));
  QTest::keyClick(&view(), Qt::Key_Return);
  EXPECT_EQ(window->picture().image().size(), QSize(180, 90));
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(window->picture().image().size(), QSize(200, 100));
  QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(view().mark(), QRect(0, 0, 200, 100));
  QTest::keyClick(&view(), Qt::Key_Escape);
  EXPECT_TRUE(view().mark().isEmpty());
  QTest::keyClick(&button("paste"), Qt::Key_Space);
  EXPECT_TRUE(QFile::exists(target));
}

TEST_F(PictureTool, WithoutAPictureThereIsNothingToPaste) {
  QGuiApplication::clipboard()->clear();
  open();
  EXPECT_FALSE(button("paste").isEnabled());
  const QString file = qt::toQString(folder.path("地図.png"));
  map().save(file);
  window->openFile(file);
  EXPECT_TRUE(button("paste").isEnabled());
  EXPECT_EQ(window->picture().image().size(), QSize(200, 100));
}

TEST_F(PictureTool, GivingUpLeavesNoPicture) {
  open();
  window->close();
  EXPECT_FALSE(QFile::exists(target));
}

TEST_F(PictureTool, SaysWhatCannotBeOpenedOrWritten) {
  target = qt::toQString(folder.path("no folder/temp.bmp"));
  open();
  const QSignalSpy words(window.get(), &picture::PictureWindow::complained);
  window->openFile(qt::toQString(folder.write("text.png", "no picture")));
  press("paste");
  ASSERT_EQ(words.count(), 2);
  EXPECT_TRUE(words[0][0].toString().startsWith(QStringLiteral("画像を開けません。")));
  EXPECT_TRUE(words[1][0].toString().startsWith(QStringLiteral("画像を保存できません。")));
  EXPECT_TRUE(window->isVisible()) << "the picture is not lost";
}

// Said once somebody can listen: the window takes the clipboard while it is made.
TEST_F(PictureTool, APictureOnTheClipboardThatIsTooLargeIsSaid) {
  QGuiApplication::clipboard()->setImage(QImage(32768, 1, QImage::Format_RGB32));
  window = std::make_unique<picture::PictureWindow>(target);
  QSignalSpy words(window.get(), &picture::PictureWindow::complained);
  ASSERT_TRUE(words.wait());
  EXPECT_TRUE(words[0][0].toString().startsWith(QStringLiteral("画像が大きすぎます(32768 × 1 ピクセル)。")));
  EXPECT_FALSE(button("paste").isEnabled());
}

TEST_F(PictureTool, ALargePictureIsMarkedInItsOwnPixels) {
  QGuiApplication::clipboard()->setImage(QImage(4000, 2000, QImage::Format_RGB32));
  open();
  drag({0, 0}, {3999, 1999});
  EXPECT_GE(view().mark().width(), 3980);
  EXPECT_GE(view().mark().height(), 1980);
}

// Started through a link it works beside the link.
TEST_F(PictureTool, LeavesItsPictureBesideItself) {
  folder.write("tool", "");
  ASSERT_TRUE(
      QFile::link(qt::toQString(folder.path("tool")), qt::toQString(folder.path("PicturePaste.exe"))));
  EXPECT_EQ(picture::pictureTarget(qt::toQString(folder.path("PicturePaste.exe"))), target);
  EXPECT_EQ(picture::pictureTarget(QStringLiteral("PicturePaste")),
            QCoreApplication::applicationDirPath() + QStringLiteral("/temp.bmp"));
}

}  // namespace
