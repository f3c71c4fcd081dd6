// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/rendering_intent.h"

#include <gtest/gtest.h>

namespace gdi {
namespace {

TEST(RenderingIntent, IsThatOfTheHeader) {
  for (std::uint32_t intent = 0; intent < 3; ++intent) {
    EXPECT_EQ(renderingIntentFor(intent, ""), intent);
  }
}

TEST(RenderingIntent, ThatNobodyKnowsIsPerceptual) {
  EXPECT_EQ(renderingIntentFor(4, ""), 0U);
  EXPECT_EQ(renderingIntentFor(0xFFFFFFFF, "ink"), 10U);
}

TEST(RenderingIntent, PreservesBlackInkOrTheBlackPlane) {
  EXPECT_EQ(renderingIntentFor(0, "ink"), 10U);
  EXPECT_EQ(renderingIntentFor(1, "ink"), 11U);
  EXPECT_EQ(renderingIntentFor(2, "ink"), 12U);
  EXPECT_EQ(renderingIntentFor(0, "plane"), 13U);
  EXPECT_EQ(renderingIntentFor(1, "plane"), 14U);
  EXPECT_EQ(renderingIntentFor(2, "plane"), 15U);
}

TEST(RenderingIntent, IsRelativeWhereTheHeaderAsksForAbsoluteColours) {
  EXPECT_EQ(renderingIntentFor(3, ""), 1U);
  EXPECT_EQ(renderingIntentFor(3, "ink"), 11U);
  EXPECT_EQ(renderingIntentFor(3, "plane"), 14U);
}

TEST(RenderingIntent, OfAnUnknownWordIsNone) {
  EXPECT_EQ(renderingIntentFor(0, "Ink"), std::nullopt);
  EXPECT_EQ(renderingIntentFor(0, "none"), std::nullopt);
}

}  // namespace
}  // namespace gdi
