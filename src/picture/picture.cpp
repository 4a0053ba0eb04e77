#include "picture/picture.h"

#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>

namespace picture {
namespace {

QImage onWhite(const QImage& picture) {
  QImage result(picture.size(), QImage::Format_RGB32);
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

void Picture::take(const QImage& picture) {
  QImage source = picture;
  source.setDevicePixelRatio(1);
  enter({source, 100});
}

QString Picture::open(const QString& path) {
  QImageReader reader(path);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  const QImage read = reader.read();
  if (read.isNull()) return reader.errorString();
  take(read);
  return {};
}

void Picture::crop(const QRect& part) {
  const QRect inside = part.intersected(image_.rect());
  if (inside.isEmpty() || inside == image_.rect()) return;
  const QRect cut = mapped(inside, image_.size(), state_.source.size());
  enter({state_.source.copy(cut), state_.percent});
}

void Picture::scale(int percent) {
  const int next = allowed(state_.source, percent);
  if (!isEmpty() && next != state_.percent) enter({state_.source, next});
}

int Picture::allowed(const QImage& source, int percent) {
  const int side = std::max({source.width(), source.height(), 1});
  const int most = std::clamp(100 * largestSide / side, smallestPercent, largestPercent);
  return std::clamp(percent, smallestPercent, most);
}

void Picture::undo() {
  if (past_.empty()) return;
  state_ = past_.back();
  past_.pop_back();
  show();
}

void Picture::enter(const State& next) {
  past_.push_back(state_);
  state_ = {next.source, allowed(next.source, next.percent)};
  show();
}

void Picture::show() {
  const QSize size = (state_.source.size() * (state_.percent / 100.0)).expandedTo(QSize(1, 1));
  image_ = state_.percent == 100 || isEmpty()
               ? state_.source
               : state_.source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QString Picture::write(const QString& path) const {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  QImageWriter writer(&file, "bmp");
  if (!writer.write(onWhite(image_))) return writer.errorString();
  return file.commit() ? QString() : file.errorString();
}

}  // namespace picture
