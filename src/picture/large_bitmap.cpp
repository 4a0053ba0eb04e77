#include "picture/large_bitmap.h"

#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <cstring>

#include "platform/bitmap_file.h"

namespace picture {
namespace {

constexpr qint64 stripBytes = 64 << 20;
constexpr qint64 stripArea = 128 << 20;  // pixels, half of what the toolkit's reader takes
constexpr qint64 longestTop = 1 << 20;   // head, masks and colours
constexpr int heightInHead = 22;         // bytes from the front

/// Puts strips, each a bitmap of its own with the head of the whole one, together.
class Strips {
 public:
  Strips(QFile& file, const platform::BitmapHead& head)
      : file_(file),
        size_(static_cast<int>(head.width), static_cast<int>(std::abs(head.height))),
        fromAbove_(head.height < 0),
        rowBytes_(static_cast<qint64>(head.rowBytes)),
        top_(file.read(static_cast<qint64>(head.pixelsAt))) {}

  QImage read() {
    const int rows =
        static_cast<int>(std::max<qint64>(1, std::min(stripBytes / rowBytes_, stripArea / size_.width())));
    for (int done = 0; done < size_.height(); done += rows)
      if (!add(done, std::min(rows, size_.height() - done))) return {};
    return whole_;
  }

 private:
  bool add(int done, int rows) {
    QByteArray bytes = top_;
    qToLittleEndian<qint32>(fromAbove_ ? -rows : rows, bytes.data() + heightInHead);
    bytes += file_.read(rowBytes_ * rows);
    const QImage strip = QImage::fromData(bytes, "BMP");
    if (strip.size() != QSize(size_.width(), rows) || !makeRoomFor(strip)) return false;
    const int first = fromAbove_ ? done : size_.height() - done - rows;
    for (int row = 0; row < rows; ++row)
      std::memcpy(whole_.scanLine(first + row), strip.constScanLine(row),
                  static_cast<std::size_t>(strip.bytesPerLine()));
    return true;
  }

  bool makeRoomFor(const QImage& strip) {
    if (!whole_.isNull()) return true;
    whole_ = QImage(size_, strip.format());
    whole_.setColorTable(strip.colorTable());
    return !whole_.isNull();
  }

  QFile& file_;
  const QSize size_;
  const bool fromAbove_;
  const qint64 rowBytes_;
  const QByteArray top_;
  QImage whole_;
};

}  // namespace

QImage readLargeBitmap(const QString& path) {
  const auto head = platform::bitmapHead(path.toStdString());
  if (!head || head->isOld || !head->isPlain || head->rowBytes == 0 || head->pixelsAt > longestTop) return {};
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? Strips(file, *head).read() : QImage();
}

}  // namespace picture
