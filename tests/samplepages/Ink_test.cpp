// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/Ink.h"

#include <gtest/gtest.h>

#include "tools/samplepages/PhotographPage.h"

namespace gdi::samplepages {
namespace {

TEST(Ink, AnInkIsAsDarkInBlackAsItLooks) {
  EXPECT_EQ(greyOf({0, 0, 0, 0}), 0);
  EXPECT_EQ(greyOf({0, 0, 0, 255}), 255);
  EXPECT_EQ(greyOf({255, 255, 255, 0}), 255);
  EXPECT_EQ(greyOf({100, 0, 0, 0}), 30);
  EXPECT_EQ(greyOf({0, 100, 0, 0}), 59);
  EXPECT_EQ(greyOf({0, 0, 100, 7}), 18);
}

TEST(Ink, MoreThanFullIsFull) {
  EXPECT_EQ(greyOf({255, 255, 255, 255}), 255);
}

TEST(Ink, BetweenTwoInksEachChannelIsRounded) {
  EXPECT_EQ(between(0, 255, 0, 10), 0);
  EXPECT_EQ(between(0, 255, 5, 10), 128);
  EXPECT_EQ(between(255, 0, 10, 10), 0);
  EXPECT_EQ(between(Ink{0, 100, 200, 8}, Ink{100, 0, 200, 0}, 1, 4), (Ink{25, 75, 200, 6}));
}

TEST(Ink, LightWithoutMuchSharedInkIsPrintedWithoutBlack) {
  EXPECT_EQ(inkOf({255, 255, 255}), (Ink{0, 0, 0, 0}));
  EXPECT_EQ(inkOf({191, 0, 100}), (Ink{64, 255, 155, 0}));
}

TEST(Ink, DarknessIsBlackAlone) {
  EXPECT_EQ(inkOf({0, 0, 0}), (Ink{0, 0, 0, 255}));
}

TEST(Ink, BlackTakesItsOwnAmountOutOfEveryColour) {
  // 100 of 255 are shared: (100 - 64) x 255 / 191 = 48.06 of black.
  EXPECT_EQ(inkOf({155, 100, 0}), (Ink{52, 107, 207, 48}));
}

}  // namespace
}  // namespace gdi::samplepages
