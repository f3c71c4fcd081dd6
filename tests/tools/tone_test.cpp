// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/tone.h"

#include <cmath>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

TEST(Tone, TheTargetIsStraightWithoutGainAndLiftedInTheMiddleByIt) {
  EXPECT_DOUBLE_EQ(targetArea(0, 0.2), 0.0);
  EXPECT_DOUBLE_EQ(targetArea(255, 0.2), 1.0);
  EXPECT_DOUBLE_EQ(targetArea(51, 0.0), 0.2);
  EXPECT_DOUBLE_EQ(targetArea(51, 0.25), 0.36);  // 0.2 + 0.25 x 4 x 0.2 x 0.8
}

TEST(Tone, ACurveIsReadAtCountsAndAtAreas) {
  const PrintedCurve curve(480,
                           [](std::size_t units) { return static_cast<double>(units) / 960.0; });
  EXPECT_EQ(curve.units(), 480U);
  EXPECT_NEAR(curve.areaAt(0.0), 0.0, 1e-6);
  EXPECT_NEAR(curve.areaAt(121.0), 121.0 / 960.0, 1e-6);
  EXPECT_NEAR(curve.areaAt(480.0), 0.5, 1e-6);
  EXPECT_NEAR(curve.areaAt(1000.0), 0.5, 1e-6);
  EXPECT_NEAR(curve.unitsFor(0.25), 240.0, 1e-3);
  EXPECT_NEAR(curve.unitsFor(0.75), 480.0, 1e-3);
  EXPECT_NEAR(curve.unitsFor(-1.0), 0.0, 1e-3);
}

// Samples lie at whole units, here at each and each second: within half a unit they are smoothed.
TEST(Tone, ACurveHoldsWithinHalfAUnit) {
  const PrintedCurve curve(300,
                           [](std::size_t units) { return static_cast<double>(units) / 300.0; });
  for (int count = 0; count <= 300; ++count) {
    EXPECT_NEAR(curve.areaAt(count), count / 300.0, 0.5 / 300.0) << count;
  }
  const PrintedCurve few(2, [](std::size_t units) { return static_cast<double>(units) / 2.0; });
  EXPECT_NEAR(few.areaAt(1.0), 0.5, 1e-6);
}

TEST(Tone, APrinterThatDarkensIsGivenFewerUnits) {
  constexpr std::size_t kUnits = 100000;
  const PrintedCurve dark(
      kUnits, [](std::size_t units) { return std::pow(static_cast<double>(units) / kUnits, 0.8); });
  const LevelUnits levels = nearestUnits(dark, 0.0);
  for (const std::size_t level : {64U, 128U, 192U}) {
    const double share = std::pow(static_cast<double>(level) / 255.0, 1.25);
    EXPECT_NEAR(static_cast<double>(levels.at(level)), share * kUnits, 0.002 * kUnits);
  }
  EXPECT_EQ(levels.front(), 0U);
  EXPECT_EQ(levels.back(), kUnits);
}

// Bare paper that looks a tenth covered makes light levels wait, and those above it print straight.
TEST(Tone, FogCountsAsPrinted) {
  constexpr std::size_t kUnits = 100000;
  const PrintedCurve fogged(
      kUnits, [](std::size_t units) { return 0.1 + 0.9 * static_cast<double>(units) / kUnits; });
  const LevelUnits levels = nearestUnits(fogged, 0.0);
  EXPECT_EQ(levels.at(25), 0U);
  EXPECT_NEAR(static_cast<double>(levels.at(102)), kUnits / 3.0, 1.0);  // 0.4 = 0.1 + 0.9 / 3
}

}  // namespace
}  // namespace gdi::makescreens
