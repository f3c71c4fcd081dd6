// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/calm_levels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

#include "tools/eye/sight.h"

namespace gdi::makescreens {
namespace {

constexpr double kSolid = 0.035;

PrintedCurve straight(std::size_t units) {
  return {units, [units](std::size_t count) {
            return static_cast<double>(count) / static_cast<double>(units);
          }};
}

// In one printer alone.
LevelUnits calmLevelsOf(const PrintedCurve& curve, double gain,
                        const std::vector<double>& unevenness) {
  const std::vector<PrinterCurve> alone{{curve, 1.0}};
  return calmLevels(ToneErrors(alone, gain, kSolid), unevenness);
}

std::vector<double> even(std::size_t units) {
  std::vector<double> none(units + 1, 0.0);
  return none;
}

// The eye's share of a wave of 40, 20, 13.3, 10 pixels at 12 inches, where a degree has 125.676:
// exp(-max(f - 3, 0) / 7), f cycles a degree. Along the rows no direction is slanted.
double seen(int periodsIn40Pixels) {
  const double frequency = 125.676 * periodsIn40Pixels / 40.0;
  return std::exp(-std::max(frequency - 3.0, 0.0) / 7.0);
}

TEST(Unevenness, OfOneUnitIsThatOfAllLongWaves) {
  // Waves of 40 pixels, 15 an inch, are coarse; those of 20 pixels, just 30 an inch, are not; those
  // below 8 pixels are left out. Each counts for itself and for its opposite.
  const double expected =
      2.0 * (3.25 * std::pow(seen(1), 2) + std::pow(seen(2), 2) + std::pow(seen(3), 2) +
             std::pow(seen(4), 2) + std::pow(seen(5), 2));
  const std::vector<std::uint32_t> order{17};
  const std::vector<double> found = unevennessOf({40, 1}, order);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0], 0.0);
  EXPECT_NEAR(found[1], expected, 1e-4);
}

TEST(Unevenness, OppositeUnitsCancelTheLongestWave) {
  const double expected = 8.0 * (std::pow(seen(2), 2) + std::pow(seen(4), 2));
  EXPECT_NEAR(unevennessOf({40, 1}, std::vector<std::uint32_t>{3, 23}).back(), expected, 1e-4);
  EXPECT_GT(unevennessOf({40, 1}, std::vector<std::uint32_t>{3, 4}).back(), 2.0 * expected);
}

// Against a sum over all waves of the tile, opposite ones too.
TEST(Unevenness, CountsWavesInAllDirections) {
  const Tile tile{24, 40};
  const std::vector<std::uint32_t> order{0, 5, 3 * 24 + 11, 17 * 24 + 2, 18 * 24 + 20, 39 * 24 + 7};
  double expected = 0.0;
  for (int y = -20; y < 20; ++y) {
    for (int x = -12; x < 12; ++x) {
      const double across = x / 24.0;
      const double down = y / 40.0;
      const double frequency = std::hypot(across, down);
      if (frequency == 0.0 || frequency > 1.0 / 8.0) {
        continue;
      }
      double real = 0.0;
      double imaginary = 0.0;
      for (const std::uint32_t pixel : order) {
        const double turn =
            2.0 * std::numbers::pi * (across * (pixel % 24) + down * static_cast<int>(pixel / 24));
        real += std::cos(turn);
        imaginary += std::sin(turn);
      }
      const double degree = eye::pixelsPerDegree(12.0);
      const double share = eye::lightnessSeen(across * degree, down * degree);
      expected +=
          (frequency < 0.05 ? 3.25 : 1.0) * share * share * (real * real + imaginary * imaginary);
    }
  }
  EXPECT_NEAR(unevennessOf(tile, order).back(), expected, 1e-9 * expected);
}

TEST(Unevenness, SolidsAreEven) {
  std::vector<std::uint32_t> order(std::size_t{24} * 24);
  std::iota(order.begin(), order.end(), 0U);
  const std::vector<double> found = unevennessOf({24, 24}, order);
  EXPECT_GT(found[288], 1.0);
  EXPECT_NEAR(found.back(), 0.0, 1e-9);
}

TEST(CalmLevels, AStraightPrinterDarkensInProportion) {
  const LevelUnits levels = calmLevelsOf(straight(510), 0.0, even(510));
  for (std::size_t level = 0; level < 256; ++level) {
    EXPECT_NEAR(static_cast<double>(levels.at(level)), 2.0 * static_cast<double>(level), 1.0);
  }
}

TEST(CalmLevels, WithAsManyUnitsAsStepsEachLevelIsOneMore) {
  const PrintedCurve dark(
      255, [](std::size_t units) { return std::sqrt(static_cast<double>(units) / 255.0); });
  const LevelUnits levels = calmLevelsOf(dark, 0.2, even(255));
  for (std::size_t level = 0; level < 256; ++level) {
    EXPECT_EQ(levels.at(level), level);
  }
}

// On a straight printer a tone one unit off costs 4 times the square of that unit's L*: as much as
// an unevenness of 4.
TEST(CalmLevels, AStateMoreUnevenThanFourUnitsSquaredIsPassedOverForItsNeighbour) {
  std::vector<double> unevenness = even(1020);
  unevenness[400] = 5.0;
  const LevelUnits levels = calmLevelsOf(straight(1020), 0.0, unevenness);
  for (std::size_t level = 0; level < 256; ++level) {
    if (level == 100) {
      EXPECT_TRUE(levels.at(level) == 399 || levels.at(level) == 401) << levels.at(level);
    } else {
      EXPECT_EQ(levels.at(level), 4 * level);
    }
  }
  unevenness[400] = 3.0;
  EXPECT_EQ(calmLevelsOf(straight(1020), 0.0, unevenness).at(100), 400U);
}

TEST(CalmLevels, StayApartWhereThePrinterJumps) {
  const PrintedCurve jump(600, [](std::size_t units) { return units < 300 ? 0.0 : 1.0; });
  const LevelUnits levels = calmLevelsOf(jump, 0.1, even(600));
  EXPECT_EQ(levels.front(), 0U);
  EXPECT_EQ(levels.back(), 600U);
  for (std::size_t level = 1; level < 256; ++level) {
    EXPECT_GT(levels.at(level), levels.at(level - 1));
  }
}

TEST(CalmLevels, APrinterThatNeverDarkensIsSurvived) {
  const PrintedCurve blank(600, [](std::size_t) { return 0.0; });
  const LevelUnits levels = calmLevelsOf(blank, 0.1, even(600));
  for (std::size_t level = 1; level < 256; ++level) {
    EXPECT_GT(levels.at(level), levels.at(level - 1));
  }
}

}  // namespace
}  // namespace gdi::makescreens
