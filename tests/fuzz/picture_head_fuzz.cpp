#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/bitmap_file.h"
#include "support/temporary_folder.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

/// What a head says agrees with itself, however large its numbers are.
void checkHead(const platform::BitmapHead& head) {
  require(head.fileSize() >= head.pixelBytes && head.fileSize() >= head.pixelsAt);
  const auto rows = static_cast<std::uint64_t>(std::abs(head.height));
  if (!head.isPlain || rows == 0) return;
  require(head.pixelBytes == UINT64_MAX || head.pixelBytes / rows == head.rowBytes);
  require(head.rowBytes % 4 == 0);
}

}  // namespace

/// Any bytes are taken as a picture's file: one is cut short that is empty, or that begins as a bitmap and
/// ends before its last row.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string file = folder.write("picture", bytes);
  const auto head = platform::bitmapHead(file);
  const bool isCut = platform::isCutShort(file);
  if (head) {
    checkHead(*head);
    require(isCut == (size < head->fileSize()));
  }
  if (size == 0) require(isCut);
  if (size > 0 && !bytes.starts_with("BM")) require(!isCut && !head);
  return 0;
}
