#include "qt/convert.h"

#include <cmath>

namespace qt {
namespace {

constexpr int twipsPerPixel = 15;

}  // namespace

QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString toQString(char32_t character) { return QString::fromUcs4(&character, 1); }

std::string fromQString(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

int toPixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

int toTwips(int pixels) { return pixels * twipsPerPixel; }

QSize toPixels(float width, float height) { return {toPixels(width), toPixels(height)}; }

}  // namespace qt
