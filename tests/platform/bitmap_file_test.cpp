#include "platform/bitmap_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "support/temporary_folder.h"

namespace {

std::string number(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(i < 4 ? value >> (8 * i) & 0xFFU : 0U);
  return text;
}

/// A bitmap with a head of 40 bytes; its size in the head is wrong on purpose, as some programs leave it 0.
std::string bitmap(std::int32_t width, std::int32_t height, std::uint32_t bits, std::uint32_t compression,
                   std::uint32_t imageSize, std::size_t pixels) {
  return "BM" + number(0, 8) + number(54, 4) + number(40, 4) + number(static_cast<std::uint32_t>(width), 4) +
         number(static_cast<std::uint32_t>(height), 4) + number(1, 2) + number(bits, 2) +
         number(compression, 4) + number(imageSize, 4) + number(0, 16) + std::string(pixels, 'x');
}

class BitmapFile : public testing::Test {
 protected:
  bool isCutShort(const std::string& content) const {
    return platform::isCutShort(folder.write("a.bmp", content));
  }
  test::TemporaryFolder folder;
};

// 3 pixels of 24 bits are 9 bytes, 12 with the filling: 2 rows take 24.
TEST_F(BitmapFile, NeedsAllItsRowsWhicheverComesFirst) {
  EXPECT_FALSE(isCutShort(bitmap(3, 2, 24, 0, 0, 24)));
  EXPECT_TRUE(isCutShort(bitmap(3, 2, 24, 0, 0, 23)));
  EXPECT_FALSE(isCutShort(bitmap(3, -2, 24, 0, 0, 24)));
  EXPECT_TRUE(isCutShort(bitmap(3, -2, 24, 0, 0, 23)));
  EXPECT_FALSE(isCutShort(bitmap(3, 2, 24, 0, 0, 30))) << "more is no harm";
}

// 33 pixels of 1 bit take 8 bytes; 2 of 32 bits take 8.
TEST_F(BitmapFile, CountsTheBitsOfAPixel) {
  EXPECT_FALSE(isCutShort(bitmap(33, 1, 1, 0, 0, 8)));
  EXPECT_TRUE(isCutShort(bitmap(33, 1, 1, 0, 0, 7)));
  EXPECT_FALSE(isCutShort(bitmap(2, 1, 32, 3, 0, 8)));
  EXPECT_TRUE(isCutShort(bitmap(2, 1, 32, 3, 0, 7)));
}

TEST_F(BitmapFile, OfACompressedOneTheHeadSaysTheLength) {
  EXPECT_FALSE(isCutShort(bitmap(1000, 1000, 8, 1, 5, 5)));
  EXPECT_TRUE(isCutShort(bitmap(1000, 1000, 8, 1, 5, 4)));
}

// The older head: 16 bits each for width and height. 2 pixels of 24 bits take 8 bytes.
TEST_F(BitmapFile, KnowsTheOlderHead) {
  const std::string head = "BM" + number(0, 8) + number(26, 4) + number(12, 4) + number(2, 2) + number(1, 2) +
                           number(1, 2) + number(24, 2);
  EXPECT_FALSE(isCutShort(head + std::string(8, 'x')));
  EXPECT_TRUE(isCutShort(head + std::string(7, 'x')));
}

TEST_F(BitmapFile, EveryShorterPieceIsCutShort) {
  const std::string whole = bitmap(3, 2, 24, 0, 0, 24);
  EXPECT_TRUE(isCutShort(""));
  for (std::size_t kept = 2; kept < whole.size(); ++kept)
    EXPECT_TRUE(isCutShort(whole.substr(0, kept))) << kept;
}

TEST_F(BitmapFile, WhatIsNoBitmapIsNeverCutShort) {
  EXPECT_FALSE(isCutShort("picture"));
  EXPECT_FALSE(isCutShort("BMのつもりの文"));
  EXPECT_FALSE(isCutShort("BMP\n"));
  EXPECT_FALSE(isCutShort("BM" + std::string(100, '?'))) << "a head of an unknown form";
  EXPECT_TRUE(platform::isCutShort(folder.path("missing.bmp")));
}

// Sizes that would overflow 32 bits: 65536 · 4 bytes · 65536 rows.
TEST_F(BitmapFile, CountsBeyondThirtyTwoBits) { EXPECT_TRUE(isCutShort(bitmap(65536, 65536, 32, 0, 0, 24))); }

// Rows of 2^32 - 1 pixels at 65535 bits, 2^31 of them: more bytes than 64 bits count.
TEST_F(BitmapFile, CountsNoFurtherThanItCan) {
  EXPECT_TRUE(isCutShort(bitmap(-1, INT32_MIN, 65535, 0, 0, 24)));
}

}  // namespace
