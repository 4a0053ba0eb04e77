#include "picture/picture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>

#include "picture/large_bitmap.h"
#include "platform/files.h"
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
  picture.take(QImage(20000, 1, QImage::Format_RGB32));
  picture.scale(400);
  EXPECT_EQ(picture.percent(), 163);  // 20000 · 1.63 = 32600 pixels, · 1.64 = 32800
  EXPECT_EQ(picture.image().size(), QSize(32600, 2));
}

// 16000 × 6000 are 96 million; 204 % of both sides are 399.5 million pixels, 205 % 403.4 million.
TEST_F(PictureOnItsWay, ItsAreaStaysWithinBoundsToo) {
  picture.take(QImage(16000, 6000, QImage::Format_Mono));
  picture.scale(400);
  EXPECT_EQ(picture.percent(), 204);
}

/// The head of a bitmap of 1 bit a pixel with two colours, 62 bytes.
std::string head(int width, int height) {
  const auto number = [](std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(i < 4 ? value >> (8 * i) & 0xFFU : 0U);
    return text;
  };
  const auto row = static_cast<std::uint32_t>((width + 31) / 32 * 4);
  return "BM" + number(62 + row * static_cast<std::uint32_t>(height), 4) + number(0, 4) + number(62, 4) +
         number(40, 4) + number(static_cast<std::uint32_t>(width), 4) +
         number(static_cast<std::uint32_t>(height), 4) + number(1, 2) + number(1, 2) + number(0, 24) +
         number(0x00FFFFFF, 4) + number(0, 4);
}

TEST_F(PictureOnItsWay, APictureOf20000By20000IsTakenAsItIs) {
  const std::string path = folder.write("large.bmp", head(20000, 20000));
  std::filesystem::resize_file(platform::nativePath(path), 62 + 2500ULL * 20000);  // 20000 / 8 bytes a row
  EXPECT_EQ(picture.open(qt::toQString(path)), QString());
  EXPECT_EQ(picture.image().size(), QSize(20000, 20000));
  EXPECT_EQ(picture.percent(), 100);
}

// Strips of 64 MB: 24 bits of 4000 pixels are 12,000 bytes a row, so the first strip ends in row 5592.
TEST_F(PictureOnItsWay, ALargeBitmapIsPutTogetherOfItsStrips) {
  QImage drawn(4000, 6000, QImage::Format_RGB32);
  drawn.fill(Qt::white);
  for (int y = 0; y < 6000; ++y) drawn.setPixelColor(y % 4000, y, Qt::red);
  const QString path = qt::toQString(folder.path("strips.bmp"));
  ASSERT_TRUE(drawn.save(path));
  EXPECT_EQ(picture::readLargeBitmap(path), QImage(path));
  // The same rows counted from above: the picture stands on its head.
  std::string bytes = *platform::readFile(folder.path("strips.bmp"));
  const std::int32_t height = -6000;
  std::memcpy(bytes.data() + 22, &height, 4);
  platform::writeFile(folder.path("strips.bmp"), bytes);
  EXPECT_EQ(picture::readLargeBitmap(path), drawn.mirrored().convertToFormat(QImage(path).format()));
}

TEST_F(PictureOnItsWay, ALargerPictureIsRefusedWithItsSize) {
  const std::string path = folder.write("larger.bmp", head(20001, 20000));
  EXPECT_EQ(
      picture.open(qt::toQString(path)),
      QStringLiteral(
          "画像が大きすぎます(20001 × 20000 ピクセル)。一辺 32767 ピクセル、全体で 4 億ピクセルまでです。"));
  EXPECT_NE(picture.take(QImage(32768, 1, QImage::Format_Mono)), QString());
  EXPECT_EQ(picture.image(), quarters());
}

// The toolkit would show what there is of it, and black below.
TEST_F(PictureOnItsWay, ABitmapThatIsCutShortIsRefused) {
  const std::string path = folder.path("cut.bmp");
  ASSERT_TRUE(quarters().save(qt::toQString(path)));
  const std::string whole = *platform::readFile(path);
  for (const std::size_t kept :
       {std::size_t{0}, std::size_t{1}, std::size_t{20}, std::size_t{54}, whole.size() - 1}) {
    platform::writeFile(path, whole.substr(0, kept));
    EXPECT_NE(picture.open(qt::toQString(path)), QString()) << kept;
  }
  EXPECT_EQ(picture.image(), quarters());
  platform::writeFile(path, whole);
  EXPECT_EQ(picture.open(qt::toQString(path)), QString());
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
  EXPECT_EQ(picture.open(qt::toQString(folder.write("text.png", "no picture"))),
            QStringLiteral("PNG、JPEG、BMP のどれでもありません。"));
  EXPECT_EQ(picture.open(qt::toQString(folder.path("missing.png"))),
            QStringLiteral("ファイルが見つかりません。"));
  EXPECT_EQ(picture.image(), quarters());
}

TEST_F(PictureOnItsWay, WhereItCannotBeWrittenItSaysWhy) {
  EXPECT_EQ(picture.write(qt::toQString(folder.path("no folder/temp.bmp"))),
            QStringLiteral("フォルダーがありません。"));
}

}  // namespace
