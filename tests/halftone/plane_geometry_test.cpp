// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/plane_geometry.h"

#include <gtest/gtest.h>

namespace gdi {
namespace {

TEST(PlaneGeometry, TakesTheBitsAPixelFromTheQualityWord) {
  EXPECT_EQ(ditherBPPForQuality("Fast"), 1U);
  EXPECT_EQ(ditherBPPForQuality("Standard"), 2U);
  EXPECT_EQ(ditherBPPForQuality("Fine"), 4U);
}

TEST(PlaneGeometry, TakesAnyOtherQualityForFast) {
  EXPECT_EQ(ditherBPPForQuality("Best"), 1U);
  EXPECT_EQ(ditherBPPForQuality("fine"), 1U);
  EXPECT_EQ(ditherBPPForQuality(""), 1U);
}

TEST(PlaneGeometry, ARowOf4961PixelsIs5120BitsAtFastAnd19968AtFine) {
  EXPECT_EQ(ditherBitWidthFor(1, 4961), 5120U);
  EXPECT_EQ(ditherBitWidthFor(1, 4961) / 8, 640U);
  EXPECT_EQ(ditherBitWidthFor(4, 4961), 19968U);
  EXPECT_EQ(ditherBitWidthFor(4, 4961) / 8, 2496U);
}

TEST(PlaneGeometry, ARowHasAtLeast32BitsOfSlack) {
  EXPECT_EQ(ditherBitWidthFor(1, 96), 128U);  // 96 + 32 just fit
  EXPECT_EQ(ditherBitWidthFor(1, 97), 256U);  // 97 + 32 do not
  EXPECT_EQ(ditherBitWidthFor(2, 48), 128U);  // 96 bits of pixels
  EXPECT_EQ(ditherBitWidthFor(2, 49), 256U);
  EXPECT_EQ(ditherBitWidthFor(4, 24), 128U);
  EXPECT_EQ(ditherBitWidthFor(4, 25), 256U);
  EXPECT_EQ(ditherBitWidthFor(1, 0), 128U);
}

TEST(PlaneGeometry, ARowsBitsAreComputedIn32BitsUnsigned) {
  EXPECT_EQ(ditherBitWidthFor(4, 0x40000000), 128U);
  EXPECT_EQ(ditherBitWidthFor(1, 0xFFFFFFFF), 128U);  // 38, its low bits cleared, then 32 + 127
}

TEST(PlaneGeometry, APageOf7016RowsHas28Bands) {
  EXPECT_EQ(ditherBandCountFor(7016, 256), 28U);
}

TEST(PlaneGeometry, APageOf7167RowsCountsOneBandTooMany) {
  EXPECT_EQ(ditherBandCountFor(7167, 256), 29U);  // 28 bands there are
  EXPECT_EQ(ditherBandCountFor(7168, 256), 29U);  // 28 bands there are
}

TEST(PlaneGeometry, TheBandCountIsRightForEveryOtherHeight) {
  EXPECT_EQ(ditherBandCountFor(1, 256), 1U);
  EXPECT_EQ(ditherBandCountFor(254, 256), 1U);
  EXPECT_EQ(ditherBandCountFor(255, 256), 2U);
  EXPECT_EQ(ditherBandCountFor(256, 256), 2U);
  EXPECT_EQ(ditherBandCountFor(257, 256), 2U);
  EXPECT_EQ(ditherBandCountFor(7166, 256), 28U);
  EXPECT_EQ(ditherBandCountFor(7169, 256), 29U);
}

}  // namespace
}  // namespace gdi
