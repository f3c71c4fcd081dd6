// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/scanline.h"

#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes mirrored8(Bytes line) {
  mirrorRaster8(line);
  return line;
}

Bytes mirrored32(Bytes line) {
  mirrorRaster32(line);
  return line;
}

TEST(Scanline, AGreyLineIsReversedByteByByte) {
  EXPECT_EQ(mirrored8({1, 2, 3, 4, 5, 6}), (Bytes{6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(mirrored8({1, 2}), (Bytes{2, 1}));
}

TEST(Scanline, AGreyLineOfLessThanTwoPixelsStays) {
  EXPECT_EQ(mirrored8({7}), (Bytes{7}));
  EXPECT_EQ(mirrored8({}), Bytes());
}

TEST(Scanline, AColourLineIsReversedPixelByPixelAndEachKeepsItsOrder) {
  EXPECT_EQ(mirrored32({1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24, 31, 32, 33, 34}),
            (Bytes{31, 32, 33, 34, 21, 22, 23, 24, 11, 12, 13, 14, 1, 2, 3, 4}));
  EXPECT_EQ(mirrored32({1, 2, 3, 4, 11, 12, 13, 14}), (Bytes{11, 12, 13, 14, 1, 2, 3, 4}));
}

TEST(Scanline, TheMiddlePixelOfAnOddColourLineStays) {
  EXPECT_EQ(mirrored32({1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24}),
            (Bytes{21, 22, 23, 24, 11, 12, 13, 14, 1, 2, 3, 4}));
}

TEST(Scanline, AColourLineOfLessThanTwoPixelsStays) {
  EXPECT_EQ(mirrored32({1, 2, 3, 4}), (Bytes{1, 2, 3, 4}));
  EXPECT_EQ(mirrored32({}), Bytes());
}

TEST(Scanline, TheInkOfALineIsTheOrOfItsBytes) {
  EXPECT_EQ(inkOf(Bytes{}), 0);
  EXPECT_EQ(inkOf(Bytes{0, 0, 0}), 0);
  EXPECT_EQ(inkOf(Bytes{0x80, 0, 0x01}), 0x81);
  EXPECT_EQ(inkOf(Bytes{0, 0, 0x10}), 0x10);
  EXPECT_EQ(inkOf(Bytes{0x10, 0, 0}), 0x10);
}

}  // namespace
}  // namespace gdi
