// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/grain.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include "tests/screenquality/test_screens.h"
#include "tools/eye/colour.h"

namespace gdi::screenquality {
namespace {

using eye::lightnessSeen;
using eye::lightnessSlope;
using eye::noiseSeen;
using eye::pixelsPerDegree;

const Conditions& kPlain = kPaperClasses[1];

Grain grainOf(const Screen& screen) {
  return screenquality::grainOf(PrintedScreen(screen, kPlain.paper), kPlain);
}

// Upright lines, half of each period ink, alike at all levels.
Screen stripes(int period) {
  std::vector<std::uint8_t> pattern(static_cast<std::size_t>(period), 0);
  std::fill(pattern.begin(), pattern.begin() + period / 2, std::uint8_t{1});
  return patternScreen({period, 1}, pattern);
}

// The L* that the eye sees of stripes' waves of 1 to `waves` in their period, by a direct sum.
double waveSum(const Screen& screen, int waves) {
  const PrintedScreen print(screen, kPlain.paper);
  const std::vector<double> light = print.light(100);
  const int period = screen.tile.width;
  double variance = 0.0;
  for (int wave = 1; wave <= waves; ++wave) {
    std::complex<double> sum;
    for (int x = 0; x < period; ++x) {
      sum += light[static_cast<std::size_t>(x)] *
             std::polar(1.0 / period, 2.0 * std::numbers::pi * wave * x / period);
    }
    const double seen = lightnessSeen(pixelsPerDegree(kPlain.inches) * wave / period, 0.0);
    variance += (2 * wave == period ? 1.0 : 2.0) * std::norm(sum) * seen * seen;
  }
  return lightnessSlope(print.reflectance(100)) * std::sqrt(variance);
}

TEST(CoarseSight, KeepsWhatIsBelowThirtyCyclesAnInch) {
  constexpr Tile kTile{50, 40};  // waves of 12 cycles an inch across, 15 down
  const Sight sight = coarseSight(kTile, Sight(26U * 40U, 0.7));
  const auto at = [&sight](std::size_t row, std::size_t column) {
    return sight[row * 26 + column];
  };
  EXPECT_EQ(at(0, 0), 0.7);
  EXPECT_EQ(at(0, 2), 0.7);
  EXPECT_EQ(at(1, 2), 0.7) << "28.3";
  EXPECT_EQ(at(39, 2), 0.7);
  EXPECT_EQ(at(0, 3), 0.0) << "36";
  EXPECT_EQ(at(2, 1), 0.0) << "32.3";
  EXPECT_EQ(at(38, 1), 0.0);
  EXPECT_EQ(at(20, 25), 0.0);
  // 3 columns in each of the rows 0, 1 and -1; of the rows 2 and -2 none, 30 itself is not below.
  EXPECT_EQ(std::count(sight.begin(), sight.end(), 0.7), 9);
}

TEST(CoarseSight, OddFieldsKeepTheSame) {
  constexpr Tile kTile{51, 41};
  const Sight sight = coarseSight(kTile, Sight(26U * 41U, 1.0));
  EXPECT_EQ(sight[40 * 26 + 2], 1.0);
  EXPECT_EQ(sight[38 * 26 + 0], 0.0);
  EXPECT_EQ(sight[39 * 26 + 0], 1.0) << "29.3";
}

TEST(Grain, PatternAndNoiseAddUpAsSquares) {
  EXPECT_DOUBLE_EQ((Grain{0.3, 0.2, 0.4}.whole()), 0.5);
}

TEST(Grain, BarePaperHasNone) {
  for (const Tile& tile : {Tile{5, 4}, Tile{1, 1}}) {
    const Grain grain = grainOf(evenScreen(tile, 0));
    EXPECT_NEAR(grain.pattern, 0.0, 1e-9);
    EXPECT_NEAR(grain.coarse, 0.0, 1e-9);
    EXPECT_EQ(grain.noise, 0.0);
  }
}

TEST(Grain, ASolidHasNoPatternAndHardlyNoise) {
  const Grain grain = grainOf(evenScreen({4, 7}, 1));
  EXPECT_NEAR(grain.pattern, 0.0, 1e-9);
  EXPECT_NEAR(grain.coarse, 0.0, 1e-9);
  EXPECT_LT(grain.noise, 0.01);
}

TEST(Grain, ACheckerboardOfPixelsIsTooFineToBeSeen) {
  const Grain grain = grainOf(patternScreen({2, 2}, {1, 0, 0, 1}));
  EXPECT_LT(grain.pattern, 1e-3);
}

TEST(Grain, OfStripesIsTheSumOfTheirWaves) {
  for (const int period : {8, 9, 40}) {
    const Screen screen = stripes(period);
    const double sum = waveSum(screen, period / 2);
    EXPECT_GT(sum, 0.5);
    EXPECT_NEAR(grainOf(screen).pattern, sum, 1e-9 * sum) << period;
  }
}

TEST(Grain, StripesOfFifteenAnInchAreCoarseButForTheirOvertones) {
  const Screen screen = stripes(40);
  EXPECT_NEAR(grainOf(screen).coarse, waveSum(screen, 1), 1e-9);
}

TEST(Grain, StripesOfSeventyFiveAnInchAreNotCoarse) {
  EXPECT_NEAR(grainOf(stripes(8)).coarse, 0.0, 1e-9);
}

TEST(Grain, NoiseIsWhatUnsteadyExposureDoesToTheTint) {
  const Screen screen = stripes(8);
  const PrintedScreen print(screen, kPlain.paper);
  const double expected = lightnessSlope(print.reflectance(100)) * print.sensitivity(100) * 1.11 *
                          0.040 * noiseSeen(1.5, 12.0).lightness;
  EXPECT_GT(expected, 0.1);
  EXPECT_NEAR(grainOf(screen).noise, expected, 1e-12);
}

TEST(Grain, LevelsCountByTheirShareOfTheScale) {
  // Only level 254 is ink: it and level 252 share the scale, half each.
  const Screen screen = stripes(40);
  Screen late = evenScreen(screen.tile, 0);
  std::copy(screen.outputs.begin(), screen.outputs.begin() + 40,
            late.outputs.begin() + std::ptrdiff_t{254} * 40);
  EXPECT_NEAR(grainOf(late).pattern, grainOf(screen).pattern * std::sqrt(0.5), 1e-6);
}

}  // namespace
}  // namespace gdi::screenquality
