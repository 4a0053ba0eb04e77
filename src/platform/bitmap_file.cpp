#include "platform/bitmap_file.h"

#include <algorithm>
#include <fstream>
#include <string>

#include "platform/files.h"

namespace platform {
namespace {

// Where the fields of the head stand, counted from the front of the file.
constexpr std::size_t atPixels = 10;    // where the pixels begin
constexpr std::size_t atInfoSize = 14;  // of the second part of the head, which says its form
constexpr std::size_t longestHead = 54;

constexpr std::uint32_t oldInfo = 12;
constexpr std::uint32_t smallestInfo = 40;
constexpr std::uint32_t largestInfo = 124;

// How the pixels are packed.
constexpr std::uint32_t notAtAll = 0;
constexpr std::uint32_t withMasks = 3;      // row after row, colours by masks
constexpr std::uint32_t withFourMasks = 6;  // the same with one for transparency

/// A number of up to four bytes, the lowest first; bytes beyond the end are 0.
std::uint32_t number(std::string_view bytes, std::size_t at, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t i = count; i-- > 0;)
    value = value << 8U | (at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : 0U);
  return value;
}

std::string firstBytes(std::string_view path) {
  std::ifstream file(nativePath(path), std::ios::binary);
  std::string bytes(longestHead, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

bool beginsAsBitmap(std::string_view bytes) { return bytes.starts_with("BM"); }

/// Too short for any head; but a line of text that happens to begin with the two letters is none.
bool isBroken(std::string_view bytes) {
  const bool isText =
      std::all_of(bytes.begin(), bytes.end(), [](unsigned char c) { return c >= ' ' || c == '\n'; });
  return bytes.size() < atInfoSize + oldInfo && (bytes.size() < 4 || !isText);
}

/// Rows are filled up to whole groups of four bytes.
void countPlainRows(BitmapHead& head, std::uint32_t bits) {
  head.rowBytes = (static_cast<std::uint64_t>(head.width) * bits + 31) / 32 * 4;
  const auto rows = static_cast<std::uint64_t>(std::abs(head.height));
  const bool countable = rows == 0 || head.rowBytes <= BitmapHead::mostBytes / rows;
  head.pixelBytes = countable ? head.rowBytes * rows : BitmapHead::mostBytes;
}

std::optional<BitmapHead> headOf(std::string_view bytes) {
  const std::uint32_t info = number(bytes, atInfoSize, 4);
  BitmapHead head;
  head.pixelsAt = number(bytes, atPixels, 4);
  head.isOld = info == oldInfo;
  if (head.isOld) {
    head.width = number(bytes, 18, 2);
    head.height = number(bytes, 20, 2);
    countPlainRows(head, number(bytes, 24, 2));
    return head;
  }
  if (info < smallestInfo || info > largestInfo) return std::nullopt;
  head.width = number(bytes, 18, 4);
  head.height = static_cast<std::int32_t>(number(bytes, 22, 4));
  const std::uint32_t packing = number(bytes, 30, 4);
  head.isPlain = packing == notAtAll || packing == withMasks || packing == withFourMasks;
  if (head.isPlain)
    countPlainRows(head, number(bytes, 28, 2));
  else
    head.pixelBytes = number(bytes, 34, 4);
  return head;
}

}  // namespace

std::optional<BitmapHead> bitmapHead(std::string_view path) {
  const std::string bytes = firstBytes(path);
  return beginsAsBitmap(bytes) && !isBroken(bytes) ? headOf(bytes) : std::nullopt;
}

bool isCutShort(std::string_view path) {
  const std::string bytes = firstBytes(path);
  if (bytes.empty()) return true;
  if (!beginsAsBitmap(bytes)) return false;
  if (isBroken(bytes)) return true;
  const auto head = headOf(bytes);
  const auto state = fileState(path);
  return !state || (head && state->size < head->fileSize());
}

}  // namespace platform
