#pragma once

#include <QImage>
#include <QString>

namespace picture {

/// Reads a bitmap file (BMP) of any size, strip by strip: the toolkit's own reader stops at 16,384 × 16,384
/// pixels. Null where the file is no whole bitmap with its rows one after another, or where there is no
/// memory for it.
QImage readLargeBitmap(const QString& path);

}  // namespace picture
