#include "picture/picture.h"

#include <gtest/gtest.h>

#include <QFile>

#include "qt/convert.h"
#include "support/temporary_folder.h"

namespace {

/// 40 × 20: a red, a green, a blue and a yellow quarter.
QImage quarters() {
  QImage image(40, 20, QImage::Format_RGB32);
  for (int y = 0; y < 20; ++y)
    for (int x = 0; x < 40; ++x)
      image.setPixelColor(x, y, y < 10 ? (x < 20 ? Qt::red : Qt::green) : (x < 20 ? Qt::blue : Qt::yellow));
  return image;
}

class PictureOnItsWay : public testing::Test {
 protected:
  PictureOnItsWay() { picture.take(quarters()); }

  QColor at(int x, int y) const { return picture.image().pixelColor(x, y); }

  test::TemporaryFolder folder;
  picture::Picture picture;
};

TEST_F(PictureOnItsWay, IsCutOut) {
  picture.crop({15, 5, 10, 10});
  EXPECT_EQ(picture.image().size(), QSize(10, 10));
  EXPECT_EQ(at(0, 0), QColor(Qt::red));
  EXPECT_EQ(at(9, 0), QColor(Qt::green));
  EXPECT_EQ(at(0, 9), QColor(Qt::blue));
  EXPECT_EQ(at(9, 9), QColor(Qt::yellow));
}

TEST_F(PictureOnItsWay, CuttingStaysWithinThePicture) {
  picture.crop({30, 10, 100, 100});
  EXPECT_EQ(picture.image().size(), QSize(10, 10));
  picture.crop({50, 50, 5, 5});
  EXPECT_EQ(picture.image().size(), QSize(10, 10)) << "nothing of it lies inside";
  picture.crop({0, 0, 0, 5});
  EXPECT_EQ(picture.image().size(), QSize(10, 10));
}

TEST_F(PictureOnItsWay, IsScaledByAPercentageOfItsOwnSize) {
  picture.scale(50);
  EXPECT_EQ(picture.image().size(), QSize(20, 10));
  picture.scale(200);
  EXPECT_EQ(picture.image().size(), QSize(80, 40)) << "of 40 × 20, not of 20 × 10";
  picture.scale(100);
  EXPECT_EQ(picture.image(), quarters()) << "no sharpness is lost on the way";
}

TEST_F(PictureOnItsWay, PercentagesStayWithinBounds) {
  picture.scale(0);
  EXPECT_EQ(picture.percent(), 5);
  picture.scale(1000);
  EXPECT_EQ(picture.percent(), 400);
  picture.take(QImage(8000, 1, QImage::Format_RGB32));
  picture.scale(400);
  EXPECT_EQ(picture.percent(), 125);  // 8000 · 1.25 = 10000 pixels
  EXPECT_EQ(picture.image().size(), QSize(10000, 1));
}

// At 50 % the pixels 10 to 14 are those from 20 to 29 of the picture as it came.
TEST_F(PictureOnItsWay, CuttingAScaledPictureKeepsItsOwnPixels) {
  picture.scale(50);
  picture.crop({10, 0, 5, 5});
  EXPECT_EQ(picture.image().size(), QSize(5, 5));
  picture.scale(100);
  EXPECT_EQ(picture.image().size(), QSize(10, 10));
  EXPECT_EQ(at(0, 0), QColor(Qt::green));
  EXPECT_EQ(at(9, 9), QColor(Qt::green));
}

TEST_F(PictureOnItsWay, EveryStepIsUndone) {
  picture.crop({0, 0, 10, 10});
  picture.scale(50);
  picture.undo();
  EXPECT_EQ(picture.image().size(), QSize(10, 10));
  picture.undo();
  EXPECT_EQ(picture.image(), quarters());
  picture.undo();
  EXPECT_TRUE(picture.isEmpty());
  EXPECT_FALSE(picture.canUndo());
}

TEST_F(PictureOnItsWay, IsWrittenAsABmpOnWhite) {
  QImage half(2, 1, QImage::Format_ARGB32);
  half.setPixelColor(0, 0, QColor(255, 0, 0, 255));
  half.setPixelColor(1, 0, QColor(0, 0, 0, 0));
  picture.take(half);
  const QString path = qt::toQString(folder.path("絵 1.bmp"));
  EXPECT_EQ(picture.write(path), QString());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.read(2), QByteArray("BM"));
  const QImage read(path);
  EXPECT_EQ(read.pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(read.pixelColor(1, 0), QColor(Qt::white));
}

TEST_F(PictureOnItsWay, OpensThreeKindsOfFiles) {
  for (const char* name : {"地図.png", "地図.bmp", "地図.jpg"}) {
    const QString path = qt::toQString(folder.path(name));
    ASSERT_TRUE(quarters().save(path)) << name;
    EXPECT_EQ(picture.open(path), QString()) << name;
    EXPECT_EQ(picture.image().size(), QSize(40, 20)) << name;
    EXPECT_GT(at(2, 2).red(), 200) << name;
  }
}

TEST_F(PictureOnItsWay, AFileThatIsNoPictureChangesNothing) {
  EXPECT_NE(picture.open(qt::toQString(folder.write("text.png", "no picture"))), QString());
  EXPECT_NE(picture.open(qt::toQString(folder.path("missing.png"))), QString());
  EXPECT_EQ(picture.image(), quarters());
}

TEST_F(PictureOnItsWay, WhereItCannotBeWrittenItSaysWhy) {
  EXPECT_NE(picture.write(qt::toQString(folder.path("no folder/temp.bmp"))), QString());
}

}  // namespace
