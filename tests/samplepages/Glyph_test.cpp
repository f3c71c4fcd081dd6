// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/Glyph.h"

#include <gtest/gtest.h>

namespace gdi::samplepages {
namespace {

constexpr int kUnitPixels = 8;

// The pen of an l runs down column border 8, from row border 8 to 72, and is 8 pixels wide.
TEST(Glyph, AStemIsAsWideAsThePenAndHasHardSides) {
  const Glyph glyph(letterOf('l'), kUnitPixels);
  for (int x = 0; x < glyph.width(); ++x) {
    EXPECT_EQ(glyph.coverage(x, 40), x >= 4 && x < 12 ? 255 : 0) << x;
  }
}

TEST(Glyph, AStemEndsInAHalfCircleWithSmoothedEdges) {
  const Glyph glyph(letterOf('l'), kUnitPixels);
  EXPECT_EQ(glyph.coverage(8, 3), 0);
  EXPECT_EQ(glyph.coverage(4, 4), 0);
  EXPECT_EQ(glyph.coverage(8, 5), 255);
  // The pixel's centre is sqrt(2.5^2 + 2.5^2) = 3.536 from the stem's end: 0.964 of it are inked.
  EXPECT_NEAR(glyph.coverage(10, 5), 0.964 * 255, 4);
  EXPECT_NEAR(glyph.coverage(11, 5), 0.199 * 255, 4);  // sqrt(3.5^2 + 2.5^2) = 4.301
}

TEST(Glyph, AdvanceAndSizeFollowTheUnit) {
  const Glyph glyph(letterOf('l'), kUnitPixels);
  EXPECT_EQ(glyph.advance(), 20);
  EXPECT_EQ(glyph.width(), 36);
  EXPECT_EQ(glyph.height(), 96);
}

TEST(Glyph, ABlankHasNoInk) {
  const Glyph glyph(letterOf(' '), kUnitPixels);
  EXPECT_EQ(glyph.advance(), 28);
  for (int y = 0; y < glyph.height(); ++y) {
    for (int x = 0; x < glyph.width(); ++x) {
      ASSERT_EQ(glyph.coverage(x, y), 0);
    }
  }
}

}  // namespace
}  // namespace gdi::samplepages
