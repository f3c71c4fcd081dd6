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

TEST(Tone, AStraightPrinterDarkensInProportion) {
  const auto straight = [](std::size_t units) { return static_cast<double>(units) / 510.0; };
  const LevelUnits levels = unitsOfLevels(510, 0.0, straight);
  for (std::size_t level = 0; level < 256; ++level) {
    EXPECT_NEAR(static_cast<double>(levels.at(level)), 2.0 * static_cast<double>(level), 1.0);
  }
}

TEST(Tone, WithAsManyUnitsAsStepsEachLevelIsOneMore) {
  const auto dark = [](std::size_t units) { return std::sqrt(static_cast<double>(units) / 255.0); };
  const LevelUnits levels = unitsOfLevels(255, 0.2, dark);
  for (std::size_t level = 0; level < 256; ++level) {
    EXPECT_EQ(levels.at(level), level);
  }
}

TEST(Tone, APrinterThatDarkensIsGivenFewerUnits) {
  constexpr std::size_t kUnits = 100000;
  const auto dark = [](std::size_t units) {
    return std::pow(static_cast<double>(units) / kUnits, 0.8);
  };
  const LevelUnits levels = unitsOfLevels(kUnits, 0.0, dark);
  for (const std::size_t level : {64U, 128U, 192U}) {
    const double share = std::pow(static_cast<double>(level) / 255.0, 1.25);
    EXPECT_NEAR(static_cast<double>(levels.at(level)), share * kUnits, 0.002 * kUnits);
  }
}

TEST(Tone, LevelsStayApartWhereThePrinterJumps) {
  const auto jump = [](std::size_t units) { return units < 300 ? 0.0 : 1.0; };
  const LevelUnits levels = unitsOfLevels(600, 0.1, jump);
  EXPECT_EQ(levels.front(), 0U);
  EXPECT_EQ(levels.back(), 600U);
  for (std::size_t level = 1; level < 256; ++level) {
    EXPECT_GT(levels.at(level), levels.at(level - 1));
  }
}

TEST(Tone, APrinterThatNeverDarkensIsSurvived) {
  const LevelUnits levels = unitsOfLevels(600, 0.1, [](std::size_t) { return 0.0; });
  for (std::size_t level = 1; level < 256; ++level) {
    EXPECT_GT(levels.at(level), levels.at(level - 1));
  }
}

}  // namespace
}  // namespace gdi::makescreens
