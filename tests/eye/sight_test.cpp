// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/eye/sight.h"

#include <cmath>
#include <cstddef>
#include <numbers>

#include <gtest/gtest.h>

namespace gdi::eye {
namespace {

// The mean of a function over frequencies of -1/2 to 1/2 cycles a pixel, weighted by the power of
// noise of that correlation.
template <typename Value>
double meanOverNoise(double correlation, int steps, Value value) {
  double sum = 0.0;
  double whole = 0.0;
  for (int row = 0; row < steps; ++row) {
    for (int column = 0; column < steps; ++column) {
      const double x = (column + 0.5) / steps - 0.5;
      const double y = (row + 0.5) / steps - 0.5;
      const double turns = 2.0 * std::numbers::pi * correlation * std::hypot(x, y);
      const double power = std::exp(-turns * turns);
      sum += power * value(x, y);
      whole += power;
    }
  }
  return sum / whole;
}

double lightnessPower(double x, double y) {
  const double seen = lightnessSeen(x * pixelsPerDegree(12.0), y * pixelsPerDegree(12.0));
  return seen * seen;
}

TEST(Eye, ADegreeAtTwelveInchesSpans125Pixels) {
  EXPECT_NEAR(pixelsPerDegree(12.0), 125.676, 0.001);  // 7200 x 0.017455
  EXPECT_DOUBLE_EQ(pixelsPerDegree(24.0), 2.0 * pixelsPerDegree(12.0));
}

TEST(Eye, LightnessBelowThreeCyclesADegreeIsSeenWhole) {
  EXPECT_EQ(lightnessSeen(0.0, 0.0), 1.0);
  EXPECT_EQ(lightnessSeen(3.0, 0.0), 1.0);
  EXPECT_EQ(lightnessSeen(-2.0, 2.0), 1.0);
  EXPECT_LT(lightnessSeen(3.1, 0.0), 1.0);
}

TEST(Eye, UprightAndLevelWavesFadeWithSevenCyclesADegree) {
  EXPECT_NEAR(lightnessSeen(17.0, 0.0), std::exp(-2.0), 1e-12);
  EXPECT_NEAR(lightnessSeen(0.0, -17.0), std::exp(-2.0), 1e-12);
  EXPECT_NEAR(lightnessSeen(10.0, 0.0), std::exp(-1.0), 1e-12);
}

TEST(Eye, FineSlantingWavesCountAsFinerByThreeSeventeenths) {
  // 17 / 0.85 is 20.
  const double side = 17.0 / std::numbers::sqrt2;
  EXPECT_NEAR(lightnessSeen(side, side), std::exp(-17.0 / 7.0), 1e-12);
  EXPECT_NEAR(lightnessSeen(-side, side), std::exp(-17.0 / 7.0), 1e-12);
}

TEST(Eye, TheObliqueEffectIsHalfAtSevenCyclesADegree) {
  const double side = 7.0 / std::numbers::sqrt2;
  EXPECT_NEAR(lightnessSeen(side, side), std::exp(-(7.0 / 0.925 - 3.0) / 7.0), 1e-12);
}

TEST(Eye, BetweenTheDirectionsTheObliqueEffectIsHalfAsWell) {
  const double eighth = std::numbers::pi / 8.0;
  EXPECT_NEAR(lightnessSeen(17.0 * std::cos(eighth), 17.0 * std::sin(eighth)),
              std::exp(-(17.0 / 0.925 - 3.0) / 7.0), 1e-12);
}

TEST(Eye, HuesFadeFromTheCoarsestOnAlikeInAllDirections) {
  EXPECT_EQ(chromaSeen(0.0, 0.0), 1.0);
  EXPECT_NEAR(chromaSeen(0.0, 1.0), 0.657704, 1e-6);
  EXPECT_NEAR(chromaSeen(3.0, -4.0), std::exp(-2.095), 1e-12);
}

TEST(Eye, SightIsLaidOutAsTheHalfSpectrumOfAnEvenField) {
  const double degree = pixelsPerDegree(12.0);
  const Sight sight = lightnessSight({6, 4}, 12.0);
  ASSERT_EQ(sight.size(), 16U);
  EXPECT_EQ(sight[0], 1.0);
  EXPECT_DOUBLE_EQ(sight[3], lightnessSeen(degree / 2.0, 0.0));
  EXPECT_DOUBLE_EQ(sight[1 * 4 + 2], lightnessSeen(degree / 3.0, degree / 4.0));
  EXPECT_DOUBLE_EQ(sight[2 * 4], lightnessSeen(0.0, degree / 2.0));
  EXPECT_DOUBLE_EQ(sight[3 * 4 + 1], lightnessSeen(degree / 6.0, -degree / 4.0));
}

TEST(Eye, SightIsLaidOutAsTheHalfSpectrumOfAnOddField) {
  const double degree = pixelsPerDegree(12.0);
  const Sight sight = chromaSight({5, 3}, 12.0);
  ASSERT_EQ(sight.size(), 9U);
  EXPECT_DOUBLE_EQ(sight[2], chromaSeen(0.4 * degree, 0.0));
  EXPECT_DOUBLE_EQ(sight[1 * 3], chromaSeen(0.0, degree / 3.0));
  EXPECT_DOUBLE_EQ(sight[2 * 3 + 1], chromaSeen(0.2 * degree, -degree / 3.0));
}

TEST(Eye, OfATileOfOnePixelOnlyTheMeanIsSeen) {
  EXPECT_EQ(lightnessSight({1, 1}, 12.0), Sight{1.0});
  EXPECT_EQ(chromaSight({1, 1}, 12.0), Sight{1.0});
}

TEST(NoiseSeen, IsTheMeanOverTheNoisesSpectrum) {
  for (const double correlation : {1.5, 1.8}) {
    const double mean = meanOverNoise(correlation, 400, lightnessPower);
    EXPECT_NEAR(noiseSeen(correlation, 12.0).lightness, std::sqrt(mean), 1e-3);
  }
}

TEST(NoiseSeen, OfHuesIsTheIntegralOverRings) {
  // Power and sight depend on the distance alone.
  const double correlation = 1.5;
  const double fade = 2.0 * 0.419 * pixelsPerDegree(12.0);
  double seen = 0.0;
  double whole = 0.0;
  for (int ring = 0; ring < 20000; ++ring) {
    const double radius = (ring + 0.5) / 40000.0;
    const double turns = 2.0 * std::numbers::pi * correlation * radius;
    const double power = radius * std::exp(-turns * turns);
    seen += power * std::exp(-fade * radius);
    whole += power;
  }
  EXPECT_NEAR(noiseSeen(correlation, 12.0).chroma, std::sqrt(seen / whole), 1e-3);
}

TEST(NoiseSeen, UncorrelatedNoiseHasAllFrequenciesAlike) {
  const double mean = meanOverNoise(0.0, 400, lightnessPower);
  EXPECT_NEAR(noiseSeen(0.0, 12.0).lightness, std::sqrt(mean), 1e-3);
}

TEST(NoiseSeen, NoiseOfManyPixelsIsSeenWhole) {
  // A standard deviation of 1 / 40 pi sqrt(2), 0.7 cycles a degree.
  EXPECT_NEAR(noiseSeen(20.0, 12.0).lightness, 1.0, 1e-3);
}

TEST(NoiseSeen, FromFartherAwayLessIsSeen) {
  EXPECT_LT(noiseSeen(1.5, 24.0).lightness, 0.7 * noiseSeen(1.5, 12.0).lightness);
  EXPECT_LT(noiseSeen(1.5, 24.0).chroma, 0.7 * noiseSeen(1.5, 12.0).chroma);
}

}  // namespace
}  // namespace gdi::eye
