// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/value_noise.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::samplepages {
namespace {

std::vector<int> noiseRow(const Noise& noise, int y) {
  std::vector<int> values(500);
  addNoise(noise, y, values);
  return values;
}

TEST(ValueNoise, StaysBetweenNothingAndItsAmplitude) {
  const Noise noise{7, 10, 6, 200};
  for (int y = 0; y < 60; ++y) {
    const auto values = noiseRow(noise, y);
    EXPECT_GE(*std::ranges::min_element(values), 0);
    EXPECT_LE(*std::ranges::max_element(values), 200);
    EXPECT_GT(*std::ranges::max_element(values) - *std::ranges::min_element(values), 100);
  }
}

// The steepest part of an easing over 10 pixels climbs 1.5 tenths of the way a pixel.
TEST(ValueNoise, ChangesGentlyFromPixelToPixelAndFromRowToRow) {
  const Noise noise{7, 10, 10, 200};
  for (int y = 0; y < 60; ++y) {
    const auto values = noiseRow(noise, y);
    const auto below = noiseRow(noise, y + 1);
    for (std::size_t x = 0; x + 1 < values.size(); ++x) {
      EXPECT_LE(std::abs(values[x + 1] - values[x]), 32);
      EXPECT_LE(std::abs(below[x] - values[x]), 32);
    }
  }
}

TEST(ValueNoise, DependsOnTheSeed) {
  EXPECT_EQ(noiseRow({7, 10, 6, 200}, 3), noiseRow({7, 10, 6, 200}, 3));
  EXPECT_NE(noiseRow({7, 10, 6, 200}, 3), noiseRow({8, 10, 6, 200}, 3));
}

TEST(ValueNoise, AtDistance1EveryPixelHasAValueOfItsOwn) {
  const auto values = noiseRow({7, 1, 1, 32767}, 0);
  EXPECT_GT(std::set<int>(values.begin(), values.end()).size(), 480U);
}

TEST(ValueNoise, OctavesAreNoisesOfHalfTheDistanceAndAmplitude) {
  std::vector<int> octaves(500);
  addOctaves({7, 10, 3, 200}, 3, 5, octaves);
  std::vector<int> noises(500);
  addNoise({7, 10, 3, 200}, 5, noises);
  addNoise({8, 5, 1, 100}, 5, noises);
  addNoise({9, 2, 1, 50}, 5, noises);
  EXPECT_EQ(octaves, noises);
}

}  // namespace
}  // namespace gdi::samplepages
