#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

// What the first bytes of a bitmap file (BMP) say. Source: Microsoft, "Bitmap Storage" (BITMAPFILEHEADER,
// BITMAPCOREHEADER, BITMAPINFOHEADER).

/// The head of a bitmap file.
struct BitmapHead {
  std::uint64_t pixelsAt = 0;    ///< where the pixels begin, in bytes from the front
  bool isOld = false;            ///< the head of 12 bytes, with 16 bits for each side
  std::int64_t width = 0;        ///< pixels
  std::int64_t height = 0;       ///< pixels; negative where the rows come from above
  bool isPlain = true;           ///< the pixels stand row after row, not packed
  std::uint64_t rowBytes = 0;    ///< bytes of a plain row
  std::uint64_t pixelBytes = 0;  ///< bytes of all pixels

  /// What stands for more bytes than can be counted.
  static constexpr std::uint64_t mostBytes = UINT64_MAX;

  /// How many bytes the file has at least.
  std::uint64_t fileSize() const {
    return pixelBytes > mostBytes - pixelsAt ? mostBytes : pixelsAt + pixelBytes;
  }
};

/// The head of the bitmap file at `path`; nothing where there is none of a known form.
std::optional<BitmapHead> bitmapHead(std::string_view path);

/// True where the file at `path` cannot hold the whole picture that it begins: it is empty or cannot be read,
/// or it begins as a bitmap and ends before its last row of pixels. What kind of file it is otherwise is not
/// asked: one that does not begin as a bitmap is never cut short.
bool isCutShort(std::string_view path);

}  // namespace platform
