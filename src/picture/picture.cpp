#include "picture/picture.h"

#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <limits>

#include "picture/large_bitmap.h"
#include "platform/bitmap_file.h"
#include "platform/files.h"
#include "platform/write_obstacle.h"

namespace picture {
namespace {

QString noMemory() { return QStringLiteral("メモリが不足しています。もっと小さい画像にしてください。"); }

QString tooLarge(const QSize& size) {
  return QStringLiteral(
             "画像が大きすぎます(%1 × %2 ピクセル)。一辺 %3 ピクセル、全体で %4 億ピクセルまでです。")
      .arg(size.width())
      .arg(size.height())
      .arg(Picture::largestSide)
      .arg(Picture::largestArea / 100'000'000);
}

bool isTooLarge(const QSize& size) {
  return std::max(size.width(), size.height()) > Picture::largestSide ||
         qint64{size.width()} * size.height() > Picture::largestArea;
}

/// What a reader found wrong.
QString fault(QImageReader::ImageReaderError error) {
  switch (error) {
    case QImageReader::FileNotFoundError:
      return QStringLiteral("ファイルが見つかりません。");
    case QImageReader::DeviceError:
      return QStringLiteral("ファイルを読めません。");
    case QImageReader::UnsupportedFormatError:
      return QStringLiteral("PNG、JPEG、BMP のどれでもありません。");
    default:
      return QStringLiteral("画像が壊れているか、途中で切れています。");
  }
}

/// Why the file of a picture could not be written.
QString obstacle(const QString& path, const QSize& size) {
  const auto bytes =
      static_cast<std::uintmax_t>(size.width()) * static_cast<std::uintmax_t>(size.height()) * 3;
  return QString::fromStdString(platform::wordsFor(platform::writeObstacle(path.toStdString(), bytes)));
}

/// The size of a picture in its file. Of a bitmap its head tells it, which may be larger than the reader
/// likes.
QSize sizeIn(const QImageReader& reader, const QString& path) {
  const auto head = platform::bitmapHead(path.toStdString());
  if (!head) return reader.size();
  const auto side = [](std::int64_t pixels) {
    return static_cast<int>(std::min<std::int64_t>(std::abs(pixels), std::numeric_limits<int>::max()));
  };
  return {side(head->width), side(head->height)};
}

/// Null where there is no memory for it. A picture that has no transparency is written as it is.
QImage onWhite(const QImage& picture) {
  if (picture.format() == QImage::Format_RGB32) return picture;
  QImage result(picture.size(), QImage::Format_RGB32);
  if (result.isNull()) return result;
  result.fill(Qt::white);
  QPainter(&result).drawImage(0, 0, picture);
  return result;
}

/// A rectangle in pixels of a picture of `from` as one in pixels of the same picture in size `to`; every
/// pixel that it touches counts.
QRect mapped(const QRect& part, const QSize& from, const QSize& to) {
  const auto low = [](int at, int of, int in) { return static_cast<int>(qint64{at} * in / of); };
  const auto high = [](int at, int of, int in) { return static_cast<int>((qint64{at} * in + of - 1) / of); };
  const int left = low(part.left(), from.width(), to.width());
  const int top = low(part.top(), from.height(), to.height());
  const int right = high(part.left() + part.width(), from.width(), to.width());
  const int bottom = high(part.top() + part.height(), from.height(), to.height());
  return {left, top, right - left, bottom - top};
}

}  // namespace

QString Picture::take(const QImage& picture) {
  if (isTooLarge(picture.size())) return tooLarge(picture.size());
  QImage source = picture;
  source.setDevicePixelRatio(1);
  return enter({source, 100});
}

QString Picture::open(const QString& path) {
  QImageReader::setAllocationLimit(0);  // the size is looked at here
  QImageReader reader(path);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  const QSize size = sizeIn(reader, path);
  if (isTooLarge(size)) return tooLarge(size);
  if (size.isValid() && platform::isCutShort(path.toStdString()))
    return fault(QImageReader::InvalidDataError);
  QImage read = reader.read();
  if (read.isNull()) read = readLargeBitmap(path);
  if (!read.isNull()) return take(read);
  const bool isSound = size.isValid() && QImage(size, QImage::Format_RGB32).isNull();
  return isSound ? noMemory() : fault(reader.error());
}

QString Picture::crop(const QRect& part) {
  const QRect inside = part.intersected(image_.rect());
  if (inside.isEmpty() || inside == image_.rect()) return {};
  const QRect cut = mapped(inside, image_.size(), state_.source.size());
  const QImage source = state_.source.copy(cut);
  return source.isNull() ? noMemory() : enter({source, state_.percent});
}

QString Picture::scale(int percent) {
  const int next = allowed(state_.source.size(), percent);
  return isEmpty() || next == state_.percent ? QString() : enter({state_.source, next});
}

int Picture::allowed(const QSize& size, int percent) {
  const double side = std::max({size.width(), size.height(), 1});
  const double area = std::max(1.0, double(size.width()) * size.height());
  const double most = 100 * std::min(largestSide / side, std::sqrt(double(largestArea) / area));
  return std::clamp(percent, smallestPercent,
                    std::clamp(static_cast<int>(most), smallestPercent, largestPercent));
}

void Picture::undo() {
  if (past_.empty()) return;
  const QImage image = scaled(past_.back());
  if (image.isNull() && !past_.back().source.isNull()) return;
  state_ = past_.back();
  past_.pop_back();
  image_ = image;
}

QString Picture::enter(State next) {
  next.percent = allowed(next.source.size(), next.percent);
  const QImage image = scaled(next);
  if (image.isNull() && !next.source.isNull()) return noMemory();
  past_.push_back(state_);
  state_ = next;
  image_ = image;
  return {};
}

/// The picture in its size; null where there is none, or no memory for it.
QImage Picture::scaled(const State& state) {
  if (state.percent == 100 || state.source.isNull()) return state.source;
  const QSize size = (state.source.size() * (state.percent / 100.0)).expandedTo(QSize(1, 1));
  return state.source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QString Picture::write(const QString& path) const {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return obstacle(path, image_.size());
  const QImage picture = onWhite(image_);
  if (picture.isNull()) return noMemory();
  QImageWriter writer(&file, "bmp");
  const bool isWhole = writer.write(picture) && file.commit();
  return isWhole ? QString() : obstacle(path, image_.size());
}

}  // namespace picture
