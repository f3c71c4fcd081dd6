// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/plane.h"

#include <algorithm>
#include <cstddef>

#include <gtest/gtest.h>

namespace gdi::screenpictures {
namespace {

const PaperModel kPaper{0.58, 0.42, 0.055, 1.1, 0.035};

// Two pixels: the left one is 1 from level 64 on, the right one from 128 on.
Screen twoPixels() {
  Screen screen{{2, 1}, 1, {}};
  for (int level = 0; level < 256; ++level) {
    screen.outputs.push_back(level >= 64 ? 1 : 0);
    screen.outputs.push_back(level >= 128 ? 1 : 0);
  }
  return screen;
}

// A pictured pixel or two in the middle of a blank margin.
Plane inMargin(const Tile& pictured, int steps, std::vector<std::uint8_t> values) {
  Plane plane{withMargin(pictured), steps, {}};
  plane.values.assign(plane.area.size(), 0);
  auto value = values.begin();
  for (int y = 0; y < pictured.height; ++y) {
    for (int x = 0; x < pictured.width; ++x) {
      plane.values[placeOf(plane.area, x + kMargin, y + kMargin)] = *value++;
    }
  }
  return plane;
}

TEST(Plane, EachPixelTakesItsOwnLevelOfItsCell) {
  const std::vector<std::uint8_t> levels{100, 100, 100, 200, 200, 63};
  const Plane plane = screened(twoPixels(), {3, 2}, levels);
  EXPECT_EQ(plane.area, (Tile{3, 2}));
  EXPECT_EQ(plane.steps, 1);
  EXPECT_EQ(plane.values, (std::vector<std::uint8_t>{1, 0, 1, 1, 1, 0}));
}

TEST(Plane, AMovedTintLiesFurtherRight) {
  EXPECT_EQ(flatTint(twoPixels(), {4, 1}, 100).values, (std::vector<std::uint8_t>{1, 0, 1, 0}));
  EXPECT_EQ(flatTint(twoPixels(), {4, 1}, 100, {3, 7}).values,
            (std::vector<std::uint8_t>{0, 1, 0, 1}));
}

TEST(Plane, TonerIsToldAtFourByFourPointsOfEachPicturedPixel) {
  EXPECT_EQ(developed(inMargin({3, 2}, 1, {0, 0, 0, 0, 0, 0}), kPaper).size(), 3U * 2 * 16);
}

TEST(Plane, ASolidIsCoveredWithTonerAndABlankIsNot) {
  Plane plane = inMargin({2, 2}, 3, {0, 0, 0, 0});
  for (const double toner : developed(plane, kPaper)) {
    EXPECT_NEAR(toner, 0.0, 0.001);
  }
  std::fill(plane.values.begin(), plane.values.end(), 3);
  for (const double toner : developed(plane, kPaper)) {
    EXPECT_NEAR(toner, 1.0, 0.001);
  }
}

TEST(Plane, ADotIsDarkestInTheMiddleOfItsPixel) {
  const std::vector<double> toner = developed(inMargin({1, 1}, 1, {1}), kPaper);
  EXPECT_NEAR(toner[5], toner[10], 1e-9);
  EXPECT_NEAR(toner[0], toner[15], 1e-9);
  EXPECT_GT(toner[5], toner[0] + 0.05);
}

TEST(Plane, WhatLiesInTheMarginReachesThePicture) {
  Plane plane = inMargin({1, 1}, 1, {1});
  const double alone = developed(plane, kPaper).front();
  plane.values[placeOf(plane.area, kMargin, kMargin - 1)] = 1;  // right above it
  EXPECT_GT(developed(plane, kPaper).front(), alone + 0.05);
}

}  // namespace
}  // namespace gdi::screenpictures
