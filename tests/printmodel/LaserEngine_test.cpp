// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/printmodel/LaserEngine.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::printmodel {
namespace {

const PaperModel kPaper{0.58, 0.42, 0.055, 1.1, 0.035};
constexpr Tile kTile{7, 6};

using Pixels = std::vector<std::uint8_t>;

Pixels filled(std::uint8_t value, const Tile& tile = kTile) {
  Pixels pixels(tile.size(), value);
  return pixels;
}

// A few pixels without symmetry.
Pixels scattered() {
  Pixels pixels = filled(0);
  for (const std::size_t pixel : {3U, 9U, 10U, 17U, 30U, 31U, 38U}) {
    pixels[pixel] = static_cast<std::uint8_t>(1 + pixel % 3);
  }
  return pixels;
}

// What a pulse that reaches `half` to both sides exposes at a distance from its middle.
double blurred(double distance, double half, double sigma) {
  const double scale = 1.0 / (sigma * std::numbers::sqrt2);
  return 0.5 * (std::erf((distance + half) * scale) - std::erf((distance - half) * scale));
}

// The exposure of that point of a pixel.
double at(const Exposure& exposure, const Tile& tile, int x, int y, int pointX, int pointY) {
  const auto row = static_cast<std::size_t>(kPointsAcross) * static_cast<std::size_t>(y) +
                   static_cast<std::size_t>(pointY);
  const auto column = static_cast<std::size_t>(kPointsAcross) * static_cast<std::size_t>(x) +
                      static_cast<std::size_t>(pointX);
  return exposure[row * static_cast<std::size_t>(tile.width) * kPointsAcross + column];
}

double meanOf(const std::vector<double>& values) {
  return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

TEST(LaserEngine, ASolidExposesToOne) {
  for (const int steps : {1, 3, 15}) {
    const LaserEngine engine(kPaper, steps);
    const Exposure exposure = engine.exposure(kTile, filled(static_cast<std::uint8_t>(steps)));
    ASSERT_EQ(exposure.size(), 42U * 16U);
    EXPECT_NEAR(meanOf(exposure), 1.0, 1e-12);
    const auto [least, most] = std::minmax_element(exposure.begin(), exposure.end());
    EXPECT_NEAR(*least, 1.0, 2e-4);
    EXPECT_NEAR(*most, 1.0, 2e-4);
  }
}

TEST(LaserEngine, BlankPaperIsNotExposed) {
  const Exposure exposure = LaserEngine(kPaper, 3).exposure(kTile, filled(0));
  EXPECT_EQ(std::count(exposure.begin(), exposure.end(), 0.0), 42 * 16);
}

TEST(LaserEngine, ASinglePixelExposesAsItsBlurredSquare) {
  Pixels pixels = filled(0);
  pixels[2 * 7 + 3] = 1;
  const Exposure exposure = LaserEngine(kPaper, 1).exposure(kTile, pixels);
  // The points of a pixel lie 1/8 and 3/8 from its middle.
  const double inner = blurred(0.125, 0.5, kPaper.spot);
  EXPECT_NEAR(at(exposure, kTile, 3, 2, 1, 1), inner * inner, 1e-4);
  EXPECT_NEAR(at(exposure, kTile, 3, 2, 2, 0), inner * blurred(0.375, 0.5, kPaper.spot), 1e-4);
  EXPECT_NEAR(at(exposure, kTile, 4, 2, 0, 2), inner * blurred(0.625, 0.5, kPaper.spot), 1e-4);
  EXPECT_NEAR(at(exposure, kTile, 3, 4, 1, 3), inner * blurred(2.375, 0.5, kPaper.spot), 1e-4);
  EXPECT_EQ(at(exposure, kTile, 6, 2, 0, 1), 0.0) << "three pixels away";
}

TEST(LaserEngine, APartialPixelIsANarrowPulseInItsMiddle) {
  Pixels pixels = filled(0);
  pixels[2 * 7 + 3] = 1;
  const Exposure exposure = LaserEngine(kPaper, 3).exposure(kTile, pixels);
  const double third = 1.0 / 6.0;
  EXPECT_NEAR(at(exposure, kTile, 3, 2, 1, 1),
              blurred(0.125, third, kPaper.spot) * blurred(0.125, 0.5, kPaper.spot), 1e-4);
  EXPECT_NEAR(at(exposure, kTile, 2, 3, 3, 0),
              blurred(0.625, third, kPaper.spot) * blurred(0.625, 0.5, kPaper.spot), 1e-4);
}

TEST(LaserEngine, ATileOfOnePixelIsItsOwnNeighbour) {
  const LaserEngine engine(kPaper, 3);
  const Exposure one = engine.exposure({1, 1}, Pixels{2});
  const Exposure many = engine.exposure(kTile, filled(2));
  for (int point = 0; point < 16; ++point) {
    EXPECT_NEAR(at(one, {1, 1}, 0, 0, point % 4, point / 4),
                at(many, kTile, 4, 3, point % 4, point / 4), 1e-12);
  }
}

TEST(LaserEngine, AShiftedTileHasShiftedCoverage) {
  const LaserEngine engine(kPaper, 3);
  const Pixels pixels = scattered();
  Pixels shifted(pixels.size());
  for (std::size_t y = 0; y < 6; ++y) {
    for (std::size_t x = 0; x < 7; ++x) {
      shifted[(y + 4) % 6 * 7 + (x + 5) % 7] = pixels[y * 7 + x];
    }
  }
  const std::vector<double> here = engine.coverage(kTile, engine.exposure(kTile, pixels));
  const std::vector<double> there = engine.coverage(kTile, engine.exposure(kTile, shifted));
  for (std::size_t y = 0; y < 6; ++y) {
    for (std::size_t x = 0; x < 7; ++x) {
      EXPECT_NEAR(there[(y + 4) % 6 * 7 + (x + 5) % 7], here[y * 7 + x], 1e-12);
    }
  }
}

TEST(LaserEngine, APatternTurnedRoundHasItsCoverageTurnedRound) {
  const LaserEngine engine(kPaper, 3);
  Pixels pixels = scattered();
  std::vector<double> here = engine.coverage(kTile, engine.exposure(kTile, pixels));
  std::reverse(pixels.begin(), pixels.end());
  std::reverse(here.begin(), here.end());
  const std::vector<double> turned = engine.coverage(kTile, engine.exposure(kTile, pixels));
  for (std::size_t pixel = 0; pixel < here.size(); ++pixel) {
    EXPECT_NEAR(turned[pixel], here[pixel], 1e-10);
  }
}

TEST(LaserEngine, TonerCoversHalfAtTheThreshold) {
  const LaserEngine engine(kPaper, 1);
  EXPECT_NEAR(engine.coverage({1, 1}, Exposure(16, kPaper.threshold))[0], 0.5, 1e-9);
}

TEST(LaserEngine, TonerFollowsTheLogisticFunction) {
  const LaserEngine engine(kPaper, 1);
  // 1 / (1 + exp(-ln 3)) is three quarters.
  const double away = kPaper.softness * std::log(3.0);
  EXPECT_NEAR(engine.coverage({1, 1}, Exposure(16, kPaper.threshold + away))[0], 0.75, 1e-6);
  EXPECT_NEAR(engine.coverage({1, 1}, Exposure(16, kPaper.threshold - away))[0], 0.25, 1e-6);
  EXPECT_NEAR(engine.coverage({1, 1}, Exposure(16, 0.0))[0],
              1.0 / (1.0 + std::exp(kPaper.threshold / kPaper.softness)), 1e-6);
  EXPECT_EQ(engine.coverage({1, 1}, Exposure(16, 9.0))[0], 1.0);
}

TEST(LaserEngine, CoverageIsTheMeanOfAPixelsSixteenPoints) {
  const LaserEngine engine(kPaper, 1);
  Exposure exposure(32, -9.0);
  for (const std::size_t point : {0U, 3U, 9U, 31U}) {
    exposure[point] = 9.0;
  }
  const std::vector<double> coverage = engine.coverage({2, 1}, exposure);
  ASSERT_EQ(coverage.size(), 2U);
  EXPECT_NEAR(coverage[0], 3.0 / 16.0, 1e-12);
  EXPECT_NEAR(coverage[1], 1.0 / 16.0, 1e-12);
}

TEST(LaserEngine, ASwingMultipliesTheExposure) {
  const LaserEngine engine(kPaper, 3);
  Exposure exposure = engine.exposure(kTile, scattered());
  const std::vector<double> swung = engine.coverage(kTile, exposure, 1.1);
  for (double& value : exposure) {
    value *= 1.1;
  }
  EXPECT_EQ(engine.coverage(kTile, exposure), swung);
  EXPECT_GT(meanOf(swung), meanOf(engine.coverage(kTile, exposure, 1.0 / 1.1)));
}

TEST(LaserEngine, SensitivityIsTheSlopeOverTheLogarithmOfExposure) {
  const LaserEngine engine(kPaper, 3);
  const Exposure exposure = engine.exposure(kTile, scattered());
  constexpr double kStep = 0.002;
  const double slope = (meanOf(engine.coverage(kTile, exposure, 1.0 + kStep)) -
                        meanOf(engine.coverage(kTile, exposure, 1.0 - kStep))) /
                       (2.0 * kStep);
  EXPECT_GT(slope, 0.05);
  EXPECT_NEAR(engine.sensitivity(exposure), slope, 0.002 * slope);
}

TEST(LaserEngine, SensitivityAtTheThresholdIsThatOfTheLogisticFunction) {
  // The slope at its middle is a quarter, by the exposure in softnesses.
  EXPECT_NEAR(LaserEngine(kPaper, 1).sensitivity(Exposure(16, kPaper.threshold)),
              kPaper.threshold / kPaper.softness / 4.0, 1e-6);
}

TEST(LaserEngine, BlankPaperIsNotSensitive) {
  const LaserEngine engine(kPaper, 1);
  EXPECT_EQ(engine.sensitivity(engine.exposure(kTile, filled(0))), 0.0);
}

}  // namespace
}  // namespace gdi::printmodel
